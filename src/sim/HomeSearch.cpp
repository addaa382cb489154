#include "HomeSearch.h"

namespace nrxsim {

namespace {

HomeSearch::Leg seek(int dir, bool fast, HomeSearch::Signal s, bool want,
                     HomeSearch::IfAlready ifAlready)
{
    HomeSearch::Leg leg;
    leg.direction = dir;
    leg.fast = fast;
    leg.signal = s;
    leg.wantActive = want;
    leg.rampDown = fast;
    leg.ifAlready = ifAlready;
    return leg;
}

} // namespace

void HomeSearch::start(int mode, int homeDir)
{
    mode_ = mode;
    direction_ = homeDir == 0 ? 1 : -1;
    reversed_ = false;
    legs_.clear();
    next_ = 0;
    plan();
    Leg offset;
    offset.offset = true;
    legs_.push_back(offset);
}

void HomeSearch::plan()
{
    const int d = direction_;
    const Signal limit = d > 0 ? Signal::LimitPlus : Signal::LimitMinus;
    const bool usesLimit = mode_ >= 4 && mode_ <= 7;
    const Signal sensor = usesLimit ? limit : Signal::Org;
    const bool high = mode_ == 2 || mode_ == 3 || mode_ == 6 || mode_ == 7;
    const bool withZ = mode_ == 1 || mode_ == 3 || mode_ == 5 || mode_ == 7;

    if (mode_ == 8) {
        legs_.push_back(seek(d, false, Signal::Z, true, IfAlready::Fail));
        return;
    }
    if (mode_ == 9)
        return; // the current position is the origin
    // Fast approach, slow back-out, slow approach again: a high-speed mode ends on the same
    // edge as its low-speed twin, and an overshoot past a narrow dog is caught.
    if (high) {
        legs_.push_back(seek(d, true, sensor, true, IfAlready::Escape));
        legs_.push_back(seek(-d, false, sensor, true, IfAlready::Skip));
        legs_.push_back(seek(-d, false, sensor, false, IfAlready::Skip));
    }
    legs_.push_back(seek(d, false, sensor, true, IfAlready::Escape));
    if (withZ) {
        // Off a limit the only way is back; past the origin the search goes on.
        legs_.push_back(seek(usesLimit ? -d : d, false, Signal::Z, true, IfAlready::Fail));
    }
}

void HomeSearch::insert(const Leg& leg)
{
    legs_.insert(legs_.begin() + static_cast<std::ptrdiff_t>(next_), leg);
}

bool HomeSearch::searchesOrigin() const
{
    return !finished() && !current().offset && current().signal == Signal::Org;
}

bool HomeSearch::reverse()
{
    if (reversed_)
        return false;
    reversed_ = true;
    const bool high = mode_ == 2 || mode_ == 3;
    legs_.erase(legs_.begin() + static_cast<std::ptrdiff_t>(next_), legs_.end());
    legs_.push_back(seek(-direction_, high, Signal::Org, true, IfAlready::Skip));
    legs_.push_back(seek(-direction_, false, Signal::Org, false, IfAlready::Skip));
    plan();
    Leg offset;
    offset.offset = true;
    legs_.push_back(offset);
    return true;
}

} // namespace nrxsim
