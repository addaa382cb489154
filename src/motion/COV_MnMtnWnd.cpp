#include "COV_MnMtnWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "FieldText.h"
#include "FrameRelay.h"
#include "GantryCheck.h"
#include "IsNumericText.h"
#include "JogReleaseGuard.h"
#include "PageFieldGrid.h"
#include "PromptService.h"
#include "QtClockwork.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {
const QString kParametersChanged =
    QStringLiteral("Parameters are changed. Do you want to set parameter?");
const QString kNotChecked =
    QStringLiteral("Selected axis in not checked !\n Please check selected axis !");
const QString kTwoAxes = QStringLiteral("Please Select at least 2 axes !");
const QString kGantryError = QStringLiteral("Gantry Limit Error !");
const QString kPps = QStringLiteral("[pps]");
const QString kMsec = QStringLiteral("[msec]");
const QString kPulse = QStringLiteral("[pulse]");

QPushButton* makeButton(const QString& caption, const char* name)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

QCheckBox* makeCheckBox(const QString& caption, const char* name)
{
    auto* box = new QCheckBox(caption);
    box->setObjectName(QLatin1String(name));
    return box;
}
} // namespace

COV_MnMtnWnd::COV_MnMtnWnd(const ToolContext& context, QWidget* parent)
    : COV_MnMtnWnd(context, std::make_unique<QtClockwork>(), nullptr, parent)
{}

COV_MnMtnWnd::COV_MnMtnWnd(const ToolContext& context, SequencerClockwork& clockwork,
                           QWidget* parent)
    : COV_MnMtnWnd(context, nullptr, &clockwork, parent)
{}

COV_MnMtnWnd::COV_MnMtnWnd(const ToolContext& context, std::unique_ptr<QtClockwork> ownClockwork,
                           SequencerClockwork* clockwork, QWidget* parent)
    : ToolView(parent), m_context(context), m_ownClockwork(std::move(ownClockwork)),
      m_sequencer(context.state.active, context.board, context.prompt,
                  clockwork != nullptr ? *clockwork : *m_ownClockwork, *this,
                  MovingOwner::MultiAxis)
{
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(createAxisColumn());
    auto* middle = new QVBoxLayout;
    middle->addWidget(createProfileGroup());
    middle->addWidget(createRepeatGroup());
    middle->addStretch();
    layout->addLayout(middle);
    auto* right = new QVBoxLayout;
    right->addWidget(createCounterGroup());
    right->addWidget(createGantryGroup());
    right->addStretch();
    layout->addLayout(right);
    layout->addWidget(createButtonColumn());
    connectControls();

    m_setAll->setChecked(true);
    m_applyAll->setChecked(true);
    onMotionTypeChanged(0);
    setFieldNumber(m_errorLimitEdit, m_errorLimit);
    m_gantrySource->setCurrentIndex(0);
    fillCardCombo();
    reload();
    m_listWatch.setInterval(kListWatchIntervalMs);
    m_listWatch.start();
    m_gantryTimer.setTimerType(Qt::PreciseTimer);
    m_gantryTimer.setInterval(kGantryIntervalMs);
}

COV_MnMtnWnd::~COV_MnMtnWnd()
{
    // Deleting the children moves the focus; the guard must not outlive the sequencer.
    delete m_jogGuard;
    m_jogGuard = nullptr;
    m_gantryTimer.stop();
    m_listWatch.stop();
    m_sequencer.endHeldJog();
    m_context.state.active.setAxesMoving(MovingOwner::MultiAxis, false);
}

QWidget* COV_MnMtnWnd::createAxisColumn()
{
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* cardRow = new QHBoxLayout;
    m_cardCombo = new QComboBox;
    m_cardCombo->setObjectName(QStringLiteral("cardCombo"));
    cardRow->addWidget(new QLabel(QStringLiteral("Card No. : ")));
    cardRow->addWidget(m_cardCombo, 1);
    layout->addLayout(cardRow);
    layout->addWidget(new QLabel(QStringLiteral("Select Axis")));
    m_axisList = new QListWidget;
    m_axisList->setObjectName(QStringLiteral("axisList"));
    m_axisList->setToolTip(QStringLiteral("Tick the axes that move together; the highlighted "
                                          "axis is the one the fields show"));
    m_axisList->setMaximumWidth(130);
    layout->addWidget(m_axisList, 1);
    m_allAxes = makeCheckBox(QStringLiteral(" All Axes"), "allAxes");
    layout->addWidget(m_allAxes);
    return column;
}

