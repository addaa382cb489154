#include "MotionProfile.h"

#include "SimConstants.h"

#include <algorithm>
#include <cmath>

namespace nrxsim {

namespace {

// Distance of one S-curve ramp between two speeds at jerk j (no constant-acceleration part).
double sCurveRampDistance(double from, double to, double j)
{
    return (from + to) * std::sqrt(std::fabs(to - from) / j);
}

} // namespace

void MotionProfile::append(double length, double accel, double jerk, uint16_t driveBits)
{
    if (length <= 0.0)
        return;
    Segment s;
    s.start = duration_;
    s.length = length;
    s.origin = distance_;
    s.speed = endSpeed();
    s.accel = accel;
    s.jerk = jerk;
    s.driveBits = driveBits;
    duration_ += length;
    distance_ +=
        s.speed * length + accel * length * length / 2 + jerk * length * length * length / 6;
    segments_.push_back(s);
}

double MotionProfile::endSpeed() const
{
    if (segments_.empty())
        return startSpeed_;
    const Segment& s = segments_.back();
    return s.speed + s.accel * s.length + s.jerk * s.length * s.length / 2;
}

void MotionProfile::appendRamp(double from, double to, const SpeedProfile& speed)
{
    const double delta = to - from;
    if (std::fabs(delta) < 1e-9)
        return;
    const bool up = delta > 0;
    const uint16_t phase = up ? DriveBit::Ascend : DriveBit::Descend;
    const double sign = up ? 1.0 : -1.0;
    if (speed.shape() == SpeedProfile::Shape::Trapezoid) {
        const double rate = up ? speed.accelRate() : speed.decelRate();
        append(std::fabs(delta) / rate, sign * rate, 0.0, phase);
        return;
    }
    const double j = speed.jerk();
    const double half = std::sqrt(std::fabs(delta) / j); // each half of 2*sqrt(|dv|/j)
    append(half, 0.0, sign * j, phase | DriveBit::AccelAscend);
    append(half, sign * j * half, -sign * j, phase | DriveBit::AccelDescend);
}

void MotionProfile::appendCruise(double length)
{
    append(length, 0.0, 0.0, DriveBit::Constant);
}

MotionProfile MotionProfile::positioning(double distance, const SpeedProfile& speed)
{
    MotionProfile p;
    const double vi = speed.initialSpeed();
    const double vd = std::max<double>(speed.driveSpeed(), vi);
    p.startSpeed_ = vi;
    if (distance <= 0.0)
        return p;

    double peak = vd;
    if (speed.shape() == SpeedProfile::Shape::Trapezoid) {
        const double a = speed.accelRate();
        const double d = speed.decelRate();
        const double ramps = (vd * vd - vi * vi) / (2 * a) + (vd * vd - vi * vi) / (2 * d);
        if (ramps > distance)
            peak = std::sqrt(vi * vi + 2 * distance * a * d / (a + d));
    } else {
        const double j = speed.jerk();
        if (2 * sCurveRampDistance(vi, vd, j) > distance) {
            double lo = vi;
            double hi = vd;
            for (int i = 0; i < 100; ++i) {
                const double mid = (lo + hi) / 2;
                if (2 * sCurveRampDistance(vi, mid, j) > distance)
                    hi = mid;
                else
                    lo = mid;
            }
            peak = lo;
        }
    }
    p.appendRamp(vi, peak, speed);
    const double rampUp = p.distance_;
    MotionProfile down;
    down.startSpeed_ = peak;
    down.appendRamp(peak, vi, speed);
    const double cruise = distance - rampUp - down.distance_;
    if (cruise > 0.0 && peak > 0.0)
        p.appendCruise(cruise / peak);
    p.appendRamp(peak, vi, speed);
    // Rounding of the ramps leaves a sliver; the run ends exactly at the target.
    p.distance_ = distance;
    return p;
}

MotionProfile MotionProfile::endless(const SpeedProfile& speed)
{
    MotionProfile p;
    p.startSpeed_ = speed.initialSpeed();
    p.appendRamp(p.startSpeed_, std::max<double>(speed.driveSpeed(), p.startSpeed_), speed);
    p.endless_ = true;
    return p;
}

MotionProfile MotionProfile::rampDown(double fromSpeed, const SpeedProfile& speed)
{
    MotionProfile p;
    p.startSpeed_ = fromSpeed;
    if (fromSpeed > speed.initialSpeed())
        p.appendRamp(fromSpeed, speed.initialSpeed(), speed);
    return p;
}

MotionProfile::Sample MotionProfile::at(double seconds) const
{
    Sample sample;
    if (!endless_ && seconds >= duration_) {
        sample.distance = distance_;
        sample.finished = true;
        return sample;
    }
    if (seconds <= 0.0) {
        sample.speed = startSpeed_;
        sample.driveBits = segments_.empty() ? DriveBit::Constant : segments_.front().driveBits;
        return sample;
    }
    auto it = std::find_if(segments_.begin(), segments_.end(),
                           [seconds](const Segment& s) { return seconds < s.start + s.length; });
    if (it == segments_.end()) {
        // Past the ramp of an endless run: cruise at the last speed.
        const double v = endSpeed();
        sample.distance = distance_ + v * (seconds - duration_);
        sample.speed = v;
        sample.driveBits = DriveBit::Constant;
        return sample;
    }
    const double dt = seconds - it->start;
    sample.distance =
        it->origin + it->speed * dt + it->accel * dt * dt / 2 + it->jerk * dt * dt * dt / 6;
    sample.speed = it->speed + it->accel * dt + it->jerk * dt * dt / 2;
    sample.driveBits = it->driveBits;
    return sample;
}

} // namespace nrxsim
