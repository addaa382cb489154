#include "PlotWidget.h"

#include "PlotTicks.h"

#include <QFontMetrics>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int kGap = 4;
constexpr int kPixelsPerXTick = 90;
constexpr int kPixelsPerYTick = 40;
const QColor kGridColour(225, 225, 225);
const QColor kFrameColour(90, 90, 90);

bool lessTime(const QPointF& point, double x)
{
    return point.x() < x;
}

} // namespace

PlotWidget::PlotWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

PlotWidget::Series& PlotWidget::at(int index)
{
    if (index >= seriesCount())
        m_series.resize(static_cast<size_t>(index) + 1);
    return m_series[static_cast<size_t>(index)];
}

void PlotWidget::setSeries(int index, QVector<QPointF> points, const QColor& colour,
                           const QString& name)
{
    if (index < 0)
        return;
    Series& series = at(index);
    series.points = std::move(points);
    series.colour = colour;
    series.name = name;
    indexPoints(series, 0);
    update();
}

void PlotWidget::appendPoints(int index, const QVector<QPointF>& points)
{
    if (index < 0 || index >= seriesCount() || points.isEmpty())
        return;
    Series& series = m_series[static_cast<size_t>(index)];
    const int from = series.points.size();
    series.points += points;
    indexPoints(series, from);
    update();
}

void PlotWidget::indexPoints(Series& series, int from)
{
    const QVector<QPointF>& points = series.points;
    if (from == 0) {
        constexpr double inf = std::numeric_limits<double>::infinity();
        series.minX = series.minY = inf;
        series.maxX = series.maxY = -inf;
    }
    for (int i = from; i < points.size(); ++i) {
        const QPointF& p = points[i];
        series.minX = std::min(series.minX, p.x());
        series.maxX = std::max(series.maxX, p.x());
        series.minY = std::min(series.minY, p.y());
        series.maxY = std::max(series.maxY, p.y());
    }
    // The run holding `from` may have been partial: it is summed again.
    const int firstBlock = from / kBlock;
    series.blocks.resize(static_cast<size_t>((points.size() + kBlock - 1) / kBlock));
    for (size_t block = static_cast<size_t>(firstBlock); block < series.blocks.size(); ++block) {
        const int begin = static_cast<int>(block) * kBlock;
        const int end = std::min<int>(begin + kBlock, points.size());
        double low = points[begin].y();
        double high = low;
        for (int i = begin + 1; i < end; ++i) {
            low = std::min(low, points[i].y());
            high = std::max(high, points[i].y());
        }
        series.blocks[block] = {low, high};
    }
}

void PlotWidget::clearSeries()
{
    m_series.clear();
    update();
}

const QVector<QPointF>& PlotWidget::points(int index) const
{
    static const QVector<QPointF> none;
    return index >= 0 && index < seriesCount() ? m_series[static_cast<size_t>(index)].points : none;
}

void PlotWidget::setSeriesVisible(int index, bool visible)
{
    if (index >= 0 && index < seriesCount()) {
        m_series[static_cast<size_t>(index)].visible = visible;
        update();
    }
}

void PlotWidget::setSeriesYRange(int index, double low, double high)
{
    if (index < 0 || high == low)
        return;
    Series& series = at(index);
    series.ownRange = true;
    series.low = std::min(low, high);
    series.high = std::max(low, high);
    update();
}

void PlotWidget::setRightAxes(std::vector<ValueAxis> axes)
{
    m_rightAxes = std::move(axes);
    update();
}

void PlotWidget::setLegendAbove(bool above)
{
    m_legendAbove = above;
    update();
}

void PlotWidget::setYRange(double low, double high)
{
    if (high == low)
        return;
    m_fitY = false;
    m_yLow = std::min(low, high);
    m_yHigh = std::max(low, high);
    update();
}

void PlotWidget::fitY()
{
    m_fitY = true;
    update();
}

void PlotWidget::setXRange(double low, double high)
{
    if (high == low)
        return;
    m_fitX = false;
    m_xLow = std::min(low, high);
    m_xHigh = std::max(low, high);
    update();
}

void PlotWidget::fitX()
{
    m_fitX = true;
    update();
}

void PlotWidget::setAxisTitles(const QString& xTitle, const QString& yTitle)
{
    m_xTitle = xTitle;
    m_yTitle = yTitle;
    update();
}

void PlotWidget::setOverlay(Overlay overlay)
{
    m_overlay = std::move(overlay);
    update();
}

double PlotWidget::xToPixel(double x) const
{
    return m_area.left() + (x - m_xLow) * m_area.width() / (m_xHigh - m_xLow);
}

double PlotWidget::pixelToX(double pixel) const
{
    return m_xLow + (pixel - m_area.left()) * (m_xHigh - m_xLow) / m_area.width();
}

