#include "BoardCallClock.h"

#include "BoardCallTrace.h"

BoardCallClock::BoardCallClock(BoardCallTrace& trace, QObject* parent)
    : QObject(parent), m_trace(trace)
{
    m_trace.setClockEvery(kClockEvery);
}

bool BoardCallClock::eventFilter(QObject* watched, QEvent* event)
{
    m_trace.markEvent();
    return QObject::eventFilter(watched, event);
}
