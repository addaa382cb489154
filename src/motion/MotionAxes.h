#pragma once

#include "BoardFamily.h"

#include <vector>

// The axes a motion runs on: family, card and axis numbers, taken when the motion starts so
// that its polls and stops reach these axes whatever the selection does meanwhile.
struct MotionAxes
{
    BoardFamily family = BoardFamily::RL;
    CardNo card = 0;
    std::vector<AxisNo> axes;

    bool operator==(const MotionAxes& other) const
    {
        return family == other.family && card == other.card && axes == other.axes;
    }
    bool operator!=(const MotionAxes& other) const { return !(*this == other); }
};
