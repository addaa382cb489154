#pragma once

#include <QString>

#include <cstdint>

// One line of a test's stream: a measured position, a finished cycle or an event.
struct AxisTestRecord
{
    enum class Kind
    {
        Home,    // a search ended: position, time, code
        Measure, // a positioning approach ended: target, direction, deviation
        Cycle,   // a run-in cycle ended on one axis: time, largest following error, code
        Event    // started, fault, stopped, finished: the note says which
    };

    Kind kind = Kind::Event;
    std::int64_t timeMs = 0; // since the start
    int run = 0;             // search, approach run or cycle, from 1
    int axis = -1;
    std::int32_t target = 0;
    int direction = 0; // +1 approached from below, -1 from above
    std::int32_t command = 0;
    std::int32_t actual = 0;
    std::int64_t durationMs = 0; // of a search or a cycle
    double value = 0;            // deviation or largest following error, as the kind says
    std::int32_t code = 0;
    QString note;
};

// Where a running test sends what it measures, as it measures it.
class AxisTestSink
{
public:
    virtual ~AxisTestSink() = default;
    virtual void record(const AxisTestRecord& record) = 0;
};
