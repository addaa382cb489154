#include "ParameterSetupPage.h"

#include "ParameterCatalog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>

bool ParameterSetupPage::IsChanged(BoardFamily family)
{
    return shown(family).firstDifference(boardValues(family)) != nullptr;
}

void ParameterSetupPage::Apply(BoardFamily family)
{
    shown(family).write(m_board, m_card, m_axis);
}

PageParameters ParameterSetupPage::boardValues(BoardFamily family) const
{
    return PageParameters::read(m_board, m_page, family, m_card, m_axis);
}

QComboBox* ParameterSetupPage::listFor(const char* parameter)
{
    auto* combo = new QComboBox;
    combo->setObjectName(QLatin1String(parameter));
    if (const ParameterInfo* info = ParameterCatalog::find(parameter)) {
        for (const char* text : info->choices)
            combo->addItem(QCoreApplication::translate("ParameterCatalog", text));
    }
    return combo;
}

QGroupBox* ParameterSetupPage::group(const QString& title)
{
    return new QGroupBox(title);
}

void ParameterSetupPage::select(QComboBox* combo, int index)
{
    // A code off the list shows as no selection, as the board gave it.
    combo->setCurrentIndex(index >= 0 && index < combo->count() ? index : -1);
}
