#include "SimAxis.h"

#include "SimConstants.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace nrxsim {

namespace {

int64_t floorDiv(int64_t a, int64_t b)
{
    int64_t q = a / b;
    if ((a % b != 0) && ((a < 0) != (b < 0)))
        --q;
    return q;
}

int64_t floorMod(int64_t a, int64_t b)
{
    return a - floorDiv(a, b) * b;
}

// Counters are 32-bit on the board: they wrap like one.
int32_t wrap32(int64_t v)
{
    return static_cast<int32_t>(static_cast<uint32_t>(static_cast<uint64_t>(v)));
}

int32_t ringed(int64_t raw, bool use, int32_t ring)
{
    return wrap32(use && ring > 0 ? floorMod(raw, ring) : raw);
}

uint16_t errorBitFor(int32_t code)
{
    switch (code) {
    case StopCode::PlusSoftLimit:
        return ErrorBit::PlusSoftLimit;
    case StopCode::MinusSoftLimit:
        return ErrorBit::MinusSoftLimit;
    case StopCode::PlusLimit:
        return ErrorBit::PlusLimit;
    case StopCode::MinusLimit:
        return ErrorBit::MinusLimit;
    case StopCode::Alarm:
        return ErrorBit::Alarm;
    case StopCode::Emergency:
        return ErrorBit::Emergency;
    case StopCode::ZAlreadyActive:
        return ErrorBit::ZAlreadyActive;
    default:
        return code < 0 ? ErrorBit::Other : 0;
    }
}

// Counter-clear pulse widths of the time codes 0..7 (0.01 .. 20 ms), at least one tick.
constexpr int64_t CounterClearMs[8] = {1, 1, 1, 1, 1, 2, 10, 20};

HomeSearch::Signal limitSignal(int direction)
{
    return direction > 0 ? HomeSearch::Signal::LimitPlus : HomeSearch::Signal::LimitMinus;
}

} // namespace

SimAxis::SimAxis(const BoardSetup::Axis& wiring, bool rn)
    : wiring_(wiring), rn_(rn), machine_(wiring.start), exact_(static_cast<double>(wiring.start)),
      commandOffset_(-wiring.start), encoderRef_(wiring.start)
{}

void SimAxis::setParameter(Id id, int32_t value)
{
    // The actual counter keeps its value when the encoder is set up differently.
    if (id == Id::EncoderMode || id == Id::EncoderDir)
        rebaseEncoder();
    parameters_.set(id, value);
}

void SimAxis::restoreDefaults()
{
    rebaseEncoder();
    parameters_.restoreDefaults();
}

void SimAxis::reset()
{
    activity_ = Activity::Idle;
    stopping_ = false;
    unitSpeed_ = 0.0;
    profileBits_ = 0;
    target_.reset();
    group_ = 0;
    clearLatches();
    homeOk_ = false;
    exact_ = static_cast<double>(machine_);
    commandOffset_ = -machine_;
    actualBase_ = 0;
    encoderRef_ = machine_;
    servoOn = false;
    servoRun = false;
    alarmReset_ = false;
    counterClearUntil_ = 0;
}

void SimAxis::clearLatches()
{
    errorCode_ = 0;
    stopBits_ = 0;
    errorBits_ = 0;
    homeStopBits_ = 0;
    groupEvent_ = GroupEvent::None;
}

SpeedProfile SimAxis::speedFor(int32_t initial, int32_t drive, int32_t accel, int32_t decel) const
{
    SpeedProfile::Request r;
    r.initial = initial;
    r.drive = drive;
    r.accelMs = accel;
    r.decelMs = decel;
    r.shape = p(Id::SpeedMode) == 1 ? SpeedProfile::Shape::SCurve : SpeedProfile::Shape::Trapezoid;
    // A magnification of 0 is read as 100, like a fresh board.
    r.range = p(Id::RangeMode) == 0 ? 100 : p(Id::RangeMode);
    r.fixedRange = p(Id::FixedRange) != 0;
    return SpeedProfile(r);
}

