#include "StopAllKey.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>

StopAllKey::StopAllKey(QAction& stopAll, QObject* parent) : QObject(parent), m_stopAll(stopAll)
{
    qApp->installEventFilter(this);
}

StopAllKey::~StopAllKey()
{
    qApp->removeEventFilter(this);
}

bool StopAllKey::eventFilter(QObject* watched, QEvent* event)
{
    // Without a modal window the shortcut itself answers; only the blocked case is ours.
    if (event->type() == QEvent::KeyPress && QApplication::activeModalWidget() != nullptr) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_F12 && key->modifiers() == Qt::NoModifier) {
            m_stopAll.trigger();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
