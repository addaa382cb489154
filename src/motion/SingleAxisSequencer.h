#pragma once

#include "BoardFamily.h"
#include "MotionTypes.h"

#include <cstdint>

struct ActiveController;
class BoardApi;
class PromptService;
class SequencerClockwork;
class SingleAxisPanel;

// Runs the moves of the single-axis window: jog while pressed, relative and absolute steps with
// repeat and dwell, homing, the stops, and the report of why a motion ended. The window feeds it
// presses and releases; three timers step it (onCycleClock, onMotionPoll, onDwell).
class SingleAxisSequencer
{
public:
    static constexpr int kPollIntervalMs = 10;
    static constexpr int kCycleClockIntervalMs = 10;
    // Card status bit that reports a completed home search.
    static constexpr std::uint16_t kHomeCompleteBit = 0x800;

    SingleAxisSequencer(ActiveController& active, BoardApi& board, PromptService& prompt,
                        SequencerClockwork& clockwork, SingleAxisPanel& panel);
    ~SingleAxisSequencer();
    SingleAxisSequencer(const SingleAxisSequencer&) = delete;
    SingleAxisSequencer& operator=(const SingleAxisSequencer&) = delete;

    void setCardAxis(CardNo card, AxisNo axis);

    // Left button down / up on the "-" or "+" button.
    void press(MotionDirection direction);
    void release();
    // Ends a jog that is still held; safe to call at any time.
    void endHeldJog();

    // "S-Stop" and "E-Stop".
    void decelStop() { stop(false); }
    void suddenStop() { stop(true); }

    // Timer handlers.
    void onCycleClock();
    void onMotionPoll();
    void onDwell();

    bool isMoving() const { return m_moving; }
    bool isIdle() const { return m_idle; }
    bool isJogHeld() const { return m_jogHeld; }
    int cycleCount() const { return m_cycleCount; }
    int repeatTarget() const { return m_repeatTarget; }
    int elapsedMs() const { return static_cast<int>(m_elapsedMs); }

private:
    BoardFamily family() const;
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
    void endSequence();
    void reportAbnormalEnd(std::int32_t code);
    void rewriteSoftLimitsAfterHome();
    void stop(bool sudden);

    ActiveController& m_active;
    BoardApi& m_board;
    PromptService& m_prompt;
    SequencerClockwork& m_clockwork;
    SingleAxisPanel& m_panel;

    CardNo m_card = 0;
    AxisNo m_axis = 0;
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
    std::int32_t m_startPosition = 0;
    RepeatFields m_fields;
};
