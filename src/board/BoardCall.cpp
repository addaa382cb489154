#include "BoardCall.h"

#include <cstring>

namespace {
// The parameter names as the contract lists them, to spot "card" and "axis".
bool namesStartWith(const char* argNames, const char* prefix)
{
    return std::strncmp(argNames, prefix, std::strlen(prefix)) == 0;
}
} // namespace

int BoardCall::card() const
{
    return valueCount > 0 && namesStartWith(info().argNames, "(card") ? values[0] : -1;
}

int BoardCall::axis() const
{
    return valueCount > 1 && namesStartWith(info().argNames, "(card, axis") ? values[1] : -1;
}

bool BoardCall::involvesAxis(int wanted) const
{
    if (axis() == wanted)
        return true;
    const BoardOpInfo& i = info();
    // Multi-axis calls: (card, n, axes, ...), the axes written out from the third value.
    if (i.argCount < 3 || i.argKinds[2] != BoardArgKind::Array || valueCount < 2)
        return false;
    const int n = values[1] < BoardCall::kMaxArray ? values[1] : BoardCall::kMaxArray;
    for (int k = 0; k < n && 2 + k < valueCount; ++k) {
        if (values[static_cast<std::size_t>(2 + k)] == wanted)
            return true;
    }
    return false;
}
