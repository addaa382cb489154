#pragma once

#include "AxisParameters.h"

#include <cstdint>

namespace nrxsim {

// The command and actual counters of one axis, kept as offsets from its machine position.
class AxisCounters
{
public:
    explicit AxisCounters(int64_t machine) { zeroAt(machine, machine); }

    // Both counters read 0: the command with the axis at `machine`, the actual with its
    // encoder at `encoder`.
    void zeroAt(int64_t machine, int64_t encoder);
    int64_t command(int64_t machine) const { return machine + commandOffset_; }
    int64_t actual(int64_t machine, const AxisParameters& p) const;
    // The counter the comparators and soft limits watch.
    int64_t compared(int64_t machine, const AxisParameters& p) const;
    // What the counters read: 32-bit, and on the ring while the ring is in use.
    int32_t commandReading(int64_t machine, const AxisParameters& p) const;
    int32_t actualReading(int64_t machine, const AxisParameters& p) const;

    void setCommand(int32_t value, int64_t machine) { commandOffset_ = value - machine; }
    void setActual(int32_t value, int64_t machine);
    // Call before the encoder set-up changes, so the actual counter keeps its value.
    void rebase(int64_t machine, const AxisParameters& p);

    // -1 when the encoder counts against the command direction.
    static int encoderSign(const AxisParameters& p);

private:
    static int encoderDivisor(const AxisParameters& p);

    int64_t commandOffset_ = 0;
    int64_t actualBase_ = 0;
    int64_t encoderRef_ = 0;
};

} // namespace nrxsim
