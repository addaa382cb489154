#pragma once

#include "AxisTestRecord.h"
#include "AxisTestSettings.h"
#include "BoundedSeries.h"
#include "PositioningStatistics.h"

#include <QCoreApplication>
#include <QString>

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

class BoardApi;

// One axis test on the boards, stepped by its caller every poll: moves, dwells and readings
// in order, each result sent to a sink as it comes. Owns nothing of the window or the
// terminal, so the window, the command line and the tests drive the same run.
class AxisTestRun
{
    Q_DECLARE_TR_FUNCTIONS(AxisTestRun)

public:
    enum class Outcome
    {
        Ready,
        Running,
        Passed,
        Failed,  // ran to the end outside the tolerance, or with a fault it went on past
        Faulted, // ended at a fault
        Stopped  // ended by the user
    };

    // The figures of the home searches.
    struct HomeFigures
    {
        double mean = 0, min = 0, max = 0, range = 0, deviation = 0;
    };

    AxisTestRun(BoardApi& board, AxisTestSettings settings, AxisTestSink& sink);

    // Why the test may not start (servo off, an axis moving, a target past a soft limit, a
    // setting out of range); empty when it may. Switches the servo on first when asked to.
    QString refusal();
    // Starts at `nowMs` of the caller's clock; false with the refusal recorded when refused.
    bool start(std::int64_t nowMs);
    // Goes on: called every poll while running.
    void tick(std::int64_t nowMs);
    // Ends at once (a sudden stop of the tested axes), the results so far kept.
    void stop(const QString& why);

    Outcome outcome() const { return m_outcome; }
    bool running() const { return m_outcome == Outcome::Running; }
    const AxisTestSettings& settings() const { return m_settings; }
    QString fault() const { return m_fault; }
    std::int64_t elapsedMs() const { return m_nowMs - m_startMs; }
    // Done and planned units: searches, approaches or cycles; planned 0 when a duration rules.
    int done() const { return m_done; }
    int planned() const;
    // Run-in: the time a duration or the cycles still need, from the cycles so far; -1 unknown.
    std::int64_t timeLeftMs() const;

    const std::vector<AxisTestRecord>& homeRuns() const { return m_homeRuns; }
    HomeFigures homeFigures() const;
    PositioningStatistics positioning() const { return PositioningStatistics(m_measured); }
    const std::vector<std::int32_t>& targets() const { return m_targets; }
    double worstFollowingError() const { return m_worstFollowing; }
    // Run-in cycles: the mean and the longest cycle time.
    double meanCycleMs() const { return m_done > 0 ? double(m_cycleTimeTotal) / m_done : 0; }
    std::int64_t longestCycleMs() const { return m_cycleTimeLongest; }
    const BoundedSeries& cycleTimes() const { return m_cycleTimes; }
    const BoundedSeries& followingErrors() const { return m_followingErrors; }

    // The outcome as the report and summary.json name it.
    static const char* outcomeKey(Outcome outcome);

private:
    struct Step
    {
        enum class Kind
        {
            Move,
            Home,
            Dwell,
            Measure,
            EndCycle
        };
        Kind kind = Kind::Move;
        std::vector<std::int32_t> positions; // per axis
        bool relative = false;
        int target = -1;   // measure: index into m_targets
        int direction = 0; // measure: +1 up, -1 down
    };

    void planHome();
    void planPositioningRun();
    void planCycle();
    bool planMore();
    void begin(const Step& step);
    bool busy() const;
    // The first abnormal stop code of the tested axes, 0 when none.
    std::int32_t stopCode() const;
    void measure(const Step& step);
    void endCycle();
    void onFault(std::int32_t code);
    void endAtFault();
    void finish(Outcome outcome, const QString& note);
    void emitEvent(const QString& note);
    void restoreSpeeds();
    double followingError(AxisNo axis) const;

    BoardApi& m_board;
    AxisTestSettings m_settings;
    AxisTestSink& m_sink;
    Outcome m_outcome = Outcome::Ready;
    QString m_fault;
    std::deque<Step> m_plan;
    std::optional<Step> m_current;
    bool m_waiting = false;         // a move or search under way
    std::int64_t m_dwellUntil = -1; // a dwell under way
    std::int64_t m_startMs = 0;
    std::int64_t m_nowMs = 0;
    std::int64_t m_stepStartMs = 0;
    std::int64_t m_cycleStartMs = 0;
    int m_run = 0; // search, approach run or cycle under way, from 1
    int m_done = 0;
    bool m_anyFault = false;
    bool m_cycleFaulted = false;
    std::vector<std::int32_t> m_targets;
    std::vector<PositioningStatistics::Target> m_measured;
    std::vector<AxisTestRecord> m_homeRuns;
    std::vector<double> m_cycleWorst; // per axis, this cycle
    double m_worstFollowing = 0;
    std::int64_t m_cycleTimeTotal = 0;
    std::int64_t m_cycleTimeLongest = 0;
    BoundedSeries m_cycleTimes;
    BoundedSeries m_followingErrors;
    struct Profile
    {
        nrx_i32 initial = 0, drive = 0, accel = 0, decel = 0;
    };
    std::vector<Profile> m_savedSpeeds;
};
