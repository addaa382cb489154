#pragma once

#include <QString>

#include <cstdint>

class BoardCallTrace;
class CardRegistry;

// Turns the refusals the program otherwise ignores into a status-bar note, at most one a
// second: a refusal that comes sooner waits, and the newest waiting one is shown.
class BoardFailureNote
{
public:
    static constexpr std::int64_t kIntervalUs = 1000000;

    // The note to show at nowUs (the trace's clock), or an empty text.
    QString take(const BoardCallTrace& trace, const CardRegistry& registry, std::int64_t nowUs);

private:
    std::uint64_t m_seen = 0;
    std::int64_t m_shownUs = 0;
    bool m_shown = false;
};
