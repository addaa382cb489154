#include "SingleAxisSequencer.h"

#include "ActiveController.h"
#include "BoardApi.h"
#include "MotionErrorCode.h"
#include "PromptService.h"
#include "SequenceTimer.h"
#include "SequencerClockwork.h"
#include "SingleAxisPanel.h"
#include "TickClock.h"

SingleAxisSequencer::SingleAxisSequencer(ActiveController& active, BoardApi& board,
                                         PromptService& prompt, SequencerClockwork& clockwork,
                                         SingleAxisPanel& panel)
    : m_active(active), m_board(board), m_prompt(prompt), m_clockwork(clockwork), m_panel(panel)
{
    m_clockwork.cycleClock().setHandler([this] { onCycleClock(); });
    m_clockwork.motionPoll().setHandler([this] { onMotionPoll(); });
    m_clockwork.dwell().setHandler([this] { onDwell(); });
}

SingleAxisSequencer::~SingleAxisSequencer()
{
    // The timers may belong to someone else; nothing may call back into a gone sequencer.
    for (SequenceTimer* timer :
         {&m_clockwork.cycleClock(), &m_clockwork.motionPoll(), &m_clockwork.dwell()}) {
        timer->stop();
        timer->setHandler({});
    }
}

void SingleAxisSequencer::setCardAxis(CardNo card, AxisNo axis)
{
    m_card = card;
    m_axis = axis;
}

BoardFamily SingleAxisSequencer::family() const
{
    return m_active.family;
}