QWidget* COV_MnMtnWnd::createProfileGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    m_motionTypeCombo = new QComboBox;
    m_motionTypeCombo->setObjectName(QStringLiteral("motionType"));
    m_motionTypeCombo->addItems({QStringLiteral("0 : Jog"), QStringLiteral("1 : Relative"),
                                 QStringLiteral("2 : Absolute")});
    grid.addRow(QStringLiteral(" Motion Type"), m_motionTypeCombo);
    m_drive = grid.addField(QStringLiteral(" Drive Speed"), kPps, "driveSpeed");
    m_initial = grid.addField(QStringLiteral(" Initial Speed"), kPps, "initialSpeed");
    m_accel = grid.addField(QStringLiteral(" Accel Time"), kMsec, "accelTime", &m_accelLabel);
    m_decel = grid.addField(QStringLiteral(" Decel Time"), kMsec, "decelTime");
    m_setAll = makeCheckBox(QStringLiteral(" Set All Selected Axes"), "setAll");
    m_setPrm = makeButton(QStringLiteral("Set Prm"), "setPrmButton");
    grid.addRow(m_setAll, m_setPrm);
    return group;
}

QWidget* COV_MnMtnWnd::createRepeatGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    m_repeat = makeCheckBox(QStringLiteral(" Repeat"), "repeat");
    m_infinite = makeCheckBox(QStringLiteral("Infinite"), "infinite");
    grid.addRow(m_repeat, m_infinite);
    m_count = grid.addField(QStringLiteral(" Count"), QString(), "count");
    m_delay = grid.addField(QStringLiteral(" Delay Time"), kMsec, "delayTime");
    m_position1 = grid.addField(QStringLiteral(" Position 1"), kPulse, "position1");
    m_position2 =
        grid.addField(QStringLiteral(" Position 2"), kPulse, "position2", &m_position2Label);
    m_applyAll = makeCheckBox(QStringLiteral(" Apply All Selected Axes"), "applyAll");
    m_apply = makeButton(QStringLiteral("Apply"), "applyButton");
    grid.addRow(m_applyAll, m_apply);
    return group;
}

QWidget* COV_MnMtnWnd::createCounterGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    m_setCommand = grid.addField(QStringLiteral(" Set Command"), kPulse, "setCommand");
    grid.addButton(QStringLiteral("Command"), "commandButton");
    m_setActual = grid.addField(QStringLiteral(" Set Actual"), kPulse, "setActual");
    grid.addButton(QStringLiteral("Actual"), "actualButton");
    m_repeatCount = grid.addField(QStringLiteral(" Repeat Count"), QString(), "repeatCount");
    m_cycleTime = grid.addField(QStringLiteral(" Cycle Time"), kMsec, "cycleTime");
    for (QLineEdit* display : {m_repeatCount, m_cycleTime})
        display->setReadOnly(true);
    return group;
}

QWidget* COV_MnMtnWnd::createGantryGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    m_gantryBox = makeCheckBox(QStringLiteral(" Gantry Error Check"), "gantryCheck");
    m_gantryBox->setToolTip(QStringLiteral("Every millisecond while the axes move, compare "
                                           "each checked axis with the next; stop them all "
                                           "when two differ by more than the error limit"));
    grid.addRow(m_gantryBox, new QWidget);
    m_gantrySource = new QComboBox;
    m_gantrySource->setObjectName(QStringLiteral("gantrySource"));
    m_gantrySource->addItems({QStringLiteral("0 : Command"), QStringLiteral("1 : Actual")});
    grid.addRow(QStringLiteral(" Position"), m_gantrySource);
    m_errorLimitEdit = grid.addField(QStringLiteral(" Error Limit "), kPulse, "errorLimit");
    return group;
}

