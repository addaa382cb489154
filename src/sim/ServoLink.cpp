#include "ServoLink.h"

namespace nrxsim {

namespace {
// Pulse widths of the time codes in whole milliseconds, at least one tick.
constexpr int64_t CounterClearMs[8] = {1, 1, 1, 1, 1, 2, 10, 20};
} // namespace

void ServoLink::setAlarmReset(bool on)
{
    alarmReset_ = on;
    if (on)
        latchedAlarm_ = false;
}

void ServoLink::pulseCounterClear(int64_t nowMs, int32_t timeCode)
{
    counterClearUntil_ = nowMs + CounterClearMs[timeCode & 7];
}

void ServoLink::switchOff()
{
    servoOn_ = false;
    servoRun_ = false;
    alarmReset_ = false;
    counterClearUntil_ = 0;
}

} // namespace nrxsim
