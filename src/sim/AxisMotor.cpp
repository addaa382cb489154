#include "AxisMotor.h"

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

AxisMotor::AxisMotor(const BoardSetup::Axis& wiring, int64_t machine)
    : model_(settingsOf(wiring), machine), slipPerMille_(wiring.slip),
      needsServoOn_(wiring.needsServoOn != 0), heldEncoder_(machine)
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
        lostCounts_ = rawEncoder() - frozenEncoder_;
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
    model_.step(machine + slipOffset_, pulsing);
}

} // namespace nrxsim