QWidget* COV_MnMtnWnd::createButtonColumn()
{
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    m_eStop = makeButton(QStringLiteral("E-Stop"), "eStopButton");
    m_sStop = makeButton(QStringLiteral("S-Stop"), "sStopButton");
    m_eStop->setToolTip(QStringLiteral("Stop the checked axes at once"));
    m_sStop->setToolTip(QStringLiteral("Stop the checked axes with their deceleration"));
    m_servo = makeButton(QStringLiteral("Servo On"), "servoButton");
    m_minus = makeButton(QStringLiteral("-Jog"), "minusButton");
    m_plus = makeButton(QStringLiteral("+Jog"), "plusButton");
    m_alarmReset = makeButton(QStringLiteral("Alarm Reset"), "alarmResetButton");
    m_counterClear = makeButton(QStringLiteral("Counter Clear"), "counterClearButton");
    m_parameterSetup = makeButton(QStringLiteral("Parameter Setup"), "parameterSetupButton");
    m_close = makeButton(QStringLiteral("Close"), "closeButton");
    for (QPushButton* big : {m_eStop, m_sStop})
        big->setMinimumHeight(40);
    for (QPushButton* big : {m_minus, m_plus})
        big->setMinimumHeight(48);
    for (QPushButton* button : {m_eStop, m_sStop, m_servo})
        layout->addWidget(button);
    layout->addSpacing(12);
    auto* motionRow = new QHBoxLayout;
    motionRow->addWidget(m_minus, 1);
    motionRow->addWidget(m_plus, 1);
    layout->addLayout(motionRow);
    layout->addSpacing(12);
    for (QPushButton* button : {m_alarmReset, m_counterClear, m_parameterSetup})
        layout->addWidget(button);
    layout->addStretch();
    layout->addWidget(m_close);
    return column;
}

void COV_MnMtnWnd::connectControls()
{
    for (QPushButton* button : {m_minus, m_plus, m_alarmReset})
        button->installEventFilter(this);
    m_jogGuard = new JogReleaseGuard(this, [this] { m_sequencer.endHeldJog(); });
    m_jogGuard->watchButton(m_minus);
    m_jogGuard->watchButton(m_plus);

    connect(&m_listWatch, &QTimer::timeout, this, [this] { onListWatch(); });
    connect(&m_gantryTimer, &QTimer::timeout, this, [this] { onGantryTick(); });
    connect(m_cardCombo, &QComboBox::activated, this, [this](int index) {
        promptIfChanged(family());
        m_card = static_cast<CardNo>(index);
        reload();
    });
    connect(m_axisList, &QListWidget::currentRowChanged, this,
            [this](int row) { onFocusChanged(row); });
    connect(m_axisList, &QListWidget::itemChanged, this, [this] { m_listChanged = true; });
    connect(m_allAxes, &QCheckBox::clicked, this, [this](bool on) {
        for (int row = 0; row < m_axisList->count(); ++row)
            m_axisList->item(row)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    });
    connect(m_motionTypeCombo, &QComboBox::activated, this, [this](int index) {
        promptIfChanged(family());
        onMotionTypeChanged(index);
    });
    connect(m_repeat, &QCheckBox::clicked, this,
            [this] { onMotionTypeChanged(int(motionType())); });
    connect(m_setPrm, &QPushButton::clicked, this, [this] { setParameters(); });
    connect(m_apply, &QPushButton::clicked, this, [this] { applyPositions(); });
    connect(m_eStop, &QPushButton::clicked, this, [this] {
        if (focusedChecked(true))
            m_sequencer.suddenStop();
    });
    connect(m_sStop, &QPushButton::clicked, this, [this] {
        if (focusedChecked(true))
            m_sequencer.decelStop();
    });
    connect(m_servo, &QPushButton::clicked, this, [this] { onServoClicked(); });
    connect(m_counterClear, &QPushButton::clicked, this, [this] {
        if (focusedChecked(true))
            forEachChecked(
                [this](AxisNo axis) { m_context.board.PutSvCClrCmd(family(), m_card, axis); });
    });
    connect(findChild<QPushButton*>(QStringLiteral("commandButton")), &QPushButton::clicked, this,
            [this] {
                forEachChecked([this](AxisNo axis) {
                    m_context.board.SetCommandPos(family(), m_card, axis,
                                                  fieldNumber(m_setCommand));
                });
            });
    connect(findChild<QPushButton*>(QStringLiteral("actualButton")), &QPushButton::clicked, this,
            [this] {
                forEachChecked([this](AxisNo axis) {
                    m_context.board.SetActualPos(family(), m_card, axis, fieldNumber(m_setActual));
                });
            });
    connect(m_gantryBox, &QCheckBox::toggled, this, [this](bool on) { onGantryBox(on); });
    connect(m_errorLimitEdit, &QLineEdit::textEdited, this,
            [this](const QString& text) { onErrorLimitEdited(text); });
    connect(m_parameterSetup, &QPushButton::clicked, this,
            [this] { m_context.frame.sendToFrame(UM_OPEN_TOOL, ToolParameter); });
    connect(m_close, &QPushButton::clicked, this, [this] { requestClose(); });
}

