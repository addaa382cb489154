#include "AppState.h"
#include "BoardApi.h"
#include "COV_ActSpdCalDlg.h"
#include "PlotWidget.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimLibrary.h"
#include "SpeedProfile.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

// The actual speed calculator: its arithmetic against the simulated boards' speed model, the
// worked figures, and the dialog's figures against a move on a simulated board.
class TestActualSpeed : public QObject
{
    Q_OBJECT

private:
    using Calc = ActualSpeedCalculator;

    static Calc::Request request(int drive, int initial, int accel, int decel, int mode,
                                 int rangeMode, int range)
    {
        Calc::Request r;
        r.drive = drive;
        r.initial = initial;
        r.accelMs = accel;
        r.decelMs = decel;
        r.speedMode = mode;
        r.rangeMode = rangeMode;
        r.range = range;
        return r;
    }
    static void addRequestColumns()
    {
        for (const char* name :
             {"drive", "initial", "accel", "decel", "mode", "rangeMode", "range"})
            QTest::addColumn<int>(name);
    }
    static Calc::Request fetchRequest()
    {
        QFETCH(int, drive);
        QFETCH(int, initial);
        QFETCH(int, accel);
        QFETCH(int, decel);
        QFETCH(int, mode);
        QFETCH(int, rangeMode);
        QFETCH(int, range);
        return request(drive, initial, accel, decel, mode, rangeMode, range);
    }
    static void addSettingRows()
    {
        // drive, initial, accel, decel, mode, range mode, R
        QTest::newRow("trapezoid auto") << 100000 << 1000 << 200 << 300 << 0 << 0 << 100;
        QTest::newRow("trapezoid fixed") << 55555 << 333 << 75 << 410 << 0 << 1 << 7;
        QTest::newRow("trapezoid fixed drive over range") << 90000 << 10 << 50 << 50 << 0 << 1 << 5;
        QTest::newRow("trapezoid slow ramp clamps rate")
            << 8000 << 7990 << 60000 << 1 << 0 << 0 << 1;
        QTest::newRow("trapezoid zeros") << 0 << 0 << 0 << 0 << 0 << 0 << 0;
        QTest::newRow("s-curve auto") << 250000 << 2000 << 150 << 999 << 1 << 0 << 500;
        QTest::newRow("s-curve fixed low initial") << 40000 << 50 << 400 << 400 << 1 << 1 << 10;
        QTest::newRow("s-curve jerk clamped") << 800000 << 100 << 1 << 1 << 1 << 0 << 600;
        QTest::newRow("s-curve long ramp") << 3000 << 3000 << 30000 << 5 << 1 << 1 << 1;
        QTest::newRow("initial above drive") << 5000 << 9000 << 100 << 100 << 0 << 0 << 100;
    }

private slots:
    void calculation_agreesWithTheBoardModel_data()
    {
        addRequestColumns();
        addSettingRows();
    }
    void calculation_agreesWithTheBoardModel()
    {
        const Calc::Request r = fetchRequest();
        nrxsim::SpeedProfile::Request s;
        s.drive = r.drive;
        s.initial = r.initial;
        s.accelMs = r.accelMs;
        s.decelMs = r.decelMs;
        s.shape = nrxsim::SpeedProfile::Shape(r.speedMode);
        s.range = r.range;
        s.fixedRange = r.rangeMode == Calc::FixedRange;
        const nrxsim::SpeedProfile board(s);
        const Calc::Result result = Calc::calculate(r);
        QCOMPARE(result.magnification, board.magnification());
        QCOMPARE(result.driveSpeed, board.driveSpeed());
        QCOMPARE(result.initialSpeed, board.initialSpeed());
        QCOMPARE(result.driveRegister, board.driveRegister());
        QCOMPARE(result.initialRegister, board.initialRegister());
        QCOMPARE(result.accelTimeMs, board.accelTimeMs());
        QCOMPARE(result.decelTimeMs, board.decelTimeMs());
        if (r.speedMode == Calc::SCurve) {
            QCOMPARE(result.jerkRegister, board.jerkRegister());
        } else {
            QCOMPARE(result.accelRegister, board.accelRegister());
            QCOMPARE(result.decelRegister, board.decelRegister());
        }
    }

    void calculation_givesTheWorkedFigures_data()
    {
        addRequestColumns();
        QTest::addColumn<int>("magnification");
        QTest::addColumn<int>("actualDrive");
        QTest::addColumn<int>("actualInitial");
        QTest::addColumn<int>("accelShown");
        QTest::addColumn<int>("decelShown");
        QTest::newRow("800000 under R 500")
            << 800000 << 100 << 100 << 100 << 0 << 0 << 500 << 100 << 800000 << 100 << 99 << 99;
        QTest::newRow("8001 needs R 2")
            << 8001 << 1 << 100 << 100 << 0 << 0 << 100 << 2 << 8002 << 2 << 99 << 99;
        QTest::newRow("initial lowered to drive")
            << 5000 << 9000 << 100 << 100 << 0 << 0 << 100 << 1 << 5000 << 5000 << 0 << 0;
        QTest::newRow("s-curve initial at least 100 R")
            << 40000 << 50 << 400 << 100 << 1 << 1 << 10 << 10 << 40000 << 1000 << 395 << 395;
        QTest::newRow("R 0 is 1") << 4000 << 1 << 100 << 100 << 0 << 1 << 0 << 1 << 4000 << 1 << 99
                                  << 99;
        QTest::newRow("R 600 is 500")
            << 100000 << 500 << 100 << 100 << 0 << 1 << 600 << 500 << 100000 << 500 << 99 << 99;
    }
    void calculation_givesTheWorkedFigures()
    {
        const Calc::Result result = Calc::calculate(fetchRequest());
        QTEST(result.magnification, "magnification");
        QTEST(result.driveSpeed, "actualDrive");
        QTEST(result.initialSpeed, "actualInitial");
        QTEST(int(result.accelTimeMs), "accelShown");
        QTEST(int(result.decelTimeMs), "decelShown");
    }

