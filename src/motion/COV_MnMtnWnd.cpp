#include "COV_MnMtnWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "CardSelectorRow.h"
#include "FieldText.h"
#include "FrameRelay.h"
#include "IsNumericText.h"
#include "MotionButtonColumn.h"
#include "MultiAxisForm.h"
#include "PollInterval.h"
#include "PromptService.h"
#include "PromptTexts.h"
#include "UnitEchoes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStringList>

namespace {
constexpr const char* kNotChecked = QT_TRANSLATE_NOOP(
    "COV_MnMtnWnd", "Selected axis in not checked !\n Please check selected axis !");
constexpr const char* kTwoAxes =
    QT_TRANSLATE_NOOP("COV_MnMtnWnd", "Please Select at least 2 axes !");
constexpr const char* kGantryError = QT_TRANSLATE_NOOP("COV_MnMtnWnd", "Gantry Limit Error !");
} // namespace

COV_MnMtnWnd::COV_MnMtnWnd(const ToolContext& context, QWidget* parent, SequencerClockwork* given)
    : MotionToolView(context, parent, given), m_form(this),
      m_sequencer(context.state.active, context.board, context.prompt, clockwork(), *this,
                  MovingOwner::MultiAxis),
      m_actions(context, m_sequencer, *this),
      m_gantry(m_sequencer, context.board, [this] { m_sequencer.abortWith(tr(kGantryError)); })
{
    m_sequencer.setModelNames([&state = context.state](BoardFamily family, CardNo card) {
        return QString::fromStdString(state.registry.modelName(family, card));
    });
    connectControls();

    m_form.setAll->setChecked(true);
    m_form.applyAll->setChecked(true);
    onMotionTypeChanged(0);
    setFieldNumber(m_form.errorLimitEdit, m_gantry.limit());
    for (QLineEdit* edit : {m_form.count, m_form.delay, m_form.setCommand, m_form.setActual})
        setFieldNumber(edit, 0);
    clearCycleDisplay();
    m_form.gantrySource->setCurrentIndex(0);
    fillCardCombo();
    reload();
    addUnitEchoes();
    m_listWatch.setInterval(kPollIntervalMs);
    m_listWatch.start();
}

void COV_MnMtnWnd::addUnitEchoes()
{
    m_echoes = new UnitEchoes(
        m_context.state,
        [this] {
            return UnitEchoes::Axis{family(), m_card, m_focused};
        },
        this);
    m_echoes->add(m_form.profile.drive, UnitEchoes::Measure::Speed);
    m_echoes->add(m_form.profile.initial, UnitEchoes::Measure::Speed);
    m_echoes->add(m_form.position1, UnitEchoes::Measure::Position);
    m_echoes->add(m_form.position2, UnitEchoes::Measure::Position);
    connect(m_form.axisList, &QListWidget::currentRowChanged, m_echoes,
            [this] { m_echoes->refresh(); });
}

COV_MnMtnWnd::~COV_MnMtnWnd()
{
    m_form.buttons->disconnectActions();
    m_gantry.setOn(false);
    m_listWatch.stop();
    m_sequencer.endForClose();
    m_context.state.active.setAxesMoving(MovingOwner::MultiAxis, false);
}

