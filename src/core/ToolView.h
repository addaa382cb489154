#pragma once

#include "UserMessage.h"

#include <QVariantMap>
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
    // The frame (or "Close All") asks the view to close: it makes ready, asks its question
    // and emits closeRequested() for the frame to close its child (a view may decline).
    virtual void requestClose()
    {
        prepareToClose();
        emit closeRequested();
    }
    // Whether the window has axes moving or a motion sequence running.
    virtual bool movesAxes() { return false; }
    // The frame has stopped every axis: a window that runs motion sequences ends them.
    virtual void endMotion() {}
    // The program is about to exit: a window holding unwritten values asks about them (Yes
    // writes, No drops); false (Cancel) keeps the program running.
    virtual bool settleBeforeExit() { return true; }
    // What the user set up in the window that a restart brings back (the scope's channels,
    // trigger and time base); empty for a window with nothing to keep.
    virtual QVariantMap setup() const { return {}; }
    virtual void restoreSetup(const QVariantMap&) {}
    // The window's own periodic poll, if it has one: benchmarks and tests fire it by hand.
    virtual QTimer* pollTimer() { return nullptr; }

signals:
    void closeRequested();

protected:
    // What the window must do before it goes, every time it is asked to (end a held jog).
    virtual void beforeClose() {}
    // The question about unsaved values; asked once, however the window is closed.
    virtual void askBeforeClose() {}

    // The frame may close the child directly; the window still makes ready and asks once.
    void closeEvent(QCloseEvent* event) override
    {
        prepareToClose();
        QWidget::closeEvent(event);
    }

    void prepareToClose()
    {
        beforeClose();
        if (m_closeAsked)
            return;
        m_closeAsked = true;
        askBeforeClose();
    }

private:
    bool m_closeAsked = false;
};
