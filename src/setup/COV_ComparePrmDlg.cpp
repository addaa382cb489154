#include "COV_ComparePrmDlg.h"

#include "AppState.h"
#include "DialogFlags.h"
#include "ParameterSourceBox.h"
#include "ParameterText.h"
#include "PromptService.h"
#include "ToolContext.h"
#include "UnitScaleImport.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
const QColor kDifferent(255, 214, 153);
}

COV_ComparePrmDlg::COV_ComparePrmDlg(const ToolContext& context, QWidget* parent)
    : QDialog(parent, kDialogFlags), m_context(context)
{
    setWindowTitle(tr("Compare Parameters"));
    resize(760, 600);
    auto* layout = new QVBoxLayout(this);
    auto* sources = new QHBoxLayout;
    const QList<ParameterSourceBox::Kind> kinds{ParameterSourceBox::Axis, ParameterSourceBox::Card,
                                                ParameterSourceBox::File};
    const char* const titles[] = {QT_TR_NOOP(" A "), QT_TR_NOOP(" B ")};
    const ActiveController& active = context.state.active;
    for (int i = 0; i < 2; ++i) {
        m_sources[i] = new ParameterSourceBox(tr(titles[i]), kinds, context.state.registry, this);
        m_sources[i]->setScope(active.family, active.card, i == 0 ? active.axis : 0);
        sources->addWidget(m_sources[i]);
    }
    layout->addLayout(sources);

    auto* bar = new QHBoxLayout;
    auto* compareButton = new QPushButton(tr("Compare"), this);
    compareButton->setToolTip(tr("Read both sources and list their parameters"));
    m_differencesOnly = new QCheckBox(tr(" Differences only"), this);
    m_differencesOnly->setToolTip(tr("Hide the parameters both sources agree on"));
    m_summary = new QLabel(this);
    bar->addWidget(compareButton);
    bar->addWidget(m_differencesOnly);
    bar->addWidget(m_summary, 1);
    layout->addLayout(bar);

    m_table = new QTableWidget(0, 4, this);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->verticalHeader()->setVisible(false);
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    for (int column = 0; column < 3; ++column)
        m_table->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
    layout->addWidget(m_table, 1);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    layout->addWidget(buttons);

    connect(compareButton, &QPushButton::clicked, this, [this] { compare(); });
    connect(m_differencesOnly, &QCheckBox::toggled, this, [this] { showRows(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

bool COV_ComparePrmDlg::read(const ParameterSourceBox& box, ParameterSet& set)
{
    if (box.kind() != ParameterSourceBox::File) {
        set = ParameterSet::fromBoards(m_context.board, m_context.state.registry, box.scope());
        set.addUnits(m_context.state.units);
        return true;
    }
    std::vector<ParameterFault> faults;
    set = ParameterText::readFile(box.filePath(), faults);
    if (faults.empty())
        return true;
    m_context.prompt.inform(
        tr("%1 cannot be compared:\n%2").arg(box.filePath(), ParameterText::faultList(faults)));
    return false;
}

bool COV_ComparePrmDlg::compare()
{
    ParameterSet sets[2];
    if (!read(*m_sources[0], sets[0]) || !read(*m_sources[1], sets[1]))
        return false;
    m_rows = ParameterComparison::compare(sets[0], sets[1]);
    m_unitRows = ParameterComparison::compareUnits(sets[0], sets[1]);
    m_table->setHorizontalHeaderLabels({tr("Section"), tr("Parameter"),
                                        tr("A: ") + m_sources[0]->label(),
                                        tr("B: ") + m_sources[1]->label()});
    m_summary->setText(tr("%1 of %2 parameters differ")
                           .arg(ParameterComparison::differenceCount(m_rows))
                           .arg(m_rows.size()));
    showRows();
    return true;
}

void COV_ComparePrmDlg::showRows()
{
    const bool onlyDifferent = m_differencesOnly->isChecked();
    m_table->setRowCount(0);
    for (const ComparisonRow& row : m_rows) {
        if (onlyDifferent && !row.differs())
            continue;
        const int at = m_table->rowCount();
        m_table->insertRow(at);
        const QStringList cells{row.section, QLatin1String(row.info->name),
                                ParameterComparison::valueText(*row.info, row.first),
                                ParameterComparison::valueText(*row.info, row.second)};
        for (int column = 0; column < cells.size(); ++column) {
            auto* item = new QTableWidgetItem(cells[column]);
            if (row.differs())
                item->setBackground(kDifferent);
            m_table->setItem(at, column, item);
        }
    }
    showUnitRows();
}

// The axis scales after the parameters, where either source has one.
void COV_ComparePrmDlg::showUnitRows()
{
    const bool onlyDifferent = m_differencesOnly->isChecked();
    for (const UnitComparisonRow& row : m_unitRows) {
        if (onlyDifferent && !row.differs())
            continue;
        const int at = m_table->rowCount();
        m_table->insertRow(at);
        const QStringList cells{row.section, tr("Unit Scale"),
                                UnitScaleImport::scaleText(row.first),
                                UnitScaleImport::scaleText(row.second)};
        for (int column = 0; column < cells.size(); ++column) {
            auto* item = new QTableWidgetItem(cells[column]);
            if (row.differs())
                item->setBackground(kDifferent);
            m_table->setItem(at, column, item);
        }
    }
}
