#pragma once

#include "AxisParameters.h"
#include "SpeedProfile.h"

namespace nrxsim {

// The speed profiles an axis's parameters ask for, per kind of motion.
class AxisSpeeds
{
public:
    static SpeedProfile position(const AxisParameters& p);
    static SpeedProfile jog(const AxisParameters& p);
    // Home legs: `fast` ramps from the low to the high speed.
    static SpeedProfile home(const AxisParameters& p, bool fast);

private:
    static SpeedProfile of(const AxisParameters& p, int32_t initial, int32_t drive, int32_t accel,
                           int32_t decel);
};

} // namespace nrxsim