SpeedProfile SimAxis::homeSpeed(bool fast) const
{
    const int32_t low = p(Id::HomeLow);
    return speedFor(low, fast ? p(Id::HomeHigh) : low, p(Id::HomeAccDec), p(Id::HomeAccDec));
}

// ---- signals and counters -------------------------------------------------------------

bool SimAxis::signalActive(HomeSearch::Signal s, int64_t position) const
{
    bool actuated = false;
    int wiring = 0;
    int32_t board = 0;
    switch (s) {
    case HomeSearch::Signal::Org:
        actuated = std::llabs(position - wiring_.origin) <= wiring_.originWidth / 2;
        wiring = wiring_.originLevel;
        board = p(Id::Org);
        break;
    case HomeSearch::Signal::LimitPlus:
        actuated = position >= wiring_.plusLimit;
        wiring = wiring_.limitLevel;
        board = p(Id::HlmtLevel);
        break;
    case HomeSearch::Signal::LimitMinus:
        actuated = position <= wiring_.minusLimit;
        wiring = wiring_.limitLevel;
        board = p(Id::HlmtLevel);
        break;
    case HomeSearch::Signal::Z:
        actuated =
            wiring_.zPeriod > 0 && floorMod(position - wiring_.zOffset, wiring_.zPeriod) == 0;
        wiring = wiring_.zLevel;
        board = p(Id::EncoderZ);
        break;
    }
    // A board set to the other level than the wiring reads the switch inverted.
    return actuated != (wiring != (board != 0));
}

std::optional<int64_t> SimAxis::firstTransition(HomeSearch::Signal s, int64_t from, int64_t to,
                                                bool want) const
{
    const int dir = to > from ? 1 : -1;
    int64_t candidates[4];
    int n = 0;
    auto add = [&](int64_t c) { candidates[n++] = c; };
    switch (s) {
    case HomeSearch::Signal::LimitPlus:
        add(dir > 0 ? wiring_.plusLimit : wiring_.plusLimit - 1);
        break;
    case HomeSearch::Signal::LimitMinus:
        add(dir > 0 ? wiring_.minusLimit + 1 : wiring_.minusLimit);
        break;
    case HomeSearch::Signal::Org: {
        const int64_t lo = wiring_.origin - wiring_.originWidth / 2;
        const int64_t hi = wiring_.origin + wiring_.originWidth / 2;
        add(dir > 0 ? lo : hi);
        add(dir > 0 ? hi + 1 : lo - 1);
        break;
    }
    case HomeSearch::Signal::Z: {
        const int64_t period = wiring_.zPeriod;
        if (period <= 0)
            break;
        // The first mark ahead, the one before it (leaving it) and the step past it.
        const int64_t mark = dir > 0 ? from + 1 + floorMod(wiring_.zOffset - (from + 1), period)
                                     : from - 1 - floorMod(from - 1 - wiring_.zOffset, period);
        add(mark - dir * period + dir);
        add(mark);
        add(mark + dir);
        break;
    }
    }
    std::sort(candidates, candidates + n,
              [from](int64_t a, int64_t b) { return std::llabs(a - from) < std::llabs(b - from); });
    for (int i = 0; i < n; ++i) {
        const int64_t c = candidates[i];
        const bool inPath = dir > 0 ? (c > from && c <= to) : (c < from && c >= to);
        if (inPath && signalActive(s, c) == want && signalActive(s, c - dir) != want)
            return c;
    }
    return std::nullopt;
}

int SimAxis::encoderSign() const
{
    return p(Id::EncoderDir) == 1 ? -1 : 1;
}

int SimAxis::encoderDivisor() const
{
    // One count per command pulse at x4; x2 and x1 count every second and fourth.
    switch (p(Id::EncoderMode)) {
    case 1:
        return 2;
    case 2:
        return 4;
    default:
        return 1;
    }
}

int64_t SimAxis::actualRaw(int64_t position) const
{
    const int div = encoderDivisor();
    return actualBase_ + encoderSign() * (floorDiv(position, div) - floorDiv(encoderRef_, div));
}

