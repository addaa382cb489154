#pragma once

#include "UserMessage.h"

#include <QString>

// How a window tells the main frame something; the frame decides who else hears it.
class FrameRelay
{
public:
    virtual ~FrameRelay() = default;
    virtual void sendToFrame(UserMessage message, int wParam = 0) = 0;
    // The one gate of every change of the active family or card (and of a motion window's own
    // card): false, with the user told why, while any motion window moves axes.
    virtual bool mayChangeController() { return true; }
    // True while any window moves axes or runs a sequence (or an axis test).
    virtual bool anyMotion() const { return false; }
    // A word for the status bar that asks nothing of the user.
    virtual void showNote(const QString& text) { (void)text; }
};
