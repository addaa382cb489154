#include "PlotTicks.h"

#include <algorithm>
#include <cmath>

PlotTicks PlotTicks::forRange(double low, double high, int maxCount)
{
    PlotTicks ticks;
    if (!std::isfinite(low) || !std::isfinite(high))
        low = high = 0.0;
    if (high < low)
        std::swap(low, high);
    if (high - low <= 0.0) {
        // A flat series still gets an axis around its value.
        const double half = low == 0.0 ? 1.0 : std::abs(low) * 0.5;
        low -= half;
        high += half;
    }
    maxCount = std::max(maxCount, 2);
    const double rough = (high - low) / maxCount;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    double step = power * 10.0;
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (power * factor >= rough) {
            step = power * factor;
            break;
        }
    }
    ticks.m_step = step;
    ticks.m_decimals = std::max(0, -static_cast<int>(std::floor(std::log10(step) + 1e-9)));
    // A small tolerance keeps values that sit on a tick from being pushed a step out.
    const double epsilon = step * 1e-9;
    const double first = std::ceil((low - epsilon) / step);
    const double last = std::floor((high + epsilon) / step);
    for (double i = first; i <= last; i += 1.0)
        ticks.m_values.push_back(i * step == 0.0 ? 0.0 : i * step);
    ticks.m_roundedLow = std::floor((low + epsilon) / step) * step;
    ticks.m_roundedHigh = std::ceil((high - epsilon) / step) * step;
    return ticks;
}

QString PlotTicks::label(double value) const
{
    return QString::number(value, 'f', m_decimals);
}
