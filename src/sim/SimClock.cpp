#include "SimClock.h"

namespace nrxsim {

SimClock::SimClock() : start_(std::chrono::steady_clock::now()) {}

int64_t SimClock::nowMs() const
{
    if (manual_)
        return manualMs_;
    const auto elapsed = std::chrono::steady_clock::now() - start_;
    return std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count();
}

void SimClock::setManual(bool on)
{
    if (on == manual_)
        return;
    const int64_t now = nowMs();
    manual_ = on;
    if (on) {
        manualMs_ = now;
    } else {
        // Continue from the manual time on the real clock.
        start_ = std::chrono::steady_clock::now() - std::chrono::milliseconds(now);
    }
}

bool SimClock::advance(int64_t ms)
{
    if (!manual_ || ms < 0)
        return false;
    manualMs_ += ms;
    return true;
}

} // namespace nrxsim
