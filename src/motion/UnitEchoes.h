#pragma once

#include "AxisUnitScale.h"
#include "BoardFamily.h"

#include <QObject>

#include <functional>
#include <vector>

class QLabel;
class QLineEdit;
struct AppState;

// Beside each motion field typed in pulses or pulses/s, what it is in the axis' unit
// ("= 12.500 mm"), while user units are shown. The fields stay in pulses, as the board takes
// them; the echo follows the typing, the window's axis, and the units (checked when the
// window is activated, as after the Axis Units dialog).
class UnitEchoes : public QObject
{
    Q_OBJECT

public:
    enum class Measure
    {
        Position,
        Speed
    };
    struct Axis
    {
        BoardFamily family;
        int card;
        int axis;
    };

    UnitEchoes(const AppState& state, std::function<Axis()> axis, QWidget* window);

    // Adds an echo label in the field's grid row, after its unit.
    void add(QLineEdit* field, Measure measure);
    // Re-echoes every field for the window's axis and the units as they stand.
    void refresh();
    QLabel* echoOf(const QLineEdit* field) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Echo
    {
        QLineEdit* field;
        QLabel* label;
        Measure measure;
    };
    void echo(const Echo& each) const;

    const AppState& m_state;
    std::function<Axis()> m_axis;
    std::vector<Echo> m_echoes;
    AxisUnitScale m_scale;
};
