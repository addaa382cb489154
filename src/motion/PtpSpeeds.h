#pragma once

#include "BoardFamily.h"

#include <cstdint>

class BoardApi;

// The speed profile of the point-to-point page: the positioning profile for Relative and
// Absolute moves, or the jog profile (which has one time for both ramps).
struct PtpSpeeds
{
    std::int32_t initial = 0;
    std::int32_t drive = 0;
    std::int32_t accelMs = 0;
    std::int32_t decelMs = 0;

    static PtpSpeeds readPositioning(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis);
    // The jog profile; the decel time repeats the accel time.
    static PtpSpeeds readJog(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis);
    void writePositioning(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis) const;
    void writeJog(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis) const;
};
