#pragma once

#include "ActualSpeedCalculator.h"

#include <QPointF>
#include <QVector>

// Speed over time of one run for drawing: ramp up from the initial to the drive speed, a
// cruise, ramp down; S-curve ramps drawn as S-curves. Time in ms, speed in pps.
class SpeedProfileCurve
{
public:
    struct Ramps
    {
        double initial = 0.0;
        double drive = 0.0;
        double accelMs = 0.0;
        double decelMs = 0.0;
        bool sCurve = false;
    };

    // What was typed, with the calculator's lower limits and the initial speed at most the
    // drive speed.
    static Ramps requested(const ActualSpeedCalculator::Request& request);
    static Ramps actual(const ActualSpeedCalculator::Request& request,
                        const ActualSpeedCalculator::Result& result);
    static QVector<QPointF> points(const Ramps& ramps, double cruiseMs);
    // A cruise long enough to see, the same for both curves so they share the time axis.
    static double cruiseFor(const Ramps& a, const Ramps& b);

private:
    static void appendRamp(QVector<QPointF>& points, double start, double from, double to,
                           double lengthMs, bool sCurve);
};
