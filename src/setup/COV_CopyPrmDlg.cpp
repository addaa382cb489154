#include "COV_CopyPrmDlg.h"

#include "AppState.h"
#include "CardTypeSelector.h"
#include "DialogFlags.h"
#include "FrameRelay.h"
#include "ParameterCopy.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int kSyncPeriodMs = 100;

} // namespace

COV_CopyPrmDlg::COV_CopyPrmDlg(const ToolContext& context, CardNo card, AxisNo axis, int page,
                               QWidget* parent)
    : QDialog(parent, kDialogFlags), m_context(context), m_page(page)
{
    setWindowTitle(tr("Copy Parameter"));
    auto* groups = new QHBoxLayout;
    groups->addWidget(createSourceGroup(card, axis));
    groups->addWidget(createTargetGroup(card), 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(tr("OK"));
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(groups);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, [this] { copyAndClose(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(&m_syncTimer, &QTimer::timeout, this, [this] { syncToAll(); });
    m_syncTimer.start(kSyncPeriodMs);
}

QWidget* COV_CopyPrmDlg::createSourceGroup(CardNo card, AxisNo axis)
{
    auto* group = new QGroupBox(tr(" From "), this);
    const AppState& state = m_context.state;
    m_source = new CardTypeSelector(state.registry, state.active.family, card, group);
    m_sourceAxes = new QComboBox(group);
    fillSourceAxes(m_source->family(), m_source->card(), axis);
    auto* form = new QFormLayout(group);
    form->addRow(tr("Card Type"), m_source->typeList());
    form->addRow(tr("Card No."), m_source->cardList());
    form->addRow(tr("Axis No."), m_sourceAxes);
    connect(m_source, &CardTypeSelector::familyChosen, this,
            [this] { fillSourceAxes(m_source->family(), m_source->card(), 0); });
    connect(m_source, &CardTypeSelector::cardChosen, this,
            [this] { fillSourceAxes(m_source->family(), m_source->card(), 0); });
    return group;
}

QWidget* COV_CopyPrmDlg::createTargetGroup(CardNo card)
{
    auto* group = new QGroupBox(tr(" To "), this);
    const AppState& state = m_context.state;
    m_target = new CardTypeSelector(state.registry, state.active.family, card, group);
    m_rows = new QTableWidget(0, 1, group);
    m_rows->setHorizontalHeaderLabels({tr("Contents")});
    m_rows->horizontalHeader()->setStretchLastSection(true);
    m_rows->verticalHeader()->hide();
    m_rows->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_rows->setSelectionMode(QAbstractItemView::NoSelection);
    m_rows->setMinimumHeight(m_rows->horizontalHeader()->sizeHint().height() +
                             m_rows->verticalHeader()->defaultSectionSize() * kMaxAxes + 4);
    m_toAll = new QCheckBox(tr(" To All"), group);
    m_toAll->setToolTip(tr("Tick or untick every axis of the target card"));
    auto* form = new QFormLayout(group);
    form->addRow(tr("Card Type"), m_target->typeList());
    form->addRow(tr("Card No."), m_target->cardList());
    form->addRow(tr("Select Axis"), m_rows);
    form->addRow(QString(), m_toAll);
    m_targetCard = m_target->card();
    fillRows();

    connect(m_target, &CardTypeSelector::familyChosen, this, [this] {
        m_targetCard = 0;
        fillRows();
    });
    connect(m_target, &CardTypeSelector::cardChosen, this, [this] { onTargetCardChosen(); });
    connect(m_toAll, &QCheckBox::clicked, this, [this](bool ticked) { tickAll(ticked); });
    return group;
}

void COV_CopyPrmDlg::fillSourceAxes(BoardFamily family, int card, int selection)
{
    m_sourceAxes->clear();
    const int axes = m_context.state.registry.axisCount(family, card);
    for (int axis = 0; axis < axes; ++axis)
        m_sourceAxes->addItem(QString::number(axis));
    m_sourceAxes->setCurrentIndex(selection >= 0 && selection < axes ? selection : 0);
}

void COV_CopyPrmDlg::fillRows()
{
    m_targetAxisCount = m_context.state.registry.axisCount(m_target->family(), m_targetCard);
    m_rows->setRowCount(0);
    m_rows->setRowCount(qMax(0, m_targetAxisCount));
    for (int row = 0; row < m_targetAxisCount; ++row) {
        auto* item = new QTableWidgetItem(tr("%1 Axis").arg(row));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
        m_rows->setItem(row, 0, item);
    }
}

void COV_CopyPrmDlg::onTargetCardChosen()
{
    // Kept as the board tool has always behaved: the card comes from the source list, the
    // source axes are refilled for that card of the target family, and the rows stay.
    m_targetCard = m_source->card();
    fillSourceAxes(m_target->family(), m_targetCard, 0);
    m_targetAxisCount = m_context.state.registry.axisCount(m_target->family(), m_targetCard);
}

void COV_CopyPrmDlg::setRowTicked(int row, bool ticked)
{
    if (QTableWidgetItem* item = m_rows->item(row, 0))
        item->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

void COV_CopyPrmDlg::tickAll(bool ticked)
{
    m_settingAll = true;
    for (int row = 0; row < m_rows->rowCount(); ++row)
        setRowTicked(row, ticked);
    m_settingAll = false;
}

void COV_CopyPrmDlg::syncToAll()
{
    if (m_settingAll || m_rows->rowCount() == 0)
        return;
    const bool all = tickedAxes().size() == size_t(m_rows->rowCount());
    if (m_toAll->isChecked() != all)
        m_toAll->setChecked(all);
}

std::vector<AxisNo> COV_CopyPrmDlg::tickedAxes() const
{
    std::vector<AxisNo> axes;
    for (int row = 0; row < m_rows->rowCount(); ++row) {
        const QTableWidgetItem* item = m_rows->item(row, 0);
        if (item && item->checkState() == Qt::Checked)
            axes.push_back(static_cast<AxisNo>(row));
    }
    return axes;
}

void COV_CopyPrmDlg::copyAndClose()
{
    ParameterCopy::Source source;
    source.family = m_source->family();
    source.card = static_cast<CardNo>(m_source->card());
    source.axis = static_cast<AxisNo>(qMax(0, m_sourceAxes->currentIndex()));
    ParameterCopy::Target target;
    target.family = m_target->family();
    target.card = static_cast<CardNo>(m_target->card());
    target.axes = tickedAxes();
    ParameterCopy(m_context.board).copy(m_page, source, target);
    m_context.frame.sendToFrame(UM_VIEW_COMMAND, ToolParameter);
    accept();
}
