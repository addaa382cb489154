#include "SpeedProfileCurve.h"

#include <algorithm>

namespace {

constexpr int kSCurveSteps = 32;

} // namespace

SpeedProfileCurve::Ramps SpeedProfileCurve::requested(const ActualSpeedCalculator::Request& request)
{
    Ramps ramps;
    ramps.drive = std::max(request.drive, 1);
    ramps.initial = std::min<double>(std::max(request.initial, 1), ramps.drive);
    ramps.accelMs = std::max(request.accelMs, 1);
    ramps.decelMs = std::max(request.decelMs, 1);
    ramps.sCurve = request.speedMode == ActualSpeedCalculator::SCurve;
    return ramps;
}

SpeedProfileCurve::Ramps SpeedProfileCurve::actual(const ActualSpeedCalculator::Request& request,
                                                   const ActualSpeedCalculator::Result& result)
{
    Ramps ramps;
    ramps.drive = result.driveSpeed;
    ramps.initial = std::min(result.initialSpeed, result.driveSpeed);
    ramps.accelMs = result.accelTimeMs;
    ramps.decelMs = result.decelTimeMs;
    ramps.sCurve = request.speedMode == ActualSpeedCalculator::SCurve;
    return ramps;
}

double SpeedProfileCurve::cruiseFor(const Ramps& a, const Ramps& b)
{
    const double longest = std::max(a.accelMs + a.decelMs, b.accelMs + b.decelMs);
    return std::max(longest * 0.25, 1.0);
}

void SpeedProfileCurve::appendRamp(QVector<QPointF>& points, double start, double from, double to,
                                   double lengthMs, bool sCurve)
{
    if (!sCurve) {
        points.append(QPointF(start + lengthMs, to));
        return;
    }
    // Jerk-limited ramp with no constant-acceleration part: the speed change follows 2u^2 over
    // the first half and 1 - 2(1-u)^2 over the second.
    for (int step = 1; step <= kSCurveSteps; ++step) {
        const double u = double(step) / kSCurveSteps;
        const double share = u <= 0.5 ? 2.0 * u * u : 1.0 - 2.0 * (1.0 - u) * (1.0 - u);
        points.append(QPointF(start + u * lengthMs, from + (to - from) * share));
    }
}

QVector<QPointF> SpeedProfileCurve::points(const Ramps& ramps, double cruiseMs)
{
    // The pulse output starts and ends at the initial speed, straight from and to standstill.
    QVector<QPointF> points;
    points.append(QPointF(0.0, 0.0));
    points.append(QPointF(0.0, ramps.initial));
    appendRamp(points, 0.0, ramps.initial, ramps.drive, ramps.accelMs, ramps.sCurve);
    const double cruiseEnd = ramps.accelMs + cruiseMs;
    points.append(QPointF(cruiseEnd, ramps.drive));
    appendRamp(points, cruiseEnd, ramps.drive, ramps.initial, ramps.decelMs, ramps.sCurve);
    points.append(QPointF(cruiseEnd + ramps.decelMs, 0.0));
    return points;
}
