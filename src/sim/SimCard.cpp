#include "SimCard.h"

#include "SimConstants.h"

#include <algorithm>

namespace nrxsim {

SimCard::SimCard(const BoardSetup::Card& setup, int familyIndex, int cardIndex)
    : setup_(setup), familyIndex_(familyIndex)
{
    setup_.axes = std::clamp(setup_.axes, 1, MaxAxes);
    setup_.io = std::clamp(setup_.io, 0, MaxIoPoints);
    for (int a = 0; a < setup_.axes; ++a) {
        // Every axis scatters in its own way, and the same way at every LoadDevice.
        const auto seed = static_cast<uint64_t>((familyIndex * MaxCards + cardIndex) * MaxAxes + a);
        axes_.emplace_back(setup_.axis[static_cast<std::size_t>(a)], familyIndex == Family::RN,
                           seed);
    }
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
    // Independent axes started in the same millisecond, each on its own speed profile.
    for (int i = 0; i < n; ++i) {
        SimAxis& a = axes_[axes[i]];
        const SimAxis::Lines lines = linesFor(axes[i]);
        if (absolute)
            a.moveTo(values[i], lines);
        else
            a.moveBy(values[i], lines);
        a.markMultiAxis();
    }
    return true;
}

bool SimCard::multiJog(int n, const uint16_t* axes, const uint16_t* directions)
{
    if (!directions || !validAxes(n, axes))
        return false;
    for (int i = 0; i < n; ++i) {
        axes_[axes[i]].jog(directions[i], linesFor(axes[i]));
        axes_[axes[i]].markMultiAxis();
    }
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
    if (!a)
        return;
    if (rampDown)
        a->decelStop();
    else
        a->suddenStop();
}

bool SimCard::step()
{
    bool moving = false;
    for (int i = 0; i < axisCount(); ++i) {
        SimAxis& a = axes_[static_cast<std::size_t>(i)];
        if (!a.isActive())
            continue;
        const bool wasMoving = a.isMoving();
        a.step(linesFor(i));
        moving = moving || a.isActive();
        if (wasMoving && !a.isMoving() && a.errorCode() < 0 && onAbnormalStop)
            onAbnormalStop(i, a.errorCode());
    }
    return moving || anyMoving();
}

bool SimCard::anyMoving() const
{
    return std::any_of(axes_.begin(), axes_.end(), [](const SimAxis& a) { return a.isActive(); });
}

void SimCard::reset()
{
    for (SimAxis& a : axes_)
        a.reset();
    outputs_.fill(false);
}

} // namespace nrxsim
