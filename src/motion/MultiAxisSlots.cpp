#include "MultiAxisSlots.h"

void MultiAxisSlots::setProfile(AxisNo focused, const PtpSpeeds& fields, bool copyToChecked,
                                const std::vector<AxisNo>& checked, MotionType type)
{
    m_profiles[at(focused)] = fields;
    if (!copyToChecked)
        return;
    for (AxisNo axis : checked) {
        PtpSpeeds& slot = m_profiles[at(axis)];
        slot.initial = fields.initial;
        slot.drive = fields.drive;
        slot.accelMs = fields.accelMs;
        // A jog has one ramp time; the axes keep their own decel time.
        if (type != MotionType::Jog)
            slot.decelMs = fields.decelMs;
    }
}

void MultiAxisSlots::setPositions(AxisNo focused, std::int32_t position1, std::int32_t position2,
                                  bool copyToChecked, const std::vector<AxisNo>& checked)
{
    const AxisPositions taken{position2, position1, position2};
    m_positions[at(focused)] = taken;
    if (!copyToChecked)
        return;
    for (AxisNo axis : checked)
        m_positions[at(axis)] = taken;
}
