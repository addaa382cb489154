#pragma once

#include "MotionTypes.h"

#include <optional>

class BoardApi;
class MotionButtonTarget;
class MotionSequencer;

// The buttons of a motion window whose press and release both count.
enum class MotionButton
{
    Minus,
    Plus,
    AlarmReset
};

// What the buttons of both motion windows do, without the widgets: "-" and "+" press and
// release the sequencer's motion (a release reaches the axes the motion started on), the
// alarm reset is held for as long as its button, and the stops, servo and counter clear act
// on the axes the window names.
class MotionButtonActions
{
public:
    MotionButtonActions(BoardApi& board, MotionSequencer& sequencer, MotionButtonTarget& target)
        : m_board(board), m_sequencer(sequencer), m_target(target)
    {}

    // False when the window refused the press (nothing may start now).
    bool press(MotionButton button);
    void release(MotionButton button);
    // "E-Stop" (sudden) and "S-Stop".
    void stop(bool sudden);
    void clearCounters();
    // Switches the servo over; the new state, or nothing when no axis may be switched.
    std::optional<bool> toggleServo();
    void endHeldJog();

private:
    // False when no axis may be reset now.
    bool holdAlarmReset(bool down);

    BoardApi& m_board;
    MotionSequencer& m_sequencer;
    MotionButtonTarget& m_target;
};
