#include "AxisSensors.h"

#include "PulseMath.h"

#include <algorithm>
#include <cstdlib>

namespace nrxsim {

namespace {

// A board set to the other level than the wiring reads the line inverted.
bool throughLevel(bool actuated, int wiring, int32_t board)
{
    return actuated != (wiring != (board != 0));
}

} // namespace

bool AxisSensors::actuated(Signal s, int64_t position) const
{
    if (forced(s))
        return true;
    switch (s) {
    case Signal::Org:
        return std::llabs(position - wiring_.origin) <= wiring_.originWidth / 2;
    case Signal::LimitPlus:
        return position >= wiring_.plusLimit;
    case Signal::LimitMinus:
        return position <= wiring_.minusLimit;
    case Signal::Z:
        return wiring_.zPeriod > 0 &&
               pulse::floorMod(position - wiring_.zOffset, wiring_.zPeriod) == 0;
    }
    return false;
}

bool AxisSensors::active(Signal s, int64_t position, const AxisParameters& p) const
{
    using Id = AxisParameters::Id;
    switch (s) {
    case Signal::Org:
        return throughLevel(actuated(s, position), wiring_.originLevel, p[Id::Org]);
    case Signal::LimitPlus:
    case Signal::LimitMinus:
        return throughLevel(actuated(s, position), wiring_.limitLevel, p[Id::HlmtLevel]);
    case Signal::Z:
        return throughLevel(actuated(s, position), wiring_.zLevel, p[Id::EncoderZ]);
    }
    return false;
}

std::optional<int64_t> AxisSensors::firstTransition(Signal s, int64_t from, int64_t to, bool want,
                                                    const AxisParameters& p) const
{
    if (forced(s))
        return std::nullopt; // held: the reading does not change along the way
    const int dir = to > from ? 1 : -1;
    int64_t candidates[4];
    int n = 0;
    auto add = [&](int64_t c) { candidates[n++] = c; };
    switch (s) {
    case Signal::LimitPlus:
        add(dir > 0 ? wiring_.plusLimit : wiring_.plusLimit - 1);
        break;
    case Signal::LimitMinus:
        add(dir > 0 ? wiring_.minusLimit + 1 : wiring_.minusLimit);
        break;
    case Signal::Org: {
        const int64_t lo = wiring_.origin - wiring_.originWidth / 2;
        const int64_t hi = wiring_.origin + wiring_.originWidth / 2;
        add(dir > 0 ? lo : hi);
        add(dir > 0 ? hi + 1 : lo - 1);
        break;
    }
    case Signal::Z: {
        const int64_t period = wiring_.zPeriod;
        if (period <= 0)
            break;
        // The first mark ahead, the one before it (leaving it) and the step past it.
        const int64_t mark = dir > 0
                                 ? from + 1 + pulse::floorMod(wiring_.zOffset - (from + 1), period)
                                 : from - 1 - pulse::floorMod(from - 1 - wiring_.zOffset, period);
        add(mark - dir * period + dir);
        add(mark);
        add(mark + dir);
        break;
    }
    }
    std::sort(candidates, candidates + n,
              [from](int64_t a, int64_t b) { return std::llabs(a - from) < std::llabs(b - from); });
    for (int i = 0; i < n; ++i) {
        const int64_t c = candidates[i];
        const bool inPath = dir > 0 ? (c > from && c <= to) : (c < from && c >= to);
        if (inPath && active(s, c, p) == want && active(s, c - dir, p) != want)
            return c;
    }
    return std::nullopt;
}

bool AxisSensors::alarm(bool line, const AxisParameters& p) const
{
    return throughLevel(line, wiring_.alarmLevel, p[AxisParameters::Id::SvAlmLevel]);
}

bool AxisSensors::inPosition(bool standing, const AxisParameters& p) const
{
    const bool line = inposStuck_ == 0 ? standing : inposStuck_ == 1;
    return throughLevel(line, wiring_.inposLevel, p[AxisParameters::Id::SvInposLevel]);
}

} // namespace nrxsim
