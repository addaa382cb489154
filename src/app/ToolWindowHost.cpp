#include "ToolWindowHost.h"

#include "BoardApi.h"
#include "ToolView.h"
#include "ToolWindowFactory.h"
#include "ToolWindowKinds.h"

#include <QCloseEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QScrollArea>
#include <QSettings>
#include <QStyle>
#include <QTimer>

#include <algorithm>

ToolWindowHost::ToolWindowHost(QMdiArea& area, const ToolWindowFactory& factory,
                               const ToolContext& context, QObject* parent)
    : QObject(parent), m_area(area), m_factory(factory), m_context(context)
{}

ToolWindowHost::~ToolWindowHost()
{
    destroyAll();
}

QString ToolWindowHost::callerName(ToolKind kind)
{
    // The trace keeps the program's own words, whatever the user's language.
    if (const ToolWindowKind* entry = findToolWindowKind(kind))
        return QString::fromLatin1(entry->caption);
    return QStringLiteral("Window %1").arg(static_cast<int>(kind));
}

BoardApi& ToolWindowHost::boardFor(ToolKind kind)
{
    std::unique_ptr<BoardApi>& board = m_boards[kind];
    if (!board)
        board = std::make_unique<BoardApi>(m_context.board, callerName(kind));
    return *board;
}

ToolWindowHost::Slot& ToolWindowHost::slot(ToolKind kind)
{
    return m_slots[static_cast<std::size_t>(kind - kToolKindFirst)];
}

const ToolWindowHost::Slot& ToolWindowHost::slot(ToolKind kind) const
{
    return m_slots[static_cast<std::size_t>(kind - kToolKindFirst)];
}

ToolWindowHost::Slot* ToolWindowHost::slotOf(const QObject* window)
{
    for (Slot& entry : m_slots) {
        if (entry.window && entry.window == window)
            return &entry;
    }
    return nullptr;
}

ToolView* ToolWindowHost::view(ToolKind kind) const
{
    return kind >= kToolKindFirst && kind <= kToolKindLast ? slot(kind).view.data() : nullptr;
}

QMdiSubWindow* ToolWindowHost::window(ToolKind kind) const
{
    return kind >= kToolKindFirst && kind <= kToolKindLast ? slot(kind).window.data() : nullptr;
}

std::vector<ToolView*> ToolWindowHost::openViews() const
{
    std::vector<ToolView*> views;
    for (const Slot& entry : m_slots) {
        if (entry.window && entry.view)
            views.push_back(entry.view);
    }
    return views;
}

bool ToolWindowHost::open(ToolKind kind)
{
    if (kind < kToolKindFirst || kind > kToolKindLast)
        return false;
    Slot& entry = slot(kind);
    if (entry.window) {
        // A maximised window stays maximised; a minimised one comes back to be seen.
        if (entry.window->isMinimized())
            entry.window->showNormal();
        m_area.setActiveSubWindow(entry.window);
        entry.window->raise();
        return true;
    }
    if (!m_factory.has(kind))
        return false;

    auto* window = new QMdiSubWindow(&m_area);
    window->setAttribute(Qt::WA_DeleteOnClose);
    const ToolContext context{m_context.state, boardFor(kind), m_context.prompt, m_context.frame};
    ToolView* view = m_factory.create(kind, context, window);
    if (view == nullptr) {
        delete window;
        return false;
    }
    // A window taller or wider than the workspace (a small screen with the three panes)
    // scrolls, so no control is ever out of reach.
    auto* scroller = new QScrollArea(window);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setWidgetResizable(true);
    scroller->setWidget(view);
    window->setWidget(scroller);
    window->setWindowTitle(view->windowTitle());
    window->setWindowIcon(view->windowIcon());
    connect(view, &QWidget::windowTitleChanged, window, &QWidget::setWindowTitle);
    connect(view, &ToolView::closeRequested, this, [this, kind] { viewAgreedToClose(kind); });
    window->installEventFilter(this);
    m_area.addSubWindow(window);
    entry = Slot{window, view, false};
    ++m_created;
    if (const auto kept = m_setups.find(kind); kept != m_setups.end())
        view->restoreSetup(kept->second);

    window->resize(initialSize(*window, *view));
    // The cascade's step, but never past the workspace's edge: the window's last buttons stay
    // in sight.
    const QSize room = m_area.viewport()->size();
    QPoint place = m_cascade.placeNew(room);
    if (m_area.isVisible()) {
        place.setX(std::max(0, std::min(place.x(), room.width() - window->width())));
        place.setY(std::max(0, std::min(place.y(), room.height() - window->height())));
    }
    window->move(place);
    window->show();
    m_area.setActiveSubWindow(window);
    return true;
}

QSize ToolWindowHost::initialSize(const QMdiSubWindow& window, const QWidget& view) const
{
    // The view's own size plus the title bar and frame, but never more than the workspace.
    const QSize frame = window.sizeHint() - window.widget()->sizeHint();
    QSize wanted = view.sizeHint().expandedTo(view.minimumSizeHint()) + frame;
    if (!m_area.isVisible())
        return wanted;
    // Where one direction must scroll, its scroll bar takes room from the other.
    const QSize room = m_area.viewport()->size();
    const int bar = window.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (wanted.height() > room.height())
        wanted.rwidth() += bar;
    if (wanted.width() > room.width())
        wanted.rheight() += bar;
    return wanted.boundedTo(room);
}

