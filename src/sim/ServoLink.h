#pragma once

#include <cstdint>

namespace nrxsim {

// The outputs one axis drives to its servo amplifier, and the alarm the amplifier latches.
class ServoLink
{
public:
    bool servoOn() const { return servoOn_; }
    void setServoOn(bool on) { servoOn_ = on; }
    bool servoRun() const { return servoRun_; }
    void setServoRun(bool on) { servoRun_ = on; }
    bool alarmReset() const { return alarmReset_; }
    // Asserting the reset clears a latched alarm.
    void setAlarmReset(bool on);
    bool latchedAlarm() const { return latchedAlarm_; }
    void setLatchedAlarm(bool on) { latchedAlarm_ = on; }

    // One counter-clear pulse as long as the time code says (0..7 = 0.01 .. 20 ms).
    void pulseCounterClear(int64_t nowMs, int32_t timeCode);
    bool counterClearOutput(int64_t nowMs) const { return nowMs < counterClearUntil_; }

    // All outputs off; a latched alarm stays, as it is the amplifier's.
    void switchOff();

private:
    bool servoOn_ = false;
    bool servoRun_ = false;
    bool alarmReset_ = false;
    bool latchedAlarm_ = false;
    int64_t counterClearUntil_ = 0;
};

} // namespace nrxsim
