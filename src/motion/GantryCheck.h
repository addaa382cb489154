#pragma once

#include "MotionAxes.h"

#include <QElapsedTimer>
#include <QTimer>

#include <cstdint>
#include <functional>

class BoardApi;
class MotionSequencer;

// The gantry check of the multi-axis window: while on, a precise 1 ms timer reads the running
// motion's counters and stops the motion when an axis has drifted from the next one, the
// last from the first, by more than the limit. It also keeps how regularly its periods came.
class GantryCheck
{
public:
    enum class Source
    {
        Command,
        Actual
    };
    static constexpr int kIntervalMs = 1;

    // stop is called once for a period that finds a pair over the limit.
    GantryCheck(const MotionSequencer& motion, BoardApi& board, std::function<void()> stop);

    void setOn(bool on);
    bool isOn() const { return m_on; }
    void setSource(Source source) { m_source = source; }
    Source source() const { return m_source; }
    void setLimit(std::int32_t limit) { m_limit = limit; }
    std::int32_t limit() const { return m_limit; }

    // One period: the statistics, then the check.
    void tick();

    double meanPeriodMs() const;
    double longestPeriodMs() const { return static_cast<double>(m_longestNs) / 1e6; }
    qint64 ticks() const { return m_ticks; }

private:
    bool mustStop() const;

    const MotionSequencer& m_motion;
    BoardApi& m_board;
    std::function<void()> m_stop;
    bool m_on = false;
    Source m_source = Source::Command;
    std::int32_t m_limit = 100;

    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_firstNs = 0;
    qint64 m_lastNs = -1;
    qint64 m_longestNs = 0;
    qint64 m_ticks = 0;
};
