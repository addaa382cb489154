#pragma once

#include <QWidget>

class AxisValueGridModel;

// Paints an axis-value grid: the axis titles across the top, the row names down the left and
// the values, each cell from the model. A changed value repaints its own cell only.
class AxisGridCanvas : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kRowHeight = 22;
    static constexpr int kTitleWidth = 55;
    static constexpr int kAxisWidth = 63;

    explicit AxisGridCanvas(AxisValueGridModel& model, QWidget* parent = nullptr);

    // Stretched, the axis columns share the canvas' width (a ninth each, the row names the
    // rest); otherwise the canvas keeps its fixed size.
    void setStretched(bool stretched);
    // The axis whose title or value cell is at the point, or -1.
    int axisAt(const QPoint& point) const;

    // The rectangle of a value cell (row and axis from 0, below the titles).
    QRect cellRect(int row, int axis) const;
    // The row names' column: 55 wide, or wider when the font needs it for a name.
    QSize sizeHint() const override;

signals:
    void axisDoubleClicked(int axis);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void fitTitles();
    void fitColumns();
    void paintCell(QPainter& painter, const QRect& cell, const QString& text, const QColor& fill,
                   Qt::Alignment alignment) const;

    AxisValueGridModel& m_model;
    int m_titleWidth = kTitleWidth;
    int m_neededTitleWidth = kTitleWidth;
    int m_axisWidth = kAxisWidth;
    bool m_stretched = false;
};