double PlotWidget::yToPixel(int index, double y) const
{
    double low = m_yLow;
    double high = m_yHigh;
    if (index >= 0 && index < seriesCount() && m_series[static_cast<size_t>(index)].ownRange) {
        low = m_series[static_cast<size_t>(index)].low;
        high = m_series[static_cast<size_t>(index)].high;
    }
    return m_area.bottom() - (y - low) * m_area.height() / (high - low);
}

void PlotWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintPlot(painter, rect());
}

void PlotWidget::layoutArea(const QRect& target, const QFontMetrics& metrics) const
{
    // The fitted ranges are settled here because the tick count depends on the size.
    const int line = metrics.height();
    int top = line / 2 + kGap;
    if (m_legendAbove) {
        const std::vector<QRectF> legend = legendRows(metrics, target);
        if (!legend.empty())
            top = static_cast<int>(std::ceil(legend.back().bottom())) - target.top() + kGap * 2;
    }
    const int bottom = line + kGap + (m_xTitle.isEmpty() ? 0 : line + kGap);
    const int plotHeight = std::max(1, target.height() - top - bottom);
    if (m_fitX) {
        double low = std::numeric_limits<double>::infinity();
        double high = -low;
        for (const Series& series : m_series) {
            if (series.visible && !series.points.isEmpty()) {
                low = std::min(low, series.minX);
                high = std::max(high, series.maxX);
            }
        }
        if (!(low < high)) {
            low = std::isfinite(low) ? low : 0.0;
            high = low + 1.0;
        }
        m_xLow = low;
        m_xHigh = high;
    }
    if (m_fitY) {
        double low = std::numeric_limits<double>::infinity();
        double high = -low;
        for (const Series& series : m_series) {
            if (series.visible && !series.ownRange && !series.points.isEmpty()) {
                low = std::min(low, series.minY);
                high = std::max(high, series.maxY);
            }
        }
        if (!std::isfinite(low))
            low = high = 0.0;
        const PlotTicks ticks = PlotTicks::forRange(low, high, plotHeight / kPixelsPerYTick);
        m_yLow = ticks.roundedLow();
        m_yHigh = ticks.roundedHigh();
    }
    const PlotTicks yTicks = PlotTicks::forRange(m_yLow, m_yHigh, plotHeight / kPixelsPerYTick);
    int labelWidth = 0;
    for (const double value : yTicks.values())
        labelWidth = std::max(labelWidth, metrics.horizontalAdvance(yTicks.label(value)));
    const int left = labelWidth + kGap * 2 + (m_yTitle.isEmpty() ? 0 : line + kGap);
    // Room on the right for half of the last time label, or for the value scales there.
    int right = metrics.horizontalAdvance(QStringLiteral("00000")) / 2 + kGap;
    int scales = 0;
    for (const ValueAxis& axis : m_rightAxes)
        scales += rightAxisWidth(axis, metrics, plotHeight);
    right = std::max(right, scales + kGap);
    m_area = QRectF(target.left() + left, target.top() + top,
                    std::max(1, target.width() - left - right), plotHeight);
}

void PlotWidget::paintPlot(QPainter& painter, const QRect& target) const
{
    painter.save();
    painter.setClipRect(target);
    painter.fillRect(target, palette().base());
    const QFontMetrics metrics(font(), painter.device());
    painter.setFont(font());
    layoutArea(target, metrics);
    drawGrid(painter, metrics, target);
    painter.setClipRect(m_area.adjusted(0, -1, 1, 1).toAlignedRect());
    for (const Series& series : m_series) {
        if (series.visible)
            drawSeries(painter, series);
    }
    if (m_overlay)
        m_overlay(painter, *this);
    painter.setClipRect(target);
    drawRightAxes(painter, metrics);
    drawLegend(painter, metrics, target);
    painter.restore();
}

