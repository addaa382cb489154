#include "AxisUnitScale.h"

#include <QtGlobal>

#include <cmath>

AxisUnitScale::AxisUnitScale(QString unit, double pulsesPerUnit, int decimals)
    : m_unit(std::move(unit)),
      m_pulsesPerUnit(std::isfinite(pulsesPerUnit) && pulsesPerUnit > 0.0 ? pulsesPerUnit : 0.0),
      m_decimals(qBound(0, decimals, kMaxDecimals))
{}

QString AxisUnitScale::speedUnit() const
{
    return m_unit + QStringLiteral("/s");
}

QString AxisUnitScale::format(double pulses) const
{
    if (!isSet())
        return QString::number(static_cast<long long>(std::llround(pulses)));
    // Whole numbers of the last decimal, written by hand: a moving axis formats a few dozen
    // cells every 10 ms, and integers format several times faster than doubles.
    static constexpr long long kPowers[] = {1, 10, 100, 1000, 10000, 100000, 1000000};
    const long long power = kPowers[m_decimals];
    const double scaled = toUnits(pulses) * static_cast<double>(power);
    if (!(std::fabs(scaled) < 9e15))
        return QString::number(toUnits(pulses), 'f', m_decimals);
    // A value that rounds to nothing shows without a minus sign: -0.0004 mm is "0.000".
    const long long count = std::llround(scaled);
    const unsigned long long magnitude =
        static_cast<unsigned long long>(count < 0 ? -count : count);
    QString text = QString::number(magnitude / static_cast<unsigned long long>(power));
    if (count < 0)
        text.prepend(u'-');
    if (m_decimals > 0) {
        text += u'.';
        text += QString::number(magnitude % static_cast<unsigned long long>(power))
                    .rightJustified(m_decimals, u'0');
    }
    return text;
}

QString AxisUnitScale::formatWithUnit(double pulses) const
{
    return isSet() ? format(pulses) + u' ' + m_unit : format(pulses);
}

QString AxisUnitScale::formatSpeedWithUnit(double pulsesPerSecond) const
{
    return isSet() ? format(pulsesPerSecond) + u' ' + speedUnit() : format(pulsesPerSecond);
}

std::optional<double> AxisUnitScale::parsePulsesPerUnit(const QString& text)
{
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value) || value <= 0.0)
        return std::nullopt;
    return value;
}

QString AxisUnitScale::pulsesPerUnitText(double pulsesPerUnit)
{
    QString text = QString::number(pulsesPerUnit, 'f', 9);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
}
