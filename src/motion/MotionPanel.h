#pragma once

#include "MotionAxes.h"
#include "MotionTypes.h"

#include <vector>

// What a motion sequencer needs from its window: the user's choices, the axes and figures a
// move uses, the displays and the controls to lock.
class MotionPanel
{
public:
    virtual ~MotionPanel() = default;

    virtual MotionTab currentTab() const = 0;
    virtual MotionType motionType() const = 0;
    virtual bool repeatTicked() const = 0;
    virtual bool infiniteTicked() const = 0;

    // The axes the buttons act on now.
    virtual MotionAxes selectedAxes() const = 0;
    // Count and Delay Time, remembered as they are read.
    virtual RepeatFields takeRepeatFields() = 0;
    // Distance and positions of each axis of `target`, in its order, read as a move starts.
    virtual std::vector<AxisPositions> takePositions(const MotionAxes& target,
                                                     const RepeatFields& fields) = 0;
    // Writes the speed profile of the motion type to every axis of `target`; before every move.
    virtual void writeSpeeds(const MotionAxes& target, MotionType type) = 0;
    // Writes the home parameters to the axis before a search.
    virtual void writeHomeSettings(const MotionAxes& target) = 0;

    virtual void showCycle(int elapsedMs, int cycleCount) = 0;
    // Zeroes the Repeat Count and Cycle Time displays.
    virtual void clearCycleDisplay() = 0;
    // Disables (or enables again) what must not change while a repeat runs.
    virtual void setSequenceLocked(bool locked) = 0;
};
