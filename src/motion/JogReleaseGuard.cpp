#include "JogReleaseGuard.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>

JogReleaseGuard::JogReleaseGuard(QWidget* window, std::function<void()> endJog)
    : QObject(window), m_window(window), m_endJog(std::move(endJog))
{
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* old, QWidget* now) { onFocusChanged(old, now); });
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state != Qt::ApplicationActive)
                    m_endJog();
            });
}

void JogReleaseGuard::watchButton(QAbstractButton* button)
{
    button->installEventFilter(this);
}

bool JogReleaseGuard::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = qobject_cast<QAbstractButton*>(watched);
    if (button == nullptr)
        return false;
    if (event->type() == QEvent::Leave) {
        m_endJog();
    } else if (event->type() == QEvent::MouseMove) {
        // While pressed the button keeps the mouse, so leaving shows as a move outside it.
        const auto* move = static_cast<QMouseEvent*>(event);
        if (!button->rect().contains(move->position().toPoint()))
            m_endJog();
    }
    return false;
}

void JogReleaseGuard::onFocusChanged(QWidget* old, QWidget* now)
{
    const bool hadFocus = old != nullptr && m_window->isAncestorOf(old);
    const bool keepsFocus = now != nullptr && (now == m_window || m_window->isAncestorOf(now));
    if ((hadFocus || old == m_window) && !keepsFocus)
        m_endJog();
}
