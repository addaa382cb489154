#pragma once

#include <QWidget>

#include <tuple>

class AxisGridCanvas;
class AxisValueGridModel;
class BoardApi;
class FrameRelay;
struct AppState;

// The docked "Motion Status" pane: command position, actual position and command velocity of
// the active card's axes. A double click on an axis makes it the active axis.
class COV_UtMtnStWnd : public QWidget
{
    Q_OBJECT

public:
    enum Row
    {
        CommandPosition = 0,
        ActualPosition = 1,
        CommandVelocity = 2
    };
    static constexpr int kRows = 3;

    COV_UtMtnStWnd(AppState& state, BoardApi& board, FrameRelay& frame, QWidget* parent = nullptr);

    // Called by the frame on every monitor tick: reads the visible cells of present axes.
    void refresh();
    // What a double click on an axis column does (its title or a value).
    void activateAxis(int axis);

    AxisGridCanvas* canvas() const { return m_canvas; }
    AxisValueGridModel* model() const { return m_model; }
    bool isCellVisible(int row, int axis) const;

private:
    // Hands the model the active card's scales when the units or the card changed.
    void takeScales();

    AppState& m_state;
    BoardApi& m_board;
    FrameRelay& m_frame;
    AxisValueGridModel* m_model = nullptr;
    AxisGridCanvas* m_canvas = nullptr;
    // the units' revision, family and card the model's scales belong to
    std::tuple<int, int, int> m_scalesOf{-1, -1, -1};
};
