#pragma once

#include <cstdint>
#include <vector>

// The figures of a bidirectional positioning test as ISO 230-2 defines them, from the
// deviations (actual minus target, in pulses) measured at each target in each direction.
class PositioningStatistics
{
public:
    // What was measured at one target: the deviation of every approach from below (up) and
    // from above (down).
    struct Target
    {
        double position = 0;
        std::vector<double> up;
        std::vector<double> down;
    };

    // The figures at one target.
    struct AtTarget
    {
        double position = 0;
        int countUp = 0; // approaches measured so far
        int countDown = 0;
        double meanUp = 0;   // x̄↑
        double meanDown = 0; // x̄↓
        double mean = 0;     // x̄, the mean of both directions
        double sUp = 0;      // s↑, the estimator of the standard uncertainty
        double sDown = 0;    // s↓
        double reversal = 0; // B_j = x̄↑ - x̄↓
        double rUp = 0;      // R↑ = 4 s↑
        double rDown = 0;    // R↓
        double r = 0;        // R_j, bidirectional
    };

    // The figures of the axis.
    struct Axis
    {
        double aUp = 0, aDown = 0, a = 0; // accuracy
        double b = 0;                     // largest reversal value, as a magnitude
        double bMean = 0;                 // mean reversal value, signed
        double eUp = 0, eDown = 0, e = 0; // systematic positional deviation
        double m = 0;                     // range of the mean bidirectional deviation
        double rUp = 0, rDown = 0, r = 0; // repeatability
    };

    explicit PositioningStatistics(std::vector<Target> targets);

    const std::vector<AtTarget>& atTargets() const { return m_atTargets; }
    const Axis& axis() const { return m_axis; }

    // The mean and the sample standard deviation (n - 1) of values; 0 for fewer than two.
    static double mean(const std::vector<double>& values);
    static double deviation(const std::vector<double>& values);

    // m targets over [from, to] as the standard suggests: evenly spread, each moved off its
    // even place by a share of the spacing so that periodic errors of a screw or an encoder
    // are not sampled at one phase. The first is `from`, the last `to`; seeded, so repeatable.
    static std::vector<std::int32_t> targetsOver(std::int32_t from, std::int32_t to, int count,
                                                 unsigned seed = 1);

private:
    std::vector<AtTarget> m_atTargets;
    Axis m_axis;
};
