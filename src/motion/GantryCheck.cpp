#include "GantryCheck.h"

#include "BoardApi.h"
#include "MotionSequencer.h"

#include <algorithm>
#include <vector>

namespace {
// Each position against the next, the last against the first; a deviation equal to the limit
// passes.
bool anyPairOverLimit(const std::vector<std::int32_t>& positions, std::int32_t limit)
{
    const std::size_t count = positions.size();
    if (count < 2)
        return false;
    for (std::size_t i = 0; i < count; ++i) {
        // 64 bits: two positions far apart on a 32-bit counter still compare correctly.
        const std::int64_t difference = static_cast<std::int64_t>(positions[i]) -
                                        static_cast<std::int64_t>(positions[(i + 1) % count]);
        if ((difference < 0 ? -difference : difference) > limit)
            return true;
    }
    return false;
}
} // namespace

GantryCheck::GantryCheck(const MotionSequencer& motion, BoardApi& board, std::function<void()> stop)
    : m_motion(motion), m_board(board), m_stop(std::move(stop))
{
    // A coarse timer may come a whole millisecond late; the check is asked to be precise.
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kIntervalMs);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
}

void GantryCheck::setOn(bool on)
{
    m_on = on;
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

void GantryCheck::tick()
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
    if (mustStop())
        m_stop();
}

double GantryCheck::meanPeriodMs() const
{
    if (m_ticks < 2)
        return 0.0;
    return static_cast<double>(m_lastNs - m_firstNs) / static_cast<double>(m_ticks - 1) / 1e6;
}

bool GantryCheck::mustStop() const
{
    // Off, nothing running, or a stop already given that waits for the poll: read nothing, so
    // the axes are not stopped twice.
    if (!m_on || !m_motion.isMoving() || m_motion.isIdle())
        return false;
    // The family, card and axes the motion started on, whatever the window shows now.
    const MotionAxes& motion = m_motion.target();
    std::vector<std::int32_t> positions;
    positions.reserve(motion.axes.size());
    for (AxisNo axis : motion.axes)
        positions.push_back(m_source == Source::Actual
                                ? m_board.GetActualPos(motion.family, motion.card, axis)
                                : m_board.GetCommandPos(motion.family, motion.card, axis));
    return anyPairOverLimit(positions, m_limit);
}
