#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>
#include <utility>
#include <vector>

// A line plot of (time, value) series on QPainter: autoscale, round grid, labelled axes, and
// one min/max pair per pixel column so long records stay quick to draw.
class PlotWidget : public QWidget
{
    Q_OBJECT

public:
    // Draws over the series, clipped to the plot area; the widget's mapping functions turn
    // data into pixels (cursors, markers, a trigger level).
    using Overlay = std::function<void(QPainter& painter, const PlotWidget& plot)>;

    explicit PlotWidget(QWidget* parent = nullptr);

    // Points must come in ascending time. A new index adds the series (and any below it).
    void setSeries(int index, QVector<QPointF> points, const QColor& colour, const QString& name);
    // Adds points after the last one of a series that exists; for live records.
    void appendPoints(int index, const QVector<QPointF>& points);
    void clearSeries();
    int seriesCount() const { return static_cast<int>(m_series.size()); }
    const QVector<QPointF>& points(int index) const;
    void setSeriesVisible(int index, bool visible);

    // A series on its own value range (not labelled), instead of the shared left axis.
    void setSeriesYRange(int index, double low, double high);

    // Labelled value scales right of the plot, the first next to it; a series drawn against
    // one is given the same range with setSeriesYRange.
    struct ValueAxis
    {
        double low = 0.0;
        double high = 1.0;
        QString title;
    };
    void setRightAxes(std::vector<ValueAxis> axes);
    const std::vector<ValueAxis>& rightAxes() const { return m_rightAxes; }
    // The legend in rows above the plot instead of over its top right corner, so it never
    // covers a trace.
    void setLegendAbove(bool above);

    // Shared value axis: fixed, or fitted to the series on it (rounded to whole ticks).
    void setYRange(double low, double high);
    void fitY();
    // Time axis: fixed (a scrolling window), or fitted to all series.
    void setXRange(double low, double high);
    void fitX();
    // The ranges of the last paint (fitted ones are settled when painting).
    double xLow() const { return m_xLow; }
    double xHigh() const { return m_xHigh; }
    double yLow() const { return m_yLow; }
    double yHigh() const { return m_yHigh; }

    void setAxisTitles(const QString& xTitle, const QString& yTitle);
    void setOverlay(Overlay overlay);

    // Where the series are drawn, in widget (or target) coordinates of the last paint.
    QRectF plotArea() const { return m_area; }
    double xToPixel(double x) const;
    double pixelToX(double pixel) const;
    // A value of series `index` (its own range or the shared axis) to a pixel row.
    double yToPixel(int index, double y) const;

    // The whole plot into any painter; paintEvent uses it, and so can images and prints.
    void paintPlot(QPainter& painter, const QRect& target) const;

    QSize sizeHint() const override { return {480, 280}; }
    QSize minimumSizeHint() const override { return {200, 120}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Series
    {
        QVector<QPointF> points;
        // Lowest and highest value of each run of kBlock points, so a pixel column that
        // spans whole runs reads two numbers per run instead of every point.
        std::vector<std::pair<double, double>> blocks;
        QColor colour;
        QString name;
        double minX = 0.0, maxX = 0.0, minY = 0.0, maxY = 0.0;
        bool ownRange = false;
        double low = 0.0, high = 1.0;
        bool visible = true;
    };

    Series& at(int index);
    static constexpr int kBlock = 32; // a power of two
    // Bounds and value runs of a series' points from index `from` on.
    static void indexPoints(Series& series, int from);
    void layoutArea(const QRect& target, const QFontMetrics& metrics) const;
    void drawGrid(QPainter& painter, const QFontMetrics& metrics, const QRect& target) const;
    void drawSeries(QPainter& painter, const Series& series) const;
    void drawLegend(QPainter& painter, const QFontMetrics& metrics, const QRect& target) const;
    void drawRightAxes(QPainter& painter, const QFontMetrics& metrics) const;
    int rightAxisWidth(const ValueAxis& axis, const QFontMetrics& metrics, int plotHeight) const;
    // Each named series' place in a legend above the plot, in rows that fit the width.
    std::vector<QRectF> legendRows(const QFontMetrics& metrics, const QRect& target) const;

    std::vector<Series> m_series;
    bool m_fitX = true;
    bool m_fitY = true;
    // Fitted ranges depend on the painted size, so painting settles them.
    mutable double m_xLow = 0.0, m_xHigh = 1.0;
    mutable double m_yLow = 0.0, m_yHigh = 1.0;
    QString m_xTitle;
    QString m_yTitle;
    std::vector<ValueAxis> m_rightAxes;
    bool m_legendAbove = false;
    Overlay m_overlay;
    mutable QRectF m_area;
    mutable QPolygonF m_line; // reused between paints
};