BoardFamily COV_MnMtnWnd::family() const
{
    return m_context.state.active.family;
}

void COV_MnMtnWnd::fillCardCombo()
{
    const int cards = m_context.state.activeCardCount();
    m_cardCombo->clear();
    for (int card = 0; card < cards; ++card)
        m_cardCombo->addItem(QString::number(card));
    m_card = static_cast<CardNo>(m_context.state.active.card);
    m_cardCombo->setCurrentIndex(m_context.state.active.card);
    m_cardCombo->setEnabled(cards > 1);
}

void COV_MnMtnWnd::reload()
{
    const AppState& state = m_context.state;
    setWindowTitle(
        QStringLiteral("Multi Axis Motion - %1(%2)").arg(state.modelName(m_card)).arg(m_card));
    m_axisCount = std::min(state.registry.axisCount(family(), m_card), MultiAxisSlots::kMaxAxes);
    {
        const QSignalBlocker quiet(m_axisList);
        m_axisList->clear();
        for (int axis = 0; axis < m_axisCount; ++axis) {
            auto* row = new QListWidgetItem(QStringLiteral("%1 Axis").arg(axis), m_axisList);
            row->setFlags(row->flags() | Qt::ItemIsUserCheckable);
            row->setCheckState(Qt::Unchecked);
        }
        m_focused = 0;
        m_axisList->setCurrentRow(0);
    }
    m_listChanged = true;
    m_editingState = -1;
    loadProfilesFromBoard();
    showFocusedFields();
    updateServoCaption();
    onListWatch();
}

void COV_MnMtnWnd::loadProfilesFromBoard()
{
    const bool jog = motionType() == MotionType::Jog;
    for (int axis = 0; axis < m_axisCount; ++axis) {
        const auto a = static_cast<AxisNo>(axis);
        m_slots.loadProfile(a,
                            jog ? PtpSpeeds::readJog(m_context.board, family(), m_card, a)
                                : PtpSpeeds::readPositioning(m_context.board, family(), m_card, a));
    }
}

void COV_MnMtnWnd::showFocusedFields()
{
    const auto axis = static_cast<AxisNo>(m_focused);
    const PtpSpeeds speeds =
        motionType() == MotionType::Jog
            ? PtpSpeeds::readJog(m_context.board, family(), m_card, axis)
            : PtpSpeeds::readPositioning(m_context.board, family(), m_card, axis);
    setFieldNumber(m_drive, speeds.drive);
    setFieldNumber(m_initial, speeds.initial);
    setFieldNumber(m_accel, speeds.accelMs);
    setFieldNumber(m_decel, speeds.decelMs);
    const AxisPositions& positions = m_slots.positions(axis);
    setFieldNumber(m_position1, positions.position1);
    setFieldNumber(m_position2, positions.position2);
}

PtpSpeeds COV_MnMtnWnd::profileFields() const
{
    return PtpSpeeds{fieldNumber(m_initial), fieldNumber(m_drive), fieldNumber(m_accel),
                     fieldNumber(m_decel)};
}

void COV_MnMtnWnd::writeProfiles(const std::vector<AxisNo>& axes, MotionType type)
{
    for (AxisNo axis : axes) {
        if (type == MotionType::Jog)
            m_slots.profile(axis).writeJog(m_context.board, family(), m_card, axis);
        else
            m_slots.profile(axis).writePositioning(m_context.board, family(), m_card, axis);
    }
}

void COV_MnMtnWnd::setParameters()
{
    const MotionType type = motionType();
    const auto focused = static_cast<AxisNo>(m_focused);
    const bool all = m_setAll->isChecked();
    m_slots.setProfile(focused, profileFields(), all, m_checked, type);
    std::vector<AxisNo> written{focused};
    if (all) {
        for (AxisNo axis : m_checked) {
            if (axis != focused)
                written.push_back(axis);
        }
    }
    writeProfiles(written, type);
    m_context.frame.sendToFrame(UM_PARAM_CHANGED, m_card);
}

