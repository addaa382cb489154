#include "AxisMotor.h"

#include <algorithm>

namespace nrxsim {

namespace {

ServoModel::Settings settingsOf(const BoardSetup::Axis& wiring)
{
    ServoModel::Settings s;
    s.lagMs = wiring.servoLag;
    s.bandwidthHz = wiring.servoBandwidth;
    s.dampingPercent = wiring.servoDamping;
    s.inposWindow = wiring.inposWindow;
    s.settleMs = wiring.inposSettle;
    s.followingLimit = wiring.followingLimit;
    return s;
}

} // namespace

AxisMotor::AxisMotor(const BoardSetup::Axis& wiring, int64_t machine, uint64_t seed)
    : model_(settingsOf(wiring), machine), slipPerMille_(wiring.slip),
      needsServoOn_(wiring.needsServoOn != 0), heldEncoder_(machine), backlash_(wiring.backlash),
      noiseBound_(wiring.positionNoise), noiseScatter_(seed)
{}

void AxisMotor::setServoOn(bool on, int64_t machine)
{
    if (on == servoOn_)
        return;
    if (!on)
        heldEncoder_ = rawEncoder();
    else if (needsServoOn_)
        slipOffset_ = heldEncoder_ - machine; // the motor turns again from where it stood
    servoOn_ = on;
}

void AxisMotor::setEncoderLost(bool lost)
{
    if (lost == lost_)
        return;
    if (lost)
        frozenEncoder_ = encoder();
    else
        lostCounts_ = load(rawEncoder()) - frozenEncoder_;
    lost_ = lost;
}

void AxisMotor::step(int64_t machine, int64_t moved, bool pulsing)
{
    if (held())
        return;
    if (slipPerMille_ != 0 && moved != 0) {
        slipRemainder_ += (moved < 0 ? -moved : moved) * slipPerMille_;
        const int64_t lost = slipRemainder_ / 1000;
        slipRemainder_ %= 1000;
        slipOffset_ += moved < 0 ? lost : -lost;
    }
    // Each move comes to rest somewhere else within the noise; drawn as the pulses start, so
    // the reading jumps inside the motion and the counters set at its end take it in.
    if (pulsing && !pulsing_)
        noise_ = noiseScatter_.within(noiseBound_);
    pulsing_ = pulsing;
    const int64_t before = model_.encoder();
    model_.step(machine + slipOffset_, pulsing);
    // The load stays while the motor crosses the play, then is pushed along by its side: a
    // reversal loses the whole backlash, the first move half of it.
    const int64_t pushedFrom = -(backlash_ - backlash_ / 2);
    play_ = std::clamp(play_ - (model_.encoder() - before), pushedFrom, backlash_ / 2);
}

} // namespace nrxsim
