#pragma once

#include "BoardSetup.h"
#include "SimAxis.h"
#include "SimConstants.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace nrxsim {

// One simulated card: its axes, digital I/O, emergency input and multi-axis moves.
class SimCard
{
public:
    SimCard(const BoardSetup::Card& setup, int familyIndex, int cardIndex);

    const BoardSetup::Card& setup() const { return setup_; }
    int familyIndex() const { return familyIndex_; }
    bool isRn() const { return familyIndex_ == Family::RN; }
    int axisCount() const { return static_cast<int>(axes_.size()); }
    int ioCount() const { return setup_.io; }
    SimAxis* axis(int index)
    {
        return index >= 0 && index < axisCount() ? &axes_[static_cast<std::size_t>(index)]
                                                 : nullptr;
    }
    const SimAxis* axis(int index) const
    {
        return index >= 0 && index < axisCount() ? &axes_[static_cast<std::size_t>(index)]
                                                 : nullptr;
    }
    SimAxis::Lines linesFor(int axis) const;

    // Whether the card has a digital point: 0..7 and 16..31 on a 24-point card, as the real
    // one is wired, else 0 .. io - 1.
    bool hasPoint(int bit) const;
    bool output(int bit) const { return outputs_[static_cast<std::size_t>(bit)]; }
    void setOutput(int bit, bool on) { outputs_[static_cast<std::size_t>(bit)] = on; }
    bool input(int bit) const;
    bool emergencyActive() const;
    void setForcedEmergency(bool on) { forcedEmergency_ = on; }
    bool forcedEmergency() const { return forcedEmergency_; }

    // Card-wide settings, kept in the parameter file.
    uint16_t emergencyLevel = 0;
    uint16_t diFilter = 0;
    uint16_t diFilterTime = 0;

    // Several axes started together, each on its own profile; each stops on its own.
    bool multiMove(int n, const uint16_t* axes, const int32_t* values, bool absolute);
    bool multiJog(int n, const uint16_t* axes, const uint16_t* directions);
    bool multiStop(int n, const uint16_t* axes, bool rampDown);
    void stop(int axis, bool rampDown);

    // One millisecond for every axis; true while any axis still moves or settles.
    bool step();
    bool anyMoving() const;
    void reset();

    // Told of every abnormal end of a motion (axis, stop code).
    std::function<void(int, int32_t)> onAbnormalStop;

private:
    bool validAxes(int n, const uint16_t* axes) const;

    BoardSetup::Card setup_;
    int familyIndex_;
    std::vector<SimAxis> axes_;
    std::array<bool, MaxIoPoints> outputs_{};
    bool forcedEmergency_ = false;
};

} // namespace nrxsim
