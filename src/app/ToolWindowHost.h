#pragma once

#include "CascadePlacement.h"
#include "ToolContext.h"
#include "UserMessage.h"

#include <QObject>
#include <QPointer>

#include <QVariantMap>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <vector>

class BoardApi;
class QMdiArea;
class QMdiSubWindow;
class QSettings;
class ToolView;
class ToolWindowFactory;

// The frame's tool windows: at most one of each kind, each in an MDI child placed by the
// cascade rule. A child closes only when its view agrees (ToolView::closeRequested). Each kind
// gets a board handle of its own in its context, so the board call trace names the window.
class ToolWindowHost : public QObject
{
    Q_OBJECT

public:
    ToolWindowHost(QMdiArea& area, const ToolWindowFactory& factory, const ToolContext& context,
                   QObject* parent = nullptr);
    ~ToolWindowHost() override;

    // Raises the kind's window, or creates it. False when the kind has no window.
    bool open(ToolKind kind);
    ToolView* view(ToolKind kind) const;
    QMdiSubWindow* window(ToolKind kind) const;
    // The name a kind's board calls carry in the trace ("Single Axis", ...); a kind missing
    // from the list is named by its number ("Window 108") until it is added there.
    static QString callerName(ToolKind kind);
    // The open views in kind order.
    std::vector<ToolView*> openViews() const;
    // Asks the active window's view to close, then the next one, until none is left or a
    // view declines.
    void closeAll();
    // Closes every window at once, without asking (the frame is going away).
    void destroyAll();

    // Which windows are open, where, and each kind's setup (ToolView::setup()), for the next
    // run; a window's setup is kept from its close too.
    void saveSession(QSettings& settings);
    // Takes over the kinds' setups and opens the windows `settings` lists through `open` (the
    // frame's way of opening), stacked and placed as they were.
    void restoreSession(const QSettings& settings, const std::function<void(ToolKind)>& open);

    int createdCount() const { return m_created; }
    const CascadePlacement& cascade() const { return m_cascade; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Slot
    {
        QPointer<QMdiSubWindow> window;
        QPointer<ToolView> view;
        bool closeAgreed = false;
    };

    Slot& slot(ToolKind kind);
    const Slot& slot(ToolKind kind) const;
    Slot* slotOf(const QObject* window);
    void viewAgreedToClose(ToolKind kind);
    void forget(Slot& entry);
    QSize initialSize(const QMdiSubWindow& window, const QWidget& view) const;
    BoardApi& boardFor(ToolKind kind);

    QMdiArea& m_area;
    const ToolWindowFactory& m_factory;
    ToolContext m_context;
    std::array<Slot, kToolKindLast - kToolKindFirst + 1> m_slots;
    // kept for the host's life: a closed view may still stop its axes as it goes
    std::map<ToolKind, std::unique_ptr<BoardApi>> m_boards;
    CascadePlacement m_cascade;
    std::map<ToolKind, QVariantMap> m_setups; // kept from closed windows for the next open
    int m_created = 0;
    const QObject* m_closing = nullptr; // the window whose close event is being decided
};
