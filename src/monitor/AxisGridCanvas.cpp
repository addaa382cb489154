#include "AxisGridCanvas.h"

#include "AxisValueGridModel.h"

#include <QPaintEvent>
#include <QPainter>

namespace {
const QColor kLineColor(160, 160, 160);
const QColor kTitleColor(236, 236, 236);
constexpr int kTextMargin = 4;
} // namespace

AxisGridCanvas::AxisGridCanvas(AxisValueGridModel& model, QWidget* parent)
    : QWidget(parent), m_model(model)
{
    // Every pixel is painted, so Qt need not clear the background first.
    setAttribute(Qt::WA_OpaquePaintEvent);
    fitTitles();
    connect(
        &m_model, &QAbstractItemModel::dataChanged, this,
        [this](const QModelIndex& first, const QModelIndex& last) {
            update(
                cellRect(first.row(), first.column()).united(cellRect(last.row(), last.column())));
        });
}

void AxisGridCanvas::fitTitles()
{
    m_titleWidth = kTitleWidth;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QString name = m_model.headerData(row, Qt::Vertical, Qt::DisplayRole).toString();
        m_titleWidth =
            qMax(m_titleWidth, fontMetrics().horizontalAdvance(name) + 2 * kTextMargin + 1);
    }
    setFixedSize(sizeHint());
    update();
}

void AxisGridCanvas::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitTitles();
}

QSize AxisGridCanvas::sizeHint() const
{
    return QSize(m_titleWidth + AxisValueGridModel::kAxes * kAxisWidth + 1,
                 kRowHeight * (1 + m_model.rowCount()) + 1);
}

QRect AxisGridCanvas::cellRect(int row, int axis) const
{
    return QRect(m_titleWidth + axis * kAxisWidth, (row + 1) * kRowHeight, kAxisWidth, kRowHeight);
}

void AxisGridCanvas::paintCell(QPainter& painter, const QRect& cell, const QString& text,
                               const QColor& fill, Qt::Alignment alignment) const
{
    painter.fillRect(cell, fill);
    painter.setPen(kLineColor);
    painter.drawRect(cell);
    if (text.isEmpty())
        return;
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(cell.adjusted(kTextMargin, 0, -kTextMargin, 0), alignment, text);
}

void AxisGridCanvas::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QRect dirty = event->rect();
    painter.fillRect(dirty, palette().color(QPalette::Window));
    const int rows = m_model.rowCount();
    const QRect corner(0, 0, m_titleWidth, kRowHeight);
    if (corner.intersects(dirty))
        paintCell(painter, corner, QString(), kTitleColor, Qt::AlignCenter);
    for (int axis = 0; axis < AxisValueGridModel::kAxes; ++axis) {
        const QRect title = cellRect(-1, axis);
        if (title.intersects(dirty))
            paintCell(painter, title,
                      m_model.headerData(axis, Qt::Horizontal, Qt::DisplayRole).toString(),
                      kTitleColor, Qt::AlignCenter);
    }
    for (int row = 0; row < rows; ++row) {
        const QRect name(0, (row + 1) * kRowHeight, m_titleWidth, kRowHeight);
        if (name.intersects(dirty))
            paintCell(painter, name,
                      m_model.headerData(row, Qt::Vertical, Qt::DisplayRole).toString(),
                      kTitleColor, Qt::AlignLeft | Qt::AlignVCenter);
        for (int axis = 0; axis < AxisValueGridModel::kAxes; ++axis) {
            const QRect cell = cellRect(row, axis);
            if (!cell.intersects(dirty))
                continue;
            const QModelIndex index = m_model.index(row, axis);
            paintCell(painter, cell, index.data(Qt::DisplayRole).toString(),
                      index.data(Qt::BackgroundRole).value<QColor>(),
                      Qt::AlignRight | Qt::AlignVCenter);
        }
    }
}
