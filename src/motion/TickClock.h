#pragma once

#include <cstdint>

// A monotonic millisecond counter that wraps at 32 bits, read for the cycle time.
class TickClock
{
public:
    virtual ~TickClock() = default;
    virtual std::uint32_t tickCount() const = 0;
};
