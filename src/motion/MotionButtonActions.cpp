#include "MotionButtonActions.h"

#include "BoardApi.h"
#include "MotionButtonTarget.h"
#include "MotionSequencer.h"

bool MotionButtonActions::press(MotionButton button)
{
    if (button == MotionButton::AlarmReset)
        return holdAlarmReset(true);
    if (!m_target.mayStartMotion())
        return false;
    m_sequencer.press(button == MotionButton::Minus ? DirectionMinus : DirectionPlus);
    return true;
}

void MotionButtonActions::release(MotionButton button)
{
    if (button == MotionButton::AlarmReset)
        holdAlarmReset(false);
    else
        m_sequencer.release();
}

bool MotionButtonActions::holdAlarmReset(bool down)
{
    // Only the press tells why nothing happens; the release follows it silently.
    const MotionAxes axes = m_target.buttonAxes(down);
    for (AxisNo axis : axes.axes)
        m_board.PutSvAlmRst(axes.family, axes.card, axis, down ? 1 : 0);
    return !axes.axes.empty();
}

void MotionButtonActions::stop(bool sudden)
{
    // The sequencer stops the running motion's axes too when the selection has moved.
    if (!m_target.buttonAxes(false).axes.empty()) {
        if (sudden)
            m_sequencer.suddenStop();
        else
            m_sequencer.decelStop();
        return;
    }
    // The window names no axes now, yet a running motion still stops on the axes it started
    // on, before the user is told why the buttons did nothing else.
    m_sequencer.stopRunning(sudden);
    m_target.buttonAxes(true);
}

void MotionButtonActions::clearCounters()
{
    const MotionAxes axes = m_target.buttonAxes(true);
    for (AxisNo axis : axes.axes)
        m_board.PutSvCClrCmd(axes.family, axes.card, axis);
}

std::optional<bool> MotionButtonActions::toggleServo()
{
    const MotionAxes axes = m_target.buttonAxes(true);
    if (axes.axes.empty())
        return std::nullopt;
    const bool on = m_board.GetSvOn(axes.family, axes.card, m_target.servoAxis()) == 0;
    for (AxisNo axis : axes.axes)
        m_board.PutSvOn(axes.family, axes.card, axis, on ? 1 : 0);
    return on;
}

void MotionButtonActions::endHeldJog()
{
    m_sequencer.endHeldJog();
}
