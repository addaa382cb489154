#pragma once

#include "UserMessage.h"

#include <QWidget>

class QTimer;

// A tool window's view, hosted by the main frame in an MDI child of its own kind. The frame
// relays notifications to it and asks it to close; the view may prompt first and then emits
// closeRequested() for the frame to close its child.
class ToolView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual ToolKind kind() const = 0;
    // A notification relayed by the frame (UM_CONTROLLER_CHANGED, UM_AXIS_CHANGED, ...).
    virtual void handleUserMessage(UserMessage message, int wParam) = 0;
    // The frame (or "Close All") asks the view to close.
    virtual void requestClose() { emit closeRequested(); }
    // The frame has stopped every axis: a window that runs motion sequences ends them.
    virtual void endMotion() {}
    // The window's own periodic poll, if it has one: benchmarks and tests fire it by hand.
    virtual QTimer* pollTimer() { return nullptr; }

signals:
    void closeRequested();
};