void COV_MnMtnWnd::applyPositions()
{
    m_slots.setPositions(static_cast<AxisNo>(m_focused), fieldNumber(m_position1),
                         fieldNumber(m_position2), m_applyAll->isChecked(), m_checked);
}

bool COV_MnMtnWnd::profileChanged(BoardFamily boardFamily) const
{
    const auto axis = static_cast<AxisNo>(m_focused);
    const bool jog = motionType() == MotionType::Jog;
    const PtpSpeeds board =
        jog ? PtpSpeeds::readJog(m_context.board, boardFamily, m_card, axis)
            : PtpSpeeds::readPositioning(m_context.board, boardFamily, m_card, axis);
    const PtpSpeeds fields = profileFields();
    return fields.initial != board.initial || fields.drive != board.drive ||
           fields.accelMs != board.accelMs || (!jog && fields.decelMs != board.decelMs);
}

void COV_MnMtnWnd::promptIfChanged(BoardFamily boardFamily)
{
    if (m_axisCount > 0 && profileChanged(boardFamily) &&
        m_context.prompt.askYesNo(kParametersChanged))
        setParameters();
}

bool COV_MnMtnWnd::focusedChecked(bool tell)
{
    const QListWidgetItem* row = m_axisList->item(m_focused);
    if (row != nullptr && row->checkState() == Qt::Checked)
        return true;
    if (tell)
        m_context.prompt.inform(kNotChecked);
    return false;
}

void COV_MnMtnWnd::forEachChecked(const std::function<void(AxisNo)>& act)
{
    onListWatch(); // a box ticked a moment ago counts
    for (AxisNo axis : m_checked)
        act(axis);
}

void COV_MnMtnWnd::updateServoCaption()
{
    const bool on = m_context.board.GetSvOn(family(), m_card, static_cast<AxisNo>(m_focused)) != 0;
    m_servo->setText(on ? QStringLiteral("Servo Off") : QStringLiteral("Servo On"));
}

void COV_MnMtnWnd::onServoClicked()
{
    if (!focusedChecked(true))
        return;
    const bool on = m_context.board.GetSvOn(family(), m_card, static_cast<AxisNo>(m_focused)) == 0;
    forEachChecked(
        [this, on](AxisNo axis) { m_context.board.PutSvOn(family(), m_card, axis, on ? 1 : 0); });
    m_servo->setText(on ? QStringLiteral("Servo Off") : QStringLiteral("Servo On"));
}

void COV_MnMtnWnd::onFocusChanged(int row)
{
    if (row < 0 || row == m_focused)
        return;
    m_servo->setText(m_context.board.GetSvOn(family(), m_card, static_cast<AxisNo>(row)) != 0
                         ? QStringLiteral("Servo Off")
                         : QStringLiteral("Servo On"));
    promptIfChanged(family());
    if (focusedChecked(false))
        m_slots.setPositions(static_cast<AxisNo>(m_focused), fieldNumber(m_position1),
                             fieldNumber(m_position2), false, {});
    m_focused = row;
    showFocusedFields();
    onListWatch();
}

void COV_MnMtnWnd::onMotionTypeChanged(int index)
{
    {
        const QSignalBlocker quiet(m_motionTypeCombo);
        m_motionTypeCombo->setCurrentIndex(index);
    }
    const auto type = static_cast<MotionType>(index);
    const bool jog = type == MotionType::Jog;
    m_accelLabel->setText(jog ? QStringLiteral(" Acc/Dec Time") : QStringLiteral(" Accel Time"));
    m_position2Label->setText(type == MotionType::Relative ? QStringLiteral(" Distance")
                                                           : QStringLiteral(" Position 2"));
    m_decel->setEnabled(!jog);
    if (jog)
        m_repeat->setChecked(false);
    m_repeat->setEnabled(!jog);
    m_count->setEnabled(!jog);
    m_delay->setEnabled(!jog);
    const bool infinite = type == MotionType::Relative && m_repeat->isChecked();
    if (!infinite)
        m_infinite->setChecked(false);
    m_infinite->setVisible(infinite);
    layoutMotionButtons();
    m_editingState = -1;
    if (m_axisCount > 0) {
        loadProfilesFromBoard();
        showFocusedFields();
    }
}

