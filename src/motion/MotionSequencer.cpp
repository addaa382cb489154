#include "MotionSequencer.h"

#include "BoardApi.h"
#include "MotionErrorCode.h"
#include "MotionPanel.h"
#include "OrvaneLog.h"
#include "PollInterval.h"
#include "PromptService.h"
#include "SequenceTimer.h"
#include "SequencerClockwork.h"
#include "TickClock.h"

#include <QCoreApplication>

namespace {
nrx_u16 countOf(const MotionAxes& axes)
{
    return static_cast<nrx_u16>(axes.axes.size());
}
// "RL card 0 axes 1,2" for the log.
QString axesText(const MotionAxes& axes)
{
    QStringList numbers;
    for (AxisNo axis : axes.axes)
        numbers << QString::number(axis);
    return QStringLiteral("%1 card %2 %3 %4")
        .arg(QLatin1String(familyShortName(axes.family)))
        .arg(axes.card)
        .arg(numbers.size() == 1 ? QStringLiteral("axis") : QStringLiteral("axes"),
             numbers.join(QLatin1Char(',')));
}
} // namespace

MotionSequencer::MotionSequencer(ActiveController& active, BoardApi& board, PromptService& prompt,
                                 SequencerClockwork& clockwork, MotionPanel& panel,
                                 MovingOwner owner)
    : m_active(active), m_board(board), m_prompt(prompt), m_clockwork(clockwork), m_panel(panel),
      m_owner(owner)
{
    m_clockwork.cycleClock().setHandler([this] { onCycleClock(); });
    m_clockwork.motionPoll().setHandler([this] { onMotionPoll(); });
    m_clockwork.dwell().setHandler([this] { onDwell(); });
}

MotionSequencer::~MotionSequencer()
{
    // The timers may belong to someone else; nothing may call back into a gone sequencer.
    for (SequenceTimer* timer :
         {&m_clockwork.cycleClock(), &m_clockwork.motionPoll(), &m_clockwork.dwell()}) {
        timer->stop();
        timer->setHandler({});
    }
}

std::uint16_t MotionSequencer::done(const MotionAxes& axes)
{
    if (axes.axes.empty())
        return 0;
    if (multi())
        return m_board.Multi_Done(axes.family, axes.card, countOf(axes), axes.axes.data());
    return m_board.Done(axes.family, axes.card, axes.axes.front());
}

void MotionSequencer::stopAxes(const MotionAxes& axes, bool sudden)
{
    if (axes.axes.empty())
        return;
    if (multi()) {
        if (sudden)
            m_board.Multi_Sudden_Stop(axes.family, axes.card, countOf(axes), axes.axes.data());
        else
            m_board.Multi_Decel_Stop(axes.family, axes.card, countOf(axes), axes.axes.data());
    } else if (sudden) {
        m_board.Sudden_Stop(axes.family, axes.card, axes.axes.front());
    } else {
        m_board.Decel_Stop(axes.family, axes.card, axes.axes.front());
    }
}

void MotionSequencer::incMove(const std::vector<std::int32_t>& distances)
{
    if (multi())
        m_board.Multi_Inc_Move(m_target.family, m_target.card, countOf(m_target),
                               m_target.axes.data(), distances.data());
    else
        m_board.Inc_Move(m_target.family, m_target.card, m_target.axes.front(), distances.front());
}

void MotionSequencer::absMove(const std::vector<std::int32_t>& positions)
{
    if (multi())
        m_board.Multi_Abs_Move(m_target.family, m_target.card, countOf(m_target),
                               m_target.axes.data(), positions.data());
    else
        m_board.Abs_Move(m_target.family, m_target.card, m_target.axes.front(), positions.front());
}

std::int32_t MotionSequencer::firstErrorCode(AxisNo* where)
{
    std::int32_t first = 0;
    for (AxisNo axis : m_target.axes) {
        const std::int32_t code = m_board.GetMotionErrCod(m_target.family, m_target.card, axis);
        if (code < 0 && first == 0 && where != nullptr)
            *where = axis;
        if (!multi())
            return code;
        if (code < 0 && first == 0)
            first = code;
    }
    return first;
}

