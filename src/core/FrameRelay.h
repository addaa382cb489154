#pragma once

#include "UserMessage.h"

// How a window tells the main frame something; the frame decides who else hears it.
class FrameRelay
{
public:
    virtual ~FrameRelay() = default;
    virtual void sendToFrame(UserMessage message, int wParam = 0) = 0;
};
