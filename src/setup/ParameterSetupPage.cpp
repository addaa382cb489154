#include "ParameterSetupPage.h"

#include "ParameterCatalog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLineEdit>

void ParameterSetupPage::Load(BoardFamily family)
{
    // The controls exist by the first load; from then on every edit updates the marks.
    watchEdits();
    loadShown(family);
    markEdits();
}

bool ParameterSetupPage::IsChanged(BoardFamily family)
{
    return shown(family).firstDifference(boardValues(family)) != nullptr;
}

void ParameterSetupPage::Apply(BoardFamily family)
{
    const PageParameters values = shown(family);
    values.write(m_board, m_card, m_axis);
    m_onBoard = values;
    m_boardFamily = family;
    markEdits();
}

PageParameters ParameterSetupPage::boardValues(BoardFamily family) const
{
    m_onBoard = PageParameters::read(m_board, m_page, family, m_card, m_axis);
    m_boardFamily = family;
    return *m_onBoard;
}

void ParameterSetupPage::watchEdits()
{
    if (m_watching)
        return;
    m_watching = true;
    for (QComboBox* combo : findChildren<QComboBox*>())
        connect(combo, &QComboBox::currentIndexChanged, this, [this] { markEdits(); });
    for (QLineEdit* edit : findChildren<QLineEdit*>()) {
        // A combo's own line edit is marked through the combo.
        if (qobject_cast<QComboBox*>(edit->parent()) == nullptr)
            connect(edit, &QLineEdit::textChanged, this, [this] { markEdits(); });
    }
    for (QCheckBox* box : findChildren<QCheckBox*>())
        connect(box, &QCheckBox::toggled, this, [this] { markEdits(); });
}

void ParameterSetupPage::markEdits()
{
    if (!m_onBoard)
        return;
    QStringList marked;
    for (const ParameterInfo* info : shown(m_boardFamily).differences(*m_onBoard))
        marked << QString::fromLatin1(info->name);
    if (marked == m_marked)
        return;
    m_marked = marked;
    for (QWidget* control : findChildren<QWidget*>()) {
        if (control->objectName().isEmpty() ||
            !(qobject_cast<QComboBox*>(control) || qobject_cast<QLineEdit*>(control) ||
              qobject_cast<QCheckBox*>(control)))
            continue;
        const bool edited = m_marked.contains(control->objectName(), Qt::CaseInsensitive);
        if (control->font().bold() == edited)
            continue;
        QFont font = control->font();
        font.setBold(edited);
        control->setFont(font);
    }
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
