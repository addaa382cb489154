#include "SimCard.h"

#include "SimConstants.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace nrxsim {

SimCard::SimCard(const BoardSetup::Card& setup, int familyIndex)
    : setup_(setup), familyIndex_(familyIndex)
{
    setup_.axes = std::clamp(setup_.axes, 1, MaxAxes);
    setup_.io = std::clamp(setup_.io, 0, MaxIoPoints);
    for (int a = 0; a < setup_.axes; ++a)
        axes_.emplace_back(setup_.axis[static_cast<std::size_t>(a)], familyIndex == Family::RN);
}

SimAxis* SimCard::axis(int index)
{
    return index >= 0 && index < axisCount() ? &axes_[static_cast<std::size_t>(index)] : nullptr;
}

const SimAxis* SimCard::axis(int index) const
{
    return index >= 0 && index < axisCount() ? &axes_[static_cast<std::size_t>(index)] : nullptr;
}

bool SimCard::hasPoint(int bit) const
{
    if (setup_.io == 24)
        return bit >= 0 && bit < 32 && (bit < 8 || bit >= 16);
    return bit >= 0 && bit < setup_.io;
}

bool SimCard::input(int bit) const
{
    const BoardSetup::Signal& s = setup_.inputs[static_cast<std::size_t>(bit)];
    return s.fromOutput ? output(s.value) : s.value != 0;
}

bool SimCard::emergencyActive() const
{
    const BoardSetup::Signal& s = setup_.emergency;
    const bool line = forcedEmergency_ || (s.fromOutput ? output(s.value) : s.value != 0);
    return line != (setup_.emergencyLevel != (emergencyLevel != 0));
}

SimAxis::Lines SimCard::linesFor(int axis) const
{
    SimAxis::Lines lines;
    lines.emergency = emergencyActive();
    const BoardSetup::Signal& alarm = setup_.axis[static_cast<std::size_t>(axis)].alarm;
    lines.alarmLine = alarm.fromOutput ? output(alarm.value) : alarm.value != 0;
    return lines;
}

bool SimCard::validAxes(int n, const uint16_t* axes) const
{
    if (!axes || n < 1 || n > axisCount())
        return false;
    for (int i = 0; i < n; ++i) {
        if (axes[i] >= axisCount() || std::count(axes, axes + i, axes[i]) != 0)
            return false;
    }
    return true;
}

bool SimCard::multiMove(int n, const uint16_t* axes, const int32_t* values, bool absolute)
{
    if (!values || !validAxes(n, axes))
        return false;
    for (int i = 0; i < n; ++i) {
        if (axes_[axes[i]].isMoving())
            return false;
    }
    std::vector<int64_t> distance(static_cast<std::size_t>(n));
    int lead = -1;
    double leadDuration = -1.0;
    for (int i = 0; i < n; ++i) {
        const SimAxis& a = axes_[axes[i]];
        distance[i] = absolute ? static_cast<int64_t>(values[i]) - a.commandPosition() : values[i];
        if (distance[i] == 0)
            continue;
        const double t =
            MotionProfile::positioning(std::llabs(distance[i]), a.positionSpeed()).duration();
        if (t > leadDuration) {
            leadDuration = t;
            lead = i;
        }
    }
    if (lead < 0) {
        for (int i = 0; i < n; ++i)
            axes_[axes[i]].moveBy(0, linesFor(axes[i]));
        return true;
    }
    // Every axis runs the leading axis's profile, scaled to its own share of the line.
    const SpeedProfile speed = axes_[axes[lead]].positionSpeed();
    const double leadDistance = std::fabs(static_cast<double>(distance[lead]));
    const MotionProfile profile = MotionProfile::positioning(leadDistance, speed);
    const int group = nextGroup_++;
    for (int i = 0; i < n; ++i) {
        const double ratio = static_cast<double>(distance[i]) / leadDistance;
        axes_[axes[i]].follow(profile, speed, ratio, distance[i], group, linesFor(axes[i]));
    }
    propagateGroupStops();
    return true;
}

bool SimCard::multiJog(int n, const uint16_t* axes, const uint16_t* directions)
{
    if (!directions || !validAxes(n, axes))
        return false;
    for (int i = 0; i < n; ++i)
        axes_[axes[i]].jog(directions[i], linesFor(axes[i]));
    return true;
}

bool SimCard::multiStop(int n, const uint16_t* axes, bool rampDown)
{
    if (!validAxes(n, axes))
        return false;
    for (int i = 0; i < n; ++i)
        stop(axes[i], rampDown);
    return true;
}

void SimCard::stop(int index, bool rampDown)
{
    SimAxis* a = axis(index);
    if (!a || !a->isMoving())
        return;
    const int group = a->group();
    for (SimAxis& other : axes_) {
        if (&other == a || (group != 0 && other.group() == group && other.isMoving())) {
            if (rampDown)
                other.decelStop();
            else
                other.suddenStop();
        }
    }
}

void SimCard::propagateGroupStops()
{
    for (SimAxis& a : axes_) {
        const SimAxis::GroupEvent e = a.takeGroupEvent();
        if (e == SimAxis::GroupEvent::None || a.group() == 0)
            continue;
        for (SimAxis& other : axes_) {
            if (&other != &a && other.group() == a.group() && other.isMoving())
                other.abortFromGroup(e == SimAxis::GroupEvent::RampDown);
        }
    }
}

bool SimCard::step()
{
    bool moving = false;
    for (int i = 0; i < axisCount(); ++i) {
        SimAxis& a = axes_[static_cast<std::size_t>(i)];
        if (!a.isMoving())
            continue;
        a.step(linesFor(i));
        if (a.isMoving())
            moving = true;
        else if (a.errorCode() < 0 && onAbnormalStop)
            onAbnormalStop(i, a.errorCode());
    }
    propagateGroupStops();
    return moving || anyMoving();
}

bool SimCard::anyMoving() const
{
    return std::any_of(axes_.begin(), axes_.end(), [](const SimAxis& a) { return a.isMoving(); });
}

void SimCard::reset()
{
    for (SimAxis& a : axes_)
        a.reset();
    outputs_.fill(false);
}

} // namespace nrxsim
