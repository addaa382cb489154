#include "ServoModel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace nrxsim {

namespace {
constexpr double Pi = 3.14159265358979323846;
constexpr int MinSubSteps = 20; // of the second-order loop per millisecond
} // namespace

ServoModel::ServoModel(const Settings& settings, int64_t at) : settings_(settings)
{
    place(at);
}

void ServoModel::place(int64_t at)
{
    position_ = static_cast<double>(at);
    speed_ = 0.0;
    command_ = at;
    encoder_ = at;
    settledMs_ = settings_.settleMs;
    atRest_ = true;
}

bool ServoModel::withinWindow() const
{
    return std::llabs(command_ - encoder_) <= settings_.inposWindow;
}

bool ServoModel::overFollowingLimit() const
{
    return settings_.followingLimit > 0 &&
           std::llabs(command_ - encoder_) > settings_.followingLimit;
}

void ServoModel::step(int64_t command, bool moving)
{
    const double from = static_cast<double>(command_);
    const double to = static_cast<double>(command);
    command_ = command;
    if (settings_.bandwidthHz <= 0) {
        if (!moving || settings_.lagMs <= 0) {
            position_ = to;
        } else {
            // The exact answer of a first-order lag to a command that runs straight through
            // the millisecond: it trails a steady speed by lagMs of it and never turns back.
            const double tau = settings_.lagMs;
            const double slope = to - from;
            const double decay = std::exp(-1.0 / tau);
            position_ = to - slope * tau + (position_ - from + slope * tau) * decay;
        }
        speed_ = 0.0;
    } else {
        // x'' = w^2 (command - x) - 2 z w x', the command moving straight through the ms.
        const double w = 2.0 * Pi * settings_.bandwidthHz / 1000.0; // per ms
        const double z = settings_.dampingPercent / 100.0;
        // Enough sub-steps to keep the integration stable at high bandwidth and damping.
        const int steps = std::max(MinSubSteps, static_cast<int>(std::ceil(4.0 * w * (1.0 + z))));
        const double dt = 1.0 / steps;
        for (int i = 1; i <= steps; ++i) {
            const double target = from + (to - from) * i * dt;
            speed_ += (w * w * (target - position_) - 2.0 * z * w * speed_) * dt;
            position_ += speed_ * dt;
        }
    }
    // The encoder counts whole pulses, and only those the motor has passed.
    const double ahead = position_ - static_cast<double>(encoder_);
    if (ahead >= 1.0 || ahead <= -1.0)
        encoder_ += static_cast<int64_t>(ahead);
    if (!moving && std::fabs(to - position_) < 0.5 && std::fabs(speed_) < 0.01)
        encoder_ = command;
    // Settling counts from the last pulse on.
    settledMs_ = !moving && withinWindow() ? settledMs_ + 1 : 0;
    atRest_ = !moving && encoder_ == command && std::fabs(speed_) < 0.01 &&
              settledMs_ >= settings_.settleMs;
}

} // namespace nrxsim
