#pragma once

#include "BoardFamily.h"
#include "CardRegistry.h"

#include <QGroupBox>

struct AppState;
class BoardApi;
class QLineEdit;
class UnitEchoes;

// The "Set Command" and "Set Actual" presets both single-axis pages carry: each button sets
// its counter on the board and remembers the value for the card and axis.
class CounterPresets : public QGroupBox
{
    Q_OBJECT

public:
    CounterPresets(AppState& state, BoardApi& board, QWidget* parent = nullptr);

    void setCardAxis(CardNo card, AxisNo axis);
    // Shows the values remembered for the card and axis.
    void load();

private:
    // Sets the command or the actual counter from its field.
    void preset(TestValue which);

    AppState& m_state;
    BoardApi& m_board;
    CardNo m_card = 0;
    AxisNo m_axis = 0;
    QLineEdit* m_setCommand = nullptr;
    QLineEdit* m_setActual = nullptr;
    UnitEchoes* m_echoes = nullptr; // both presets in the axis' unit
};
