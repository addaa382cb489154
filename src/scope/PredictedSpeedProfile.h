#pragma once

#include "ActualSpeedCalculator.h"
#include "BoardFamily.h"
#include "SpeedProfileCurve.h"

#include <QPointF>
#include <QVector>

class BoardApi;
struct ScopeRecording;

// The command speed that the actual-speed calculator predicts for a positioning move: the
// calculator's speeds and ramp times, a cruise as long as the distance needs, and a lower
// peak (a triangle) when the ramps do not fit. Time in ms from the start of the move.
class PredictedSpeedProfile
{
public:
    struct Move
    {
        SpeedProfileCurve::Ramps ramps; // drive is the peak reached
        double cruiseMs = 0.0;
        double accelEndMs() const { return ramps.accelMs; }
        double decelStartMs() const { return ramps.accelMs + cruiseMs; }
        double endMs() const { return decelStartMs() + ramps.decelMs; }
    };

    // The axis' positioning speed settings as the calculator reads them from the board.
    static ActualSpeedCalculator::Request readSettings(BoardApi& board, BoardFamily family,
                                                       CardNo card, AxisNo axis);
    static Move forDistance(const ActualSpeedCalculator::Request& settings, double distance);
    // The pulses of the first move after the trigger in a recorded command-speed column
    // (samples joined by straight lines); negative while that move has not ended.
    static double recordedDistance(const ScopeRecording& recording, int column);
    // The predicted curve for that move from the trigger point, signed like the recorded
    // speed; only the ramp up and the cruise while the move runs; empty without settings.
    static QVector<QPointF> forRecording(const ScopeRecording& recording, int column);
};
