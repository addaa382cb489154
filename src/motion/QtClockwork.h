#pragma once

#include "QtSequenceTimer.h"
#include "SequencerClockwork.h"
#include "TickClock.h"

#include <QElapsedTimer>

// The program's clockwork: QTimers and a monotonic clock started with it.
class QtClockwork : public SequencerClockwork, private TickClock
{
public:
    QtClockwork() { m_elapsed.start(); }

    SequenceTimer& cycleClock() override { return m_cycleClock; }
    SequenceTimer& motionPoll() override { return m_motionPoll; }
    SequenceTimer& dwell() override { return m_dwell; }
    TickClock& clock() override { return *this; }

private:
    std::uint32_t tickCount() const override
    {
        return static_cast<std::uint32_t>(m_elapsed.elapsed());
    }

    QtSequenceTimer m_cycleClock;
    QtSequenceTimer m_motionPoll;
    QtSequenceTimer m_dwell;
    QElapsedTimer m_elapsed;
};
