#pragma once

#include "HomeSettings.h"
#include "MotionTypes.h"
#include "PtpSpeeds.h"

// What the single-axis sequencer needs from its window and pages: the user's choices and
// fields, the displays and the controls to lock.
class SingleAxisPanel
{
public:
    virtual ~SingleAxisPanel() = default;

    virtual MotionTab currentTab() const = 0;
    virtual MotionType motionType() const = 0;
    virtual bool repeatTicked() const = 0;
    virtual bool infiniteTicked() const = 0;

    // The speed fields of the point-to-point page, read before every move.
    virtual PtpSpeeds speedFields() const = 0;
    // The repeat figures and targets, remembered for the card and axis as they are read.
    virtual RepeatFields takeRepeatFields() = 0;
    virtual HomeSettings homeFields() const = 0;

    virtual void showCycle(int elapsedMs, int cycleCount) = 0;
    // Zeroes the Repeat Count and Cycle Time displays.
    virtual void clearCycleDisplay() = 0;
    // Disables (or enables again) what must not change while a repeat runs.
    virtual void setSequenceLocked(bool locked) = 0;
};
