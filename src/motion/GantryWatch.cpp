#include "GantryWatch.h"

#include <algorithm>

GantryWatch::GantryWatch(std::function<void()> check, QObject* parent)
    : QObject(parent), m_check(std::move(check))
{
    // A coarse timer may come a whole millisecond late; the check is asked to be precise.
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
}

void GantryWatch::setOn(bool on)
{
    if (!on) {
        m_timer.stop();
        return;
    }
    m_clock.start();
    m_lastNs = -1;
    m_longestNs = 0;
    m_ticks = 0;
    m_timer.start();
}

void GantryWatch::tick()
{
    if (m_clock.isValid()) {
        const qint64 now = m_clock.nsecsElapsed();
        if (m_lastNs < 0)
            m_firstNs = now;
        else
            m_longestNs = std::max(m_longestNs, now - m_lastNs);
        m_lastNs = now;
        ++m_ticks;
    }
    m_check();
}

double GantryWatch::meanPeriodMs() const
{
    if (m_ticks < 2)
        return 0.0;
    return static_cast<double>(m_lastNs - m_firstNs) / static_cast<double>(m_ticks - 1) / 1e6;
}
