#include "NamedButton.h"

#include <QPushButton>

QPushButton* makeNamedButton(const QString& caption, const char* name, const QString& tip)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    if (!tip.isEmpty())
        button->setToolTip(tip);
    return button;
}
