#pragma once

#include <QWidget>

class BoardApi;
class FrameRelay;
class MotionStatusModel;
class QTableView;
struct AppState;

// The docked "Motion Status" pane: command position, actual position and command velocity of
// the active card's axes. A double click on an axis makes it the active axis.
class COV_UtMtnStWnd : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kRowHeight = 22;

    COV_UtMtnStWnd(AppState& state, BoardApi& board, FrameRelay& frame, QWidget* parent = nullptr);

    // Called by the frame on every monitor tick: reads the visible cells of present axes.
    void refresh();
    // What a double click on an axis column does (its title or a value).
    void activateAxis(int axis);

    QTableView* grid() const { return m_grid; }
    MotionStatusModel* model() const { return m_model; }
    bool isCellVisible(int row, int axis) const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void createGrid();
    void fitColumns();

    AppState& m_state;
    BoardApi& m_board;
    FrameRelay& m_frame;
    MotionStatusModel* m_model = nullptr;
    QTableView* m_grid = nullptr;
};
