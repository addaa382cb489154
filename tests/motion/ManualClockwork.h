#pragma once

#include "SequenceTimer.h"
#include "SequencerClockwork.h"
#include "TickClock.h"

#include <cstdint>

// A timer on a hand-moved clock: it fires only when a test lets the time pass.
class ManualTimer : public SequenceTimer
{
public:
    explicit ManualTimer(const std::uint32_t& now) : m_now(now) {}

    void start(int intervalMs) override
    {
        m_active = true;
        m_interval = intervalMs;
        m_due = m_now + period();
    }
    void stop() override { m_active = false; }
    bool isActive() const override { return m_active; }
    void setHandler(std::function<void()> handler) override { m_handler = std::move(handler); }
    int interval() const { return m_interval; }

    // Fires for every period that has passed; a period below one fires once per tick.
    void fireIfDue()
    {
        while (m_active && m_handler && static_cast<std::int32_t>(m_now - m_due) >= 0) {
            m_due += period();
            m_handler();
        }
    }

private:
    std::uint32_t period() const { return m_interval > 0 ? std::uint32_t(m_interval) : 1u; }

    const std::uint32_t& m_now;
    bool m_active = false;
    int m_interval = 0;
    std::uint32_t m_due = 0;
    std::function<void()> m_handler;
};

// The sequencer's three timers and its clock, stepped by hand.
class ManualClockwork : public SequencerClockwork, private TickClock
{
public:
    SequenceTimer& cycleClock() override { return cycle; }
    SequenceTimer& motionPoll() override { return poll; }
    SequenceTimer& dwell() override { return pause; }
    TickClock& clock() override { return *this; }

    // Lets the time pass one millisecond at a time, calling beforeStep first in each (to move
    // a simulated board along).
    template <typename F> void run(int ms, F beforeStep)
    {
        for (int i = 0; i < ms; ++i) {
            beforeStep();
            ++now;
            for (ManualTimer* timer : {&cycle, &poll, &pause})
                timer->fireIfDue();
        }
    }
    void run(int ms)
    {
        run(ms, [] {});
    }
    bool anyActive() const { return cycle.isActive() || poll.isActive() || pause.isActive(); }

    std::uint32_t now = 0;
    ManualTimer cycle{now};
    ManualTimer poll{now};
    ManualTimer pause{now};

private:
    std::uint32_t tickCount() const override { return now; }
};
