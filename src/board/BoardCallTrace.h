#pragma once

#include "BoardCall.h"
#include "BoardFamily.h"

#include <chrono>
#include <cstdint>
#include <type_traits>
#include <vector>

// The last calls made to the board libraries, in a ring of fixed size allocated once: recording
// a call writes one slot and allocates nothing. Calls are numbered from the start; a number
// stays valid until the ring has gone round over it or the trace is cleared.
class BoardCallTrace
{
public:
    static constexpr std::size_t kDefaultCapacity = 100000;

    explicit BoardCallTrace(std::size_t capacity = kDefaultCapacity);

    std::size_t capacity() const { return m_entries.size(); }
    // Number of the oldest call kept, and one past the newest.
    std::uint64_t begin() const
    {
        const std::uint64_t kept = m_end - m_cleared;
        return kept > m_entries.size() ? m_end - m_entries.size() : m_cleared;
    }
    std::uint64_t end() const { return m_end; }
    bool contains(std::uint64_t number) const { return number >= begin() && number < m_end; }
    const BoardCall& at(std::uint64_t number) const
    {
        return m_entries[static_cast<std::size_t>(number % m_entries.size())];
    }
    void clear() { m_cleared = m_end; }

    // While paused nothing is kept, but refusals are still counted.
    void setPaused(bool paused) { m_paused = paused; }

    // Refused calls (a negative status) seen so far, and the newest of them.
    std::uint64_t failureCount() const { return m_failures; }
    const BoardCall& lastFailure() const { return m_lastFailure; }

    // Reading the clock can cost more than the rest of a recording (170 ns on a virtual
    // machine), so it may be read for the first call after markEvent() and then only every
    // `calls` calls; the calls in between carry the last time read. 1 reads it for every call.
    void setClockEvery(int calls) { m_clockEvery = calls > 0 ? calls : 1; }
    // A new event is being delivered: the next call reads the clock.
    void markEvent() { m_clockDue = 0; }

    // Microseconds since the trace began.
    std::int64_t nowUs() const
    {
        return std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - m_start)
            .count();
    }

    template <typename R, typename... A>
    void record(BoardOp op, BoardFamily family, std::uint16_t caller, R result, A... args)
    {
        BoardCall& call = m_paused ? m_scratch : m_entries[m_slot];
        if (m_clockDue <= 0) {
            m_timeUs = nowUs();
            m_clockDue = m_clockEvery;
        }
        --m_clockDue;
        call.timeUs = m_timeUs;
        call.result = static_cast<std::int32_t>(result);
        call.op = op;
        call.caller = caller;
        call.family = static_cast<std::uint8_t>(familyIndex(family));
        static_assert((0 + ... + slotsOf<A>()) <= BoardCall::kMaxValues, "a call too wide to keep");
        int at = 0;
        std::int32_t length = 0;
        ((at = put(call.values.data(), at, length, args)), ...);
        (void)length; // operations without arguments
        call.valueCount = static_cast<std::uint8_t>(at);
        if (call.failed()) {
            m_lastFailure = call;
            ++m_failures;
        }
        if (m_paused)
            return;
        if (++m_slot == m_entries.size())
            m_slot = 0;
        ++m_end;
#if defined(__GNUC__)
        // The next slot is long out of the caches by now; fetch it while the caller goes on.
        const char* next = reinterpret_cast<const char*>(&m_entries[m_slot]);
        __builtin_prefetch(next, 1);
        __builtin_prefetch(next + sizeof(BoardCall) - 1, 1);
#endif
    }

private:
    using Clock = std::chrono::steady_clock;

    // Slots an argument of this type takes at most.
    template <typename T> static constexpr int slotsOf()
    {
        if constexpr (std::is_same_v<T, const char*>)
            return 0; // texts are not kept
        else if constexpr (std::is_pointer_v<T> && std::is_const_v<std::remove_pointer_t<T>>)
            return BoardCall::kMaxArray;
        else
            return 1;
    }

    // Writes one argument at values[at]; `length` is the last plain number, the length of the
    // arrays after it. Returns the next free slot.
    template <typename T>
    static int put(std::int32_t* values, int at, std::int32_t& length, T value)
    {
        if constexpr (std::is_integral_v<T>) {
            values[at] = static_cast<std::int32_t>(value);
            length = values[at];
            return at + 1;
        } else if constexpr (std::is_same_v<T, const char*>) {
            return at;
        } else if constexpr (std::is_const_v<std::remove_pointer_t<T>>) {
            const int n =
                length < 0 ? 0 : (length < BoardCall::kMaxArray ? length : BoardCall::kMaxArray);
            if (value == nullptr)
                return at;
            for (int i = 0; i < n; ++i)
                values[at + i] = static_cast<std::int32_t>(value[i]);
            return at + n;
        } else {
            values[at] = value ? static_cast<std::int32_t>(*value) : 0;
            return at + 1;
        }
    }

    std::vector<BoardCall> m_entries;
    std::size_t m_slot = 0;
    std::uint64_t m_end = 0;
    std::uint64_t m_cleared = 0;
    std::uint64_t m_failures = 0;
    bool m_paused = false;
    int m_clockEvery = 1;
    int m_clockDue = 0;
    std::int64_t m_timeUs = 0;
    BoardCall m_lastFailure{};
    BoardCall m_scratch{}; // where a call goes while paused, to be judged
    Clock::time_point m_start;
};
