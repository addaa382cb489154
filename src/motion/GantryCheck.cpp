#include "GantryCheck.h"

#include "MotionSequencer.h"

#include <vector>

namespace {
// Each position against the next, the last against the first.
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

bool GantryCheck::mustStop(const PositionReader& position) const
{
    if (!m_on || !m_motion.isMoving() || m_motion.isIdle())
        return false;
    // The axes the motion started on, whatever the list shows now.
    const MotionAxes& motion = m_motion.target();
    std::vector<std::int32_t> positions;
    positions.reserve(motion.axes.size());
    for (AxisNo axis : motion.axes)
        positions.push_back(position(motion, axis, m_source));
    return anyPairOverLimit(positions, m_limit);
}
