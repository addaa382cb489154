#pragma once

#include "BoardFamily.h"

#include <array>
#include <cstdint>

// Which window owns an AxesMoving flag: the two motion windows and the axis test.
enum class MovingOwner
{
    SingleAxis = 0,
    MultiAxis = 1,
    AxisTest = 2
};

// The board the tool windows work on, and whether a motion window has axes moving.
struct ActiveController
{
    BoardFamily family = BoardFamily::RL;
    BoardFamily previousFamily = BoardFamily::RL; // active before the last change
    int card = 0;
    int axis = 0;
    std::array<std::int32_t, 3> axesMoving{}; // indexed by MovingOwner

    void setAxesMoving(MovingOwner owner, bool moving)
    {
        axesMoving[static_cast<std::size_t>(owner)] = moving ? 1 : 0;
    }
    bool anyAxesMoving() const
    {
        return axesMoving[0] != 0 || axesMoving[1] != 0 || axesMoving[2] != 0;
    }
};
