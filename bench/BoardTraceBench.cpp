// Measures what the board call trace adds to a call through BoardApi: the same calls on
// libraries that do nothing, with the trace off and on (a ring of the default size), the
// clock read for every call and read as the program reads it (every 16 calls of a burst).
// Each figure is the best of several rounds, as the machine may be shared.
//
//   orvane_bench_trace [calls]

#include "BoardApi.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

// An export that does nothing, so that only the dispatch and the recording are timed.
template <typename Fn> struct Idle;
template <typename R, typename... A> struct Idle<R (*)(A...)>
{
    static R call(A...) { return R{}; }
};

NrxFunctionTable idleTable()
{
    NrxFunctionTable table{};
#define ORVANE_IDLE_ENTRY_(ret, name, params, args, families)                                      \
    table.name = &Idle<nrx_##name##_fn>::call;
    NRX_FOR_EACH_OPERATION(ORVANE_IDLE_ENTRY_)
#undef ORVANE_IDLE_ENTRY_
    return table;
}

template <typename F> double nsPerCall(long calls, F call)
{
    constexpr int kRounds = 7;
    double best = 1e300;
    for (int round = 0; round < kRounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        for (long i = 0; i < calls / kRounds; ++i)
            call(i);
        const auto elapsed = std::chrono::steady_clock::now() - start;
        best = std::min(best, std::chrono::duration<double, std::nano>(elapsed).count() /
                                  static_cast<double>(calls / kRounds));
    }
    return best;
}

} // namespace

int main(int argc, char* argv[])
{
    const long calls = argc > 1 ? std::atol(argv[1]) : 5000000;
    const NrxFunctionTable table = idleTable();
    BoardApi root;
    root.setTable(BoardFamily::RM, &table);
    BoardApi board(root, "Bench");
    BoardCallTrace trace(argc > 2 ? std::strtoul(argv[2], nullptr, 10)
                                  : BoardCallTrace::kDefaultCapacity);
    volatile std::int64_t sink = 0;
    const nrx_u16 axes[8] = {0, 1, 2, 3, 4, 5, 6, 7};
    const nrx_i32 distances[8] = {1, -2, 3, -4, 5, -6, 7, -8};

    struct Case
    {
        const char* name;
        double (*run)(long, BoardApi&, volatile std::int64_t&, const nrx_u16*, const nrx_i32*);
    };
    const Case cases[] = {
        {"GetCommandPos (card, axis)",
         [](long n, BoardApi& b, volatile std::int64_t& s, const nrx_u16*, const nrx_i32*) {
             return nsPerCall(n, [&](long i) {
                 s = s + b.GetCommandPos(BoardFamily::RM, 0, static_cast<nrx_u16>(i & 7));
             });
         }},
        {"SetPosSpeed (6 values)",
         [](long n, BoardApi& b, volatile std::int64_t& s, const nrx_u16*, const nrx_i32*) {
             return nsPerCall(n, [&](long i) {
                 s = s + b.SetPosSpeed(BoardFamily::RM, 0, 1, 100, static_cast<nrx_i32>(i), 50, 50);
             });
         }},
        {"GetPosSpeed (4 out-values)",
         [](long n, BoardApi& b, volatile std::int64_t& s, const nrx_u16*, const nrx_i32*) {
             nrx_i32 v[4] = {};
             return nsPerCall(n, [&](long) {
                 s = s + b.GetPosSpeed(BoardFamily::RM, 0, 1, &v[0], &v[1], &v[2], &v[3]);
             });
         }},
        {"Multi_Inc_Move (8 axes)",
         [](long n, BoardApi& b, volatile std::int64_t& s, const nrx_u16* a, const nrx_i32* d) {
             return nsPerCall(n,
                              [&](long) { s = s + b.Multi_Inc_Move(BoardFamily::RM, 0, 8, a, d); });
         }},
    };

    std::printf("%ld calls each, trace of %zu calls, best of 7 rounds\n", calls, trace.capacity());
    std::printf("%-28s %10s %18s %18s\n", "operation", "trace off", "on, clock 1/call",
                "on, clock 1/16");
    double added[2] = {0, 0};
    for (const Case& c : cases) {
        root.setTrace(nullptr);
        const double off = c.run(calls, board, sink, axes, distances);
        double on[2] = {0, 0};
        const int clockEvery[2] = {1, 16};
        root.setTrace(&trace);
        for (int mode = 0; mode < 2; ++mode) {
            trace.setClockEvery(clockEvery[mode]);
            on[mode] = c.run(calls, board, sink, axes, distances);
            added[mode] += on[mode] - off;
        }
        std::printf("%-28s %7.1f ns %7.1f (+%5.1f) ns %7.1f (+%5.1f) ns\n", c.name, off, on[0],
                    on[0] - off, on[1], on[1] - off);
    }
    const auto n = static_cast<double>(std::size(cases));
    std::printf("mean cost of recording one call: %.1f ns with the clock read for every call, "
                "%.1f ns as the program reads it\n",
                added[0] / n, added[1] / n);
    return 0;
}