void MotionSequencer::press(MotionDirection direction)
{
    if (m_moving)
        return;
    const MotionAxes selection = m_panel.selectedAxes();
    if (selection.axes.empty())
        return;
    // Axes still busy with a motion started elsewhere ignore the press.
    if (done(selection) != 0)
        return;
    m_target = selection;
    m_panel.clearCycleDisplay();
    m_homing = !multi() && m_panel.currentTab() == MotionTab::Home;
    m_type = m_panel.motionType();
    if (m_homing) {
        pressHome();
        return;
    }
    switch (m_type) {
    case MotionType::Jog:
        pressJog(direction);
        break;
    case MotionType::Relative:
        pressRelative(direction);
        break;
    case MotionType::Absolute:
        pressAbsolute(direction);
        break;
    }
}

void MotionSequencer::pressHome()
{
    m_moving = true;
    // The page's parameters always go to the board before a search, set or not.
    m_panel.writeHomeSettings(m_target);
    m_board.Home_Move(m_target.family, m_target.card, m_target.axes.front());
    m_idle = false;
    lock();
    m_elapsedMs = 0;
    m_startTick = m_clockwork.clock().tickCount();
    m_clockwork.motionPoll().start(kPollIntervalMs);
}

void MotionSequencer::pressJog(MotionDirection direction)
{
    m_moving = true;
    m_fields = m_panel.takeRepeatFields();
    m_panel.writeSpeeds(m_target, MotionType::Jog);
    if (multi()) {
        const std::vector<nrx_u16> directions(m_target.axes.size(),
                                              static_cast<nrx_u16>(direction));
        m_board.Multi_Jog_Move(m_target.family, m_target.card, countOf(m_target),
                               m_target.axes.data(), directions.data());
    } else {
        m_board.Jog_Move(m_target.family, m_target.card, m_target.axes.front(),
                         static_cast<std::uint16_t>(direction));
    }
    m_idle = false;
    m_jogHeld = true;
    lock();
    m_clockwork.motionPoll().start(kPollIntervalMs);
    startCycleClock();
}

void MotionSequencer::pressRelative(MotionDirection direction)
{
    m_moving = true;
    m_stepDirection = direction;
    m_returning = false;
    m_fields = m_panel.takeRepeatFields();
    m_positions = m_panel.takePositions(m_target, m_fields);
    m_repeatTarget = m_fields.count == 0 ? 1 : m_fields.count;
    m_cycleCount = 1;
    m_startPositions.clear();
    for (AxisNo axis : m_target.axes)
        m_startPositions.push_back(m_board.GetCommandPos(m_target.family, m_target.card, axis));
    relativeStep(direction, false);
    m_idle = false;
    lock();
    const bool repeat = m_panel.repeatTicked();
    m_infinite = repeat && m_panel.infiniteTicked();
    if (!repeat)
        m_repeatTarget = 1;
    m_clockwork.motionPoll().start(kPollIntervalMs);
    startCycleClock();
}

void MotionSequencer::pressAbsolute(MotionDirection direction)
{
    m_moving = true;
    m_stepDirection = direction;
    m_fields = m_panel.takeRepeatFields();
    m_positions = m_panel.takePositions(m_target, m_fields);
    m_repeatTarget = m_fields.count;
    m_cycleCount = 0;
    const bool repeat = m_panel.repeatTicked();
    if (repeat && m_fields.count == 0) {
        m_infinite = true;
        m_repeatTarget = 1;
    } else if (!repeat && m_fields.count != 0) {
        m_repeatTarget = 1;
    } else {
        m_infinite = false;
    }
    if (m_repeatTarget >= 0) {
        absoluteMove(direction == DirectionMinus ? 1 : 2);
        m_idle = false;
        lock();
    }
    m_clockwork.motionPoll().start(kPollIntervalMs);
    // With Repeat the cycle clock starts with the first move to Position 2.
    if (!repeat)
        startCycleClock();
}

