#pragma once

#include "BoardFamily.h"
#include "MotionTypes.h"
#include "PtpSpeeds.h"

#include <array>
#include <vector>

// The multi-axis window's figures per axis of its card: the speed profile and the two
// positions (the second is also the Distance), and how "Set All Selected Axes" and "Apply All
// Selected Axes" copy the focused axis's figures to the checked ones.
class MultiAxisSlots
{
public:
    static constexpr int kMaxAxes = 8;

    const PtpSpeeds& profile(AxisNo axis) const { return m_profiles[at(axis)]; }
    const AxisPositions& positions(AxisNo axis) const { return m_positions[at(axis)]; }
    void loadProfile(AxisNo axis, const PtpSpeeds& speeds) { m_profiles[at(axis)] = speeds; }

    // "Set Prm": the focused axis takes the fields; with copyToChecked the checked axes take
    // its initial and drive speed and accel time, and for Relative and Absolute its decel time.
    void setProfile(AxisNo focused, const PtpSpeeds& fields, bool copyToChecked,
                    const std::vector<AxisNo>& checked, MotionType type);
    // "Apply": Position 1 and Position 2 (or Distance) likewise.
    void setPositions(AxisNo focused, std::int32_t position1, std::int32_t position2,
                      bool copyToChecked, const std::vector<AxisNo>& checked);

private:
    static std::size_t at(AxisNo axis) { return axis < kMaxAxes ? axis : 0; }

    std::array<PtpSpeeds, kMaxAxes> m_profiles{};
    std::array<AxisPositions, kMaxAxes> m_positions{};
};
