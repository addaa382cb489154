#pragma once

#include "BoardFamily.h"
#include "HomeSettings.h"

#include <QWidget>

struct AppState;
class BoardApi;
class CounterPresets;
class QComboBox;
class QLineEdit;
class UnitEchoes;

// The "Home" page of the single-axis window: the homing parameters of the axis and the
// command and actual counter presets.
class COV_SnMtnHomeWnd : public QWidget
{
    Q_OBJECT

public:
    COV_SnMtnHomeWnd(AppState& state, BoardApi& board, QWidget* parent = nullptr);

    void setCardAxis(CardNo card, AxisNo axis);
    void load();
    bool parametersChanged(BoardFamily family) const;
    void setParameters(BoardFamily family);
    // What the page shows; the host writes it before every home search.
    HomeSettings fields() const;

private:
    QWidget* createModeGroup();
    QWidget* createSpeedGroup();

    AppState& m_state;
    BoardApi& m_board;
    CardNo m_card = 0;
    AxisNo m_axis = 0;

    QComboBox* m_mode = nullptr;
    QLineEdit* m_highSpeed = nullptr;
    QLineEdit* m_lowSpeed = nullptr;
    QLineEdit* m_accDec = nullptr;
    QLineEdit* m_offset = nullptr;
    CounterPresets* m_presets = nullptr;
    UnitEchoes* m_echoes = nullptr; // the speeds and offset in the axis' unit
};