void SimAxis::rebaseEncoder()
{
    actualBase_ = actualRaw(machine_);
    encoderRef_ = machine_;
}

int64_t SimAxis::counterAt(int64_t position) const
{
    return p(Id::CompCountMode) == 1 ? actualRaw(position) : position + commandOffset_;
}

int32_t SimAxis::commandPosition() const
{
    return ringed(commandRaw(), p(Id::RingUse) != 0, p(Id::RingCommand));
}

int32_t SimAxis::actualPosition() const
{
    return ringed(actualRaw(machine_), p(Id::RingUse) != 0, p(Id::RingActual));
}

void SimAxis::setCommandPosition(int32_t value)
{
    commandOffset_ = value - machine_;
}

void SimAxis::setActualPosition(int32_t value)
{
    actualBase_ = value;
    encoderRef_ = machine_;
}

int32_t SimAxis::commandSpeed() const
{
    if (!isMoving())
        return 0;
    return static_cast<int32_t>(std::llround(std::fabs(scale_) * unitSpeed_));
}

bool SimAxis::alarmActive(const Lines& lines) const
{
    const bool raw = latchedAlarm_ || lines.alarmLine;
    return raw != (wiring_.alarmLevel != (p(Id::SvAlmLevel) != 0));
}

bool SimAxis::limitActive(int direction) const
{
    return signalActive(limitSignal(direction), machine_);
}

bool SimAxis::compareActive(int direction) const
{
    const int64_t counter = counterAt(machine_);
    return direction > 0 ? counter >= p(Id::SlmtPlus) : counter <= p(Id::SlmtMinus);
}

void SimAxis::setAlarmReset(bool on)
{
    alarmReset_ = on;
    if (on)
        latchedAlarm_ = false;
}

void SimAxis::pulseCounterClear(int64_t nowMs)
{
    counterClearUntil_ = nowMs + CounterClearMs[p(Id::SvCClrTime) & 7];
}

// ---- status words -----------------------------------------------------------------------

uint16_t SimAxis::cardStatus(const Lines& lines, int64_t nowMs) const
{
    const bool settled = !isMoving();
    const bool inpos = settled != (wiring_.inposLevel != (p(Id::SvInposLevel) != 0));
    uint16_t w = 0;
    w |= signalActive(HomeSearch::Signal::Org, machine_) ? CardBit::Org : 0;
    w |= signalActive(HomeSearch::Signal::Z, machine_) ? CardBit::Ez : 0;
    w |= lines.emergency ? CardBit::Emg : 0;
    w |= inpos ? CardBit::Inp : 0;
    w |= alarmActive(lines) ? CardBit::Alm : 0;
    w |= limitActive(1) ? CardBit::LimitPlus : 0;
    w |= limitActive(-1) ? CardBit::LimitMinus : 0;
    w |= isMoving() ? CardBit::Run : 0;
    w |= errorCode_ < 0 ? CardBit::Err : 0;
    w |= isHoming() ? CardBit::Home : 0;
    w |= homeOk_ ? CardBit::HomeOk : 0;
    w |= rn_ && isMoving() && group_ != 0 ? CardBit::InterpolationRun : 0;
    w |= counterClearOutput(nowMs) ? CardBit::CounterClear : 0;
    w |= servoOn ? CardBit::ServoOn : 0;
    w |= alarmReset_ ? CardBit::AlarmReset : 0;
    return w;
}

uint16_t SimAxis::driveStatus() const
{
    uint16_t w = stopBits_;
    w |= compareActive(1) ? DriveBit::ComparePlus : 0;
    w |= compareActive(-1) ? DriveBit::CompareMinus : 0;
    if (isMoving())
        w |= profileBits_;
    return w;
}

