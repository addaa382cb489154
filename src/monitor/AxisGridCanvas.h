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

    // The rectangle of a value cell (row and axis from 0, below the titles).
    QRect cellRect(int row, int axis) const;
    // The row names' column: 55 wide, or wider when the font needs it for a name.
    int titleWidth() const { return m_titleWidth; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fitTitles();
    void paintCell(QPainter& painter, const QRect& cell, const QString& text, const QColor& fill,
                   Qt::Alignment alignment) const;

    AxisValueGridModel& m_model;
    int m_titleWidth = kTitleWidth;
};
