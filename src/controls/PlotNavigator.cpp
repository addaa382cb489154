#include "PlotNavigator.h"

#include "PlotWidget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QRubberBand>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr int kGrip = 5; // pixels either side of a cursor line that pick it up
constexpr double kWheelStep = 0.8;
const QColor kCursorColours[2] = {QColor(200, 0, 0), QColor(0, 120, 0)};

} // namespace

PlotNavigator::PlotNavigator(PlotWidget* plot)
    : QObject(plot), m_plot(plot), m_band(new QRubberBand(QRubberBand::Rectangle, plot))
{
    plot->installEventFilter(this);
    plot->setMouseTracking(true);
}

void PlotNavigator::setCursor(int index, double x)
{
    double& cursor = m_cursors[static_cast<size_t>(index & 1)];
    if (cursor == x)
        return;
    cursor = x;
    m_plot->update();
    emit cursorsChanged();
}

void PlotNavigator::paintCursors(QPainter& painter, const PlotWidget& plot) const
{
    const QRectF area = plot.plotArea();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int i = 0; i < 2; ++i) {
        const double x = std::round(plot.xToPixel(m_cursors[static_cast<size_t>(i)]));
        QPen pen(kCursorColours[i], 1.0, Qt::DashLine);
        painter.setPen(pen);
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        painter.drawText(QPointF(x + 3, area.bottom() - 4), QString::number(i + 1));
    }
}

int PlotNavigator::cursorNear(int pixel) const
{
    for (int i = 0; i < 2; ++i) {
        if (std::fabs(m_plot->xToPixel(m_cursors[static_cast<size_t>(i)]) - pixel) <= kGrip)
            return i;
    }
    return -1;
}

void PlotNavigator::zoomAbout(double pixel, double factor)
{
    const double anchor = m_plot->pixelToX(pixel);
    const double low = anchor - (anchor - m_plot->xLow()) * factor;
    const double high = anchor + (m_plot->xHigh() - anchor) * factor;
    if (high - low < 1e-3)
        return;
    m_plot->setXRange(low, high);
    emit viewChanged();
}

void PlotNavigator::setLevelLine(int series, double value)
{
    m_levelSeries = series;
    m_level = value;
}

bool PlotNavigator::nearLevel(int pixelRow) const
{
    return m_levelSeries >= 0 &&
           std::abs(m_plot->yToPixel(m_levelSeries, m_level) - pixelRow) <= kGrip;
}

bool PlotNavigator::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_plot)
        return false;
    switch (event->type()) {
    case QEvent::Wheel: {
        auto* wheel = static_cast<QWheelEvent*>(event);
        const int steps = wheel->angleDelta().y() / 120;
        if (steps != 0)
            zoomAbout(wheel->position().x(), std::pow(kWheelStep, steps));
        return true;
    }
    case QEvent::MouseButtonDblClick:
        emit fitRequested();
        return true;
    case QEvent::MouseButtonPress: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        m_pressed = mouse->position().toPoint();
        const bool band =
            mouse->button() == Qt::RightButton ||
            (mouse->button() == Qt::LeftButton && (mouse->modifiers() & Qt::ShiftModifier));
        if (band) {
            m_drag = Drag::Band;
            m_band->setGeometry(QRect(m_pressed, QSize()));
            m_band->show();
        } else if (mouse->button() == Qt::LeftButton) {
            m_dragCursor = cursorNear(m_pressed.x());
            m_drag = m_dragCursor >= 0          ? Drag::Cursor
                     : nearLevel(m_pressed.y()) ? Drag::Level
                                                : Drag::Pan;
            m_panLow = m_plot->xLow();
            m_panHigh = m_plot->xHigh();
        }
        return true;
    }
    case QEvent::MouseMove: {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint at = mouse->position().toPoint();
        switch (m_drag) {
        case Drag::None:
            m_plot->setCursor(cursorNear(at.x()) >= 0 ? Qt::SplitHCursor
                              : nearLevel(at.y())     ? Qt::SplitVCursor
                                                      : Qt::CrossCursor);
            break;
        case Drag::Level: {
            // The series' scale is linear: two of its rows give the value of any other.
            const double zero = m_plot->yToPixel(m_levelSeries, 0.0);
            const double one = m_plot->yToPixel(m_levelSeries, 1.0);
            if (one != zero) {
                m_level = (at.y() - zero) / (one - zero);
                emit levelDragged(m_level);
            }
            break;
        }
        case Drag::Cursor:
            setCursor(m_dragCursor, m_plot->pixelToX(at.x()));
            break;
        case Drag::Pan: {
            const double shift =
                (at.x() - m_pressed.x()) * (m_panHigh - m_panLow) / m_plot->plotArea().width();
            m_plot->setXRange(m_panLow - shift, m_panHigh - shift);
            emit viewChanged();
            break;
        }
        case Drag::Band:
            m_band->setGeometry(QRect(m_pressed, at).normalized());
            break;
        }
        return true;
    }
    case QEvent::MouseButtonRelease: {
        if (m_drag == Drag::Band) {
            m_band->hide();
            const QRect band = m_band->geometry();
            // A click without a drag is no zoom.
            if (band.width() > 3) {
                m_plot->setXRange(m_plot->pixelToX(band.left()), m_plot->pixelToX(band.right()));
                emit viewChanged();
            }
        }
        m_drag = Drag::None;
        return true;
    }
    default:
        return false;
    }
}