uint16_t SimAxis::inputBits(const Lines& lines) const
{
    const bool alarm = alarmActive(lines);
    const bool inpos = !isMoving() != (wiring_.inposLevel != (p(Id::SvInposLevel) != 0));
    uint16_t w = 0;
    w |= servoOn && !alarm ? InputBit::Ready : 0;
    w |= signalActive(HomeSearch::Signal::Org, machine_) ? InputBit::Org : 0;
    w |= signalActive(HomeSearch::Signal::Z, machine_) ? InputBit::Ez : 0;
    w |= lines.emergency ? InputBit::Emg : 0;
    w |= limitActive(1) ? InputBit::LimitPlus : 0;
    w |= limitActive(-1) ? InputBit::LimitMinus : 0;
    w |= inpos ? InputBit::Inp : 0;
    w |= alarm ? InputBit::Alm : 0;
    return w;
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
        const int64_t counter = counterAt(machine_);
        const int counterDir = direction * (p(Id::CompCountMode) == 1 ? encoderSign() : 1);
        if (counterDir > 0 && counter >= p(Id::SlmtPlus))
            return StopCode::PlusSoftLimit;
        if (counterDir < 0 && counter <= p(Id::SlmtMinus))
            return StopCode::MinusSoftLimit;
    }
    return StopCode::None;
}

uint16_t SimAxis::stopBitsFor(int32_t code) const
{
    switch (code) {
    case StopCode::Emergency:
        return DriveBit::StopEmergency | (rn_ ? DriveBit::StopInput : 0);
    case StopCode::Alarm:
        return DriveBit::StopAlarm;
    case StopCode::PlusLimit:
        return DriveBit::StopLimitPlus;
    case StopCode::MinusLimit:
        return DriveBit::StopLimitMinus;
    default:
        return 0;
    }
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
    target_.reset();
    const auto s = profile_.at(0.0);
    unitSpeed_ = s.speed;
    profileBits_ = s.driveBits;
}

SpeedProfile SimAxis::positionSpeed() const
{
    return speedFor(p(Id::PosInitial), p(Id::PosDrive), p(Id::PosAccel), p(Id::PosDecel));
}

bool SimAxis::moveBy(int64_t distance, const Lines& lines)
{
    if (isMoving())
        return false;
    clearLatches();
    group_ = 0;
    if (distance == 0)
        return true;
    const int dir = distance > 0 ? 1 : -1;
    if (const int32_t code = startCode(dir, lines)) {
        finish(code);
        return true;
    }
    const SpeedProfile speed = positionSpeed();
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
    group_ = 0;
    const int dir = direction != 0 ? 1 : -1;
    if (const int32_t code = startCode(dir, lines)) {
        finish(code);
        return true;
    }
    const SpeedProfile speed =
        speedFor(p(Id::JogInitial), p(Id::JogDrive), p(Id::JogAccel), p(Id::JogAccel));
    begin(Activity::Jog, MotionProfile::endless(speed), speed, dir);
    return true;
}

bool SimAxis::follow(const MotionProfile& profile, const SpeedProfile& speed, double ratio,
                     int64_t distance, int group, const Lines& lines)
{
    if (isMoving())
        return false;
    clearLatches();
    group_ = group;
    if (distance != 0) {
        if (const int32_t code = startCode(distance > 0 ? 1 : -1, lines)) {
            finish(code);
            return true;
        }
    }
    begin(Activity::Move, profile, speed, ratio);
    target_ = machine_ + distance;
    return true;
}

bool SimAxis::home(const Lines& lines)
{
    if (isMoving())
        return false;
    clearLatches();
    group_ = 0;
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
            const SpeedProfile speed = homeSpeed(true);
            begin(Activity::Home,
                  MotionProfile::positioning(std::fabs(static_cast<double>(offset)), speed), speed,
                  offset > 0 ? 1 : -1);
            target_ = machine_ + offset;
            return;
        }
        if (signalActive(leg.signal, machine_) == leg.wantActive) {
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
        const HomeSearch::Signal ahead = limitSignal(leg.direction);
        if (leg.signal != ahead && signalActive(ahead, machine_)) {
            onLimit(leg.direction > 0 ? EventKind::LimitPlus : EventKind::LimitMinus, machine_,
                    machine_);
            return;
        }
        const SpeedProfile speed = homeSpeed(leg.fast);
        begin(Activity::Home, MotionProfile::endless(speed), speed, leg.direction);
        return;
    }
}

