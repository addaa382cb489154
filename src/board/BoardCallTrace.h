#pragma once

#include "BoardCall.h"
#include "BoardFamily.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <vector>

// The calls made to the board libraries, in two stores allocated ahead: the calls that
// change something (writes, moves, stops, saves, resets) and every refused call, kept for as
// long as the program runs, and the polling reads, which come a hundred times as often, in a
// ring of their own. Recording a call writes one slot. Calls are numbered from the start in
// the order they were made; a number stays valid until the ring has gone round over it (a
// read), the store has dropped its oldest block past kKeptLimit, or the trace is cleared.
class BoardCallTrace
{
public:
    static constexpr std::size_t kDefaultCapacity = 100000; // polling reads kept
    // Calls that change something kept at most (about 200 MB): past it the oldest block goes.
    static constexpr std::size_t kKeptLimit = 2000000;
    static constexpr std::size_t kBlock = 4096;

    explicit BoardCallTrace(std::size_t readCapacity = kDefaultCapacity);

    std::size_t capacity() const { return m_reads.size(); }
    // The number from which every call is held, and one past the newest.
    std::uint64_t begin() const { return m_readsGap > m_keptGap ? m_readsGap : m_keptGap; }
    std::uint64_t end() const { return m_end; }
    bool contains(std::uint64_t number) const { return find(number) != nullptr; }
    // A call held; look it up with contains() or find() first when it may be gone.
    const BoardCall& at(std::uint64_t number) const { return *find(number); }
    const BoardCall* find(std::uint64_t number) const;
    // The number of the oldest call that changed something still held: calls from here on
    // that are no polling reads are all held.
    std::uint64_t keptFrom() const { return m_keptGap; }
    // Visits the calls held from `number` on, oldest first.
    template <typename F> void forEachFrom(std::uint64_t number, F visit) const
    {
        std::uint64_t read = firstReadFrom(number);
        std::uint64_t kept = firstKeptFrom(number);
        while (read < m_readsEnd || kept < m_keptEnd) {
            const BoardCall* r = read < m_readsEnd ? &readAt(read) : nullptr;
            const BoardCall* k = kept < m_keptEnd ? &keptAt(kept) : nullptr;
            if (k == nullptr || (r != nullptr && r->number < k->number)) {
                visit(*r);
                ++read;
            } else {
                visit(*k);
                ++kept;
            }
        }
    }
    void clear()
    {
        m_readsBegin = m_readsEnd;
        m_keptBegin = m_keptEnd;
        m_readsGap = m_keptGap = m_end;
        releaseBlocks();
    }

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

    // Microseconds since the epoch (the system clock when the trace began, then a steady one).
    std::int64_t nowUs() const
    {
        return m_originUs +
               std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - m_start)
                   .count();
    }

    template <typename R, typename... A>
    void record(BoardOp op, BoardFamily family, std::uint16_t caller, R result, A... args)
    {
        // A refused read goes with the calls that matter, so decide before writing.
        const BoardOpInfo& info = boardOpInfo(op);
        const bool failed = static_cast<std::int32_t>(result) < 0 && info.returnsStatus;
        const bool polled = info.polled && !failed;
        BoardCall& call = m_paused ? m_scratch : polled ? m_reads[m_readSlot] : keptSlot();
        if (m_clockDue <= 0) {
            m_timeUs = nowUs();
            m_clockDue = m_clockEvery;
        }
        --m_clockDue;
        call.number = m_end;
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
        if (failed) {
            m_lastFailure = call;
            ++m_failures;
        }
        if (m_paused)
            return;
        ++m_end;
        if (!polled) {
            ++m_keptEnd;
            if (m_keptEnd - m_keptBegin > kKeptLimit)
                dropOldestBlock();
            return;
        }
        if (m_readsEnd - m_readsBegin >= m_reads.size())
            m_readsGap = m_reads[(m_readSlot + 1) % m_reads.size()].number; // the oldest left
        ++m_readsEnd;
        if (++m_readSlot == m_reads.size())
            m_readSlot = 0;
#if defined(__GNUC__)
        // The next slot is long out of the caches by now; fetch it while the caller goes on.
        const char* next = reinterpret_cast<const char*>(&m_reads[m_readSlot]);
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

    const BoardCall& readAt(std::uint64_t index) const
    {
        return m_reads[static_cast<std::size_t>(index % m_reads.size())];
    }
    const BoardCall& keptAt(std::uint64_t index) const
    {
        return m_blocks[static_cast<std::size_t>(index / kBlock)][index % kBlock];
    }
    std::uint64_t readsHeldFrom() const
    {
        return m_readsEnd - m_readsBegin > m_reads.size() ? m_readsEnd - m_reads.size()
                                                          : m_readsBegin;
    }
    // The index of the first read or kept call numbered `number` or later.
    std::uint64_t firstReadFrom(std::uint64_t number) const;
    std::uint64_t firstKeptFrom(std::uint64_t number) const;
    // The slot for the next kept call, its block allocated when it starts one.
    BoardCall& keptSlot()
    {
        const auto block = static_cast<std::size_t>(m_keptEnd / kBlock);
        if (block == m_blocks.size() || !m_blocks[block])
            addBlock(block);
        return m_blocks[block][m_keptEnd % kBlock];
    }
    void addBlock(std::size_t block);
    void dropOldestBlock();
    // Frees the blocks wholly before the oldest kept call.
    void releaseBlocks();

    std::vector<BoardCall> m_reads;
    std::size_t m_readSlot = 0;
    std::uint64_t m_readsBegin = 0; // after a clear
    std::uint64_t m_readsEnd = 0;
    std::vector<std::unique_ptr<BoardCall[]>> m_blocks; // by index / kBlock; freed ones null
    std::uint64_t m_keptBegin = 0;
    std::uint64_t m_keptEnd = 0;
    std::uint64_t m_end = 0;
    // Calls before these numbers may be gone: reads the ring went round over, kept calls
    // dropped or cleared.
    std::uint64_t m_readsGap = 0;
    std::uint64_t m_keptGap = 0;
    std::uint64_t m_failures = 0;
    bool m_paused = false;
    int m_clockEvery = 1;
    int m_clockDue = 0;
    std::int64_t m_timeUs = 0;
    std::int64_t m_originUs = 0;
    BoardCall m_lastFailure{};
    BoardCall m_scratch{}; // where a call goes while paused, to be judged
    Clock::time_point m_start;
};
