#include "DiagnosisGrid.h"

DiagnosisGrid::DiagnosisGrid(std::vector<AxisValueGridModel::Row> rows, QWidget* parent)
    : QScrollArea(parent), m_model(new AxisValueGridModel(std::move(rows), this))
{
    m_canvas = new AxisGridCanvas(*m_model, this);
    m_canvas->setFont(QFont(QStringLiteral("Arial")));
    setWidget(m_canvas);
    setWidgetResizable(false);
    setFocusPolicy(Qt::NoFocus);
    setMinimumSize(AxisGridCanvas::kTitleWidth + AxisGridCanvas::kAxisWidth,
                   2 * AxisGridCanvas::kRowHeight);
}

QSize DiagnosisGrid::sizeHint() const
{
    const int frame = 2 * frameWidth();
    return m_canvas->sizeHint() + QSize(frame, frame);
}

bool DiagnosisGrid::isCellVisible(int row, int axis) const
{
    if (!m_canvas->isVisible())
        return false;
    // The part of the canvas the viewport shows, in the canvas's coordinates.
    const QRect shown(-m_canvas->pos(), viewport()->size());
    return shown.intersects(m_canvas->cellRect(row, axis));
}