void COV_MnMtnWnd::layoutMotionButtons()
{
    switch (motionType()) {
    case MotionType::Jog:
        m_minus->setText(QStringLiteral("-Jog"));
        m_plus->setText(QStringLiteral("+Jog"));
        break;
    case MotionType::Relative:
        m_minus->setText(QStringLiteral("Dec."));
        m_plus->setText(QStringLiteral("Inc"));
        break;
    case MotionType::Absolute:
        m_minus->setText(QStringLiteral("Pos. 1"));
        m_plus->setText(QStringLiteral("Pos. 2"));
        break;
    }
    const bool autoMove = motionType() == MotionType::Absolute && m_repeat->isChecked();
    if (autoMove)
        m_minus->setText(QStringLiteral("Auto Move"));
    m_plus->setVisible(!autoMove);
}

void COV_MnMtnWnd::onListWatch()
{
    bool all = m_axisList->count() > 0;
    for (int row = 0; row < m_axisList->count() && all; ++row)
        all = m_axisList->item(row)->checkState() == Qt::Checked;
    if (m_allAxes->isChecked() != all)
        m_allAxes->setChecked(all);
    if (m_listChanged) {
        m_checked.clear();
        for (int row = 0; row < m_axisList->count(); ++row) {
            if (m_axisList->item(row)->checkState() == Qt::Checked)
                m_checked.push_back(static_cast<AxisNo>(row));
        }
        m_listChanged = false;
    }
    // The editing controls follow the focused row; touched only when that changes.
    const bool checked = focusedChecked(false);
    const int state = checked ? 1 + static_cast<int>(motionType()) : 0;
    if (state == m_editingState)
        return;
    m_editingState = state;
    for (QWidget* control : std::initializer_list<QWidget*>{m_drive, m_initial, m_accel, m_setAll,
                                                            m_setPrm, m_applyAll, m_apply})
        control->setEnabled(checked);
    const MotionType type = motionType();
    m_decel->setEnabled(checked && type != MotionType::Jog);
    // While a repeat runs the list is locked, and so stays the motion type.
    m_motionTypeCombo->setEnabled(checked && m_axisList->isEnabled());
    m_position1->setEnabled(checked && type == MotionType::Absolute);
    m_position2->setEnabled(checked && type != MotionType::Jog);
}

void COV_MnMtnWnd::pressMotion(MotionDirection direction)
{
    if (m_sequencer.isMoving())
        return;
    onListWatch();
    // Without checked axes a step button does nothing at all.
    if (m_checked.empty() && motionType() != MotionType::Jog)
        return;
    if (!focusedChecked(true))
        return;
    if (m_checked.size() < 2) {
        m_context.prompt.inform(kTwoAxes);
        return;
    }
    m_sequencer.press(direction);
}

void COV_MnMtnWnd::onGantryBox(bool on)
{
    if (!on) {
        m_gantryTimer.stop();
        return;
    }
    m_gantryClock.start();
    m_gantryLastNs = -1;
    m_gantryTicks = 0;
    m_gantryLongestNs = 0;
    m_gantryTimer.start();
}

double COV_MnMtnWnd::gantryMeanPeriodMs() const
{
    return m_gantryTicks > 1 ? static_cast<double>(m_gantryLastNs - m_gantryFirstNs) /
                                   static_cast<double>(m_gantryTicks - 1) / 1e6
                             : 0.0;
}

void COV_MnMtnWnd::onGantryTick()
{
    if (m_gantryClock.isValid()) {
        const qint64 now = m_gantryClock.nsecsElapsed();
        if (m_gantryLastNs < 0)
            m_gantryFirstNs = now;
        else
            m_gantryLongestNs = std::max(m_gantryLongestNs, now - m_gantryLastNs);
        m_gantryLastNs = now;
        ++m_gantryTicks;
    }
    // A stop already given waits for the poll; the axes are not stopped twice.
    if (!m_gantryBox->isChecked() || !m_sequencer.isMoving() || m_sequencer.isIdle())
        return;
    const MotionAxes& target = m_sequencer.target();
    const bool actual = m_gantrySource->currentIndex() == 1;
    std::vector<std::int32_t> positions;
    positions.reserve(target.axes.size());
    for (AxisNo axis : target.axes)
        positions.push_back(actual
                                ? m_context.board.GetActualPos(target.family, target.card, axis)
                                : m_context.board.GetCommandPos(target.family, target.card, axis));
    if (GantryCheck::firstPairOverLimit(positions, m_errorLimit) >= 0)
        m_sequencer.abortWith(kGantryError);
}

