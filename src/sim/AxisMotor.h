#pragma once

#include "BoardSetup.h"
#include "SeededScatter.h"
#include "ServoModel.h"

#include <cstdint>

namespace nrxsim {

// The motor and encoder behind one axis: it follows the pulses through the drive, may slip,
// and stands still while a drive that needs its servo-on output has it off. The encoder reads
// the load behind the mechanics: through their backlash, and scattered at rest.
class AxisMotor
{
public:
    AxisMotor(const BoardSetup::Axis& wiring, int64_t machine, uint64_t seed);

    // The servo-on output changed, with the pulses having brought the axis to `machine`.
    void setServoOn(bool on, int64_t machine);
    // One millisecond in which `moved` pulses came; `pulsing` while the generator runs.
    void step(int64_t machine, int64_t moved, bool pulsing);

    // Where the encoder is now, and where it comes to rest with the axis at `machine`.
    int64_t encoder() const { return lost_ ? frozenEncoder_ : load(rawEncoder()) - lostCounts_; }
    int64_t resting(int64_t machine) const
    {
        if (lost_)
            return frozenEncoder_;
        return load(held() ? heldEncoder_ : machine + slipOffset_) - lostCounts_;
    }
    // A lost encoder counts nothing until it is back; the motor still turns.
    void setEncoderLost(bool lost);
    bool encoderLost() const { return lost_; }
    // Not yet at rest on the command: worth stepping although no pulses come.
    bool busy() const { return !held() && model_.busy(); }
    // The drive's in-position output; a drive with its servo off is not in position.
    bool inPosition() const { return !held() && model_.settled(); }
    bool overFollowingLimit() const { return !held() && model_.overFollowingLimit(); }

private:
    bool held() const { return needsServoOn_ && !servoOn_; }
    int64_t rawEncoder() const { return held() ? heldEncoder_ : model_.encoder(); }
    // Where the load is with the motor at `motor`.
    int64_t load(int64_t motor) const { return motor + play_ + noise_; }

    ServoModel model_;
    int64_t slipPerMille_ = 0;
    int64_t slipOffset_ = 0;
    int64_t slipRemainder_ = 0;
    bool needsServoOn_ = false;
    bool servoOn_ = false;
    int64_t heldEncoder_ = 0; // where the encoder stays while the servo is off
    bool lost_ = false;
    int64_t frozenEncoder_ = 0;
    int64_t lostCounts_ = 0; // what the encoder missed while it was lost
    int64_t backlash_ = 0;
    int64_t play_ = 0; // load minus motor, within the backlash
    int64_t noiseBound_ = 0;
    int64_t noise_ = 0; // where this move's rest scatters to
    SeededScatter noiseScatter_;
    bool pulsing_ = false;
};

} // namespace nrxsim
