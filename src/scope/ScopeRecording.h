#pragma once

#include "ActualSpeedCalculator.h"
#include "ScopeChannel.h"

#include <QString>

#include <vector>

// A finished or running record as the plot, the cursors and the CSV file see it: one time
// column in ms (0 at the trigger, or at the start of a free run) and one column per channel.
struct ScopeRecording
{
    struct Column
    {
        QString name;
        QString unit;
        std::vector<double> values;
        int channel = -1; // the scope channel it came from; -1 when read from a file
        // The axis' speed settings at the trigger, kept for command-speed columns so the
        // predicted profile can be drawn against them.
        bool hasSettings = false;
        ActualSpeedCalculator::Request settings;
        ScopeChannel source; // that channel's axis and signal as recorded
        int decimals = -1;   // the user unit's decimals; -1 for values in pulses
    };

    std::vector<double> times;
    std::vector<Column> columns;
    bool triggered = false;

    int sampleCount() const { return static_cast<int>(times.size()); }
    bool isEmpty() const { return times.empty(); }
    // The first sample at or after timeMs, or sampleCount() when there is none.
    int indexAt(double timeMs) const;
};
