#include "BoardFailureNote.h"

#include "BoardCallText.h"
#include "BoardCallTrace.h"

QString BoardFailureNote::take(const BoardCallTrace& trace, const CardRegistry& registry,
                               std::int64_t nowUs)
{
    if (trace.failureCount() == m_seen || (m_shown && nowUs - m_shownUs < kIntervalUs))
        return QString();
    m_seen = trace.failureCount();
    m_shownUs = nowUs;
    m_shown = true;
    return BoardCallText::failureNote(trace.lastFailure(), registry);
}
