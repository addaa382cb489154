#include "COV_ScopeWnd.h"
#include "COV_SnMtnWnd.h"
#include "PaintCounter.h"
#include "PlotNavigator.h"
#include "PlotWidget.h"
#include "PredictedSpeedProfile.h"
#include "RecordingFrame.h"
#include "ScopeChannelTable.h"
#include "ScopeCsv.h"
#include "ScopeReadout.h"
#include "ScopeSimRig.h"
#include "ScriptedPrompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

#include <memory>

// The scope window on a simulated board: recording a move from Run to the cursor readout,
// files, the mouse on the plot, and the single-axis window's button.
class TestScopeWnd : public QObject
{
    Q_OBJECT

private:
    struct Rig : ScopeSimRig
    {
        ScriptedPrompt prompt;
        RecordingFrame frame;
        ToolContext context{state, api, prompt, frame};
        std::unique_ptr<COV_ScopeWnd> window;

        bool open()
        {
            if (!start())
                return false;
            window = std::make_unique<COV_ScopeWnd>(context);
            window->setClock([this] { return double(nowMs); });
            window->resize(window->sizeHint());
            return true;
        }
        template <typename T> T* find(const char* name) const
        {
            return window->findChild<T*>(QLatin1String(name));
        }
        QString status() const { return find<QLabel>("status")->text(); }
    };

private slots:
    // The ramp shapes against their prediction are the recorder's test; one shape here.
    void recordedMove_readoutOverlayAndFiles()
    {
        Rig rig;
        QVERIFY(rig.open());
        rig.setSpeeds(16000, 1000, 250, 400, 0);
        rig.find<QComboBox>("length")->setCurrentIndex(1); // 2 s
        rig.find<QComboBox>("trigger")->setCurrentIndex(1);
        rig.find<QCheckBox>("channel3")->setChecked(true);
        QTest::mouseClick(rig.find<QPushButton>("runButton"), Qt::LeftButton);
        QCOMPARE(rig.status(), QStringLiteral("Waiting for trigger"));
        QVERIFY(!rig.find<QPushButton>("runButton")->isEnabled());
        for (int ms = 1;
             ms <= 3000 && rig.window->recorder().state() != ScopeRecorder::State::Stopped; ++ms) {
            rig.advance(1);
            if (ms == 400)
                rig.api.Inc_Move(ScopeSimRig::Rl, 0, ScopeSimRig::Axis, 9000);
            if (ms % 2 == 0)
                rig.window->sampleTick();
        }
        // A single shot stops by itself and shows what it caught.
        QCOMPARE(rig.status(), QStringLiteral("Stopped"));
        QVERIFY(rig.find<QPushButton>("runButton")->isEnabled());
        const ScopeRecording shown = rig.window->shown();
        QCOMPARE(shown.times.front(), -200.0);
        QCOMPARE(shown.columns.size(), size_t(3));
        QVERIFY(!PredictedSpeedProfile::forRecording(shown, 0).isEmpty());
        // Speed on the left; following error and position each on a scale of their own.
        const auto& right = rig.window->plot().rightAxes();
        QCOMPARE(right.size(), size_t(2));
        QCOMPARE(right[0].title, QStringLiteral("Following Error [pulse]"));
        QCOMPARE(right[1].title, QStringLiteral("Position [pulse]"));
        QVERIFY(right[1].high >= 9000.0);
        // A level trigger on the position draws its line on the position scale; a drag moves it.
        rig.find<QComboBox>("trigger")->setCurrentIndex(2);
        rig.find<QComboBox>("triggerChannel")->setCurrentIndex(2);
        rig.window->show();
        rig.window->grab();
        PlotWidget& plot = rig.window->plot();
        const int x = qRound(plot.plotArea().center().x());
        const QPoint from(x, qRound(plot.yToPixel(2, 0.0)));
        const QPoint to(x, qRound(plot.yToPixel(2, 4500.0)));
        QTest::mousePress(&plot, Qt::LeftButton, {}, from);
        QTest::mouseMove(&plot, to);
        QTest::mouseRelease(&plot, Qt::LeftButton, {}, to);
        const QString level = rig.find<QLineEdit>("triggerLevel")->text();
        QVERIFY2(qAbs(level.toDouble() - 4500.0) < 100.0, qPrintable(level));

        // Cursors on the cruise and after the stop: drive speed, then standstill on target.
        const PredictedSpeedProfile::Move move = PredictedSpeedProfile::forDistance(
            shown.columns[0].settings, PredictedSpeedProfile::recordedDistance(shown, 0));
        rig.window->navigator().setCursor(0, (move.accelEndMs() + move.decelStartMs()) / 2);
        rig.window->navigator().setCursor(1, move.endMs() + 50);
        const ScopeReadout& readout = rig.window->readout();
        QCOMPARE(readout.text(1, 1), QStringLiteral("16000"));
        QCOMPARE(readout.text(1, 2), QStringLiteral("0"));
        QCOMPARE(readout.text(1, 3), QStringLiteral("-16000"));
        QCOMPARE(readout.text(2, 2), QStringLiteral("0"));
        QCOMPARE(readout.text(0, 0), QStringLiteral("Time [ms]"));

        rig.window->show();
        const QString csv = rig.folder.filePath(QStringLiteral("move.csv"));
        QVERIFY(rig.window->exportCsv(csv));
        QVERIFY(rig.window->openCsv(csv));
        QCOMPARE(rig.status(), QStringLiteral("Viewing file"));
        // The record comes back the same, names, units and trigger included.
        const ScopeRecording back = rig.window->shown();
        QVERIFY(back.times == shown.times && back.triggered);
        QCOMPARE(back.columns.size(), shown.columns.size());
        for (size_t c = 0; c < shown.columns.size(); ++c) {
            QCOMPARE(back.columns[c].name, shown.columns[c].name);
            QCOMPARE(back.columns[c].unit, shown.columns[c].unit);
            QCOMPARE(back.columns[c].values, shown.columns[c].values);
        }
        QVERIFY(rig.window->windowTitle().endsWith(QStringLiteral("move.csv")));
        QVERIFY(rig.window->savePng(rig.folder.filePath(QStringLiteral("plot.png"))));
        QVERIFY(!rig.window->openCsv(rig.folder.filePath(QStringLiteral("none.csv"))));
        QCOMPARE(rig.prompt.messages().size(), 1);

        // The drawing tick leaves an unchanged record alone.
        PaintCounter paints;
        rig.window->plot().installEventFilter(&paints);
        QCoreApplication::processEvents();
        paints.paints = 0;
        rig.window->drawTick();
        QCoreApplication::processEvents();
        QCOMPARE(paints.paints, 0);
        rig.window->recorder().clear();
        rig.window->drawTick();
        QCoreApplication::processEvents();
        QCOMPARE(paints.paints, 1);
    }

