#include "PredictedSpeedProfile.h"

#include "BoardApi.h"
#include "ScopeRecording.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

// Distance of a jerk-limited ramp between two speeds with no constant-acceleration part.
double sCurveRampDistance(double from, double to, double jerk)
{
    return (from + to) * std::sqrt(std::fabs(to - from) / jerk);
}

} // namespace

ActualSpeedCalculator::Request
PredictedSpeedProfile::readSettings(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis)
{
    ActualSpeedCalculator::Request request;
    request.speedMode = board.GetSpeedMode(family, card, axis);
    request.range = board.GetRangeMode(family, card, axis);
    request.rangeMode = board.GetFixedRange(family, card, axis);
    nrx_i32 initial = 0, drive = 0, accel = 0, decel = 0;
    board.GetPosSpeed(family, card, axis, &initial, &drive, &accel, &decel);
    // A fresh board reports magnification 0 and runs at 100, as the calculator reads it.
    if (request.range == 0)
        request.range = 100;
    request.initial = initial;
    request.drive = drive;
    request.accelMs = accel;
    request.decelMs = decel;
    return request;
}

PredictedSpeedProfile::Move
PredictedSpeedProfile::forDistance(const ActualSpeedCalculator::Request& settings, double distance)
{
    const ActualSpeedCalculator::Result result = ActualSpeedCalculator::calculate(settings);
    Move move;
    move.ramps = SpeedProfileCurve::actual(settings, result);
    SpeedProfileCurve::Ramps& ramps = move.ramps;
    const double vi = ramps.initial;
    const double vd = ramps.drive;
    if (distance <= 0.0 || vd <= vi) {
        ramps.accelMs = ramps.decelMs = 0.0;
        move.cruiseMs = vd > 0.0 ? std::max(0.0, distance) / vd * 1000.0 : 0.0;
        return move;
    }
    double peak = vd;
    double rampPulses = 0.0;
    if (!ramps.sCurve) {
        const double accel = (vd - vi) / (ramps.accelMs / 1000.0);
        const double decel = (vd - vi) / (ramps.decelMs / 1000.0);
        rampPulses = (vd * vd - vi * vi) / 2.0 * (1.0 / accel + 1.0 / decel);
        if (rampPulses > distance) {
            peak = std::sqrt(vi * vi + 2.0 * distance * accel * decel / (accel + decel));
            ramps.accelMs = (peak - vi) / accel * 1000.0;
            ramps.decelMs = (peak - vi) / decel * 1000.0;
            rampPulses = distance;
        }
    } else {
        // The ramp time of the calculator gives the jerk: a full ramp is 2 sqrt(dv / j).
        const double seconds = ramps.accelMs / 1000.0;
        const double jerk = 4.0 * (vd - vi) / (seconds * seconds);
        rampPulses = 2.0 * sCurveRampDistance(vi, vd, jerk);
        if (rampPulses > distance) {
            double low = vi;
            double high = vd;
            for (int i = 0; i < 60; ++i) {
                const double middle = (low + high) / 2.0;
                (2.0 * sCurveRampDistance(vi, middle, jerk) > distance ? high : low) = middle;
            }
            peak = low;
            ramps.accelMs = ramps.decelMs = 2.0 * std::sqrt((peak - vi) / jerk) * 1000.0;
            rampPulses = distance;
        }
    }
    ramps.drive = peak;
    move.cruiseMs = std::max(0.0, distance - rampPulses) / peak * 1000.0;
    return move;
}

double PredictedSpeedProfile::recordedDistance(const ScopeRecording& recording, int column)
{
    if (column < 0 || column >= static_cast<int>(recording.columns.size()))
        return -1.0;
    const std::vector<double>& speed = recording.columns[static_cast<size_t>(column)].values;
    const int start = recording.indexAt(0.0);
    if (start >= recording.sampleCount())
        return -1.0;
    // From the last standstill sample before the trigger to the first one after it.
    double pulses = 0.0;
    for (int i = std::max(1, start); i < recording.sampleCount(); ++i) {
        const auto at = static_cast<size_t>(i);
        const double span = (recording.times[at] - recording.times[at - 1]) / 1000.0;
        pulses += (std::fabs(speed[at]) + std::fabs(speed[at - 1])) / 2.0 * span;
        if (speed[at] == 0.0)
            return pulses;
    }
    return -1.0;
}

QVector<QPointF> PredictedSpeedProfile::forRecording(const ScopeRecording& recording, int column)
{
    if (!recording.triggered || column < 0 ||
        column >= static_cast<int>(recording.columns.size()) ||
        !recording.columns[static_cast<size_t>(column)].hasSettings)
        return {};
    const ScopeRecording::Column& speeds = recording.columns[static_cast<size_t>(column)];
    const int start = recording.indexAt(0.0);
    if (start >= recording.sampleCount())
        return {};
    const double sign = speeds.values[static_cast<size_t>(start)] < 0.0 ? -1.0 : 1.0;
    const double distance = recordedDistance(recording, column);
    QVector<QPointF> points;
    if (distance > 0.0) {
        const Move move = forDistance(speeds.settings, distance);
        points = SpeedProfileCurve::points(move.ramps, move.cruiseMs);
    } else {
        // Still moving: the ramp up and the drive speed up to the last sample; the way down
        // follows once the move has told its length.
        Move move = forDistance(speeds.settings, std::numeric_limits<double>::max());
        move.ramps.decelMs = 0.0;
        const double cruise = std::max(0.0, recording.times.back() - move.ramps.accelMs);
        points = SpeedProfileCurve::points(move.ramps, cruise);
        while (points.size() > 2 && points.last().y() < move.ramps.drive)
            points.removeLast();
    }
    for (QPointF& point : points)
        point.setY(point.y() * sign);
    return points;
}
