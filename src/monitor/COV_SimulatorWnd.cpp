#include "COV_SimulatorWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "CardSelectorRow.h"
#include "NamedButton.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

struct FaultRow
{
    const char* caption;
    SimSignal signal;
    const char* meaning;
};
const std::array<FaultRow, COV_SimulatorWnd::kRows> kFaultRows{{
    {QT_TRANSLATE_NOOP("COV_SimulatorWnd", " +Limit"), SimSignal::LimitPlus,
     QT_TRANSLATE_NOOP("COV_SimulatorWnd", "plus limit switch held actuated")},
    {QT_TRANSLATE_NOOP("COV_SimulatorWnd", " -Limit"), SimSignal::LimitMinus,
     QT_TRANSLATE_NOOP("COV_SimulatorWnd", "minus limit switch held actuated")},
    {QT_TRANSLATE_NOOP("COV_SimulatorWnd", " Origin"), SimSignal::Origin,
     QT_TRANSLATE_NOOP("COV_SimulatorWnd", "origin switch held actuated")},
    {QT_TRANSLATE_NOOP("COV_SimulatorWnd", " Encoder Z"), SimSignal::Z,
     QT_TRANSLATE_NOOP("COV_SimulatorWnd", "encoder Z mark held on")},
    {QT_TRANSLATE_NOOP("COV_SimulatorWnd", " Alarm"), SimSignal::Alarm,
     QT_TRANSLATE_NOOP("COV_SimulatorWnd", "drive alarm, latched until an alarm reset")},
    {QT_TRANSLATE_NOOP("COV_SimulatorWnd", " INP On"), SimSignal::InpOn,
     QT_TRANSLATE_NOOP("COV_SimulatorWnd", "in-position line stuck on")},
    {QT_TRANSLATE_NOOP("COV_SimulatorWnd", " INP Off"), SimSignal::InpOff,
     QT_TRANSLATE_NOOP("COV_SimulatorWnd", "in-position line stuck off")},
    {QT_TRANSLATE_NOOP("COV_SimulatorWnd", " Enc. Loss"), SimSignal::EncoderLoss,
     QT_TRANSLATE_NOOP("COV_SimulatorWnd", "encoder lost: the actual position stands still")},
}};

QString translated(const char* text)
{
    return QCoreApplication::translate("COV_SimulatorWnd", text);
}

void setChecked(QCheckBox* box, bool on)
{
    if (box->isChecked() == on)
        return;
    const QSignalBlocker quiet(box);
    box->setChecked(on);
}

} // namespace

COV_SimulatorWnd::COV_SimulatorWnd(const ToolContext& context, QWidget* parent)
    : ToolView(parent), m_context(context), m_simulator(context.board.simulator())
{
    auto* layout = new QVBoxLayout(this);
    m_cardRow = new CardSelectorRow;
    layout->addWidget(m_cardRow);
    m_notice = new QLabel;
    m_notice->setObjectName(QStringLiteral("notice"));
    m_notice->setWordWrap(true);
    layout->addWidget(m_notice);
    layout->addWidget(createSwitchGroup());
    layout->addWidget(createForcedGroup());
    auto* closeRow = new QHBoxLayout;
    closeRow->addStretch();
    m_close = makeNamedButton(tr("Close"), "closeButton");
    closeRow->addWidget(m_close);
    layout->addLayout(closeRow);
    layout->addStretch();
    connectControls();
    fillCard();
    m_timer.setInterval(kPollMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { refresh(); });
    m_timer.start();
}

