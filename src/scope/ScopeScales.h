#pragma once

#include "ScopeRecording.h"

#include <QString>

#include <optional>
#include <utility>
#include <vector>

// How the scope's columns share value scales: one per kind of signal (position, speed,
// following error) and unit, so a speed never squeezes a position flat on its axis. The first
// scale goes on the left, the others on the right.
class ScopeScales
{
public:
    enum class Kind
    {
        Position,
        Speed,
        FollowingError
    };
    struct Scale
    {
        Kind kind = Kind::Position;
        QString unit;
        QString title; // "Position [mm]"
        std::vector<int> columns;
        double low = 0.0;
        double high = 1.0;
        bool automatic = true; // no column on it has a fixed range
    };
    // A column's fixed range, or none when it is scaled to its values.
    using FixedRange = std::optional<std::pair<double, double>>;

    static Kind kindOf(const ScopeRecording::Column& column);
    static QString kindName(Kind kind);
    // The scales of a record in the order their kinds first appear; fixed[c] is column c's.
    static std::vector<Scale> group(const ScopeRecording& recording,
                                    const std::vector<FixedRange>& fixed);
};