void COV_MnMtnWnd::onErrorLimitEdited(const QString& text)
{
    if (!IsNumericText(text)) {
        m_context.prompt.inform(QStringLiteral("Input value is incorrect!"));
        m_errorLimitEdit->setText(m_lastValidLimit);
        return;
    }
    m_lastValidLimit = text;
    m_errorLimit = fieldNumber(text);
}

void COV_MnMtnWnd::handleUserMessage(UserMessage message, int wParam)
{
    if (message == UM_CONTROLLER_CHANGED) {
        const ActiveController& active = m_context.state.active;
        // The fields still belong to the family that was active before the change.
        promptIfChanged(active.previousFamily != active.family ? active.previousFamily
                                                               : active.family);
        fillCardCombo();
        reload();
    } else if (message == UM_VIEW_COMMAND && wParam == ToolMultiAxis) {
        showFocusedFields();
    }
}

bool COV_MnMtnWnd::closePrompted()
{
    m_sequencer.endHeldJog();
    if (m_closeConfirmed)
        return false;
    promptIfChanged(family());
    m_closeConfirmed = true;
    return true;
}

void COV_MnMtnWnd::requestClose()
{
    closePrompted();
    emit closeRequested();
}

void COV_MnMtnWnd::closeEvent(QCloseEvent* event)
{
    closePrompted();
    event->accept();
}

void COV_MnMtnWnd::hideEvent(QHideEvent* event)
{
    m_sequencer.endHeldJog();
    ToolView::hideEvent(event);
}

bool COV_MnMtnWnd::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease)
        return ToolView::eventFilter(watched, event);
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
        return false;
    const bool down = type == QEvent::MouseButtonPress;
    if (watched == m_alarmReset) {
        // The alarm-reset outputs are held for as long as the button is.
        if (focusedChecked(down))
            forEachChecked([this, down](AxisNo axis) {
                m_context.board.PutSvAlmRst(family(), m_card, axis, down ? 1 : 0);
            });
    } else if (down) {
        pressMotion(watched == m_minus ? DirectionMinus : DirectionPlus);
    } else {
        m_sequencer.release();
    }
    // The buttons still get the event, so they look pressed.
    return false;
}

MotionType COV_MnMtnWnd::motionType() const
{
    return static_cast<MotionType>(std::max(0, m_motionTypeCombo->currentIndex()));
}

bool COV_MnMtnWnd::repeatTicked() const
{
    return m_repeat->isChecked();
}

bool COV_MnMtnWnd::infiniteTicked() const
{
    return m_infinite->isChecked();
}

MotionAxes COV_MnMtnWnd::selectedAxes() const
{
    return MotionAxes{family(), m_card, m_checked};
}

RepeatFields COV_MnMtnWnd::takeRepeatFields()
{
    RepeatFields fields;
    fields.count = fieldNumber(m_count);
    fields.delayMs = fieldNumber(m_delay);
    return fields;
}

std::vector<AxisPositions> COV_MnMtnWnd::takePositions(const MotionAxes& target,
                                                       const RepeatFields&)
{
    applyPositions();
    std::vector<AxisPositions> positions;
    for (AxisNo axis : target.axes)
        positions.push_back(m_slots.positions(axis));
    return positions;
}

void COV_MnMtnWnd::writeSpeeds(const MotionAxes&, MotionType)
{
    // Every move writes the profile exactly as "Set Prm" does.
    setParameters();
}

void COV_MnMtnWnd::showCycle(int elapsedMs, int cycleCount)
{
    const QString time = QString::number(elapsedMs);
    const QString count = QString::number(cycleCount);
    if (m_cycleTime->text() != time)
        m_cycleTime->setText(time);
    if (m_repeatCount->text() != count)
        m_repeatCount->setText(count);
}

void COV_MnMtnWnd::clearCycleDisplay()
{
    showCycle(0, 0);
}

void COV_MnMtnWnd::setSequenceLocked(bool locked)
{
    m_cardCombo->setEnabled(!locked && m_cardCombo->count() > 1);
    for (QWidget* control : std::initializer_list<QWidget*>{
             m_axisList, m_allAxes, m_motionTypeCombo, m_repeat, m_infinite})
        control->setEnabled(!locked);
    m_editingState = -1; // the list watch gives the editing controls their state again
}
