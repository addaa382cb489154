#include "COV_MnMtnWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "FieldText.h"
#include "FrameRelay.h"
#include "GantryCheck.h"
#include "IsNumericText.h"
#include "JogReleaseGuard.h"
#include "MultiAxisForm.h"
#include "NumberList.h"
#include "PollInterval.h"
#include "PromptService.h"
#include "PromptTexts.h"
#include "QtClockwork.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalBlocker>

namespace {
const char* const kNotChecked = QT_TRANSLATE_NOOP(
    "COV_MnMtnWnd", "Selected axis in not checked !\n Please check selected axis !");
const char* const kTwoAxes = QT_TRANSLATE_NOOP("COV_MnMtnWnd", "Please Select at least 2 axes !");
const char* const kGantryError = QT_TRANSLATE_NOOP("COV_MnMtnWnd", "Gantry Limit Error !");

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
    : ToolView(parent), m_form(this), m_context(context), m_ownClockwork(std::move(ownClockwork)),
      m_sequencer(context.state.active, context.board, context.prompt,
                  clockwork != nullptr ? *clockwork : *m_ownClockwork, *this,
                  MovingOwner::MultiAxis),
      m_gantry([this] { checkGantry(); })
{
    connectControls();

    m_form.setAll->setChecked(true);
    m_form.applyAll->setChecked(true);
    onMotionTypeChanged(0);
    setFieldNumber(m_form.errorLimitEdit, m_errorLimit);
    for (QLineEdit* edit : {m_form.count, m_form.delay, m_form.setCommand, m_form.setActual})
        setFieldNumber(edit, 0);
    clearCycleDisplay();
    m_form.gantrySource->setCurrentIndex(0);
    fillCardCombo();
    reload();
    m_listWatch.setInterval(kPollIntervalMs);
    m_listWatch.start();
}

COV_MnMtnWnd::~COV_MnMtnWnd()
{
    // Deleting the children moves the focus; the guard must not outlive the sequencer.
    delete m_jogGuard;
    m_jogGuard = nullptr;
    m_gantry.setOn(false);
    m_listWatch.stop();
    m_sequencer.endHeldJog();
    m_context.state.active.setAxesMoving(MovingOwner::MultiAxis, false);
}

void COV_MnMtnWnd::connectControls()
{
    for (QPushButton* button : {m_form.minus, m_form.plus, m_form.alarmReset})
        button->installEventFilter(this);
    m_jogGuard = new JogReleaseGuard(this, [this] { m_sequencer.endHeldJog(); });
    m_jogGuard->watchButton(m_form.minus);
    m_jogGuard->watchButton(m_form.plus);

    connect(&m_listWatch, &QTimer::timeout, this, [this] { onListWatch(); });
    connect(m_form.cardCombo, &QComboBox::activated, this, [this](int index) {
        promptIfChanged(family());
        m_card = static_cast<CardNo>(index);
        reload();
    });
    connect(m_form.axisList, &QListWidget::currentRowChanged, this,
            [this](int row) { onFocusChanged(row); });
    connect(m_form.axisList, &QListWidget::itemChanged, this, [this] { m_listChanged = true; });
    connect(m_form.allAxes, &QCheckBox::clicked, this, [this](bool on) {
        for (int row = 0; row < m_form.axisList->count(); ++row)
            m_form.axisList->item(row)->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    });
    connect(m_form.motionTypeCombo, &QComboBox::activated, this, [this](int index) {
        promptIfChanged(family());
        onMotionTypeChanged(index);
    });
    connect(m_form.repeat, &QCheckBox::clicked, this,
            [this] { onMotionTypeChanged(int(motionType())); });
    connect(m_form.setPrm, &QPushButton::clicked, this, [this] { setParameters(); });
    connect(m_form.apply, &QPushButton::clicked, this, [this] { applyPositions(); });
    connect(m_form.eStop, &QPushButton::clicked, this, [this] {
        if (focusedChecked(true))
            m_sequencer.suddenStop();
    });
    connect(m_form.sStop, &QPushButton::clicked, this, [this] {
        if (focusedChecked(true))
            m_sequencer.decelStop();
    });
    connect(m_form.servo, &QPushButton::clicked, this, [this] { onServoClicked(); });
    connect(m_form.counterClear, &QPushButton::clicked, this, [this] {
        if (focusedChecked(true))
            forEachChecked(
                [this](AxisNo axis) { m_context.board.PutSvCClrCmd(family(), m_card, axis); });
    });
    connect(m_form.commandButton, &QPushButton::clicked, this, [this] {
        forEachChecked([this](AxisNo axis) {
            m_context.board.SetCommandPos(family(), m_card, axis, fieldNumber(m_form.setCommand));
        });
    });
    connect(m_form.actualButton, &QPushButton::clicked, this, [this] {
        forEachChecked([this](AxisNo axis) {
            m_context.board.SetActualPos(family(), m_card, axis, fieldNumber(m_form.setActual));
        });
    });
    connect(m_form.gantryBox, &QCheckBox::toggled, this, [this](bool on) { m_gantry.setOn(on); });
    connect(m_form.errorLimitEdit, &QLineEdit::textEdited, this,
            [this](const QString& text) { onErrorLimitEdited(text); });
    connect(m_form.parameterSetup, &QPushButton::clicked, this,
            [this] { m_context.frame.sendToFrame(UM_OPEN_TOOL, ToolParameter); });
    connect(m_form.scope, &QPushButton::clicked, this,
            [this] { m_context.frame.sendToFrame(UM_OPEN_TOOL, ToolScope); });
    connect(m_form.close, &QPushButton::clicked, this, [this] { requestClose(); });
}

BoardFamily COV_MnMtnWnd::family() const
{
    return m_context.state.active.family;
}

void COV_MnMtnWnd::fillCardCombo()
{
    NumberList::fillActiveCards(*m_form.cardCombo, m_context.state);
    m_card = static_cast<CardNo>(m_context.state.active.card);
}

void COV_MnMtnWnd::reload()
{
    const AppState& state = m_context.state;
    setWindowTitle(tr("Multi Axis Motion - %1(%2)").arg(state.modelName(m_card)).arg(m_card));
    m_axisCount = std::min(state.registry.axisCount(family(), m_card), MultiAxisSlots::kMaxAxes);
    {
        const QSignalBlocker quiet(m_form.axisList);
        m_form.axisList->clear();
        for (int axis = 0; axis < m_axisCount; ++axis) {
            auto* row = new QListWidgetItem(tr("%1 Axis").arg(axis), m_form.axisList);
            row->setFlags(row->flags() | Qt::ItemIsUserCheckable);
            row->setCheckState(Qt::Unchecked);
        }
        m_focused = 0;
        m_form.axisList->setCurrentRow(0);
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
    setFieldNumber(m_form.drive, speeds.drive);
    setFieldNumber(m_form.initial, speeds.initial);
    setFieldNumber(m_form.accel, speeds.accelMs);
    setFieldNumber(m_form.decel, speeds.decelMs);
    const AxisPositions& positions = m_slots.positions(axis);
    setFieldNumber(m_form.position1, positions.position1);
    setFieldNumber(m_form.position2, positions.position2);
}

PtpSpeeds COV_MnMtnWnd::profileFields() const
{
    return PtpSpeeds{fieldNumber(m_form.initial), fieldNumber(m_form.drive),
                     fieldNumber(m_form.accel), fieldNumber(m_form.decel)};
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
    const bool all = m_form.setAll->isChecked();
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
    m_slots.setPositions(static_cast<AxisNo>(m_focused), fieldNumber(m_form.position1),
                         fieldNumber(m_form.position2), m_form.applyAll->isChecked(), m_checked);
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
        m_context.prompt.askYesNo(PromptTexts::parametersChanged()))
        setParameters();
}

bool COV_MnMtnWnd::focusedChecked(bool tell)
{
    const QListWidgetItem* row = m_form.axisList->item(m_focused);
    if (row != nullptr && row->checkState() == Qt::Checked)
        return true;
    if (tell)
        m_context.prompt.inform(tr(kNotChecked));
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
    m_form.servo->setText(on ? tr("Servo Off") : tr("Servo On"));
}

void COV_MnMtnWnd::onServoClicked()
{
    if (!focusedChecked(true))
        return;
    const bool on = m_context.board.GetSvOn(family(), m_card, static_cast<AxisNo>(m_focused)) == 0;
    forEachChecked(
        [this, on](AxisNo axis) { m_context.board.PutSvOn(family(), m_card, axis, on ? 1 : 0); });
    m_form.servo->setText(on ? tr("Servo Off") : tr("Servo On"));
}

void COV_MnMtnWnd::onFocusChanged(int row)
{
    if (row < 0 || row == m_focused)
        return;
    m_form.servo->setText(m_context.board.GetSvOn(family(), m_card, static_cast<AxisNo>(row)) != 0
                              ? tr("Servo Off")
                              : tr("Servo On"));
    promptIfChanged(family());
    if (focusedChecked(false))
        m_slots.setPositions(static_cast<AxisNo>(m_focused), fieldNumber(m_form.position1),
                             fieldNumber(m_form.position2), false, {});
    m_focused = row;
    showFocusedFields();
    onListWatch();
}

void COV_MnMtnWnd::onMotionTypeChanged(int index)
{
    {
        const QSignalBlocker quiet(m_form.motionTypeCombo);
        m_form.motionTypeCombo->setCurrentIndex(index);
    }
    const auto type = static_cast<MotionType>(index);
    const bool jog = type == MotionType::Jog;
    m_form.accelLabel->setText(jog ? tr(" Acc/Dec Time") : tr(" Accel Time"));
    m_form.position2Label->setText(type == MotionType::Relative ? tr(" Distance")
                                                                : tr(" Position 2"));
    m_form.decel->setEnabled(!jog);
    if (jog)
        m_form.repeat->setChecked(false);
    m_form.repeat->setEnabled(!jog);
    m_form.count->setEnabled(!jog);
    m_form.delay->setEnabled(!jog);
    const bool infinite = type == MotionType::Relative && m_form.repeat->isChecked();
    if (!infinite)
        m_form.infinite->setChecked(false);
    m_form.infinite->setVisible(infinite);
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
        m_form.minus->setText(tr("-Jog"));
        m_form.plus->setText(tr("+Jog"));
        break;
    case MotionType::Relative:
        m_form.minus->setText(tr("Dec."));
        m_form.plus->setText(tr("Inc"));
        break;
    case MotionType::Absolute:
        m_form.minus->setText(tr("Pos. 1"));
        m_form.plus->setText(tr("Pos. 2"));
        break;
    }
    const bool autoMove = motionType() == MotionType::Absolute && m_form.repeat->isChecked();
    if (autoMove)
        m_form.minus->setText(tr("Auto Move"));
    m_form.plus->setVisible(!autoMove);
}

