#pragma once

#include "SpeedProfile.h"

#include <cstdint>
#include <vector>

namespace nrxsim {

// Distance over time of one pulse-generator run (move, jog, ramp down) from the registers.
class MotionProfile
{
public:
    // Distances are positive; the caller applies the direction.
    struct Sample
    {
        double distance = 0.0; // pulses from the start
        double speed = 0.0;    // pps
        uint16_t driveBits = 0;
        bool finished = false;
    };

    MotionProfile() = default;

    // Start at the initial speed, end after exactly `distance` pulses; peaks below the drive
    // speed (triangle) when the ramps do not fit.
    static MotionProfile positioning(double distance, const SpeedProfile& speed);
    // Start at the initial speed, ramp to the drive speed and run until stopped.
    static MotionProfile endless(const SpeedProfile& speed);
    // Ramp down from `fromSpeed` to the initial speed and end there.
    static MotionProfile rampDown(double fromSpeed, const SpeedProfile& speed);

    Sample at(double seconds) const;
    bool isEndless() const { return endless_; }
    double duration() const { return duration_; } // seconds; the ramp-up part when endless
    double distance() const { return distance_; } // pulses; the ramp-up part when endless

private:
    struct Segment
    {
        double start = 0.0;  // s
        double length = 0.0; // s
        double origin = 0.0; // pulses at start
        double speed = 0.0;  // pps at start
        double accel = 0.0;  // pps/s at start
        double jerk = 0.0;   // pps/s^2
        uint16_t driveBits = 0;
    };

    void append(double length, double accel, double jerk, uint16_t driveBits);
    void appendRamp(double from, double to, const SpeedProfile& speed);
    void appendCruise(double length);
    double endSpeed() const;

    std::vector<Segment> segments_;
    double startSpeed_ = 0.0;
    double duration_ = 0.0;
    double distance_ = 0.0;
    bool endless_ = false;
};

} // namespace nrxsim
