#pragma once

class SequenceTimer;
class TickClock;

// The three timers and the clock a single-axis sequence runs on.
class SequencerClockwork
{
public:
    virtual ~SequencerClockwork() = default;
    virtual SequenceTimer& cycleClock() = 0; // timer 1: shows the cycle time and count
    virtual SequenceTimer& motionPoll() = 0; // timer 2: waits for the end of a motion
    virtual SequenceTimer& dwell() = 0;      // timer 3: the pause between repeat steps
    virtual TickClock& clock() = 0;
};