void MotionSequencer::relativeStep(int direction, bool returnToStart)
{
    m_panel.writeSpeeds(m_target, MotionType::Relative);
    if (returnToStart) {
        absMove(m_startPositions);
        return;
    }
    const std::int32_t sign = direction == DirectionMinus ? -1 : 1;
    std::vector<std::int32_t> distances;
    for (const AxisPositions& each : m_positions)
        distances.push_back(each.distance * sign);
    incMove(distances);
}

void MotionSequencer::absoluteMove(int position)
{
    m_panel.writeSpeeds(m_target, MotionType::Absolute);
    std::vector<std::int32_t> targets;
    for (const AxisPositions& each : m_positions)
        targets.push_back(position == 1 ? each.position1 : each.position2);
    absMove(targets);
}

void MotionSequencer::release()
{
    // Whatever changed while the button was held, the jog ends on the axes it started on.
    endHeldJog();
}

void MotionSequencer::endHeldJog()
{
    if (!m_jogHeld)
        return;
    stopAxes(m_target, false);
    m_jogHeld = false;
}

void MotionSequencer::endForClose()
{
    if (!m_moving && !m_jogHeld)
        return;
    // Nothing of the window is left to stop the axes later: a slowing stop now, as S-Stop.
    qCInfo(lcMotion).noquote() << "Motion stopped on" << axesText(m_target) << ": window closed";
    stopRunning(false);
    endSequence();
}

void MotionSequencer::onCycleClock()
{
    m_elapsedMs = m_clockwork.clock().tickCount() - m_startTick;
    m_panel.showCycle(static_cast<int>(m_elapsedMs), m_cycleCount);
}

void MotionSequencer::onMotionPoll()
{
    if (done(m_target) != 0 || !m_moving)
        return;
    m_clockwork.motionPoll().stop();
    AxisNo axis = m_target.axes.empty() ? 0 : m_target.axes.front();
    const std::int32_t code = firstErrorCode(&axis);
    if (code < 0) {
        reportAbnormalEnd(code, axis);
        return;
    }
    if (m_homing && code == 0)
        rewriteSoftLimitsAfterHome();
    if (!m_panel.repeatTicked() || m_idle || m_homing || m_type == MotionType::Jog) {
        finishSequence();
        return;
    }
    m_clockwork.dwell().start(m_fields.delayMs);
}

void MotionSequencer::rewriteSoftLimitsAfterHome()
{
    const AxisNo axis = m_target.axes.front();
    const std::uint16_t status = m_board.GetCardStatus(m_target.family, m_target.card, axis);
    if ((status & kHomeCompleteBit) == 0)
        return;
    // Homing zeroes the counters; writing the soft limits again makes the board apply them
    // to the new origin.
    std::int32_t plus = 0;
    std::int32_t minus = 0;
    std::uint16_t use = 0;
    m_board.GetSlmt(m_target.family, m_target.card, axis, &plus, &minus, &use);
    m_board.SetSlmt(m_target.family, m_target.card, axis, plus, minus, use);
}

void MotionSequencer::reportAbnormalEnd(std::int32_t code, AxisNo axis)
{
    m_moving = false;
    m_absolutePhase = false;
    m_stepDirection = -1;
    m_idle = true;
    unlock();
    m_clockwork.cycleClock().stop();
    const MotionErrorCode error(code);
    // Homing ends on a limit by design; only the codes that matter there are shown, but the
    // log keeps every one.
    const bool shown = !m_homing || error.isReportedWhileHoming();
    const QString text = shown ? error.message(multi() ? MotionErrorCode::Wording::MultiAxis
                                                       : MotionErrorCode::Wording::SingleAxis)
                               : QString();
    qCInfo(lcMotion).noquote() << "Motion stopped on" << axesText(m_target) << "with error code"
                               << code << (text.isEmpty() ? QStringLiteral("(no report)") : text);
    if (text.isEmpty())
        return;
    // With several windows and cards at work, the report says where it happened.
    if (m_modelNames)
        m_prompt.report(QCoreApplication::translate("MotionSequencer", "%1(%2) axis %3: %4")
                            .arg(m_modelNames(m_target.family, m_target.card))
                            .arg(m_target.card)
                            .arg(axis)
                            .arg(text));
    else
        m_prompt.report(text);
}

