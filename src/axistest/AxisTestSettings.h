#pragma once

#include "BoardFamily.h"
#include "nrx_contract.h"

#include <cstdint>
#include <vector>

enum class AxisTestKind
{
    Home,
    Positioning,
    RunIn
};

// How a run-in cycle moves: back and forth by a distance, between two points, or through a
// list of points.
enum class RunInPattern
{
    Relative,
    Absolute,
    Points
};

// What a test runs on and how: one set for the three tests, each reading its own fields.
struct AxisTestSettings
{
    AxisTestKind kind = AxisTestKind::Home;
    BoardFamily family = BoardFamily::RL;
    CardNo card = 0;
    std::vector<AxisNo> axes{0}; // one, except for a run-in

    // Home: searches; positioning: approaches to each target from each direction.
    int runs = 10;
    std::int32_t away = 10000; // home: the move away after each search
    // Home: the largest range of the completed positions that passes; positioning: the
    // largest bidirectional accuracy A; run-in: the largest following error. 0 checks nothing.
    double tolerance = 0;

    std::int32_t from = 0; // positioning travel
    std::int32_t to = 100000;
    int targets = 5;
    std::int32_t overrun = 1000; // past a target before approaching it
    int dwellMs = 500;

    RunInPattern pattern = RunInPattern::Absolute;
    std::vector<std::int32_t> points{0, 100000}; // relative: one distance
    int cycles = 10;                             // 0 with a duration: as many as fit
    int durationS = 0;                           // 0: the cycles decide
    bool stopAtFault = true;

    std::int32_t speed = 0; // drive speed of the moves in pps; 0: the board's positioning profile
    bool servoOn = false;   // switch the servo on before the checks
};
