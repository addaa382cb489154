#include "SpeedProfile.h"

#include <algorithm>
#include <cmath>

namespace nrxsim {

namespace {

double roundHalfUp(double x)
{
    return std::floor(x + 0.5);
}

int32_t rateRegister(double deltaSpeed, double timeMs, int32_t magnification)
{
    const double rate = deltaSpeed / (timeMs / 1000.0);
    const double reg = roundHalfUp(rate / SpeedProfile::RateUnit / magnification);
    return static_cast<int32_t>(std::clamp(reg, 1.0, SpeedProfile::MaxRegister));
}

} // namespace

SpeedProfile::SpeedProfile(const Request& request) : shape_(request.shape)
{
    range_ = std::clamp(request.range, 1, 500);
    const double vd = std::max(request.drive, 1);
    double vi = std::max(request.initial, 1);
    const double ta = std::max(request.accelMs, 1);
    const double td = std::max(request.decelMs, 1);

    if (request.fixedRange) {
        magnification_ = range_;
    } else {
        const double automatic = std::ceil(std::clamp(vd / MaxRegister, 1.0, 500.0));
        magnification_ = std::min(static_cast<int32_t>(automatic), range_);
    }
    vi = std::min(vi, vd);

    const double re = magnification_;
    drive_ = std::clamp(vd / re, 1.0, MaxRegister);
    initial_ = vi / re;
    if (shape_ == Shape::Trapezoid)
        initial_ = std::max(initial_, 1.0);
    else
        initial_ = std::min(std::max(initial_, 100.0), drive_);
    initial_ = std::min(initial_, MaxRegister);

    const double rampSpan = std::max(0.0, (drive_ - initial_) * re);
    if (shape_ == Shape::Trapezoid) {
        accelRegister_ = rateRegister(vd - vi, ta, magnification_);
        decelRegister_ = rateRegister(vd - vi, td, magnification_);
        accelTimeMs_ = rampSpan / accelRate() * 1000.0;
        decelTimeMs_ = rampSpan / decelRate() * 1000.0;
    } else {
        const double t = ta / 1000.0;
        const double wanted = std::max(4.0 * (vd - vi) / (t * t), 1.0);
        const double k = roundHalfUp(JerkConstant / wanted * re);
        jerkRegister_ = static_cast<int32_t>(std::clamp(k, 1.0, 65535.0));
        const double seconds = std::sqrt(4.0 * rampSpan / jerk());
        accelTimeMs_ = roundHalfUp(seconds * 1000.0);
        decelTimeMs_ = accelTimeMs_;
    }
}

int32_t SpeedProfile::driveSpeed() const
{
    return static_cast<int32_t>(roundHalfUp(drive_)) * magnification_;
}

int32_t SpeedProfile::initialSpeed() const
{
    return static_cast<int32_t>(roundHalfUp(initial_)) * magnification_;
}

double SpeedProfile::accelRate() const
{
    return accelRegister_ * RateUnit * magnification_;
}

double SpeedProfile::decelRate() const
{
    return decelRegister_ * RateUnit * magnification_;
}

double SpeedProfile::jerk() const
{
    return JerkConstant / jerkRegister_ * magnification_;
}

} // namespace nrxsim
