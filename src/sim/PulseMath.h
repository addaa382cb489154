#pragma once

#include <cstdint>

// Integer arithmetic on pulse positions that the axis classes share.
namespace nrxsim::pulse {

// Rounds towards minus infinity, so sensor marks and encoder counts repeat evenly
// on both sides of zero.
inline int64_t floorDiv(int64_t a, int64_t b)
{
    int64_t q = a / b;
    if ((a % b != 0) && ((a < 0) != (b < 0)))
        --q;
    return q;
}

inline int64_t floorMod(int64_t a, int64_t b)
{
    return a - floorDiv(a, b) * b;
}

// Counters are 32-bit on the board: they wrap like one.
inline int32_t wrap32(int64_t v)
{
    return static_cast<int32_t>(static_cast<uint32_t>(static_cast<uint64_t>(v)));
}

} // namespace nrxsim::pulse
