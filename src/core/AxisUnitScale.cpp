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
    QString text = QString::number(toUnits(pulses), 'f', m_decimals);
    // -0.0004 mm rounds to "-0.000", which reads as a position left of zero.
    if (text.startsWith(u'-') && text.size() > 1) {
        bool allZero = true;
        for (qsizetype i = 1; i < text.size() && allZero; ++i)
            allZero = text[i] == u'0' || text[i] == u'.';
        if (allZero)
            text.remove(0, 1);
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
