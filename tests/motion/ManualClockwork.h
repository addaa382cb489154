#pragma once

#include "SequenceTimer.h"
#include "SequencerClockwork.h"
#include "TickClock.h"

#include <cstdint>

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

// A timer on a manual clock: it fires only when a test asks whether it is due.
class ManualTimer : public SequenceTimer
{
public:
    explicit ManualTimer(const ManualTickClock& clock) : m_clock(clock) {}

    void start(int intervalMs) override
    {
        m_active = true;
        m_interval = intervalMs;
        m_due = m_clock.tickCount() + period();
    }
    void stop() override { m_active = false; }
    bool isActive() const override { return m_active; }
    void setHandler(std::function<void()> handler) override { m_handler = std::move(handler); }

    int interval() const { return m_interval; }
    // Fires for every period that has passed on the clock; a zero period fires once per tick.
    void fireIfDue()
    {
        while (m_active && m_handler &&
               static_cast<std::int32_t>(m_clock.tickCount() - m_due) >= 0) {
            m_due += period();
            m_handler();
        }
    }

private:
    std::uint32_t period() const { return m_interval > 0 ? std::uint32_t(m_interval) : 1u; }

    const ManualTickClock& m_clock;
    bool m_active = false;
    int m_interval = 0;
    std::uint32_t m_due = 0;
    std::function<void()> m_handler;
};

// The sequencer's timers and clock, stepped by hand.
class ManualClockwork : public SequencerClockwork
{
public:
    SequenceTimer& cycleClock() override { return cycle; }
    SequenceTimer& motionPoll() override { return poll; }
    SequenceTimer& dwell() override { return pause; }
    TickClock& clock() override { return tick; }

    // Advances the clock and lets each timer see the time pass, one millisecond at a time, calling
    // beforeStep first (to move a simulated board along with it).
    template <typename F> void run(int ms, F beforeStep)
    {
        for (int i = 0; i < ms; ++i) {
            beforeStep();
            tick.advance(1);
            cycle.fireIfDue();
            poll.fireIfDue();
            pause.fireIfDue();
        }
    }
    void run(int ms)
    {
        run(ms, [] {});
    }
    bool anyActive() const { return cycle.isActive() || poll.isActive() || pause.isActive(); }

    ManualTickClock tick;
    ManualTimer cycle{tick};
    ManualTimer poll{tick};
    ManualTimer pause{tick};
};
