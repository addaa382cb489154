#pragma once

#include "AxisUnitScale.h"

#include <QWidget>

#include <cstdint>

class QLabel;

// The single-axis window's own axis beside its jog buttons: command and actual position and
// the speed with its direction, in the axis' unit too when one is shown. A label changes only
// when what it shows does, so an axis at rest costs no repaint.
class AxisMotionReadout : public QWidget
{
    Q_OBJECT

public:
    struct Reading
    {
        std::int32_t command = 0;
        std::int32_t actual = 0;
        std::int32_t speed = 0; // the board's command speed: a magnitude
    };

    explicit AxisMotionReadout(QWidget* parent = nullptr);

    // One poll's reading. The board's speed has no sign: the way the command position went
    // since the last reading gives it (a new axis starts with none).
    void show(const Reading& reading, const AxisUnitScale& scale);
    // Another axis: the next reading starts afresh.
    void forget() { m_hasLast = false; }

    QLabel* command() const { return m_command; }
    QLabel* actual() const { return m_actual; }
    QLabel* speed() const { return m_speed; }

private:
    static QString positionText(std::int32_t pulses, const AxisUnitScale& scale);
    static void showText(QLabel& label, const QString& text);

    QLabel* m_command = nullptr;
    QLabel* m_actual = nullptr;
    QLabel* m_speed = nullptr;
    Reading m_last;
    bool m_hasLast = false;
    int m_direction = 1;
    int m_lastDirection = 1;
    AxisUnitScale m_scale;
};
