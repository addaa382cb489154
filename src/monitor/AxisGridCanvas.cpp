#include "AxisGridCanvas.h"

#include "AxisValueGridModel.h"

#include <QMouseEvent>
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
    // Titles change only when the units do: the row names may need a wider column.
    connect(&m_model, &QAbstractItemModel::headerDataChanged, this, [this] { fitTitles(); });
}

void AxisGridCanvas::fitTitles()
{
    m_neededTitleWidth = kTitleWidth;
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const QString name = m_model.headerData(row, Qt::Vertical, Qt::DisplayRole).toString();
        m_neededTitleWidth =
            qMax(m_neededTitleWidth, fontMetrics().horizontalAdvance(name) + 2 * kTextMargin + 1);
    }
    fitColumns();
}

void AxisGridCanvas::fitColumns()
{
    if (m_stretched) {
        constexpr int columns = AxisValueGridModel::kAxes + 1;
        const int spare = width() - 1;
        m_titleWidth = qMax(spare / columns + spare % columns, m_neededTitleWidth);
        m_axisWidth = qMax(0, spare - m_titleWidth) / AxisValueGridModel::kAxes;
        setMinimumSize(m_neededTitleWidth + AxisValueGridModel::kAxes, kRowHeight);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    } else {
        m_titleWidth = m_neededTitleWidth;
        m_axisWidth = kAxisWidth;
        setFixedSize(sizeHint());
    }
    update();
}

void AxisGridCanvas::setStretched(bool stretched)
{
    m_stretched = stretched;
    fitColumns();
}

void AxisGridCanvas::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitTitles();
}

void AxisGridCanvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_stretched)
        fitColumns();
}

void AxisGridCanvas::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int axis = axisAt(event->position().toPoint());
    if (axis >= 0)
        emit axisDoubleClicked(axis);
}

int AxisGridCanvas::axisAt(const QPoint& point) const
{
    if (m_axisWidth <= 0 || point.x() < m_titleWidth || point.y() < 0 ||
        point.y() >= kRowHeight * (1 + m_model.rowCount()))
        return -1;
    const int axis = (point.x() - m_titleWidth) / m_axisWidth;
    return axis < AxisValueGridModel::kAxes ? axis : -1;
}

QSize AxisGridCanvas::sizeHint() const
{
    return QSize(m_titleWidth + AxisValueGridModel::kAxes * m_axisWidth + 1,
                 kRowHeight * (1 + m_model.rowCount()) + 1);
}

QRect AxisGridCanvas::cellRect(int row, int axis) const
{
    return QRect(m_titleWidth + axis * m_axisWidth, (row + 1) * kRowHeight, m_axisWidth,
                 kRowHeight);
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
