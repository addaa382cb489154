#include "PlotTicks.h"
#include "PlotWidget.h"

#include <QImage>
#include <QPainter>
#include <QTest>

// The plot widget: round ticks, fitted and own ranges, and long records drawn without losing
// a single-sample spike.
class TestPlotWidget : public QObject
{
    Q_OBJECT

private:
    static QImage draw(const PlotWidget& plot)
    {
        QImage image(800, 400, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        plot.paintPlot(painter, image.rect());
        return image;
    }
    // Whether the colour appears in the pixel column within `rows` of the row.
    static bool colourNear(const QImage& image, double x, double y, QRgb colour, int rows)
    {
        for (int dx = -1; dx <= 1; ++dx)
            for (int dy = -rows; dy <= rows; ++dy)
                if (image.pixel(int(x) + dx, qBound(0, int(y) + dy, image.height() - 1)) == colour)
                    return true;
        return false;
    }

private slots:
    void ticks_areRoundAndCoverTheRange_data()
    {
        QTest::addColumn<double>("low");
        QTest::addColumn<double>("high");
        QTest::addColumn<int>("count");
        QTest::addColumn<double>("step");
        QTest::addColumn<double>("roundedLow");
        QTest::addColumn<double>("roundedHigh");
        QTest::addColumn<QString>("firstLabel");
        QTest::newRow("speeds") << 0.0 << 800000.0 << 8 << 100000.0 << 0.0 << 800000.0 << "0";
        QTest::newRow("odd span") << 3.0 << 97.0 << 5 << 20.0 << 0.0 << 100.0 << "20";
        QTest::newRow("negative") << -7.3 << 2.1 << 4 << 5.0 << -10.0 << 5.0 << "-5";
        QTest::newRow("fractions") << 0.013 << 0.091 << 4 << 0.02 << 0.0 << 0.1 << "0.02";
        QTest::newRow("flat") << 5.0 << 5.0 << 4 << 2.0 << 2.0 << 8.0 << "4";
        QTest::newRow("swapped") << 10.0 << 0.0 << 2 << 5.0 << 0.0 << 10.0 << "0";
    }
    void ticks_areRoundAndCoverTheRange()
    {
        QFETCH(double, low);
        QFETCH(double, high);
        QFETCH(int, count);
        const PlotTicks ticks = PlotTicks::forRange(low, high, count);
        QTEST(ticks.step(), "step");
        QTEST(ticks.roundedLow(), "roundedLow");
        QTEST(ticks.roundedHigh(), "roundedHigh");
        QVERIFY(!ticks.values().empty());
        QTEST(ticks.label(ticks.values().front()), "firstLabel");
        QVERIFY(int(ticks.values().size()) <= count + 1);
    }

    void denseSeries_keepsSpikesOfOneSample()
    {
        PlotWidget plot;
        QVector<QPointF> points;
        for (int i = 0; i < 100000; ++i)
            points.append(QPointF(i, i == 50100 ? 100.0 : i == 70003 ? -100.0 : 0.0));
        // Appended in two parts, the first ending inside a run of summarised points.
        plot.setSeries(0, points.mid(0, 50090), Qt::red, QString());
        plot.appendPoints(0, points.mid(50090));
        plot.setYRange(-120, 120);
        const QImage image = draw(plot);
        const QRgb red = QColor(Qt::red).rgb();
        QVERIFY(colourNear(image, plot.xToPixel(50100), plot.yToPixel(0, 100), red, 1));
        QVERIFY(colourNear(image, plot.xToPixel(70003), plot.yToPixel(0, -100), red, 1));
        QVERIFY(!colourNear(image, plot.xToPixel(30000), plot.yToPixel(0, 100), red, 2));
    }

    void ranges_fitTheDataOrFollowTheSetting()
    {
        PlotWidget plot;
        plot.setSeries(1, {{0, 0}, {250, 7300}, {1000, 0}}, Qt::blue, QStringLiteral("Speed"));
        plot.setSeries(0, {{-5, 0.2}, {20, 0.9}}, Qt::darkGreen, QStringLiteral("Level"));
        plot.setSeriesYRange(0, 0, 1);
        QRectF overlaid;
        plot.setOverlay([&](QPainter&, const PlotWidget& shown) { overlaid = shown.plotArea(); });
        draw(plot);
        QCOMPARE(plot.seriesCount(), 2);
        // Time fitted exactly over both series; values rounded out to whole ticks, and only
        // over the series on the shared axis.
        QCOMPARE(plot.xLow(), -5.0);
        QCOMPARE(plot.xHigh(), 1000.0);
        QCOMPARE(plot.yLow(), 0.0);
        QCOMPARE(plot.yHigh(), 8000.0);
        QCOMPARE(overlaid, plot.plotArea());
        QCOMPARE(plot.yToPixel(0, 1.0), plot.plotArea().top());
        QCOMPARE(plot.yToPixel(1, 8000.0), plot.plotArea().top());
        QCOMPARE(plot.pixelToX(plot.xToPixel(250)), 250.0);

        plot.setXRange(100, 200);
        plot.appendPoints(1, {{2000, 20000}});
        draw(plot);
        QCOMPARE(plot.xLow(), 100.0);
        QCOMPARE(plot.yHigh(), 20000.0);
        plot.fitX();
        draw(plot);
        QCOMPARE(plot.xHigh(), 2000.0);
    }
};

QTEST_MAIN(TestPlotWidget)
#include "tst_plotwidget.moc"
