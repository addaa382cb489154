#include "QtSequenceTimer.h"

#include <algorithm>

QtSequenceTimer::QtSequenceTimer()
{
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, [this] {
        if (m_handler)
            m_handler();
    });
}

void QtSequenceTimer::start(int intervalMs)
{
    // A negative delay typed by the user would never fire; run it as no delay instead.
    m_timer.start(std::max(0, intervalMs));
}
