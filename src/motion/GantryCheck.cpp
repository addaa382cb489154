#include "GantryCheck.h"

int GantryCheck::firstPairOverLimit(const std::vector<std::int32_t>& positions, std::int32_t limit)
{
    const std::size_t count = positions.size();
    if (count < 2)
        return -1;
    for (std::size_t i = 0; i < count; ++i) {
        // 64 bits: two positions far apart on a 32-bit counter still compare correctly.
        const std::int64_t difference = static_cast<std::int64_t>(positions[i]) -
                                        static_cast<std::int64_t>(positions[(i + 1) % count]);
        if ((difference < 0 ? -difference : difference) > limit)
            return static_cast<int>(i);
    }
    return -1;
}
