#pragma once

// The pulse rates and ramp times a board really produces for requested ones: speeds are
// whole multiples of the range magnification and ramps are integer rate or jerk registers.
// The simulator (SpeedProfile in src/sim) does the same arithmetic on purpose: it stands on
// the board contract alone and must behave like a board, while this predicts what a real
// board does. tst_actualspeed holds the two together.
class ActualSpeedCalculator
{
public:
    enum SpeedMode
    {
        Trapezoid = 0,
        SCurve = 1
    };
    enum RangeMode
    {
        AutomaticRange = 0,
        FixedRange = 1
    };

    // As typed: pps and ms; out-of-range values are clamped by the calculation.
    struct Request
    {
        int drive = 0;
        int initial = 0;
        int accelMs = 0;
        int decelMs = 0;
        int speedMode = Trapezoid;
        int rangeMode = AutomaticRange;
        int range = 100; // magnification R
    };

    struct Result
    {
        int magnification = 1;      // R in effect
        double driveRegister = 1.0; // drive speed / R, not rounded
        double initialRegister = 1.0;
        int driveSpeed = 0;    // pps
        int initialSpeed = 0;  // pps
        int accelRegister = 1; // trapezoid rate registers
        int decelRegister = 1;
        int jerkRegister = 1; // S-curve register
        double accelTimeMs = 0.0;
        double decelTimeMs = 0.0;
    };

    static constexpr int kRegisterMax = 8000;
    static constexpr double kRateUnit = 125.0;      // pps/s per rate step at R = 1
    static constexpr double kJerkConstant = 62.5e6; // jerk = constant / k x R
    static constexpr int kJerkRegisterMax = 65535;

    static Result calculate(const Request& request);
};