QWidget* COV_SimulatorWnd::createSwitchGroup()
{
    auto* group = new QGroupBox(tr("Faults (act at once, as the real inputs would)"));
    auto* grid = new QGridLayout(group);
    grid->setHorizontalSpacing(6);
    for (int axis = 0; axis < kAxes; ++axis) {
        auto* title = new QLabel(tr("%1 Axis").arg(axis));
        title->setAlignment(Qt::AlignCenter);
        grid->addWidget(title, 0, axis + 1);
    }
    for (int row = 0; row < kRows; ++row) {
        const FaultRow& fault = kFaultRows[std::size_t(row)];
        grid->addWidget(new QLabel(translated(fault.caption)), row + 1, 0);
        for (int axis = 0; axis < kAxes; ++axis) {
            auto* box = new QCheckBox;
            box->setObjectName(QStringLiteral("fault%1_%2").arg(axis).arg(row));
            box->setToolTip(tr("Axis %1: %2").arg(axis).arg(translated(fault.meaning)));
            m_faults[std::size_t(axis)][std::size_t(row)] = box;
            grid->addWidget(box, row + 1, axis + 1, Qt::AlignCenter);
        }
    }
    grid->addWidget(new QLabel(tr(" EMG")), kRows + 1, 0);
    m_emergency = new QCheckBox;
    m_emergency->setObjectName(QStringLiteral("emergencyBox"));
    m_emergency->setToolTip(tr("The card's emergency-stop switch pressed"));
    grid->addWidget(m_emergency, kRows + 1, 1, Qt::AlignCenter);
    return group;
}

QWidget* COV_SimulatorWnd::createForcedGroup()
{
    auto* group = new QGroupBox(tr("Forced Results (the operation does nothing)"));
    auto* grid = new QGridLayout(group);
    m_operation = new QComboBox;
    m_operation->setObjectName(QStringLiteral("operationCombo"));
    m_result = new QLineEdit(QStringLiteral("-1"));
    m_result->setObjectName(QStringLiteral("resultEdit"));
    m_result->setValidator(new QIntValidator(m_result));
    m_result->setToolTip(tr("The result the operation returns while forced"));
    m_force = makeNamedButton(tr("Force"), "forceButton",
                              tr("The chosen operation returns the result and does nothing"));
    m_free = makeNamedButton(tr("Free"), "freeButton", tr("The chosen operation works again"));
    m_freeAll = makeNamedButton(tr("Free All"), "freeAllButton",
                                tr("Every operation of the family works again"));
    m_forced = new QListWidget;
    m_forced->setObjectName(QStringLiteral("forcedList"));
    m_forced->setMaximumHeight(90);
    grid->addWidget(new QLabel(tr("Operation : ")), 0, 0);
    grid->addWidget(m_operation, 0, 1);
    grid->addWidget(new QLabel(tr("Result : ")), 0, 2);
    grid->addWidget(m_result, 0, 3);
    grid->addWidget(m_force, 0, 4);
    grid->addWidget(m_free, 0, 5);
    grid->addWidget(m_forced, 1, 0, 1, 5);
    grid->addWidget(m_freeAll, 1, 5, Qt::AlignTop);
    return group;
}

void COV_SimulatorWnd::connectControls()
{
    connect(m_cardRow, &CardSelectorRow::cardActivated, this, [this](int card) {
        m_card = card;
        fillCard();
    });
    for (int axis = 0; axis < kAxes; ++axis) {
        for (int row = 0; row < kRows; ++row) {
            connect(faultBox(axis, row), &QCheckBox::toggled, this,
                    [this, axis, row](bool on) { switchFault(axis, row, on); });
        }
    }
    connect(m_emergency, &QCheckBox::toggled, this, [this](bool on) {
        m_simulator.setSignal(m_family, CardNo(m_card), 0, SimSignal::Emergency, on);
        refresh();
    });
    connect(m_force, &QPushButton::clicked, this, [this] { force(true); });
    connect(m_free, &QPushButton::clicked, this, [this] { force(false); });
    connect(m_freeAll, &QPushButton::clicked, this, [this] { freeAll(); });
    connect(m_close, &QPushButton::clicked, this, [this] { requestClose(); });
}

