#pragma once

#include <cstdint>

namespace nrxsim {

// The board's speed registers for a requested profile, as the speed calculator shows them.
// It repeats ActualSpeedCalculator's arithmetic on purpose: the simulator stands on the board
// contract alone and must behave like a board, whatever the program predicts; tst_actualspeed
// holds the two together.
class SpeedProfile
{
public:
    enum class Shape
    {
        Trapezoid = 0,
        SCurve = 1
    };

    struct Request
    {
        int32_t drive = 0;   // pps
        int32_t initial = 0; // pps
        int32_t accelMs = 0; // ms
        int32_t decelMs = 0; // ms
        Shape shape = Shape::Trapezoid;
        int32_t range = 100; // magnification R as set
        bool fixedRange = false;
    };

    // Speed units of one drive register step at magnification 1.
    static constexpr double MaxRegister = 8000.0;
    static constexpr double RateUnit = 125.0;      // pps/s per rate register step
    static constexpr double JerkConstant = 62.5e6; // jerk = JerkConstant / k * R

    explicit SpeedProfile(const Request& request);

    Shape shape() const { return shape_; }
    int32_t range() const { return range_; }                 // R after clamping
    int32_t magnification() const { return magnification_; } // R in effect
    double driveRegister() const { return drive_; }          // unrounded
    double initialRegister() const { return initial_; }      // unrounded
    int32_t driveSpeed() const;                              // pps produced
    int32_t initialSpeed() const;                            // pps produced

    int32_t accelRegister() const { return accelRegister_; } // trapezoid rate register
    int32_t decelRegister() const { return decelRegister_; } // trapezoid rate register
    int32_t jerkRegister() const { return jerkRegister_; }   // S-curve register k
    double accelRate() const;                                // pps/s, trapezoid
    double decelRate() const;                                // pps/s, trapezoid
    double jerk() const;                                     // pps/s^2, S-curve

    // Ramp times as the calculator reports them, in ms.
    double accelTimeMs() const { return accelTimeMs_; }
    double decelTimeMs() const { return decelTimeMs_; }

private:
    Shape shape_;
    int32_t range_;
    int32_t magnification_;
    double drive_;
    double initial_;
    int32_t accelRegister_ = 1;
    int32_t decelRegister_ = 1;
    int32_t jerkRegister_ = 1;
    double accelTimeMs_ = 0.0;
    double decelTimeMs_ = 0.0;
};

} // namespace nrxsim
