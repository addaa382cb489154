#include "COV_UtMtnStWnd.h"

#include "AppState.h"
#include "AxisGridCanvas.h"
#include "AxisValueGridModel.h"
#include "BoardApi.h"
#include "FrameRelay.h"

#include <QVBoxLayout>

COV_UtMtnStWnd::COV_UtMtnStWnd(AppState& state, BoardApi& board, FrameRelay& frame, QWidget* parent)
    : QWidget(parent), m_state(state), m_board(board), m_frame(frame)
{
    using Format = AxisValueGridModel::Format;
    using Measure = AxisValueGridModel::Measure;
    m_model = new AxisValueGridModel({{tr("Command Position"), Format::Decimal, Measure::Position},
                                      {tr("Actual Position"), Format::Decimal, Measure::Position},
                                      {tr("Command Velocity"), Format::Decimal, Measure::Speed}},
                                     this);
    // A grid painted by hand: a changed value repaints its own cell and nothing else.
    m_canvas = new AxisGridCanvas(*m_model, this);
    m_canvas->setStretched(true);
    connect(m_canvas, &AxisGridCanvas::axisDoubleClicked, this,
            [this](int axis) { activateAxis(axis); });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    // The frame decides the pane's height; rows that do not fit are out of view, not read.
    layout->addWidget(m_canvas);
}

bool COV_UtMtnStWnd::isCellVisible(int row, int axis) const
{
    const QRect cell = m_canvas->cellRect(row, axis);
    return m_canvas->isVisible() && cell.isValid() && cell.intersects(m_canvas->rect());
}

void COV_UtMtnStWnd::refresh()
{
    const BoardFamily family = m_state.active.family;
    const auto card = static_cast<CardNo>(m_state.active.card);
    const int axisCount =
        qBound(0, static_cast<int>(m_state.registry.axisCount(family, m_state.active.card)),
               static_cast<int>(AxisValueGridModel::kAxes));
    m_model->setPresentAxes(axisCount);
    takeScales();
    for (int row = 0; row < kRows; ++row) {
        for (int axis = 0; axis < axisCount; ++axis) {
            if (!isCellVisible(row, axis))
                continue;
            const auto a = static_cast<AxisNo>(axis);
            std::int32_t value = 0;
            switch (row) {
            case CommandPosition:
                value = m_board.GetCommandPos(family, card, a);
                break;
            case ActualPosition:
                value = m_board.GetActualPos(family, card, a);
                break;
            default:
                value = m_board.GetCommandSpeed(family, card, a);
                break;
            }
            m_model->setValue(row, axis, value);
        }
    }
}

void COV_UtMtnStWnd::takeScales()
{
    const std::tuple<int, int, int> now(m_state.units.revision(),
                                        familyIndex(m_state.active.family), m_state.active.card);
    if (now == m_scalesOf)
        return;
    m_scalesOf = now;
    m_model->setScales(m_state.units.shownScales(m_state.active.family, m_state.active.card,
                                                 AxisValueGridModel::kAxes));
}

void COV_UtMtnStWnd::activateAxis(int axis)
{
    if (axis < 0 || axis >= m_state.activeAxisCount())
        return;
    m_state.active.axis = axis;
    // The frame opens the single-axis window and announces the axis to every window.
    m_frame.sendToFrame(UM_OPEN_TOOL, ToolSingleAxis);
}
