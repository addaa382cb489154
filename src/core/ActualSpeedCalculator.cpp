#include "ActualSpeedCalculator.h"

#include <algorithm>
#include <cmath>

namespace {

double roundHalfUp(double value)
{
    return std::floor(value + 0.5);
}

// A trapezoid ramp's rate register for a speed change over a time in ms.
int rateRegister(double speedChange, double timeMs, int magnification)
{
    const double rate = speedChange / (timeMs / 1000.0);
    const double steps = roundHalfUp(rate / ActualSpeedCalculator::kRateUnit / magnification);
    return static_cast<int>(std::clamp(steps, 1.0, double(ActualSpeedCalculator::kRegisterMax)));
}

} // namespace

ActualSpeedCalculator::Result ActualSpeedCalculator::calculate(const Request& request)
{
    Result result;
    const int range = std::clamp(request.range, 1, 500);
    const double drive = std::max(request.drive, 1);
    double initial = std::max(request.initial, 1);
    const double accelMs = std::max(request.accelMs, 1);
    const double decelMs = std::max(request.decelMs, 1);

    if (request.rangeMode == FixedRange) {
        result.magnification = range;
    } else {
        const double needed = std::ceil(std::clamp(drive / kRegisterMax, 1.0, 500.0));
        result.magnification = std::min(static_cast<int>(needed), range);
    }
    const double r = result.magnification;
    initial = std::min(initial, drive);

    const double d = std::clamp(drive / r, 1.0, double(kRegisterMax));
    double i = initial / r;
    if (request.speedMode == SCurve)
        i = std::min(std::max(i, 100.0), d);
    else
        i = std::max(i, 1.0);
    i = std::min(i, double(kRegisterMax));
    result.driveRegister = d;
    result.initialRegister = i;
    result.driveSpeed = static_cast<int>(roundHalfUp(d)) * result.magnification;
    result.initialSpeed = static_cast<int>(roundHalfUp(i)) * result.magnification;

    // The ramps run between the unrounded register speeds.
    const double span = d * r - i * r;
    if (request.speedMode == SCurve) {
        const double seconds = accelMs / 1000.0;
        const double jerk = std::max(4.0 * (drive - initial) / (seconds * seconds), 1.0);
        const double k = roundHalfUp(kJerkConstant / jerk * r);
        result.jerkRegister = static_cast<int>(std::clamp(k, 1.0, double(kJerkRegisterMax)));
        const double actualJerk = kJerkConstant / result.jerkRegister * r;
        const double rampSeconds = std::sqrt(4.0 * span / actualJerk);
        // Milliseconds to three decimals of a second; the board decelerates as it accelerates.
        result.accelTimeMs = roundHalfUp(rampSeconds * 1000.0);
        result.decelTimeMs = result.accelTimeMs;
    } else {
        result.accelRegister = rateRegister(drive - initial, accelMs, result.magnification);
        result.decelRegister = rateRegister(drive - initial, decelMs, result.magnification);
        result.accelTimeMs = span / (result.accelRegister * kRateUnit * r) * 1000.0;
        result.decelTimeMs = span / (result.decelRegister * kRateUnit * r) * 1000.0;
    }
    return result;
}
