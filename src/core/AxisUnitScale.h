#pragma once

#include <QString>

#include <optional>

// How one axis' pulses read in the machine's own unit: the unit's name, the pulses one unit
// takes (any positive number, 2777.777 for a 1000-pulse motor on a 0.36 mm lead screw) and
// the decimals shown. A scale without pulses per unit is no scale: figures stay in pulses.
class AxisUnitScale
{
public:
    static constexpr int kMaxDecimals = 6;

    AxisUnitScale() = default;
    // Decimals are held to 0..6; a pulses-per-unit that is not positive makes no scale.
    AxisUnitScale(QString unit, double pulsesPerUnit, int decimals);

    bool isSet() const { return m_pulsesPerUnit > 0.0; }
    const QString& unit() const { return m_unit; }
    double pulsesPerUnit() const { return m_pulsesPerUnit; }
    int decimals() const { return m_decimals; }
    // The unit of a speed: "mm/s".
    QString speedUnit() const;

    double toUnits(double pulses) const { return isSet() ? pulses / m_pulsesPerUnit : pulses; }
    // Pulses (or pulses/s) as units with the scale's decimals, "-5.000"; a value that rounds
    // to nothing shows without a minus sign. Without a scale the whole pulses.
    QString format(double pulses) const;
    // "5.000 mm"; a speed "5.000 mm/s".
    QString formatWithUnit(double pulses) const;
    QString formatSpeedWithUnit(double pulsesPerSecond) const;

    // A typed pulses-per-unit: a positive decimal number, or nothing.
    static std::optional<double> parsePulsesPerUnit(const QString& text);
    // The pulses per unit as it is stored: no exponent, no trailing zeros ("2777.777").
    static QString pulsesPerUnitText(double pulsesPerUnit);

    bool operator==(const AxisUnitScale& other) const
    {
        return m_unit == other.m_unit && m_pulsesPerUnit == other.m_pulsesPerUnit &&
               m_decimals == other.m_decimals;
    }
    bool operator!=(const AxisUnitScale& other) const { return !(*this == other); }

private:
    QString m_unit;
    double m_pulsesPerUnit = 0.0;
    int m_decimals = 3;
};