void PlotWidget::drawGrid(QPainter& painter, const QFontMetrics& metrics, const QRect& target) const
{
    const QRectF& area = m_area;
    const QColor text = palette().color(QPalette::Text);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const PlotTicks xTicks =
        PlotTicks::forRange(m_xLow, m_xHigh, static_cast<int>(area.width()) / kPixelsPerXTick);
    const PlotTicks yTicks =
        PlotTicks::forRange(m_yLow, m_yHigh, static_cast<int>(area.height()) / kPixelsPerYTick);
    const int line = metrics.height();
    for (const double value : xTicks.values()) {
        const double x = std::round(xToPixel(value));
        painter.setPen(kGridColour);
        painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
        painter.setPen(text);
        const QRectF box(x - 50, area.bottom() + kGap, 100, line);
        painter.drawText(box, Qt::AlignHCenter | Qt::AlignTop, xTicks.label(value));
    }
    for (const double value : yTicks.values()) {
        const double y =
            std::round(m_area.bottom() - (value - m_yLow) * m_area.height() / (m_yHigh - m_yLow));
        painter.setPen(kGridColour);
        painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
        painter.setPen(text);
        const QRectF box(area.left() - kGap - 200, y - line / 2.0, 200, line);
        painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, yTicks.label(value));
    }
    painter.setPen(kFrameColour);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(area);
    painter.setPen(text);
    if (!m_xTitle.isEmpty()) {
        const QRectF box(area.left(), area.bottom() + kGap * 2 + line, area.width(), line);
        painter.drawText(box, Qt::AlignHCenter | Qt::AlignTop, m_xTitle);
    }
    if (!m_yTitle.isEmpty()) {
        painter.save();
        painter.translate(target.left() + kGap, area.center().y());
        painter.rotate(-90);
        painter.drawText(QRectF(-area.height() / 2, 0, area.height(), line),
                         Qt::AlignHCenter | Qt::AlignTop, m_yTitle);
        painter.restore();
    }
}

void PlotWidget::drawSeries(QPainter& painter, const Series& series) const
{
    const QVector<QPointF>& points = series.points;
    if (points.isEmpty())
        return;
    // Only the visible stretch, plus one point either side so lines reach the edges.
    auto first = std::lower_bound(points.begin(), points.end(), m_xLow, lessTime);
    auto last = std::lower_bound(first, points.end(), m_xHigh, lessTime);
    if (first != points.begin())
        --first;
    if (last != points.end())
        ++last;
    const double low = series.ownRange ? series.low : m_yLow;
    const double high = series.ownRange ? series.high : m_yHigh;
    const double sx = m_area.width() / (m_xHigh - m_xLow);
    const double ox = m_area.left() - m_xLow * sx;
    const double sy = -m_area.height() / (high - low);
    const double oy = m_area.bottom() - low * sy;
    QPen pen(series.colour, 1.0);
    pen.setCosmetic(true);
    painter.setPen(pen);
    m_line.clear();
    const auto count = last - first;
    if (count <= 2 * static_cast<long>(m_area.width())) {
        painter.setRenderHint(QPainter::Antialiasing, true);
        m_line.reserve(static_cast<int>(count));
        for (auto p = first; p != last; ++p)
            m_line.append(QPointF(ox + p->x() * sx, oy + p->y() * sy));
        painter.drawPolyline(m_line);
        return;
    }
    // Dense: each pixel column becomes its first, lowest, highest and last value, which keeps
    // every spike and costs the same to draw for 10^3 or 10^6 points. The inner loop compares
    // raw times with the column's end, takes whole runs of points from their summary, and maps
    // only the four kept values.
    painter.setRenderHint(QPainter::Antialiasing, false);
    m_line.reserve(static_cast<int>(m_area.width()) * 4 + 8);
    const QPointF* raw = points.constData();
    int i = static_cast<int>(first - points.begin());
    const int end = static_cast<int>(last - points.begin());
    while (i < end) {
        const double column = std::floor(ox + raw[i].x() * sx);
        const double columnEnd = (column + 1.0 - ox) / sx;
        const double enter = raw[i].y();
        double lowest = enter;
        double highest = enter;
        double leave = enter;
        for (++i; i < end;) {
            const int runEnd = i + kBlock;
            if ((i & (kBlock - 1)) == 0 && runEnd <= end && raw[runEnd - 1].x() < columnEnd) {
                const std::pair<double, double>& run = series.blocks[size_t(i / kBlock)];
                lowest = std::min(lowest, run.first);
                highest = std::max(highest, run.second);
                leave = raw[runEnd - 1].y();
                i = runEnd;
                continue;
            }
            if (!(raw[i].x() < columnEnd))
                break;
            leave = raw[i].y();
            lowest = leave < lowest ? leave : lowest;
            highest = leave > highest ? leave : highest;
            ++i;
        }
        const double x = column + 0.5;
        m_line.append(QPointF(x, oy + enter * sy));
        if (lowest != highest) {
            // Toward the nearer extreme first, so the column is one stroke down or up.
            const bool upFirst = highest - enter < enter - lowest;
            m_line.append(QPointF(x, oy + (upFirst ? highest : lowest) * sy));
            m_line.append(QPointF(x, oy + (upFirst ? lowest : highest) * sy));
        }
        m_line.append(QPointF(x, oy + leave * sy));
    }
    painter.drawPolyline(m_line);
}

