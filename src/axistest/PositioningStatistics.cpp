#include "PositioningStatistics.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

double PositioningStatistics::mean(const std::vector<double>& values)
{
    if (values.empty())
        return 0;
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

double PositioningStatistics::deviation(const std::vector<double>& values)
{
    if (values.size() < 2)
        return 0;
    const double average = mean(values);
    double sum = 0;
    for (const double value : values)
        sum += (value - average) * (value - average);
    return std::sqrt(sum / static_cast<double>(values.size() - 1));
}

PositioningStatistics::PositioningStatistics(std::vector<Target> targets)
{
    for (const Target& target : targets) {
        AtTarget at;
        at.position = target.position;
        at.countUp = static_cast<int>(target.up.size());
        at.countDown = static_cast<int>(target.down.size());
        at.meanUp = mean(target.up);
        at.meanDown = mean(target.down);
        at.mean = (at.meanUp + at.meanDown) / 2;
        at.sUp = deviation(target.up);
        at.sDown = deviation(target.down);
        at.reversal = at.meanUp - at.meanDown;
        at.rUp = 4 * at.sUp;
        at.rDown = 4 * at.sDown;
        at.r = std::max({2 * at.sUp + 2 * at.sDown + std::abs(at.reversal), at.rUp, at.rDown});
        m_atTargets.push_back(at);
    }
    if (m_atTargets.empty())
        return;

    // Extremes over the targets of a figure taken from each.
    const auto highest = [this](auto figure) {
        double best = figure(m_atTargets.front());
        for (const AtTarget& at : m_atTargets)
            best = std::max(best, figure(at));
        return best;
    };
    const auto lowest = [this](auto figure) {
        double best = figure(m_atTargets.front());
        for (const AtTarget& at : m_atTargets)
            best = std::min(best, figure(at));
        return best;
    };

    Axis& axis = m_axis;
    axis.aUp = highest([](const AtTarget& at) { return at.meanUp + 2 * at.sUp; }) -
               lowest([](const AtTarget& at) { return at.meanUp - 2 * at.sUp; });
    axis.aDown = highest([](const AtTarget& at) { return at.meanDown + 2 * at.sDown; }) -
                 lowest([](const AtTarget& at) { return at.meanDown - 2 * at.sDown; });
    axis.a = highest([](const AtTarget& at) {
                 return std::max(at.meanUp + 2 * at.sUp, at.meanDown + 2 * at.sDown);
             }) -
             lowest([](const AtTarget& at) {
                 return std::min(at.meanUp - 2 * at.sUp, at.meanDown - 2 * at.sDown);
             });
    axis.b = highest([](const AtTarget& at) { return std::abs(at.reversal); });
    double reversals = 0;
    for (const AtTarget& at : m_atTargets)
        reversals += at.reversal;
    axis.bMean = reversals / static_cast<double>(m_atTargets.size());
    axis.eUp = highest([](const AtTarget& at) { return at.meanUp; }) -
               lowest([](const AtTarget& at) { return at.meanUp; });
    axis.eDown = highest([](const AtTarget& at) { return at.meanDown; }) -
                 lowest([](const AtTarget& at) { return at.meanDown; });
    axis.e = highest([](const AtTarget& at) { return std::max(at.meanUp, at.meanDown); }) -
             lowest([](const AtTarget& at) { return std::min(at.meanUp, at.meanDown); });
    axis.m = highest([](const AtTarget& at) { return at.mean; }) -
             lowest([](const AtTarget& at) { return at.mean; });
    axis.rUp = highest([](const AtTarget& at) { return at.rUp; });
    axis.rDown = highest([](const AtTarget& at) { return at.rDown; });
    axis.r = highest([](const AtTarget& at) { return at.r; });
}

std::vector<std::int32_t> PositioningStatistics::targetsOver(std::int32_t from, std::int32_t to,
                                                             int count, unsigned seed)
{
    std::vector<std::int32_t> targets;
    if (count <= 0)
        return targets;
    if (count == 1)
        return {from};
    const double spacing = (static_cast<double>(to) - from) / (count - 1);
    std::mt19937 random(seed);
    // Up to a third of the spacing either way keeps the targets in order and apart.
    std::uniform_real_distribution<double> offset(-std::abs(spacing) / 3, std::abs(spacing) / 3);
    for (int i = 0; i < count; ++i) {
        double place = from + spacing * i;
        if (i != 0 && i != count - 1)
            place += offset(random);
        targets.push_back(static_cast<std::int32_t>(std::llround(place)));
    }
    return targets;
}
