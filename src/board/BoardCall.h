#pragma once

#include "BoardOperationTable.h"

#include <array>
#include <cstdint>

// One recorded call to a board library: when, which operation on which family, its
// arguments flattened in order (arrays written out, out-values as the library wrote them),
// its result and who made it.
struct BoardCall
{
    // card, count, 8 axes and 8 values of the widest multi-axis call
    static constexpr int kMaxValues = 18;
    static constexpr int kMaxArray = 8;

    std::uint64_t number; // in the order the calls were made
    std::int64_t timeUs;  // microseconds since the epoch
    std::int32_t result;
    BoardOp op;
    std::uint16_t caller;
    std::uint8_t family;
    std::uint8_t valueCount;
    std::array<std::int32_t, kMaxValues> values;

    const BoardOpInfo& info() const { return boardOpInfo(op); }
    bool failed() const { return result < 0 && info().returnsStatus; }
    // The card, or -1 for an operation without one.
    int card() const;
    // The axis of a single-axis operation, or -1.
    int axis() const;
    // True when the call addresses this axis, alone or among the axes of a multi-axis call.
    bool involvesAxis(int axis) const;
};
