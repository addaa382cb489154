#pragma once

#include "SequenceTimer.h"
#include "SequencerClockwork.h"
#include "TickClock.h"

#include <cstdint>

// A timer that only fires when a test says so.
class ManualTimer : public SequenceTimer
{
public:
    void start(int intervalMs) override
    {
        m_active = true;
        m_interval = intervalMs;
        m_sinceStart = 0;
    }
    void stop() override { m_active = false; }
    bool isActive() const override { return m_active; }
    void setHandler(std::function<void()> handler) override { m_handler = std::move(handler); }

    int interval() const { return m_interval; }
    // Lets time pass; fires once for each full period, as long as the timer stays active.
    void elapse(int ms)
    {
        m_sinceStart += ms;
        const int period = m_interval > 0 ? m_interval : 1;
        while (m_active && m_handler && m_sinceStart >= period) {
            m_sinceStart -= period;
            m_handler();
        }
    }

private:
    bool m_active = false;
    int m_interval = 0;
    int m_sinceStart = 0;
    std::function<void()> m_handler;
};

// A tick clock that moves only when a test advances it.
class ManualTickClock : public TickClock
{
public:
    std::uint32_t tickCount() const override { return m_now; }
    void advance(std::uint32_t ms) { m_now += ms; }
    void set(std::uint32_t now) { m_now = now; }

private:
    std::uint32_t m_now = 0;
};

// The sequencer's timers and clock, stepped by hand.
class ManualClockwork : public SequencerClockwork
{
public:
    SequenceTimer& cycleClock() override { return cycle; }
    SequenceTimer& motionPoll() override { return poll; }
    SequenceTimer& dwell() override { return pause; }
    TickClock& clock() override { return tick; }

    // Advances the clock and lets each timer see the time pass, in 1 ms steps, calling
    // beforeStep first (to move a simulated board along with it).
    template <typename F> void run(int ms, F beforeStep)
    {
        for (int i = 0; i < ms; ++i) {
            beforeStep();
            tick.advance(1);
            cycle.elapse(1);
            poll.elapse(1);
            pause.elapse(1);
        }
    }
    void run(int ms)
    {
        run(ms, [] {});
    }
    bool anyActive() const { return cycle.isActive() || poll.isActive() || pause.isActive(); }

    ManualTimer cycle;
    ManualTimer poll;
    ManualTimer pause;
    ManualTickClock tick;
};