void ToolWindowHost::forget(Slot& entry)
{
    if (entry.view) {
        const QVariantMap setup = entry.view->setup();
        if (!setup.isEmpty())
            m_setups[entry.view->kind()] = setup;
    }
    if (entry.window)
        entry.window->removeEventFilter(this);
    entry = Slot{};
    m_cascade.windowDestroyed();
}

void ToolWindowHost::viewAgreedToClose(ToolKind kind)
{
    Slot& entry = slot(kind);
    if (!entry.window)
        return;
    if (m_closing == entry.window) {
        // Inside the window's own close event: the filter lets it through.
        entry.closeAgreed = true;
        return;
    }
    QMdiSubWindow* window = entry.window;
    forget(entry);
    window->close();
}

bool ToolWindowHost::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Close)
        return QObject::eventFilter(watched, event);
    Slot* entry = slotOf(watched);
    if (entry == nullptr)
        return false;
    // The title bar's close button: the view decides (it may ask about unsaved values).
    m_closing = watched;
    entry->view->requestClose();
    m_closing = nullptr;
    if (!entry->closeAgreed) {
        event->ignore();
        return true;
    }
    forget(*entry);
    return false;
}

void ToolWindowHost::closeAll()
{
    for (;;) {
        QMdiSubWindow* active = m_area.activeSubWindow();
        Slot* entry = active ? slotOf(active) : nullptr;
        if (entry == nullptr) {
            for (Slot& each : m_slots) {
                if (each.window) {
                    entry = &each;
                    break;
                }
            }
        }
        if (entry == nullptr)
            return;
        const QMdiSubWindow* asked = entry->window;
        entry->view->requestClose();
        if (slotOf(asked) != nullptr)
            return; // the view declined
    }
}

void ToolWindowHost::destroyAll()
{
    for (Slot& entry : m_slots) {
        if (!entry.window)
            continue;
        QMdiSubWindow* window = entry.window;
        forget(entry);
        delete window;
    }
}

namespace {
const QString kOpenWindows = QStringLiteral("ToolWindows/Open");
const QString kSetups = QStringLiteral("ToolWindows/Setup/");
} // namespace

void ToolWindowHost::saveSession(QSettings& settings)
{
    QVariantList open;
    // Bottom to top, so that the window on top comes back on top.
    for (QMdiSubWindow* window : m_area.subWindowList(QMdiArea::StackingOrder)) {
        const Slot* entry = slotOf(window);
        if (entry == nullptr || !entry->view)
            continue;
        const QVariantMap setup = entry->view->setup();
        if (!setup.isEmpty())
            m_setups[entry->view->kind()] = setup;
        open << QVariantMap{{QStringLiteral("kind"), int(entry->view->kind())},
                            {QStringLiteral("geometry"), window->geometry()},
                            {QStringLiteral("maximized"), window->isMaximized()},
                            {QStringLiteral("minimized"), window->isMinimized()}};
    }
    settings.setValue(kOpenWindows, open);
    for (const auto& [kind, setup] : m_setups)
        settings.setValue(kSetups + QString::number(kind), setup);
}

void ToolWindowHost::restoreSession(const QSettings& settings,
                                    const std::function<void(ToolKind)>& open)
{
    for (const ToolWindowKind& entry : toolWindowKinds()) {
        const QVariantMap setup = settings.value(kSetups + QString::number(entry.kind)).toMap();
        if (!setup.isEmpty())
            m_setups[entry.kind] = setup;
    }
    for (const QVariant& item : settings.value(kOpenWindows).toList()) {
        const QVariantMap place = item.toMap();
        const ToolWindowKind* entry =
            findToolWindowKind(place.value(QStringLiteral("kind"), -1).toInt());
        // The simulator's window has nothing to show on real boards.
        if (entry == nullptr ||
            (entry->simulatedOnly && !m_context.board.simulator().anySimulated()))
            continue;
        open(entry->kind);
        QMdiSubWindow* window = this->window(entry->kind);
        if (window == nullptr)
            continue;
        const QRect geometry = place.value(QStringLiteral("geometry")).toRect();
        if (geometry.isValid())
            window->setGeometry(geometry);
        // Once the frame shows, a window saved on a larger screen comes back inside this one.
        QTimer::singleShot(0, window, [this, window] {
            if (!m_area.isVisible() || window->isMaximized() || window->isMinimized())
                return;
            const QSize room = m_area.viewport()->size();
            window->resize(window->size().boundedTo(room));
            window->move(std::clamp(window->x(), 0, room.width() - window->width()),
                         std::clamp(window->y(), 0, room.height() - window->height()));
        });
        if (place.value(QStringLiteral("maximized")).toBool())
            window->showMaximized();
        else if (place.value(QStringLiteral("minimized")).toBool())
            window->showMinimized();
    }
}
