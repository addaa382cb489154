#include "DiagnosisGrid.h"

#include <QHeaderView>

DiagnosisGrid::DiagnosisGrid(std::vector<AxisValueGridModel::Row> rows, QWidget* parent)
    : QTableView(parent), m_model(new AxisValueGridModel(std::move(rows), this))
{
    setModel(m_model);
    setFont(QFont(QStringLiteral("Arial")));
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
        header->setSectionsClickable(false);
        header->setHighlightSections(false);
        header->setSectionResizeMode(QHeaderView::Fixed);
    }
    horizontalHeader()->setMinimumSectionSize(kAxisWidth);
    horizontalHeader()->setDefaultSectionSize(kAxisWidth);
    horizontalHeader()->setFixedHeight(kRowHeight);
    verticalHeader()->setMinimumSectionSize(kRowHeight);
    verticalHeader()->setDefaultSectionSize(kRowHeight);
    verticalHeader()->setFixedWidth(kTitleWidth);
    setMinimumSize(kTitleWidth + kAxisWidth, 2 * kRowHeight);
}

QSize DiagnosisGrid::sizeHint() const
{
    const int frame = 2 * frameWidth();
    return QSize(kTitleWidth + AxisValueGridModel::kAxes * kAxisWidth + frame,
                 kRowHeight * (1 + m_model->rowCount()) + frame);
}

bool DiagnosisGrid::isCellVisible(int row, int axis) const
{
    if (!isVisible())
        return false;
    const QRect cell = visualRect(m_model->index(row, axis));
    return cell.isValid() && cell.intersects(viewport()->rect());
}
