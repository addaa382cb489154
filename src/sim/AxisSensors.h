#pragma once

#include "AxisParameters.h"
#include "BoardSetup.h"
#include "HomeSearch.h"

#include <array>
#include <cstdint>
#include <optional>

namespace nrxsim {

// The switches and encoder marks along one axis, read through the board's level settings.
class AxisSensors
{
public:
    using Signal = HomeSearch::Signal;

    explicit AxisSensors(const BoardSetup::Axis& wiring) : wiring_(wiring) {}

    const BoardSetup::Axis& wiring() const { return wiring_; }
    static Signal limit(int direction)
    {
        return direction > 0 ? Signal::LimitPlus : Signal::LimitMinus;
    }

    // Whether the board reads `s` as active with the axis at machine position `position`.
    bool active(Signal s, int64_t position, const AxisParameters& p) const;
    // The first position after `from`, up to `to`, where the reading of `s` turns to `want`.
    std::optional<int64_t> firstTransition(Signal s, int64_t from, int64_t to, bool want,
                                           const AxisParameters& p) const;
    // The servo alarm line and the drive's in-position line as the board reads them.
    bool alarm(bool line, const AxisParameters& p) const;
    bool inPosition(bool standing, const AxisParameters& p) const;

    // A switch held actuated from outside, wherever the axis is: a rehearsed fault.
    void setForced(Signal s, bool on) { forced_[static_cast<int>(s)] = on; }
    bool forced(Signal s) const { return forced_[static_cast<int>(s)]; }
    // The in-position line stuck: 0 free, 1 actuated, 2 released.
    void setInposStuck(int how) { inposStuck_ = how; }
    int inposStuck() const { return inposStuck_; }

private:
    bool actuated(Signal s, int64_t position) const;

    BoardSetup::Axis wiring_;
    std::array<bool, 4> forced_{};
    int inposStuck_ = 0;
};

} // namespace nrxsim
