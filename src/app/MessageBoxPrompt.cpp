#include "MessageBoxPrompt.h"

#include <QMessageBox>

namespace {
const QString kCaption = QStringLiteral("Orvane");
}

bool MessageBoxPrompt::askYesNo(const QString& text)
{
    return QMessageBox::question(m_parent, kCaption, text, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::Yes) == QMessageBox::Yes;
}

void MessageBoxPrompt::inform(const QString& text)
{
    QMessageBox::warning(m_parent, kCaption, text);
}
