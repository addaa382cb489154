#include "AxisCounters.h"

#include "PulseMath.h"

namespace nrxsim {

namespace {

using Id = AxisParameters::Id;

int32_t ringed(int64_t raw, bool use, int32_t ring)
{
    return pulse::wrap32(use && ring > 0 ? pulse::floorMod(raw, ring) : raw);
}

} // namespace

void AxisCounters::zeroAt(int64_t machine, int64_t encoder)
{
    commandOffset_ = -machine;
    actualBase_ = 0;
    encoderRef_ = encoder;
}

int AxisCounters::encoderSign(const AxisParameters& p)
{
    return p[Id::EncoderDir] == 1 ? -1 : 1;
}

int AxisCounters::encoderDivisor(const AxisParameters& p)
{
    // One count per command pulse at x4; x2 and x1 count every second and fourth.
    switch (p[Id::EncoderMode]) {
    case 1:
        return 2;
    case 2:
        return 4;
    default:
        return 1;
    }
}

int64_t AxisCounters::actual(int64_t machine, const AxisParameters& p) const
{
    const int div = encoderDivisor(p);
    return actualBase_ +
           encoderSign(p) * (pulse::floorDiv(machine, div) - pulse::floorDiv(encoderRef_, div));
}

int64_t AxisCounters::compared(int64_t machine, const AxisParameters& p) const
{
    return p[Id::CompCountMode] == 1 ? actual(machine, p) : command(machine);
}

int32_t AxisCounters::commandReading(int64_t machine, const AxisParameters& p) const
{
    return ringed(command(machine), p[Id::RingUse] != 0, p[Id::RingCommand]);
}

int32_t AxisCounters::actualReading(int64_t machine, const AxisParameters& p) const
{
    return ringed(actual(machine, p), p[Id::RingUse] != 0, p[Id::RingActual]);
}

void AxisCounters::setActual(int32_t value, int64_t machine)
{
    actualBase_ = value;
    encoderRef_ = machine;
}

void AxisCounters::rebase(int64_t machine, const AxisParameters& p)
{
    actualBase_ = actual(machine, p);
    encoderRef_ = machine;
}

} // namespace nrxsim