void COV_MnMtnWnd::connectControls()
{
    m_form.buttons->connectTo(m_actions, *this, m_context.frame);

    connect(&m_listWatch, &QTimer::timeout, this, [this] { onListWatch(); });
    connect(m_form.cardRow, &CardSelectorRow::cardActivated, this, [this](int index) {
        // Another card reloads the list: never under a running motion's ticks.
        if (!m_context.frame.mayChangeController()) {
            m_form.cardRow->combo()->setCurrentIndex(m_card);
            return;
        }
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
    connect(m_form.profile.motionType, &QComboBox::activated, this, [this](int index) {
        promptIfChanged(family());
        onMotionTypeChanged(index);
    });
    connect(m_form.repeat, &QCheckBox::clicked, this,
            [this] { onMotionTypeChanged(int(motionType())); });
    connect(m_form.setPrm, &QPushButton::clicked, this, [this] { setParameters(motionType()); });
    connect(m_form.apply, &QPushButton::clicked, this, [this] { applyPositions(); });
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
    connect(m_form.gantrySource, &QComboBox::currentIndexChanged, this, [this](int index) {
        m_gantry.setSource(index == 1 ? GantryCheck::Source::Actual : GantryCheck::Source::Command);
    });
    connect(m_form.errorLimitEdit, &QLineEdit::textEdited, this,
            [this](const QString& text) { onErrorLimitEdited(text); });
}

BoardFamily COV_MnMtnWnd::family() const
{
    return m_context.state.active.family;
}

void COV_MnMtnWnd::fillCardCombo()
{
    m_card = static_cast<CardNo>(m_form.cardRow->fillActiveCards(m_context.state));
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
    m_form.profile.show(speeds);
    const AxisPositions& positions = m_slots.positions(axis);
    setFieldNumber(m_form.position1, positions.position1);
    setFieldNumber(m_form.position2, positions.position2);
}

PtpSpeeds COV_MnMtnWnd::profileFields() const
{
    return m_form.profile.speeds();
}

void COV_MnMtnWnd::writeProfiles(const MotionAxes& axes, MotionType type)
{
    for (AxisNo axis : axes.axes) {
        if (type == MotionType::Jog)
            m_slots.profile(axis).writeJog(m_context.board, axes.family, axes.card, axis);
        else
            m_slots.profile(axis).writePositioning(m_context.board, axes.family, axes.card, axis);
    }
}

void COV_MnMtnWnd::setParameters(MotionType type)
{
    setParametersOn(MotionAxes{family(), m_card, m_checked}, type);
}

void COV_MnMtnWnd::setParametersOn(const MotionAxes& checked, MotionType type)
{
    const auto focused = static_cast<AxisNo>(m_focused);
    const bool all = m_form.setAll->isChecked();
    m_slots.setProfile(focused, profileFields(), all, checked.axes, type);
    MotionAxes written{checked.family, checked.card, {focused}};
    if (all) {
        for (AxisNo axis : checked.axes) {
            if (axis != focused)
                written.axes.push_back(axis);
        }
    }
    writeProfiles(written, type);
    m_context.frame.sendToFrame(UM_PARAM_CHANGED, checked.card);
    QStringList axes;
    for (AxisNo axis : written.axes)
        axes << QString::number(axis);
    m_context.frame.showNote(
        tr("Wrote the motion parameters of %1 axis %2 to the board (not saved yet)")
            .arg(m_context.state.cardName(checked.family, checked.card),
                 axes.join(QStringLiteral(", "))));
}

void COV_MnMtnWnd::applyPositions()
{
    m_slots.setPositions(static_cast<AxisNo>(m_focused), fieldNumber(m_form.position1),
                         fieldNumber(m_form.position2), m_form.applyAll->isChecked(), m_checked);
}

bool COV_MnMtnWnd::profileChanged(BoardFamily boardFamily) const
{
    const auto axis = static_cast<AxisNo>(m_focused);
    const bool jog = m_shownType == MotionType::Jog;
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
        setParameters(m_shownType);
}

bool COV_MnMtnWnd::focusedChecked(bool tell)
{
    const QListWidgetItem* row = m_form.axisList->item(m_focused);
    if (row != nullptr && row->checkState() == Qt::Checked)
        return true;
    if (tell)
        m_context.prompt.report(tr(kNotChecked));
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
    m_form.buttons->showServo(m_context.board.GetSvOn(family(), m_card, servoAxis()) != 0);
}

void COV_MnMtnWnd::onFocusChanged(int row)
{
    if (row < 0 || row == m_focused)
        return;
    m_form.buttons->showServo(m_context.board.GetSvOn(family(), m_card, static_cast<AxisNo>(row)) !=
                              0);
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
        const QSignalBlocker quiet(m_form.profile.motionType);
        m_form.profile.motionType->setCurrentIndex(index);
    }
    const auto type = static_cast<MotionType>(index);
    const bool jog = type == MotionType::Jog;
    m_form.position2Label->setText(type == MotionType::Relative ? tr(" Distance")
                                                                : tr(" Position 2"));
    m_form.profile.showJog(jog);
    if (jog)
        m_form.repeat->setChecked(false);
    m_form.repeat->setEnabled(!jog);
    m_form.repeat->setVisible(!jog);
    m_form.count->setEnabled(!jog);
    m_form.delay->setEnabled(!jog);
    const bool infinite = type == MotionType::Relative && m_form.repeat->isChecked();
    if (!infinite)
        m_form.infinite->setChecked(false);
    m_form.infinite->setVisible(infinite);
    layoutMotionButtons();
    m_editingState = -1;
    m_shownType = type;
    if (m_axisCount > 0) {
        loadProfilesFromBoard();
        showFocusedFields();
    }
}

void COV_MnMtnWnd::layoutMotionButtons()
{
    const MotionType type = motionType();
    m_form.buttons->showMotionCaptions(false, type,
                                       type == MotionType::Absolute && m_form.repeat->isChecked());
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
    for (QWidget* control : std::initializer_list<QWidget*>{
             m_form.profile.drive, m_form.profile.initial, m_form.profile.accel, m_form.setAll,
             m_form.setPrm, m_form.applyAll, m_form.apply})
        control->setEnabled(checked);
    const MotionType type = motionType();
    m_form.profile.decel->setEnabled(checked && type != MotionType::Jog);
    // While a repeat runs the list is locked, and so stays the motion type.
    m_form.profile.motionType->setEnabled(checked && m_form.axisList->isEnabled());
    m_form.position1->setEnabled(checked && type == MotionType::Absolute);
    m_form.position2->setEnabled(checked && type != MotionType::Jog);
}

bool COV_MnMtnWnd::mayStartMotion()
{
    if (m_sequencer.isMoving())
        return false;
    onListWatch();
    // Without checked axes a step button does nothing at all.
    if (m_checked.empty() && motionType() != MotionType::Jog)
        return false;
    if (!focusedChecked(true))
        return false;
    if (m_checked.size() < 2) {
        m_context.prompt.report(tr(kTwoAxes));
        return false;
    }
    return true;
}

MotionAxes COV_MnMtnWnd::buttonAxes(bool tell)
{
    if (!focusedChecked(tell))
        return MotionAxes{family(), m_card, {}};
    onListWatch(); // a box ticked a moment ago counts
    return selectedAxes();
}

void COV_MnMtnWnd::onErrorLimitEdited(const QString& text)
{
    if (!IsNumericText(text)) {
        m_context.prompt.inform(PromptTexts::inputIncorrect());
        m_form.errorLimitEdit->setText(m_lastValidLimit);
        return;
    }
    m_lastValidLimit = text;
    m_gantry.setLimit(fieldNumber(text));
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

MotionType COV_MnMtnWnd::motionType() const
{
    return static_cast<MotionType>(std::max(0, m_form.profile.motionType->currentIndex()));
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

void COV_MnMtnWnd::writeSpeeds(const MotionAxes& target, MotionType type)
{
    // Every move writes the profile as "Set Prm" does, to the card and axes it started on.
    setParametersOn(target, type);
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
    QComboBox* cards = m_form.cardRow->combo();
    cards->setEnabled(!locked && cards->count() > 1);
    for (QWidget* control :
         std::initializer_list<QWidget*>{m_form.axisList, m_form.allAxes, m_form.profile.motionType,
                                         m_form.repeat, m_form.infinite})
        control->setEnabled(!locked);
    m_editingState = -1; // the list watch gives the editing controls their state again
}

void COV_MnMtnWnd::askBeforeClose()
{
    promptIfChanged(family());
}