QCheckBox* COV_SimulatorWnd::faultBox(int axis, int row) const
{
    return m_faults[std::size_t(axis)][std::size_t(row)];
}

void COV_SimulatorWnd::fillCard()
{
    const AppState& state = m_context.state;
    m_family = state.active.family;
    if (m_cardRow->combo()->count() == 0)
        m_card = m_cardRow->fillActiveCards(state);
    m_axisCount = state.registry.axisCount(m_family, m_card);
    setWindowTitle(tr("Simulator - %1(%2)").arg(state.modelName(m_card)).arg(m_card));
    const bool simulated = m_simulator.isSimulated(m_family);
    m_notice->setText(simulated ? tr("Switches set here hold until switched back or until "
                                     "NrxSimFaults.ini changes, which sets them all as it says.")
                                : tr("The boards of this family are not simulated."));
    for (int axis = 0; axis < kAxes; ++axis) {
        for (int row = 0; row < kRows; ++row) {
            faultBox(axis, row)->setEnabled(simulated && axis < m_axisCount);
            setChecked(faultBox(axis, row), false);
        }
    }
    for (QWidget* control : std::initializer_list<QWidget*>{m_emergency, m_operation, m_result,
                                                            m_force, m_free, m_freeAll})
        control->setEnabled(simulated);
    m_operation->clear();
    for (int op = 0; op < kBoardOpCount; ++op) {
        if (BoardSimulator::canForce(m_family, BoardOp(op)))
            m_operation->addItem(QLatin1String(kBoardOps[op].name), op);
    }
    refresh();
}

void COV_SimulatorWnd::switchFault(int axis, int row, bool on)
{
    m_simulator.setSignal(m_family, CardNo(m_card), AxisNo(axis),
                          kFaultRows[std::size_t(row)].signal, on);
    // In-position stuck on and stuck off exclude each other: show what the boards took.
    refresh();
}

void COV_SimulatorWnd::force(bool use)
{
    if (m_operation->currentIndex() < 0)
        return;
    const BoardOp op = BoardOp(m_operation->currentData().toInt());
    bool valid = false;
    const int result = m_result->text().toInt(&valid);
    if (use && !valid)
        return;
    m_simulator.forceResult(m_family, op, use ? std::optional<std::int32_t>(result) : std::nullopt);
    refresh();
}

void COV_SimulatorWnd::freeAll()
{
    for (int op = 0; op < kBoardOpCount; ++op) {
        if (m_simulator.forcedResult(m_family, BoardOp(op)))
            m_simulator.forceResult(m_family, BoardOp(op), std::nullopt);
    }
    refresh();
}

void COV_SimulatorWnd::refresh()
{
    if (!m_simulator.isSimulated(m_family))
        return;
    for (int axis = 0; axis < m_axisCount && axis < kAxes; ++axis) {
        for (int row = 0; row < kRows; ++row) {
            setChecked(faultBox(axis, row),
                       m_simulator.signal(m_family, CardNo(m_card), AxisNo(axis),
                                          kFaultRows[std::size_t(row)].signal));
        }
    }
    setChecked(m_emergency, m_simulator.signal(m_family, CardNo(m_card), 0, SimSignal::Emergency));
    QStringList forced;
    for (int op = 0; op < kBoardOpCount; ++op) {
        if (const auto result = m_simulator.forcedResult(m_family, BoardOp(op)))
            forced << tr("%1 returns %2").arg(QLatin1String(kBoardOps[op].name)).arg(*result);
    }
    QStringList shown;
    for (int i = 0; i < m_forced->count(); ++i)
        shown << m_forced->item(i)->text();
    if (shown != forced) {
        m_forced->clear();
        m_forced->addItems(forced);
    }
}

void COV_SimulatorWnd::handleUserMessage(UserMessage message, int)
{
    if (message != UM_CONTROLLER_CHANGED)
        return;
    m_cardRow->combo()->clear();
    fillCard();
}
