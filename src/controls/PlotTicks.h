#pragma once

#include <QString>

#include <vector>

// Round tick values (1, 2 or 5 times a power of ten) for one axis of a plot.
class PlotTicks
{
public:
    // Ticks inside [low, high], at most about maxCount of them.
    static PlotTicks forRange(double low, double high, int maxCount);

    double step() const { return m_step; }
    const std::vector<double>& values() const { return m_values; }
    // The range widened outward to whole steps, for an autoscaled axis.
    double roundedLow() const { return m_roundedLow; }
    double roundedHigh() const { return m_roundedHigh; }
    // A tick's label with just the decimals the step needs.
    QString label(double value) const;

private:
    double m_step = 1.0;
    double m_roundedLow = 0.0;
    double m_roundedHigh = 1.0;
    int m_decimals = 0;
    std::vector<double> m_values;
};
