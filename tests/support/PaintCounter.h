#pragma once

#include <QEvent>
#include <QObject>

// Counts the paint events a widget receives, to prove a refresh left it alone.
class PaintCounter : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};