void SingleAxisSequencer::press(MotionDirection direction)
{
    if (m_moving)
        return;
    // An axis still busy with a motion started elsewhere ignores the press.
    if (m_board.Done(family(), m_card, m_axis) != 0)
        return;
    m_panel.clearCycleDisplay();
    if (m_panel.currentTab() == MotionTab::Home) {
        pressHome();
        return;
    }
    switch (m_panel.motionType()) {
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

void SingleAxisSequencer::pressHome()
{
    m_moving = true;
    // The page's parameters always go to the board before a search, set or not.
    m_panel.homeFields().write(m_board, family(), m_card, m_axis);
    m_board.Home_Move(family(), m_card, m_axis);
    m_idle = false;
    lock();
    m_elapsedMs = 0;
    m_startTick = m_clockwork.clock().tickCount();
    m_clockwork.motionPoll().start(kPollIntervalMs);
}

void SingleAxisSequencer::pressJog(MotionDirection direction)
{
    m_moving = true;
    const PtpSpeeds speeds = m_panel.speedFields();
    m_fields = m_panel.takeRepeatFields();
    speeds.writeJog(m_board, family(), m_card, m_axis);
    m_board.Jog_Move(family(), m_card, m_axis, static_cast<std::uint16_t>(direction));
    m_idle = false;
    m_jogHeld = true;
    lock();
    m_clockwork.motionPoll().start(kPollIntervalMs);
    startCycleClock();
}

void SingleAxisSequencer::pressRelative(MotionDirection direction)
{
    m_moving = true;
    m_stepDirection = direction;
    m_returning = false;
    m_fields = m_panel.takeRepeatFields();
    m_repeatTarget = m_fields.count == 0 ? 1 : m_fields.count;
    m_cycleCount = 1;
    m_startPosition = m_board.GetCommandPos(family(), m_card, m_axis);
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

void SingleAxisSequencer::pressAbsolute(MotionDirection direction)
{
    m_moving = true;
    m_stepDirection = direction;
    m_fields = m_panel.takeRepeatFields();
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

void SingleAxisSequencer::relativeStep(int direction, bool returnToStart)
{
    m_panel.speedFields().writePositioning(m_board, family(), m_card, m_axis);
    if (returnToStart) {
        m_board.Abs_Move(family(), m_card, m_axis, m_startPosition);
    } else {
        const std::int32_t sign = direction == DirectionMinus ? -1 : 1;
        m_board.Inc_Move(family(), m_card, m_axis, m_fields.distance * sign);
    }
}

void SingleAxisSequencer::absoluteMove(int position)
{
    m_panel.speedFields().writePositioning(m_board, family(), m_card, m_axis);
    m_board.Abs_Move(family(), m_card, m_axis,
                     position == 1 ? m_fields.position1 : m_fields.position2);
}

void SingleAxisSequencer::release()
{
    if (m_panel.currentTab() != MotionTab::PointToPoint)
        return;
    if (m_panel.motionType() == MotionType::Jog && m_jogHeld) {
        m_board.Decel_Stop(family(), m_card, m_axis);
        m_jogHeld = false;
    }
}

void SingleAxisSequencer::endHeldJog()
{
    if (!m_jogHeld)
        return;
    m_board.Decel_Stop(family(), m_card, m_axis);
    m_jogHeld = false;
}

void SingleAxisSequencer::onCycleClock()
{
    m_elapsedMs = m_clockwork.clock().tickCount() - m_startTick;
    m_panel.showCycle(static_cast<int>(m_elapsedMs), m_cycleCount);
}

void SingleAxisSequencer::onMotionPoll()
{
    if (m_board.Done(family(), m_card, m_axis) != 0 || !m_moving)
        return;
    m_clockwork.motionPoll().stop();
    const std::int32_t code = m_board.GetMotionErrCod(family(), m_card, m_axis);
    if (code < 0) {
        reportAbnormalEnd(code);
        return;
    }
    if (m_panel.currentTab() == MotionTab::Home && code == 0)
        rewriteSoftLimitsAfterHome();
    if (!m_panel.repeatTicked() || m_idle || m_panel.motionType() == MotionType::Jog) {
        endSequence();
        return;
    }
    m_clockwork.dwell().start(m_fields.delayMs);
}

void SingleAxisSequencer::rewriteSoftLimitsAfterHome()
{
    const std::uint16_t status = m_board.GetCardStatus(family(), m_card, m_axis);
    if ((status & kHomeCompleteBit) == 0)
        return;
    // Homing zeroes the counters; writing the soft limits again makes the board apply them
    // to the new origin.
    std::int32_t plus = 0;
    std::int32_t minus = 0;
    std::uint16_t use = 0;
    m_board.GetSlmt(family(), m_card, m_axis, &plus, &minus, &use);
    m_board.SetSlmt(family(), m_card, m_axis, plus, minus, use);
}

void SingleAxisSequencer::reportAbnormalEnd(std::int32_t code)
{
    m_moving = false;
    m_absolutePhase = false;
    m_stepDirection = -1;
    m_idle = true;
    unlock();
    m_clockwork.cycleClock().stop();
    const MotionErrorCode error(code);
    if (m_panel.currentTab() == MotionTab::Home && !error.isReportedWhileHoming())
        return;
    const QString text = error.message(MotionErrorCode::Wording::SingleAxis);
    if (!text.isEmpty())
        m_prompt.inform(text);
}

void SingleAxisSequencer::endSequence()
{
    m_moving = false;
    m_absolutePhase = false;
    m_idle = true;
    unlock();
    m_clockwork.cycleClock().stop();
}

void SingleAxisSequencer::onDwell()
{
    if (m_cycleCount == m_repeatTarget && !m_infinite) {
        endSequence();
        m_clockwork.dwell().stop();
        return;
    }
    if (m_panel.motionType() == MotionType::Absolute)
        dwellAbsolute();
    else
        dwellRelative();
    m_clockwork.motionPoll().start(kPollIntervalMs);
    m_clockwork.dwell().stop();
}

void SingleAxisSequencer::dwellRelative()
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

void SingleAxisSequencer::dwellAbsolute()
{
    m_absolutePhase = !m_absolutePhase;
    if (m_absolutePhase) {
        absoluteMove(2);
        if (m_cycleCount == 0)
            startCycleClock();
        return;
    }
    absoluteMove(1);
    // A cycle is complete once the axis heads back to Position 1.
    ++m_cycleCount;
    if (m_infinite)
        m_repeatTarget = 1;
}

void SingleAxisSequencer::startCycleClock()
{
    m_elapsedMs = 0;
    m_startTick = m_clockwork.clock().tickCount();
    m_clockwork.cycleClock().start(kCycleClockIntervalMs);
}

void SingleAxisSequencer::lock()
{
    if (!m_panel.repeatTicked())
        return;
    m_panel.setSequenceLocked(true);
    m_active.setAxesMoving(MovingOwner::SingleAxis, true);
}

void SingleAxisSequencer::unlock()
{
    if (!m_panel.repeatTicked())
        return;
    m_panel.setSequenceLocked(false);
    m_active.setAxesMoving(MovingOwner::SingleAxis, false);
}

void SingleAxisSequencer::stop(bool sudden)
{
    m_idle = true;
    m_active.setAxesMoving(MovingOwner::SingleAxis, false);
    if (sudden)
        m_board.Sudden_Stop(family(), m_card, m_axis);
    else
        m_board.Decel_Stop(family(), m_card, m_axis);
    if (!m_moving)
        return;
    m_absolutePhase = false;
    unlock();
    m_clockwork.dwell().stop();
    // The poll sees the axis come to rest and, idle being set, ends the sequence.
    m_clockwork.motionPoll().start(kPollIntervalMs);
}
