#include "MotionButtonActions.h"

#include "AppState.h"
#include "BoardApi.h"
#include "FrameRelay.h"
#include "MotionButtonTarget.h"
#include "MotionSequencer.h"
#include "OrvaneLog.h"
#include "ToolContext.h"

#include <QCoreApplication>

MotionButtonActions::MotionButtonActions(const ToolContext& context, MotionSequencer& sequencer,
                                         MotionButtonTarget& target)
    : m_state(context.state), m_frame(context.frame), m_board(context.board),
      m_sequencer(sequencer), m_target(target)
{}

bool MotionButtonActions::press(MotionButton button)
{
    if (button == MotionButton::AlarmReset)
        return holdAlarmReset(true);
    if (!m_target.mayStartMotion())
        return false;
    noteServoOff();
    m_sequencer.press(button == MotionButton::Minus ? DirectionMinus : DirectionPlus);
    return true;
}

void MotionButtonActions::noteServoOff()
{
    if (m_sequencer.isMoving())
        return;
    const MotionAxes axes = m_target.buttonAxes(false);
    QStringList off;
    for (AxisNo axis : axes.axes) {
        if (m_board.GetSvOn(axes.family, axes.card, axis) == 0)
            off << QStringLiteral("%1(%2) axis %3")
                       .arg(QString::fromStdString(
                           m_state.registry.modelName(axes.family, axes.card)))
                       .arg(axes.card)
                       .arg(axis);
    }
    if (off.isEmpty())
        return;
    const QString note = QCoreApplication::translate("MotionButtonActions", "Servo is off: %1")
                             .arg(off.join(QStringLiteral(", ")));
    qCInfo(lcMotion).noquote() << note;
    m_frame.showNote(note);
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
