#pragma once

#include "MotionAxes.h"

#include <cstdint>
#include <functional>

class MotionSequencer;

// The gantry check of the multi-axis window, the whole decision of one period: whether it
// checks at all, which axes and which counter it reads, and whether the motion must stop.
// Each axis of the motion is compared with the next, the last with the first; a deviation
// equal to the limit passes.
class GantryCheck
{
public:
    enum class Source
    {
        Command,
        Actual
    };
    // Reads one axis's counter on the family and card of the running motion.
    using PositionReader =
        std::function<std::int32_t(const MotionAxes& motion, AxisNo axis, Source source)>;

    explicit GantryCheck(const MotionSequencer& motion) : m_motion(motion) {}

    void setOn(bool on) { m_on = on; }
    bool isOn() const { return m_on; }
    void setSource(Source source) { m_source = source; }
    Source source() const { return m_source; }
    void setLimit(std::int32_t limit) { m_limit = limit; }
    std::int32_t limit() const { return m_limit; }

    // One period: true when the running motion must stop. Reads nothing when the check is
    // off, no motion runs, or a stop already given waits for the poll (so the axes are not
    // stopped twice).
    bool mustStop(const PositionReader& position) const;

private:
    const MotionSequencer& m_motion;
    bool m_on = false;
    Source m_source = Source::Command;
    std::int32_t m_limit = 100;
};
