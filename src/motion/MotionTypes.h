#pragma once

#include <cstdint>

// The pages of the single-axis window's tab control, in tab order.
enum class MotionTab : int
{
    Home = 0,
    PointToPoint = 1
};

// The point-to-point page's motion types, in the order of its combo.
enum class MotionType : int
{
    Jog = 0,
    Relative = 1,
    Absolute = 2
};

// Direction of a press: "-" (also Position 1) or "+" (also Position 2).
enum MotionDirection : int
{
    DirectionMinus = 0,
    DirectionPlus = 1
};

// The repeat figures the point-to-point page hands over when a move starts; they stay fixed
// for the whole sequence, while the speeds are read again before every step.
struct RepeatFields
{
    std::int32_t count = 0;
    std::int32_t delayMs = 0;
    std::int32_t distance = 0;
    std::int32_t position1 = 0;
    std::int32_t position2 = 0;
};

// Where one axis goes: its Distance for relative steps, its two positions for absolute moves.
struct AxisPositions
{
    std::int32_t distance = 0;
    std::int32_t position1 = 0;
    std::int32_t position2 = 0;
};
