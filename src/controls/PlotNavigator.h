#pragma once

#include <QObject>
#include <QPoint>

#include <array>

class PlotWidget;
class QPainter;
class QRubberBand;

// Mouse work on a PlotWidget's time axis: the wheel zooms about the pointer, a drag pans, a
// right-button (or Shift) drag zooms to a rubber band, a double click asks for a fit, and two
// vertical cursors can be dragged. The cursors are drawn by whoever owns the plot's overlay.
class PlotNavigator : public QObject
{
    Q_OBJECT

public:
    explicit PlotNavigator(PlotWidget* plot);

    double cursor(int index) const { return m_cursors[static_cast<size_t>(index & 1)]; }
    void setCursor(int index, double x);
    void paintCursors(QPainter& painter, const PlotWidget& plot) const;
    // A horizontal line at value on series' scale that a drag moves (a trigger level); a
    // series below 0 takes it away.
    void setLevelLine(int series, double value);

signals:
    // The user zoomed or panned: the shown time no longer follows the data.
    void viewChanged();
    void fitRequested();
    void cursorsChanged();
    // The user dragged the level line to value.
    void levelDragged(double value);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Drag
    {
        None,
        Pan,
        Band,
        Cursor,
        Level
    };
    bool nearLevel(int pixelRow) const;
    int cursorNear(int pixel) const;
    void zoomAbout(double pixel, double factor);

    PlotWidget* m_plot;
    QRubberBand* m_band;
    std::array<double, 2> m_cursors{0.0, 0.0};
    Drag m_drag = Drag::None;
    int m_dragCursor = 0;
    int m_levelSeries = -1;
    double m_level = 0.0;
    QPoint m_pressed;
    double m_panLow = 0.0, m_panHigh = 1.0;
};
