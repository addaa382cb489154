#pragma once

#include "FrameRelay.h"

#include <QList>
#include <QPair>

// Records what a window tells the main frame.
class RecordingFrame : public FrameRelay
{
public:
    void sendToFrame(UserMessage message, int wParam) override { sent.append({message, wParam}); }
    QList<QPair<int, int>> sent;
};
