#pragma once

#include "AxisCounters.h"
#include "AxisMotor.h"
#include "AxisParameters.h"
#include "AxisSensors.h"
#include "BoardSetup.h"
#include "HomeSearch.h"
#include "MotionProfile.h"
#include "SeededScatter.h"
#include "ServoLink.h"
#include "SpeedProfile.h"

#include <cstdint>
#include <optional>

namespace nrxsim {

// One simulated axis: the pulse generator and its stops, stepped per millisecond.
class SimAxis
{
public:
    // Signals the axis gets from its card.
    struct Lines
    {
        bool emergency = false; // the card's EMG input, as the board reads it
        bool alarmLine = false; // the alarm line from the wiring (constant or an output)
    };

    // `seed` makes the axis's simulated scatter repeat from run to run.
    SimAxis(const BoardSetup::Axis& wiring, bool rn, uint64_t seed);

    const AxisParameters& parameters() const { return parameters_; }
    void setParameter(AxisParameters::Id id, int32_t value);
    void restoreDefaults();
    // Stops at once and clears counters, errors, home state and outputs.
    void reset();

    // Motion starts; false when the axis is busy. A start that a signal forbids is taken
    // and ends at once with that signal's stop code.
    bool moveBy(int64_t distance, const Lines& lines);
    bool moveTo(int32_t target, const Lines& lines);
    bool jog(int direction, const Lines& lines);
    bool home(const Lines& lines);
    void decelStop();
    void suddenStop();

    // One millisecond of motion.
    void step(const Lines& lines);

    bool isMoving() const { return activity_ != Activity::Idle; }
    // Moving, or the motor still on its way: the card steps it.
    bool isActive() const { return isMoving() || motor_.busy(); }
    // Checks run before a start; 0 when the axis may move in `direction`.
    int32_t startCode(int direction, const Lines& lines) const;

    int32_t commandPosition() const;
    int32_t actualPosition() const;
    void setCommandPosition(int32_t value) { counters_.setCommand(value, machine_); }
    void setActualPosition(int32_t value) { counters_.setActual(value, restingEncoder()); }
    int32_t commandSpeed() const;
    int64_t machinePosition() const { return machine_; }
    // Where the encoder is: behind the command by the servo's following error while moving,
    // and short of it by what the axis slipped.
    int64_t encoderPosition() const { return motor_.encoder(); }
    int32_t errorCode() const { return errorCode_; }
    bool homed() const { return homeOk_; }
    bool isHoming() const { return activity_ == Activity::Home; }
    // The motion just started belongs to a multi-axis move (RN's I-RUN).
    void markMultiAxis() { multiAxis_ = isMoving(); }
    bool inMultiAxisMove() const { return multiAxis_ && isMoving(); }

    // What the status words are made of.
    uint16_t stopBits() const { return stopBits_; }
    uint16_t errorBits() const { return errorBits_; }
    uint16_t profileBits() const { return isMoving() ? profileBits_ : 0; }
    bool senses(HomeSearch::Signal s) const { return sensors_.active(s, machine_, parameters_); }
    bool inPosition() const
    {
        return sensors_.inPosition(pulsesStopped() && motor_.inPosition(), parameters_);
    }
    bool pulsesStopped() const { return !isMoving() || settling_; }
    bool alarmActive(const Lines& lines) const;
    bool limitActive(int direction) const { return senses(AxisSensors::limit(direction)); }
    bool compareActive(int direction) const;

    // The servo-on output; an axis that needs it holds its encoder while it is off.
    void setServoOn(bool on);
    // Faults switched from outside while running.
    void forceSwitch(HomeSearch::Signal s, bool on) { sensors_.setForced(s, on); }
    void setInposStuck(int how) { sensors_.setInposStuck(how); }
    void setEncoderLost(bool lost) { motor_.setEncoderLost(lost); }
    bool switchForced(HomeSearch::Signal s) const { return sensors_.forced(s); }
    int inposStuck() const { return sensors_.inposStuck(); }
    bool encoderLost() const { return motor_.encoderLost(); }
    ServoLink& servo() { return servo_; }
    const ServoLink& servo() const { return servo_; }

private:
    enum class Activity
    {
        Idle,
        Move,
        Jog,
        Home
    };
    enum class AfterRamp
    {
        Finish,
        NextLeg,
        StartLeg
    };
    enum class EventKind
    {
        LimitPlus,
        LimitMinus,
        SoftPlus,
        SoftMinus,
        Leg
    };
    struct Event
    {
        EventKind kind;
        int64_t position; // where the axis is when it takes the event
        int64_t distance; // from the step's start, to pick the first
    };

    using Id = AxisParameters::Id;
    int32_t p(Id id) const { return parameters_[id]; }
    int64_t compared(int64_t position) const { return counters_.compared(position, parameters_); }

    void begin(Activity activity, const MotionProfile& profile, const SpeedProfile& speed,
               double scale);
    std::optional<Event> firstEvent(int64_t from, int64_t to) const;
    void takeEvent(const Event& e, int64_t next);
    void onLimit(EventKind kind, int64_t position, int64_t next);
    void rampDown(AfterRamp after, int32_t code, uint16_t stopBits);
    void redirectRamp(int32_t code);
    void profileFinished();
    void finish(int32_t code, uint16_t stopBits = 0);
    void startLeg();
    void clearLatches();
    void completeHome();
    void advanceOneMs(const Lines& lines);
    void end(int32_t code, uint16_t stopBits);
    void awaitInPosition(const Lines& lines);
    bool forcedSwitchStops();
    int64_t restingEncoder() const { return motor_.resting(machine_); }

    AxisSensors sensors_;
    bool rn_ = false;
    AxisParameters parameters_;
    AxisCounters counters_;
    ServoLink servo_;

    Activity activity_ = Activity::Idle;
    MotionProfile profile_;
    std::optional<SpeedProfile> speed_;
    double scale_ = 1.0;
    double origin_ = 0.0;
    int64_t tick_ = 0;
    bool stopping_ = false;
    bool multiAxis_ = false;
    AfterRamp afterRamp_ = AfterRamp::Finish;
    int32_t pendingCode_ = 0;
    uint16_t pendingStopBits_ = 0;
    std::optional<int64_t> target_;
    double unitSpeed_ = 0.0;
    uint16_t profileBits_ = 0;
    HomeSearch homeSearch_;
    SeededScatter homeScatter_;
    uint16_t homeStopBits_ = 0;

    int64_t machine_ = 0;
    double exact_ = 0.0;

    AxisMotor motor_;
    // With in-position use on, a move's end waits here for INP.
    bool settling_ = false;
    int64_t settleMs_ = 0;
    int64_t settleTimeoutMs_ = 0;
    uint16_t settleStopBits_ = 0;

    int32_t errorCode_ = 0;
    uint16_t stopBits_ = 0;
    uint16_t errorBits_ = 0;
    bool homeOk_ = false;
};

} // namespace nrxsim
