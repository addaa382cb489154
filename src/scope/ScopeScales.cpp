#include "ScopeScales.h"

#include "PlotTicks.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

ScopeScales::Kind ScopeScales::kindOf(const ScopeRecording::Column& column)
{
    ScopeChannel::Signal signal = column.source.signal;
    // A column read from a file knows its signal only by its name.
    if (column.channel < 0) {
        signal = ScopeChannel::CommandPosition;
        for (int s = 0; s < ScopeChannel::kSignalCount; ++s) {
            const auto each = static_cast<ScopeChannel::Signal>(s);
            if (column.name.endsWith(ScopeChannel::signalName(each)))
                signal = each;
        }
    }
    switch (signal) {
    case ScopeChannel::CommandSpeed:
        return Kind::Speed;
    case ScopeChannel::FollowingError:
        return Kind::FollowingError;
    default:
        return Kind::Position;
    }
}

QString ScopeScales::kindName(Kind kind)
{
    switch (kind) {
    case Kind::Speed:
        return QCoreApplication::translate("ScopeScales", "Speed");
    case Kind::FollowingError:
        return QCoreApplication::translate("ScopeScales", "Following Error");
    case Kind::Position:
        break;
    }
    return QCoreApplication::translate("ScopeScales", "Position");
}

std::vector<ScopeScales::Scale> ScopeScales::group(const ScopeRecording& recording,
                                                   const std::vector<FixedRange>& fixed)
{
    std::vector<Scale> scales;
    for (size_t c = 0; c < recording.columns.size(); ++c) {
        const ScopeRecording::Column& column = recording.columns[c];
        const Kind kind = kindOf(column);
        auto scale = std::find_if(scales.begin(), scales.end(), [&](const Scale& each) {
            return each.kind == kind && each.unit == column.unit;
        });
        if (scale == scales.end()) {
            Scale added;
            added.kind = kind;
            added.unit = column.unit;
            added.title = QStringLiteral("%1 [%2]").arg(kindName(kind), column.unit);
            added.low = std::numeric_limits<double>::infinity();
            added.high = -added.low;
            scales.push_back(added);
            scale = scales.end() - 1;
        }
        scale->columns.push_back(static_cast<int>(c));
        if (c < fixed.size() && fixed[c]) {
            scale->automatic = false;
            scale->low = std::min({scale->low, fixed[c]->first, fixed[c]->second});
            scale->high = std::max({scale->high, fixed[c]->first, fixed[c]->second});
        } else if (!column.values.empty()) {
            const auto [low, high] =
                std::minmax_element(column.values.begin(), column.values.end());
            scale->low = std::min(scale->low, *low);
            scale->high = std::max(scale->high, *high);
        }
    }
    for (Scale& scale : scales) {
        if (!(scale.low <= scale.high))
            scale.low = scale.high = 0.0;
        // Automatic scales end on whole ticks; fixed ones stay as typed.
        if (scale.automatic || !(scale.low < scale.high)) {
            const PlotTicks ticks = PlotTicks::forRange(scale.low, scale.high, 5);
            scale.low = ticks.roundedLow();
            scale.high = ticks.roundedHigh();
        }
    }
    return scales;
}
