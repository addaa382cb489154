#include "SeededScatter.h"

namespace nrxsim {

uint64_t SeededScatter::next()
{
    // splitmix64: small, fast and the same everywhere, unlike the standard distributions.
    uint64_t z = (state_ += 0x9E3779B97F4A7C15ULL);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31);
}

int64_t SeededScatter::within(int64_t bound)
{
    if (bound <= 0)
        return 0;
    const uint64_t span = static_cast<uint64_t>(bound) * 2 + 1;
    return static_cast<int64_t>(next() % span) - bound;
}

} // namespace nrxsim
