#include "ScopeRecording.h"

#include <algorithm>

int ScopeRecording::indexAt(double timeMs) const
{
    return static_cast<int>(std::lower_bound(times.begin(), times.end(), timeMs) - times.begin());
}