    void mouse_zoomBandPanCursorAndFit()
    {
        Rig rig;
        QVERIFY(rig.open());
        // Opened from the single-axis window's button, the scope watches the axis that window
        // moves and fits the frame's tool area at 1366x768 with the panes shown.
        COV_SnMtnWnd single(rig.context);
        QTest::mouseClick(single.findChild<QPushButton*>("scopeButton"), Qt::LeftButton);
        QVERIFY(rig.frame.sent.contains(qMakePair(int(UM_OPEN_TOOL), int(ToolScope))));
        QVERIFY(rig.window->minimumSizeHint().width() <= 860 &&
                rig.window->sizeHint().height() <= 520);
        QCOMPARE(rig.window->channels().channel(0).axis, int(ScopeSimRig::Axis));
        QCOMPARE(rig.window->channels().channel(0).signal, ScopeChannel::CommandSpeed);
        ScopeRecording record;
        for (int i = 0; i <= 1000; ++i)
            record.times.push_back(i);
        ScopeRecording::Column ramp;
        ramp.name = QStringLiteral("A");
        ramp.unit = QStringLiteral("pps");
        ramp.values = record.times;
        record.columns.push_back(ramp);
        const QString csv = rig.folder.filePath(QStringLiteral("ramp.csv"));
        QVERIFY(ScopeCsv::write(record, csv));
        QVERIFY(rig.window->openCsv(csv));
        rig.window->show();
        rig.window->grab(); // lays the plot out
        PlotWidget& plot = rig.window->plot();
        const QRectF area = plot.plotArea();
        QCOMPARE(plot.xLow(), 0.0);
        QCOMPARE(plot.xHigh(), 1000.0);

        // The wheel zooms about the pointer.
        const QPointF centre = area.center();
        const double anchor = plot.pixelToX(centre.x());
        QWheelEvent wheel(centre, plot.mapToGlobal(centre), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&plot, &wheel);
        QCOMPARE(plot.xHigh() - plot.xLow(), 800.0);
        QVERIFY(qAbs(plot.pixelToX(centre.x()) - anchor) < 1e-6);

        // A right drag zooms to the band, a left drag pans by the distance dragged.
        const QPoint from(int(area.left()) + 100, int(centre.y()));
        const QPoint to = from + QPoint(200, 30);
        const double bandLow = plot.pixelToX(from.x());
        const double bandHigh = plot.pixelToX(to.x());
        QTest::mousePress(&plot, Qt::RightButton, {}, from);
        QTest::mouseMove(&plot, to);
        QTest::mouseRelease(&plot, Qt::RightButton, {}, to);
        QVERIFY(qAbs(plot.xLow() - bandLow) < 1e-6 && qAbs(plot.xHigh() - bandHigh) < 1e-6);
        const double span = plot.xHigh() - plot.xLow();
        const QPoint grab(int(area.left()) + 10, int(centre.y()));
        QTest::mousePress(&plot, Qt::LeftButton, {}, grab);
        QTest::mouseMove(&plot, grab + QPoint(int(area.width() / 2), 0));
        QTest::mouseRelease(&plot, Qt::LeftButton, {}, grab + QPoint(int(area.width() / 2), 0));
        QVERIFY(qAbs(plot.xLow() - (bandLow - span / 2)) < span * 0.01);

        // A cursor follows its line when dragged, and the readout with it.
        rig.window->fit();
        rig.window->grab();
        QCOMPARE(plot.xLow(), 0.0);
        PlotNavigator& navigator = rig.window->navigator();
        const QPoint line(qRound(plot.xToPixel(navigator.cursor(0))), int(centre.y()));
        QTest::mousePress(&plot, Qt::LeftButton, {}, line);
        QTest::mouseMove(&plot, QPoint(qRound(plot.xToPixel(600.0)), line.y()));
        QTest::mouseRelease(&plot, Qt::LeftButton, {}, QPoint(qRound(plot.xToPixel(600.0)), 0));
        QVERIFY(qAbs(navigator.cursor(0) - 600.0) < 2.0);
        QCOMPARE(plot.xLow(), 0.0);
        QVERIFY(qAbs(rig.window->readout().text(0, 1).toDouble() - navigator.cursor(0)) < 1e-3);
        QCOMPARE(rig.window->readout().text(1, 1),
                 QString::number(std::floor(navigator.cursor(0))));
    }
};

QTEST_MAIN(TestScopeWnd)
#include "tst_scopewnd.moc"
