#pragma once

#include <cstddef>
#include <vector>

namespace nrxsim {

// The legs of a home search: which signal to look for, in which direction, how fast.
class HomeSearch
{
public:
    enum class Signal
    {
        Org,
        LimitPlus,
        LimitMinus,
        Z
    };
    // What a seek does when its signal is already in the wanted state at its start.
    enum class IfAlready
    {
        Escape,
        Skip,
        Fail
    };

    struct Leg
    {
        bool offset = false; // the final offset move; otherwise a seek
        int direction = 1;   // +1 or -1
        bool fast = false;   // high speed with ramps; otherwise low speed
        Signal signal = Signal::Org;
        bool wantActive = true;
        bool rampDown = false; // ramp down after the signal; otherwise stop on it
        IfAlready ifAlready = IfAlready::Escape;
    };

    static constexpr int ModeCount = 10;

    // homeDir 0 searches plus (CW), 1 minus (CCW).
    void start(int mode, int homeDir);
    bool finished() const { return next_ >= legs_.size(); }
    const Leg& current() const { return legs_[next_]; }
    void advance() { ++next_; }
    // Puts a leg before the current one (to leave a sensor the axis sits on).
    void insert(const Leg& leg);
    bool searchesOrigin() const;
    // The search's zero is where the origin switch tripped, not a Z mark or a limit.
    bool endsOnOrigin() const { return mode_ == 0 || mode_ == 2; }
    // A limit ended the origin search: search back through the origin and start over.
    // False once this has happened before: the origin is not between the limits.
    bool reverse();

private:
    void plan();

    std::vector<Leg> legs_;
    std::size_t next_ = 0;
    int mode_ = 0;
    int direction_ = 1;
    bool reversed_ = false;
};

} // namespace nrxsim
