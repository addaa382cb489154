#pragma once

#include "BoardFamily.h"

#include <cstdint>

class BoardApi;

// The homing parameters of one axis as the home page shows them.
struct HomeSettings
{
    std::uint16_t mode = 0;
    std::int32_t highSpeed = 0;
    std::int32_t lowSpeed = 0;
    std::int32_t accDecMs = 0;
    std::int32_t offset = 0;

    static HomeSettings read(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis);
    // Writes mode, offset and speeds, always in this order.
    void write(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis) const;

    bool operator==(const HomeSettings& other) const
    {
        return mode == other.mode && highSpeed == other.highSpeed && lowSpeed == other.lowSpeed &&
               accDecMs == other.accDecMs && offset == other.offset;
    }
    bool operator!=(const HomeSettings& other) const { return !(*this == other); }
};
