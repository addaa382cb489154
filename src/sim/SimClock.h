#pragma once

#include <chrono>
#include <cstdint>

namespace nrxsim {

// Millisecond time of the simulated boards: monotonic, or driven by hand in tests.
class SimClock
{
public:
    SimClock();

    int64_t nowMs() const;
    bool isManual() const { return manual_; }
    // Switching keeps the current time, so motion in progress does not jump.
    void setManual(bool on);
    // Moves a manual clock forward; a real clock cannot be moved.
    bool advance(int64_t ms);

private:
    std::chrono::steady_clock::time_point start_;
    bool manual_ = false;
    int64_t manualMs_ = 0;
};

} // namespace nrxsim