void COV_MnMtnWnd::onListWatch()
{
    bool all = m_form.axisList->count() > 0;
    for (int row = 0; row < m_form.axisList->count() && all; ++row)
        all = m_form.axisList->item(row)->checkState() == Qt::Checked;
    if (m_form.allAxes->isChecked() != all)
        m_form.allAxes->setChecked(all);
    if (m_listChanged) {
        m_checked.clear();
        for (int row = 0; row < m_form.axisList->count(); ++row) {
            if (m_form.axisList->item(row)->checkState() == Qt::Checked)
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
    for (QWidget* control :
         std::initializer_list<QWidget*>{m_form.drive, m_form.initial, m_form.accel, m_form.setAll,
                                         m_form.setPrm, m_form.applyAll, m_form.apply})
        control->setEnabled(checked);
    const MotionType type = motionType();
    m_form.decel->setEnabled(checked && type != MotionType::Jog);
    // While a repeat runs the list is locked, and so stays the motion type.
    m_form.motionTypeCombo->setEnabled(checked && m_form.axisList->isEnabled());
    m_form.position1->setEnabled(checked && type == MotionType::Absolute);
    m_form.position2->setEnabled(checked && type != MotionType::Jog);
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
        m_context.prompt.inform(tr(kTwoAxes));
        return;
    }
    m_sequencer.press(direction);
}

void COV_MnMtnWnd::checkGantry()
{
    // A stop already given waits for the poll; the axes are not stopped twice.
    if (!m_form.gantryBox->isChecked() || !m_sequencer.isMoving() || m_sequencer.isIdle())
        return;
    const MotionAxes& target = m_sequencer.target();
    const bool actual = m_form.gantrySource->currentIndex() == 1;
    std::vector<std::int32_t> positions;
    positions.reserve(target.axes.size());
    for (AxisNo axis : target.axes)
        positions.push_back(actual
                                ? m_context.board.GetActualPos(target.family, target.card, axis)
                                : m_context.board.GetCommandPos(target.family, target.card, axis));
    if (GantryCheck::firstPairOverLimit(positions, m_errorLimit) >= 0)
        m_sequencer.abortWith(tr(kGantryError));
}

void COV_MnMtnWnd::onErrorLimitEdited(const QString& text)
{
    if (!IsNumericText(text)) {
        m_context.prompt.inform(PromptTexts::inputIncorrect());
        m_form.errorLimitEdit->setText(m_lastValidLimit);
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
    if (watched == m_form.alarmReset) {
        // The alarm-reset outputs are held for as long as the button is.
        if (focusedChecked(down))
            forEachChecked([this, down](AxisNo axis) {
                m_context.board.PutSvAlmRst(family(), m_card, axis, down ? 1 : 0);
            });
    } else if (down) {
        pressMotion(watched == m_form.minus ? DirectionMinus : DirectionPlus);
    } else {
        m_sequencer.release();
    }
    // The buttons still get the event, so they look pressed.
    return false;
}

MotionType COV_MnMtnWnd::motionType() const
{
    return static_cast<MotionType>(std::max(0, m_form.motionTypeCombo->currentIndex()));
}

bool COV_MnMtnWnd::repeatTicked() const
{
    return m_form.repeat->isChecked();
}

bool COV_MnMtnWnd::infiniteTicked() const
{
    return m_form.infinite->isChecked();
}

MotionAxes COV_MnMtnWnd::selectedAxes() const
{
    return MotionAxes{family(), m_card, m_checked};
}

RepeatFields COV_MnMtnWnd::takeRepeatFields()
{
    RepeatFields fields;
    fields.count = fieldNumber(m_form.count);
    fields.delayMs = fieldNumber(m_form.delay);
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
    if (m_form.cycleTime->text() != time)
        m_form.cycleTime->setText(time);
    if (m_form.repeatCount->text() != count)
        m_form.repeatCount->setText(count);
}

void COV_MnMtnWnd::clearCycleDisplay()
{
    showCycle(0, 0);
}

void COV_MnMtnWnd::setSequenceLocked(bool locked)
{
    m_form.cardCombo->setEnabled(!locked && m_form.cardCombo->count() > 1);
    for (QWidget* control :
         std::initializer_list<QWidget*>{m_form.axisList, m_form.allAxes, m_form.motionTypeCombo,
                                         m_form.repeat, m_form.infinite})
        control->setEnabled(!locked);
    m_editingState = -1; // the list watch gives the editing controls their state again
}

void COV_MnMtnWnd::beforeClose()
{
    m_sequencer.endHeldJog();
}

void COV_MnMtnWnd::askBeforeClose()
{
    promptIfChanged(family());
}
