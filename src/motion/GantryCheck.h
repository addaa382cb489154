#pragma once

#include <cstdint>
#include <vector>

// The deviation test between neighbouring axes of a gantry: each axis against the next, the
// last against the first. A deviation equal to the limit passes.
class GantryCheck
{
public:
    // Index i of the first pair (i, i + 1 wrapping to 0) whose deviation exceeds the limit, or
    // -1 when every pair is within it.
    static int firstPairOverLimit(const std::vector<std::int32_t>& positions, std::int32_t limit);
};
