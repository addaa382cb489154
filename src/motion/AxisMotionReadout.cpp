#include "AxisMotionReadout.h"

#include <QFormLayout>
#include <QLabel>

AxisMotionReadout::AxisMotionReadout(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QFormLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(4);
    layout->setVerticalSpacing(1);
    layout->setLabelAlignment(Qt::AlignLeft);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    const auto value = [](const char* name) {
        auto* label = new QLabel(QStringLiteral("0"));
        label->setObjectName(QLatin1String(name));
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        return label;
    };
    m_command = value("commandReadout");
    m_actual = value("actualReadout");
    m_speed = value("speedReadout");
    m_command->setToolTip(tr("Command position of this axis"));
    m_actual->setToolTip(tr("Actual (encoder) position of this axis"));
    m_speed->setToolTip(tr("Command speed: minus while the axis moves in the minus direction"));
    layout->addRow(tr("Cmd"), m_command);
    layout->addRow(tr("Act"), m_actual);
    layout->addRow(tr("Spd"), m_speed);
}

void AxisMotionReadout::show(const Reading& reading, const AxisUnitScale& scale)
{
    const bool sameScale = m_scale == scale;
    if (m_hasLast && reading.command != m_last.command)
        m_direction = reading.command > m_last.command ? 1 : -1;
    const bool firstOrChanged = !m_hasLast || !sameScale;
    const int signedSpeed = reading.speed == 0 ? 0 : m_direction * reading.speed;
    const int lastSigned = m_last.speed == 0 ? 0 : m_lastDirection * m_last.speed;
    m_scale = scale;
    if (firstOrChanged || reading.command != m_last.command)
        showText(*m_command, positionText(reading.command, scale));
    if (firstOrChanged || reading.actual != m_last.actual)
        showText(*m_actual, positionText(reading.actual, scale));
    if (firstOrChanged || signedSpeed != lastSigned) {
        // An arrow as well as the sign, so the direction reads at a glance.
        const QString arrow = signedSpeed > 0   ? QStringLiteral("\u25B6 ")
                              : signedSpeed < 0 ? QStringLiteral("\u25C0 ")
                                                : QString();
        QString text = arrow + tr("%1 pps").arg(signedSpeed);
        if (scale.isSet())
            text += QLatin1Char('\n') + scale.formatSpeedWithUnit(signedSpeed);
        showText(*m_speed, text);
    }
    m_last = reading;
    m_lastDirection = m_direction;
    m_hasLast = true;
}

QString AxisMotionReadout::positionText(std::int32_t pulses, const AxisUnitScale& scale)
{
    // Pulses as the fields take them, and the unit under them.
    const QString text = QString::number(pulses);
    return scale.isSet() ? text + QLatin1Char('\n') + scale.formatWithUnit(pulses) : text;
}

void AxisMotionReadout::showText(QLabel& label, const QString& text)
{
    if (label.text() != text)
        label.setText(text);
}
