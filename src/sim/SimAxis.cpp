#include "SimAxis.h"

#include "AxisSpeeds.h"
#include "SimConstants.h"
#include "StatusWords.h"

#include <cmath>
#include <cstdlib>

namespace nrxsim {

namespace {
using Signal = HomeSearch::Signal;
} // namespace

SimAxis::SimAxis(const BoardSetup::Axis& wiring, bool rn, uint64_t seed)
    : sensors_(wiring), rn_(rn), counters_(wiring.start), homeScatter_(seed * 2 + 1),
      machine_(wiring.start), exact_(static_cast<double>(wiring.start)),
      motor_(wiring, wiring.start, seed * 2), settleTimeoutMs_(wiring.inposTimeout)
{}

void SimAxis::setServoOn(bool on)
{
    motor_.setServoOn(on, machine_);
    servo_.setServoOn(on);
}

void SimAxis::setParameter(Id id, int32_t value)
{
    // The actual counter keeps its value when the encoder is set up differently.
    if (id == Id::EncoderMode || id == Id::EncoderDir)
        counters_.rebase(restingEncoder(), parameters_);
    parameters_.set(id, value);
}

void SimAxis::restoreDefaults()
{
    counters_.rebase(restingEncoder(), parameters_);
    parameters_.restoreDefaults();
}

void SimAxis::reset()
{
    activity_ = Activity::Idle;
    settling_ = false;
    stopping_ = false;
    unitSpeed_ = 0.0;
    profileBits_ = 0;
    target_.reset();
    clearLatches();
    homeOk_ = false;
    exact_ = static_cast<double>(machine_);
    counters_.zeroAt(machine_, restingEncoder());
    setServoOn(false);
    servo_.switchOff();
}

void SimAxis::clearLatches()
{
    errorCode_ = 0;
    stopBits_ = 0;
    errorBits_ = 0;
    homeStopBits_ = 0;
}

// ---- counters and signals -------------------------------------------------------------

int32_t SimAxis::commandPosition() const
{
    return counters_.commandReading(machine_, parameters_);
}

int32_t SimAxis::actualPosition() const
{
    return counters_.actualReading(encoderPosition(), parameters_);
}

int32_t SimAxis::commandSpeed() const
{
    if (!isMoving())
        return 0;
    return static_cast<int32_t>(std::llround(std::fabs(scale_) * unitSpeed_));
}

bool SimAxis::alarmActive(const Lines& lines) const
{
    return sensors_.alarm(servo_.latchedAlarm() || lines.alarmLine, parameters_);
}

bool SimAxis::compareActive(int direction) const
{
    const int64_t counter = compared(machine_);
    return direction > 0 ? counter >= p(Id::SlmtPlus) : counter <= p(Id::SlmtMinus);
}

// ---- starting and stopping ------------------------------------------------------------------

int32_t SimAxis::startCode(int direction, const Lines& lines) const
{
    if (lines.emergency)
        return StopCode::Emergency;
    if (p(Id::SvAlmUse) != 0 && alarmActive(lines))
        return StopCode::Alarm;
    if (limitActive(direction))
        return direction > 0 ? StopCode::PlusLimit : StopCode::MinusLimit;
    if (p(Id::SlmtUse) != 0) {
        const int64_t counter = compared(machine_);
        const int counterDir =
            direction * (p(Id::CompCountMode) == 1 ? AxisCounters::encoderSign(parameters_) : 1);
        if (counterDir > 0 && counter >= p(Id::SlmtPlus))
            return StopCode::PlusSoftLimit;
        if (counterDir < 0 && counter <= p(Id::SlmtMinus))
            return StopCode::MinusSoftLimit;
    }
    return StopCode::None;
}

void SimAxis::begin(Activity activity, const MotionProfile& profile, const SpeedProfile& speed,
                    double scale)
{
    activity_ = activity;
    profile_ = profile;
    speed_ = speed;
    scale_ = scale;
    exact_ = static_cast<double>(machine_);
    origin_ = exact_;
    tick_ = 0;
    stopping_ = false;
    multiAxis_ = false;
    target_.reset();
    const auto s = profile_.at(0.0);
    unitSpeed_ = s.speed;
    profileBits_ = s.driveBits;
}

bool SimAxis::moveBy(int64_t distance, const Lines& lines)
{
    if (isMoving())
        return false;
    clearLatches();
    if (distance == 0)
        return true;
    const int dir = distance > 0 ? 1 : -1;
    if (const int32_t code = startCode(dir, lines)) {
        finish(code);
        return true;
    }
    const SpeedProfile speed = AxisSpeeds::position(parameters_);
    begin(Activity::Move,
          MotionProfile::positioning(static_cast<double>(std::llabs(distance)), speed), speed, dir);
    target_ = machine_ + distance;
    return true;
}

bool SimAxis::moveTo(int32_t target, const Lines& lines)
{
    return moveBy(static_cast<int64_t>(target) - commandPosition(), lines);
}

bool SimAxis::jog(int direction, const Lines& lines)
{
    if (isMoving())
        return false;
    clearLatches();
    const int dir = direction != 0 ? 1 : -1;
    if (const int32_t code = startCode(dir, lines)) {
        finish(code);
        return true;
    }
    const SpeedProfile speed = AxisSpeeds::jog(parameters_);
    begin(Activity::Jog, MotionProfile::endless(speed), speed, dir);
    return true;
}

bool SimAxis::home(const Lines& lines)
{
    if (isMoving())
        return false;
    clearLatches();
    homeOk_ = false;
    activity_ = Activity::Home;
    if (lines.emergency || (p(Id::SvAlmUse) != 0 && alarmActive(lines))) {
        finish(lines.emergency ? StopCode::Emergency : StopCode::Alarm);
        return true;
    }
    const int32_t mode = p(Id::HomeMode);
    if (mode < 0 || mode >= HomeSearch::ModeCount) {
        finish(StopCode::Other); // the board knows no such search
        return true;
    }
    homeSearch_.start(mode, p(Id::HomeDir));
    startLeg();
    return true;
}

void SimAxis::startLeg()
{
    for (;;) {
        if (homeSearch_.finished()) {
            completeHome();
            return;
        }
        const HomeSearch::Leg leg = homeSearch_.current();
        if (leg.offset) {
            const int32_t offset = p(Id::HomeOffset);
            if (offset == 0) {
                homeSearch_.advance();
                continue;
            }
            const SpeedProfile speed = AxisSpeeds::home(parameters_, true);
            begin(Activity::Home,
                  MotionProfile::positioning(std::fabs(static_cast<double>(offset)), speed), speed,
                  offset > 0 ? 1 : -1);
            target_ = machine_ + offset;
            return;
        }
        if (senses(leg.signal) == leg.wantActive) {
            if (leg.ifAlready == HomeSearch::IfAlready::Fail) {
                finish(StopCode::ZAlreadyActive);
                return;
            }
            if (leg.ifAlready == HomeSearch::IfAlready::Skip) {
                homeSearch_.advance();
                continue;
            }
            // Leave the sensor first, so the edge is found from the search direction.
            HomeSearch::Leg away = leg;
            away.direction = -leg.direction;
            away.fast = false;
            away.rampDown = false;
            away.wantActive = !leg.wantActive;
            away.ifAlready = HomeSearch::IfAlready::Skip;
            homeSearch_.insert(away);
            continue;
        }
        const Signal ahead = AxisSensors::limit(leg.direction);
        if (leg.signal != ahead && senses(ahead)) {
            onLimit(leg.direction > 0 ? EventKind::LimitPlus : EventKind::LimitMinus, machine_,
                    machine_);
            return;
        }
        const SpeedProfile speed = AxisSpeeds::home(parameters_, leg.fast);
        begin(Activity::Home, MotionProfile::endless(speed), speed, leg.direction);
        return;
    }
}

void SimAxis::completeHome()
{
    // A jittery origin switch: the board clears its counters where the switch tripped, off
    // the place where the search ends, so the position read after a search scatters.
    const int64_t trip =
        homeSearch_.endsOnOrigin() ? homeScatter_.within(sensors_.wiring().homeJitter) : 0;
    counters_.zeroAt(machine_ - trip, restingEncoder() - trip);
    homeOk_ = true;
    finish(StopCode::None, homeStopBits_);
}

void SimAxis::decelStop()
{
    if (!isMoving() || settling_ || (stopping_ && afterRamp_ == AfterRamp::Finish))
        return;
    // A move already slowing down to its target keeps its ramp: a fresh one from the present
    // speed would start without the deceleration already built up and end past the target.
    if (!stopping_ && target_ && (profileBits_ & DriveBit::Descend) != 0) {
        stopping_ = true;
        afterRamp_ = AfterRamp::Finish;
        pendingCode_ = StopCode::None;
        pendingStopBits_ = 0;
        return;
    }
    rampDown(AfterRamp::Finish, StopCode::None, 0);
}

void SimAxis::suddenStop()
{
    if (isMoving())
        end(StopCode::None, 0); // at once, not waiting for in-position
}

void SimAxis::rampDown(AfterRamp after, int32_t code, uint16_t stopBits)
{
    afterRamp_ = after;
    pendingCode_ = code;
    pendingStopBits_ = stopBits;
    profile_ = MotionProfile::rampDown(unitSpeed_, *speed_);
    origin_ = exact_;
    tick_ = 0;
    stopping_ = true;
    target_.reset();
    if (profile_.duration() <= 0.0)
        profileFinished();
}

void SimAxis::redirectRamp(int32_t code)
{
    afterRamp_ = AfterRamp::Finish;
    pendingCode_ = code;
    pendingStopBits_ = 0;
}

void SimAxis::profileFinished()
{
    if (stopping_) {
        stopping_ = false;
        switch (afterRamp_) {
        case AfterRamp::Finish:
            finish(pendingCode_, pendingStopBits_);
            return;
        case AfterRamp::NextLeg:
            homeSearch_.advance();
            startLeg();
            return;
        case AfterRamp::StartLeg:
            startLeg();
            return;
        }
    }
    if (activity_ == Activity::Home) {
        homeSearch_.advance(); // the offset move is done
        startLeg();
        return;
    }
    finish(StopCode::None);
}

void SimAxis::finish(int32_t code, uint16_t stopBits)
{
    // A move that ends as planned, with in-position in use, ends when the drive is there.
    if (code == StopCode::None && p(Id::SvInposUse) != 0 && !settling_) {
        settling_ = true;
        settleMs_ = 0;
        settleStopBits_ = stopBits;
        stopping_ = false;
        unitSpeed_ = 0.0;
        profileBits_ = 0;
        target_.reset();
        exact_ = static_cast<double>(machine_);
        return;
    }
    end(code, stopBits);
}

void SimAxis::end(int32_t code, uint16_t stopBits)
{
    settling_ = false;
    const bool wasHome = activity_ == Activity::Home;
    activity_ = Activity::Idle;
    stopping_ = false;
    unitSpeed_ = 0.0;
    profileBits_ = 0;
    target_.reset();
    exact_ = static_cast<double>(machine_);
    errorCode_ = code;
    stopBits_ = stopBits | StatusWords::stopBitsFor(code, rn_);
    errorBits_ = StatusWords::errorBitsFor(code);
    if (code < 0 && wasHome)
        errorBits_ |= ErrorBit::DuringHome;
}

// ---- stepping ---------------------------------------------------------------------------

void SimAxis::step(const Lines& lines)
{
    const int64_t before = machine_;
    advanceOneMs(lines);
    motor_.step(machine_, machine_ - before, isMoving() && !settling_);
    if (motor_.overFollowingLimit())
        servo_.setLatchedAlarm(true); // the drive's own alarm: it stays until reset
    if (settling_)
        awaitInPosition(lines);
}

void SimAxis::awaitInPosition(const Lines& lines)
{
    if (sensors_.inPosition(motor_.inPosition(), parameters_) && !lines.emergency)
        end(StopCode::None, settleStopBits_);
    else if (++settleMs_ >= settleTimeoutMs_)
        end(StopCode::Other, 0); // in-position never came
}

void SimAxis::advanceOneMs(const Lines& lines)
{
    if (!isMoving())
        return;
    if (lines.emergency) {
        finish(StopCode::Emergency);
        return;
    }
    if (p(Id::SvAlmUse) != 0 && alarmActive(lines)) {
        finish(StopCode::Alarm);
        return;
    }
    if (settling_ || forcedSwitchStops())
        return;
    ++tick_;
    const MotionProfile::Sample s = profile_.at(static_cast<double>(tick_) / 1000.0);
    const double exact = origin_ + scale_ * s.distance;
    const bool onTarget = s.finished && target_.has_value();
    const int64_t next = onTarget ? *target_ : std::llround(exact);
    unitSpeed_ = s.speed;
    profileBits_ = s.driveBits;
    // A stop ramp still ends on a switch or soft limit it runs into.
    if (next != machine_) {
        if (const auto e = firstEvent(machine_, next)) {
            takeEvent(*e, next);
            return;
        }
    }
    machine_ = next;
    exact_ = onTarget ? static_cast<double>(next) : exact;
    if (s.finished)
        profileFinished();
}

bool SimAxis::forcedSwitchStops()
{
    // A switch forced on from outside acts as if the axis had just reached it.
    const int dir = scale_ > 0 ? 1 : -1;
    const Signal ahead = AxisSensors::limit(dir);
    if (activity_ == Activity::Home && !stopping_ && !homeSearch_.finished() &&
        !homeSearch_.current().offset) {
        const HomeSearch::Leg& leg = homeSearch_.current();
        if (sensors_.forced(leg.signal) && senses(leg.signal) == leg.wantActive) {
            takeEvent(Event{EventKind::Leg, machine_, 0}, machine_);
            return true;
        }
        if (leg.signal == ahead)
            return false;
    }
    if (!sensors_.forced(ahead) || !senses(ahead))
        return false;
    const int32_t code = dir > 0 ? StopCode::PlusLimit : StopCode::MinusLimit;
    const bool origin = activity_ == Activity::Home && homeSearch_.searchesOrigin();
    if (origin || p(Id::HlmtStop) != 1) {
        onLimit(dir > 0 ? EventKind::LimitPlus : EventKind::LimitMinus, machine_, machine_);
        return true;
    }
    if (!stopping_)
        rampDown(AfterRamp::Finish, code, 0);
    else if (pendingCode_ != code)
        redirectRamp(code);
    return !isMoving();
}

std::optional<SimAxis::Event> SimAxis::firstEvent(int64_t from, int64_t to) const
{
    const int dir = to > from ? 1 : -1;
    std::optional<Event> first;
    auto consider = [&](EventKind kind, int64_t position, int64_t trigger) {
        const int64_t distance = std::llabs(trigger - from);
        if (!first || distance < first->distance)
            first = Event{kind, position, distance};
    };

    const bool homing = activity_ == Activity::Home;
    // Past its signal a home leg only ramps down; the next leg looks again.
    const bool seeking =
        homing && !stopping_ && !homeSearch_.finished() && !homeSearch_.current().offset;
    if (seeking) {
        const HomeSearch::Leg& leg = homeSearch_.current();
        if (const auto t =
                sensors_.firstTransition(leg.signal, from, to, leg.wantActive, parameters_))
            consider(EventKind::Leg, *t, *t);
    }
    const Signal ahead = AxisSensors::limit(dir);
    if (!(seeking && homeSearch_.current().signal == ahead)) {
        if (const auto t = sensors_.firstTransition(ahead, from, to, true, parameters_))
            consider(dir > 0 ? EventKind::LimitPlus : EventKind::LimitMinus, *t, *t);
    }
    if (!homing && p(Id::SlmtUse) != 0) {
        const int64_t c0 = compared(from);
        const int64_t c1 = compared(to);
        const int64_t plus = p(Id::SlmtPlus);
        const int64_t minus = p(Id::SlmtMinus);
        // The first position past the limit; the axis stays on the last one before it.
        auto firstPast = [&](auto past) {
            int64_t lo = from;
            int64_t hi = to;
            while (std::llabs(hi - lo) > 1) {
                const int64_t mid = lo + (hi - lo) / 2;
                (past(compared(mid)) ? hi : lo) = mid;
            }
            return hi;
        };
        if (c1 > c0 && c1 > plus && c0 <= plus) {
            const int64_t q = firstPast([plus](int64_t c) { return c > plus; });
            consider(EventKind::SoftPlus, q - dir, q);
        }
        if (c1 < c0 && c1 < minus && c0 >= minus) {
            const int64_t q = firstPast([minus](int64_t c) { return c < minus; });
            consider(EventKind::SoftMinus, q - dir, q);
        }
    }
    return first;
}

void SimAxis::takeEvent(const Event& e, int64_t next)
{
    switch (e.kind) {
    case EventKind::LimitPlus:
    case EventKind::LimitMinus:
        onLimit(e.kind, e.position, next);
        return;
    case EventKind::SoftPlus:
    case EventKind::SoftMinus:
        machine_ = e.position;
        exact_ = static_cast<double>(e.position);
        finish(e.kind == EventKind::SoftPlus ? StopCode::PlusSoftLimit : StopCode::MinusSoftLimit);
        return;
    case EventKind::Leg: {
        const HomeSearch::Leg& leg = homeSearch_.current();
        homeStopBits_ = 0;
        switch (leg.signal) {
        case Signal::Org:
            homeStopBits_ = DriveBit::StopOrg;
            break;
        case Signal::Z:
            homeStopBits_ = DriveBit::StopEz;
            break;
        case Signal::LimitPlus:
            homeStopBits_ = DriveBit::StopLimitPlus;
            break;
        case Signal::LimitMinus:
            homeStopBits_ = DriveBit::StopLimitMinus;
            break;
        }
        // A limit met at speed stops as the limit stop mode says, whatever the search.
        const bool onLimit = leg.signal == Signal::LimitPlus || leg.signal == Signal::LimitMinus;
        if (leg.rampDown && !(onLimit && p(Id::HlmtStop) != 1)) {
            machine_ = next;
            exact_ = static_cast<double>(next);
            rampDown(AfterRamp::NextLeg, StopCode::None, 0);
        } else {
            machine_ = e.position;
            exact_ = static_cast<double>(e.position);
            homeSearch_.advance();
            startLeg();
        }
        return;
    }
    }
}

void SimAxis::onLimit(EventKind kind, int64_t position, int64_t next)
{
    const bool plus = kind == EventKind::LimitPlus;
    int32_t code = plus ? StopCode::PlusLimit : StopCode::MinusLimit;
    const bool slowDown = p(Id::HlmtStop) == 1;
    const bool moving = next != position;
    // In an origin search a limit only turns the search round.
    if (activity_ == Activity::Home && homeSearch_.searchesOrigin()) {
        if (homeSearch_.reverse()) {
            if (slowDown && moving) {
                machine_ = next;
                exact_ = static_cast<double>(next);
                rampDown(AfterRamp::StartLeg, StopCode::None, 0);
            } else {
                machine_ = position;
                exact_ = static_cast<double>(position);
                startLeg();
            }
            return;
        }
        code = StopCode::Other; // no origin between the limits
    }
    if (slowDown && moving) {
        machine_ = next;
        exact_ = static_cast<double>(next);
        if (stopping_)
            redirectRamp(code); // already slowing down: the ramp goes on, its end changes
        else
            rampDown(AfterRamp::Finish, code, 0);
    } else {
        machine_ = position;
        exact_ = static_cast<double>(position);
        finish(code);
    }
}

} // namespace nrxsim