void MotionSequencer::finishSequence()
{
    m_moving = false;
    m_absolutePhase = false;
    m_idle = true;
    unlock();
    m_clockwork.cycleClock().stop();
}

void MotionSequencer::endSequence()
{
    m_jogHeld = false;
    m_idle = true;
    m_active.setAxesMoving(m_owner, false);
    if (m_moving)
        finishSequence();
    for (SequenceTimer* timer :
         {&m_clockwork.cycleClock(), &m_clockwork.motionPoll(), &m_clockwork.dwell()})
        timer->stop();
}

void MotionSequencer::onDwell()
{
    if (m_cycleCount == m_repeatTarget && !m_infinite) {
        finishSequence();
        m_clockwork.dwell().stop();
        return;
    }
    if (m_type == MotionType::Absolute)
        dwellAbsolute();
    else
        dwellRelative();
    m_clockwork.motionPoll().start(kPollIntervalMs);
    m_clockwork.dwell().stop();
}

void MotionSequencer::dwellRelative()
{
    // An infinite relative repeat goes back to where it started after every target steps;
    // that return trip is not counted as a cycle.
    const bool atRoundEnd = m_infinite && m_repeatTarget != 0 && m_cycleCount % m_repeatTarget == 0;
    if (atRoundEnd && !m_returning) {
        relativeStep(m_stepDirection, true);
        m_returning = true;
    } else {
        relativeStep(m_stepDirection, false);
        m_returning = false;
    }
    if (!(atRoundEnd && m_returning))
        ++m_cycleCount;
}

void MotionSequencer::dwellAbsolute()
{
    m_absolutePhase = !m_absolutePhase;
    if (m_absolutePhase) {
        absoluteMove(2);
        if (m_cycleCount == 0)
            startCycleClock();
        return;
    }
    absoluteMove(1);
    // A cycle is complete once the axes head back to Position 1.
    ++m_cycleCount;
    if (m_infinite)
        m_repeatTarget = 1;
}

void MotionSequencer::startCycleClock()
{
    m_elapsedMs = 0;
    m_startTick = m_clockwork.clock().tickCount();
    m_clockwork.cycleClock().start(kPollIntervalMs);
}

void MotionSequencer::lock()
{
    if (!m_panel.repeatTicked())
        return;
    m_panel.setSequenceLocked(true);
    m_active.setAxesMoving(m_owner, true);
}

void MotionSequencer::unlock()
{
    if (!m_panel.repeatTicked())
        return;
    m_panel.setSequenceLocked(false);
    m_active.setAxesMoving(m_owner, false);
}

void MotionSequencer::stop(bool sudden)
{
    m_idle = true;
    m_active.setAxesMoving(m_owner, false);
    const MotionAxes selection = m_panel.selectedAxes();
    qCInfo(lcMotion).noquote() << (sudden ? "E-Stop" : "S-Stop") << "pressed on"
                               << axesText(selection);
    stopAxes(selection, sudden);
    // A motion whose axes are no longer the selected ones is stopped as well.
    if ((m_moving || m_jogHeld) && m_target != selection)
        stopAxes(m_target, sudden);
    afterStop();
}

void MotionSequencer::stopRunning(bool sudden)
{
    if (!m_moving && !m_jogHeld)
        return;
    m_idle = true;
    m_active.setAxesMoving(m_owner, false);
    stopAxes(m_target, sudden);
    afterStop();
}

void MotionSequencer::abortWith(const QString& message)
{
    m_idle = true;
    m_active.setAxesMoving(m_owner, false);
    stopAxes(m_target, true);
    qCInfo(lcMotion).noquote() << "Motion aborted on" << axesText(m_target) << ":" << message;
    m_jogHeld = false;
    m_prompt.report(message);
    afterStop();
}

void MotionSequencer::afterStop()
{
    if (!m_moving)
        return;
    m_absolutePhase = false;
    unlock();
    m_clockwork.dwell().stop();
    // The poll sees the axes come to rest and, idle being set, ends the sequence.
    m_clockwork.motionPoll().start(kPollIntervalMs);
}
