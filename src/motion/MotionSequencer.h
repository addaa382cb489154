#pragma once

#include "ActiveController.h"
#include "MotionAxes.h"
#include "MotionTypes.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

class BoardApi;
class MotionPanel;
class PromptService;
class SequencerClockwork;

// Runs the moves of a motion window on one axis or on several axes of a card together: jog
// while pressed, relative and absolute steps with repeat and dwell, homing, the stops, and the
// report of why a motion ended. The window feeds it presses and releases; three timers step
// it (onCycleClock, onMotionPoll, onDwell). A motion keeps to the axes it was started on.
class MotionSequencer
{
public:
    // Card status bit that reports a completed home search.
    static constexpr std::uint16_t kHomeCompleteBit = 0x800;

    // The multi-axis owner drives its axes with the multi-axis operations and words its stop
    // messages for them.
    MotionSequencer(ActiveController& active, BoardApi& board, PromptService& prompt,
                    SequencerClockwork& clockwork, MotionPanel& panel, MovingOwner owner);
    virtual ~MotionSequencer();
    MotionSequencer(const MotionSequencer&) = delete;
    MotionSequencer& operator=(const MotionSequencer&) = delete;

    // Left button down / up on the "-" or "+" button.
    void press(MotionDirection direction);
    void release();
    // Ends a jog that is still held; safe to call at any time.
    void endHeldJog();

    // "S-Stop" and "E-Stop": the selected axes, and those of a running motion if the
    // selection has moved since it started.
    void decelStop() { stop(false); }
    void suddenStop() { stop(true); }
    // A stop when the window names no axes: only the running motion's own, if one runs.
    void stopRunning(bool sudden);
    // Stops every axis of the running motion at once and says why.
    void abortWith(const QString& message);
    // The frame's stop of everything: the board calls are the frame's, the sequence ends here.
    void endSequence();
    // The window closes: a running motion (a held jog, a step, a repeat, a home search) gets a
    // slowing stop on its axes and its sequence ends; the log says why.
    void endForClose();

    // How a card is named in a stop report ("NRX-RL416V"); without it reports name no place.
    void setModelNames(std::function<QString(BoardFamily, CardNo)> names)
    {
        m_modelNames = std::move(names);
    }

    // Timer handlers.
    void onCycleClock();
    void onMotionPoll();
    void onDwell();

    bool isMoving() const { return m_moving; }
    bool isIdle() const { return m_idle; }
    bool isJogHeld() const { return m_jogHeld; }
    int cycleCount() const { return m_cycleCount; }
    int elapsedMs() const { return static_cast<int>(m_elapsedMs); }
    // The axes of the running (or last) motion.
    const MotionAxes& target() const { return m_target; }

private:
    bool multi() const { return m_owner == MovingOwner::MultiAxis; }
    std::uint16_t done(const MotionAxes& axes);
    void stopAxes(const MotionAxes& axes, bool sudden);
    void incMove(const std::vector<std::int32_t>& distances);
    void absMove(const std::vector<std::int32_t>& positions);
    // The first abnormal stop code of the motion's axes, and the axis that has it.
    std::int32_t firstErrorCode(AxisNo* axis = nullptr);

    void pressHome();
    void pressJog(MotionDirection direction);
    void pressRelative(MotionDirection direction);
    void pressAbsolute(MotionDirection direction);
    void relativeStep(int direction, bool returnToStart);
    void absoluteMove(int position);
    void dwellRelative();
    void dwellAbsolute();
    void startCycleClock();
    void lock();
    void unlock();
    void finishSequence();
    void reportAbnormalEnd(std::int32_t code, AxisNo axis);
    void rewriteSoftLimitsAfterHome();
    void stop(bool sudden);
    void afterStop();

    ActiveController& m_active;
    BoardApi& m_board;
    PromptService& m_prompt;
    std::function<QString(BoardFamily, CardNo)> m_modelNames;
    SequencerClockwork& m_clockwork;
    MotionPanel& m_panel;
    MovingOwner m_owner;

    MotionAxes m_target;
    bool m_homing = false;
    MotionType m_type = MotionType::Jog;
    int m_stepDirection = -1; // -1 after an error stop
    bool m_absolutePhase = false;
    bool m_moving = false;
    bool m_idle = true;
    bool m_jogHeld = false;
    bool m_returning = false;
    std::int32_t m_repeatTarget = 0;
    bool m_infinite = false;
    std::uint32_t m_elapsedMs = 0;
    std::uint32_t m_startTick = 0;
    std::int32_t m_cycleCount = 0;
    std::vector<std::int32_t> m_startPositions;
    RepeatFields m_fields;
    std::vector<AxisPositions> m_positions;
};
