#pragma once

#include <cstdint>

namespace nrxsim {

// How the motor behind one axis follows its pulses: the drive's position loop, the encoder's
// whole counts, the in-position window and the following-error limit.
class ServoModel
{
public:
    struct Settings
    {
        int lagMs = 2;            // without a bandwidth: a first-order lag of this many ms
        int bandwidthHz = 0;      // > 0: a second-order loop of this bandwidth
        int dampingPercent = 100; // of that loop; 100 is critically damped
        int inposWindow = 10;     // pulses of following error the drive calls in position
        int settleMs = 0;         // ... held that long before INP comes
        int followingLimit = 0;   // pulses; beyond it the drive raises its alarm (0: never)
    };

    explicit ServoModel(const Settings& settings, int64_t at);

    // One millisecond: the pulses bring the command to `command`; `moving` while they come.
    // At rest a plain lag stands on the command at once, as the drive's counter does.
    void step(int64_t command, bool moving);
    // Stands still at `at`, settled: a start-up, or the counters set around a resting motor.
    void place(int64_t at);

    int64_t encoder() const { return encoder_; }
    int64_t followingError() const { return command_ - encoder_; }
    bool overFollowingLimit() const;
    // Within the window for the settle time.
    bool settled() const { return settledMs_ >= settings_.settleMs && withinWindow(); }
    // Still on its way to the command: worth stepping although no pulses come.
    bool busy() const { return !atRest_; }
    const Settings& settings() const { return settings_; }

private:
    bool withinWindow() const;

    Settings settings_;
    double position_ = 0.0; // of the motor, in pulses
    double speed_ = 0.0;    // pulses per ms
    int64_t command_ = 0;
    int64_t encoder_ = 0;
    int settledMs_ = 0;
    bool atRest_ = true;
};

} // namespace nrxsim
