#pragma once

#include "MotionAxes.h"

// What the shared button handling needs from its motion window: the axes the buttons act on
// and whether a press may start a motion, each after the window's own checks.
class MotionButtonTarget
{
public:
    virtual ~MotionButtonTarget() = default;

    // The axes the stop and output buttons act on now; none, having told the user why when
    // `tell`, when they must do nothing.
    virtual MotionAxes buttonAxes(bool tell) = 0;
    // The axis whose servo state the servo button shows and switches over.
    virtual AxisNo servoAxis() const = 0;
    // Whether a press of "-" or "+" may start a motion; says why not.
    virtual bool mayStartMotion() = 0;
};