int PlotWidget::rightAxisWidth(const ValueAxis& axis, const QFontMetrics& metrics,
                               int plotHeight) const
{
    const PlotTicks ticks = PlotTicks::forRange(axis.low, axis.high, plotHeight / kPixelsPerYTick);
    int labelWidth = 0;
    for (const double value : ticks.values())
        labelWidth = std::max(labelWidth, metrics.horizontalAdvance(ticks.label(value)));
    return kGap * 3 + labelWidth + (axis.title.isEmpty() ? 0 : metrics.height() + kGap);
}

void PlotWidget::drawRightAxes(QPainter& painter, const QFontMetrics& metrics) const
{
    const int line = metrics.height();
    const auto plotHeight = static_cast<int>(m_area.height());
    double x = m_area.right();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const ValueAxis& axis : m_rightAxes) {
        if (!(axis.high > axis.low))
            continue;
        const int width = rightAxisWidth(axis, metrics, plotHeight);
        painter.setPen(kFrameColour);
        painter.drawLine(QPointF(x, m_area.top()), QPointF(x, m_area.bottom()));
        const PlotTicks ticks =
            PlotTicks::forRange(axis.low, axis.high, plotHeight / kPixelsPerYTick);
        for (const double value : ticks.values()) {
            if (value < axis.low || value > axis.high)
                continue;
            const double y = std::round(m_area.bottom() - (value - axis.low) * m_area.height() /
                                                              (axis.high - axis.low));
            painter.setPen(kFrameColour);
            painter.drawLine(QPointF(x, y), QPointF(x + kGap, y));
            painter.setPen(palette().color(QPalette::Text));
            painter.drawText(QRectF(x + kGap * 2, y - line / 2.0, width, line),
                             Qt::AlignLeft | Qt::AlignVCenter, ticks.label(value));
        }
        if (!axis.title.isEmpty()) {
            painter.save();
            painter.translate(x + width - kGap, m_area.center().y());
            painter.rotate(90);
            painter.drawText(
                QRectF(-m_area.height() / 2, 0, m_area.height(), line),
                Qt::AlignHCenter | Qt::AlignTop,
                metrics.elidedText(axis.title, Qt::ElideRight, static_cast<int>(m_area.height())));
            painter.restore();
        }
        x += width;
    }
}

std::vector<QRectF> PlotWidget::legendRows(const QFontMetrics& metrics, const QRect& target) const
{
    std::vector<QRectF> boxes;
    const int line = metrics.height();
    const double left = target.left() + kGap;
    const double right = target.right() - kGap;
    double x = left;
    double y = target.top() + kGap;
    for (const Series& series : m_series) {
        if (!series.visible || series.name.isEmpty())
            continue;
        const double width = line + kGap * 4 + metrics.horizontalAdvance(series.name);
        if (x > left && x + width > right) {
            x = left;
            y += line;
        }
        boxes.emplace_back(x, y, width, line);
        x += width;
    }
    return boxes;
}

void PlotWidget::drawLegend(QPainter& painter, const QFontMetrics& metrics,
                            const QRect& target) const
{
    if (m_legendAbove) {
        const std::vector<QRectF> boxes = legendRows(metrics, target);
        const int swatch = metrics.height();
        size_t next = 0;
        for (const Series& series : m_series) {
            if (!series.visible || series.name.isEmpty() || next >= boxes.size())
                continue;
            const QRectF& box = boxes[next++];
            painter.setPen(QPen(series.colour, 2.0));
            const double middle = box.center().y();
            painter.drawLine(QPointF(box.left(), middle), QPointF(box.left() + swatch, middle));
            painter.setPen(palette().color(QPalette::Text));
            painter.drawText(box.adjusted(swatch + kGap, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                             series.name);
        }
        return;
    }
    int width = 0;
    int rows = 0;
    for (const Series& series : m_series) {
        if (series.visible && !series.name.isEmpty()) {
            width = std::max(width, metrics.horizontalAdvance(series.name));
            ++rows;
        }
    }
    if (rows == 0)
        return;
    const int line = metrics.height();
    const int swatch = line;
    const QRectF box(m_area.right() - width - swatch - kGap * 4, m_area.top() + kGap,
                     width + swatch + kGap * 3, rows * line + kGap * 2);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(kFrameColour);
    QColor ground = palette().color(QPalette::Base);
    ground.setAlpha(220);
    painter.setBrush(ground);
    painter.drawRect(box);
    double y = box.top() + kGap;
    for (const Series& series : m_series) {
        if (!series.visible || series.name.isEmpty())
            continue;
        QPen pen(series.colour, 2.0);
        painter.setPen(pen);
        const double middle = y + line / 2.0;
        painter.drawLine(QPointF(box.left() + kGap, middle),
                         QPointF(box.left() + kGap + swatch, middle));
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(QRectF(box.left() + kGap * 2 + swatch, y, width + kGap, line),
                         Qt::AlignLeft | Qt::AlignVCenter, series.name);
        y += line;
    }
}