void SimAxis::completeHome()
{
    commandOffset_ = -machine_;
    actualBase_ = 0;
    encoderRef_ = machine_;
    homeOk_ = true;
    finish(StopCode::None, homeStopBits_);
}

void SimAxis::decelStop()
{
    if (!isMoving() || (stopping_ && afterRamp_ == AfterRamp::Finish))
        return;
    rampDown(AfterRamp::Finish, StopCode::None, 0);
}

void SimAxis::suddenStop()
{
    if (isMoving())
        finish(StopCode::None);
}

void SimAxis::abortFromGroup(bool ramp)
{
    if (!isMoving())
        return;
    if (ramp)
        rampDown(AfterRamp::Finish, StopCode::Other, 0);
    else
        finish(StopCode::Other);
    groupEvent_ = GroupEvent::None; // this stop answers the group; it raises no event
}

SimAxis::GroupEvent SimAxis::takeGroupEvent()
{
    const GroupEvent e = groupEvent_;
    groupEvent_ = GroupEvent::None;
    return e;
}

void SimAxis::rampDown(AfterRamp after, int32_t code, uint16_t stopBits)
{
    afterRamp_ = after;
    pendingCode_ = code;
    pendingStopBits_ = stopBits;
    if (group_ != 0 && code < 0)
        groupEvent_ = GroupEvent::RampDown;
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
    if (group_ != 0)
        groupEvent_ = GroupEvent::RampDown;
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
    const bool wasHome = activity_ == Activity::Home;
    activity_ = Activity::Idle;
    stopping_ = false;
    unitSpeed_ = 0.0;
    profileBits_ = 0;
    target_.reset();
    exact_ = static_cast<double>(machine_);
    errorCode_ = code;
    stopBits_ = stopBits | stopBitsFor(code);
    errorBits_ = errorBitFor(code);
    if (code < 0 && wasHome)
        errorBits_ |= ErrorBit::DuringHome;
    if (group_ != 0 && code < 0 && groupEvent_ == GroupEvent::None)
        groupEvent_ = GroupEvent::Sudden;
}

// ---- stepping ---------------------------------------------------------------------------

void SimAxis::step(const Lines& lines)
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
        if (const auto t = firstTransition(leg.signal, from, to, leg.wantActive))
            consider(EventKind::Leg, *t, *t);
    }
    const HomeSearch::Signal ahead = limitSignal(dir);
    if (!(seeking && homeSearch_.current().signal == ahead)) {
        if (const auto t = firstTransition(ahead, from, to, true))
            consider(dir > 0 ? EventKind::LimitPlus : EventKind::LimitMinus, *t, *t);
    }
    if (!homing && p(Id::SlmtUse) != 0) {
        const int64_t c0 = counterAt(from);
        const int64_t c1 = counterAt(to);
        const int64_t plus = p(Id::SlmtPlus);
        const int64_t minus = p(Id::SlmtMinus);
        // The first position past the limit; the axis stays on the last one before it.
        auto firstPast = [&](auto past) {
            int64_t lo = from;
            int64_t hi = to;
            while (std::llabs(hi - lo) > 1) {
                const int64_t mid = lo + (hi - lo) / 2;
                (past(counterAt(mid)) ? hi : lo) = mid;
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
        case HomeSearch::Signal::Org:
            homeStopBits_ = DriveBit::StopOrg;
            break;
        case HomeSearch::Signal::Z:
            homeStopBits_ = DriveBit::StopEz;
            break;
        case HomeSearch::Signal::LimitPlus:
            homeStopBits_ = DriveBit::StopLimitPlus;
            break;
        case HomeSearch::Signal::LimitMinus:
            homeStopBits_ = DriveBit::StopLimitMinus;
            break;
        }
        if (leg.rampDown) {
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
