#include "COV_UtMtnStWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "FrameRelay.h"
#include "MotionStatusModel.h"

#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

namespace {
constexpr int kGridColumns = MotionStatusModel::kAxes + 1; // the row titles and eight axes
}

COV_UtMtnStWnd::COV_UtMtnStWnd(AppState& state, BoardApi& board, FrameRelay& frame, QWidget* parent)
    : QWidget(parent), m_state(state), m_board(board), m_frame(frame)
{
    createGrid();
}

void COV_UtMtnStWnd::createGrid()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_model = new MotionStatusModel(this);
    m_grid = new QTableView(this);
    m_grid->setModel(m_model);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->setSelectionMode(QAbstractItemView::NoSelection);
    m_grid->setFocusPolicy(Qt::NoFocus);
    m_grid->setCornerButtonEnabled(false);
    m_grid->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The frame decides the pane's height; rows that do not fit are out of view, not read.
    m_grid->setMinimumHeight(kRowHeight);
    for (QHeaderView* header : {m_grid->horizontalHeader(), m_grid->verticalHeader()}) {
        header->setSectionsClickable(false);
        header->setHighlightSections(false);
    }
    m_grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_grid->horizontalHeader()->setFixedHeight(kRowHeight);
    m_grid->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_grid->verticalHeader()->setDefaultSectionSize(kRowHeight);
    m_grid->verticalHeader()->setMinimumSectionSize(kRowHeight);
    // The axis titles are the grid's top row: a double click there counts like one on a value.
    connect(m_grid, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { activateAxis(index.column()); });
    connect(m_grid->horizontalHeader(), &QHeaderView::sectionDoubleClicked, this,
            [this](int axis) { activateAxis(axis); });
    layout->addWidget(m_grid);
}

void COV_UtMtnStWnd::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitColumns();
}

// Each axis column gets a ninth of the width and the row titles the rest, but never less
// than their longest title needs.
void COV_UtMtnStWnd::fitColumns()
{
    const int width = m_grid->width() - 2 * m_grid->frameWidth();
    QHeaderView* titles = m_grid->verticalHeader();
    const int titleWidth =
        qMax(width / kGridColumns + width % kGridColumns, titles->sizeHint().width());
    titles->setFixedWidth(titleWidth);
    const int column = qMax(0, width - titleWidth) / MotionStatusModel::kAxes;
    for (int axis = 0; axis < MotionStatusModel::kAxes; ++axis)
        m_grid->setColumnWidth(axis, column);
}

bool COV_UtMtnStWnd::isCellVisible(int row, int axis) const
{
    const QRect cell = m_grid->visualRect(m_model->index(row, axis));
    return cell.isValid() && cell.intersects(m_grid->viewport()->rect());
}

void COV_UtMtnStWnd::refresh()
{
    const BoardFamily family = m_state.active.family;
    const auto card = static_cast<CardNo>(m_state.active.card);
    const int axisCount =
        qBound(0, static_cast<int>(m_state.registry.axisCount(family, m_state.active.card)),
               static_cast<int>(MotionStatusModel::kAxes));
    m_model->setPresentAxes(axisCount);
    for (int row = 0; row < MotionStatusModel::kRows; ++row) {
        for (int axis = 0; axis < axisCount; ++axis) {
            if (!isCellVisible(row, axis))
                continue;
            const auto a = static_cast<AxisNo>(axis);
            std::int32_t value = 0;
            switch (row) {
            case MotionStatusModel::CommandPosition:
                value = m_board.GetCommandPos(family, card, a);
                break;
            case MotionStatusModel::ActualPosition:
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

void COV_UtMtnStWnd::activateAxis(int axis)
{
    if (axis < 0 || axis >= m_state.activeAxisCount())
        return;
    m_state.active.axis = axis;
    // The frame opens the single-axis window and announces the axis to every window.
    m_frame.sendToFrame(UM_OPEN_TOOL, ToolSingleAxis);
}
