#pragma once

#include "FrameRelay.h"

#include <QList>
#include <QPair>
#include <QStringList>

// Records what a window tells the main frame.
class RecordingFrame : public FrameRelay
{
public:
    void sendToFrame(UserMessage message, int wParam) override { sent.append({message, wParam}); }
    void showNote(const QString& text) override { notes.append(text); }
    QList<QPair<int, int>> sent;
    QStringList notes;
};