    void dialog_predictsTheSimulatedMoveTime_data()
    {
        addRequestColumns();
        addSettingRows();
    }
    void dialog_predictsTheSimulatedMoveTime()
    {
        const Calc::Request r = fetchRequest();
        QTemporaryDir folder;
        QVERIFY(SimLibrary::writeBoards(folder.path(), "[RM]\nCards=2\n[RM.Card1]\nAxes=4\n"
                                                       "[Axes]\nPlusLimit=100000000\n"));
        SimLibrary rm(1);
        QVERIFY(rm.isLoaded());
        QCOMPARE(rm.loadIn(folder.path()), 1);
        rm.nrx.SetSpeedMode(1, 3, nrx_u16(r.speedMode));
        rm.nrx.SetRangeMode(1, 3, nrx_u16(r.range));
        rm.nrx.SetFixedRange(1, 3, nrx_u16(r.rangeMode));
        rm.nrx.SetPosSpeed(1, 3, r.initial, r.drive, r.accelMs, r.decelMs);

        AppState state;
        state.active.family = BoardFamily::RM;
        state.active.card = 1;
        state.active.axis = 3;
        state.registry.setLoadResult(BoardFamily::RM, 1);
        state.registry.setCardInfo(BoardFamily::RM, 0, 8, 0, 16);
        state.registry.setCardInfo(BoardFamily::RM, 1, 4, 0, 16);
        BoardApi api;
        api.setTable(BoardFamily::RM, &rm.nrx);
        ScriptedPrompt prompt;
        RecordingFrame frame;
        COV_ActSpdCalDlg dialog({state, api, prompt, frame});
        QCOMPARE(dialog.axisList()->count(), 4);
        QCOMPARE(dialog.axisList()->currentIndex(), 3);
        QCOMPARE(dialog.speedModeList()->currentIndex(), r.speedMode);

        // The board's register for R reads back as what was set (0 reads as a fresh 100).
        Calc::Request shown = r;
        shown.range = r.range == 0 ? 100 : nrx_u16(r.range);
        const Calc::Result result = Calc::calculate(shown);
        QCOMPARE(dialog.output(0)->text().toInt(), result.driveSpeed);
        QCOMPARE(dialog.output(2)->text().toInt(), int(result.accelTimeMs));
        QCOMPARE(
            dialog.rangeText()->text(),
            QStringLiteral("(%1 ~ %2)").arg(result.magnification).arg(result.magnification * 8000));
        QCOMPARE(dialog.plot()->seriesCount(), 2);

        // A move long enough to cruise: both ramps plus the rest at drive speed.
        const double vd = result.driveSpeed;
        const double vi = result.initialSpeed;
        const double ramps = (result.accelTimeMs + result.decelTimeMs) / 1000.0;
        const int distance = int(qMax(vd * ramps * 2.0, vd * 0.2));
        const double predictedMs = 1000.0 * (ramps + (distance - (vi + vd) / 2.0 * ramps) / vd);
        rm.nrx.Inc_Move(1, 3, distance);
        int ms = 0;
        while (rm.nrx.Done(1, 3) != 0 && ms < 600000) {
            rm.sim.AdvanceClock(1);
            ++ms;
        }
        QVERIFY2(qAbs(ms - predictedMs) <= 2.0 + 0.01 * predictedMs,
                 qPrintable(
                     QStringLiteral("took %1 ms, calculator says %2 ms").arg(ms).arg(predictedMs)));
        QCOMPARE(rm.nrx.GetCommandPos(1, 3), distance);
    }

    void dialog_recalculatesTypedValuesAndLocksTheAutomaticRange()
    {
        AppState state;
        state.registry.setLoadResult(BoardFamily::RL, 0);
        state.registry.setCardInfo(BoardFamily::RL, 0, 2, 0, 16);
        BoardApi api;
        ScriptedPrompt prompt;
        RecordingFrame frame;
        COV_ActSpdCalDlg dialog({state, api, prompt, frame});
        // No board answers: R 0 is shown as 100 and every speed reads 0.
        QVERIFY(dialog.rangeEdit()->isReadOnly());
        dialog.input(0)->setText(QStringLiteral("800000"));
        dialog.input(1)->setText(QStringLiteral("12x"));
        dialog.rangeEdit()->setText(QStringLiteral("500"));
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("calculate")),
                          Qt::LeftButton);
        QCOMPARE(dialog.rangeEdit()->text(), QStringLiteral("100"));
        QCOMPARE(dialog.rangeText()->text(), QStringLiteral("(100 ~ 800000)"));
        QCOMPARE(dialog.output(0)->text(), QStringLiteral("800000"));
        QCOMPARE(dialog.output(1)->text(), QStringLiteral("100"));
        dialog.rangeModeList()->setCurrentIndex(Calc::FixedRange);
        QVERIFY(!dialog.rangeEdit()->isReadOnly());
    }
};

QTEST_MAIN(TestActualSpeed)
#include "tst_actualspeed.moc"
