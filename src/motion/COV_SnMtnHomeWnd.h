#pragma once

#include "BoardFamily.h"
#include "HomeSettings.h"

#include <QWidget>

struct AppState;
class BoardApi;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;

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
    QLineEdit* addField(QGridLayout* grid, int row, const QString& label, const QString& unit,
                        const char* name);
    QWidget* createModeGroup();
    QWidget* createSpeedGroup();
    QWidget* createCounterGroup();
    BoardFamily family() const;
    void onCommandClicked();
    void onActualClicked();

    AppState& m_state;
    BoardApi& m_board;
    CardNo m_card = 0;
    AxisNo m_axis = 0;

    QComboBox* m_mode = nullptr;
    QLineEdit* m_highSpeed = nullptr;
    QLineEdit* m_lowSpeed = nullptr;
    QLineEdit* m_accDec = nullptr;
    QLineEdit* m_offset = nullptr;
    QLineEdit* m_setCommand = nullptr;
    QPushButton* m_commandButton = nullptr;
    QLineEdit* m_setActual = nullptr;
    QPushButton* m_actualButton = nullptr;
};
