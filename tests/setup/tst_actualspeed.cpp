#include "AppState.h"
#include "BoardApi.h"
#include "COV_ActSpdCalDlg.h"
#include "PlotWidget.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "SpeedProfile.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

Q_DECLARE_METATYPE(ActualSpeedCalculator::Request)

// The actual speed calculator: its arithmetic against the simulated boards' speed model, the
// worked figures, and the dialog's figures against moves on a simulated board.
class TestActualSpeed : public QObject
{
    Q_OBJECT

private:
    using Calc = ActualSpeedCalculator;

    // drive, initial, accel, decel [pps, ms], speed mode, range mode, R
    static Calc::Request request(int drive, int initial, int accel, int decel, int mode,
                                 int rangeMode, int range)
    {
        return {drive, initial, accel, decel, mode, rangeMode, range};
    }

private slots:
    void calculation_agreesWithTheBoardModelAndItsMoves_data()
    {
        QTest::addColumn<Calc::Request>("request");
        QTest::newRow("trapezoid auto") << request(100000, 1000, 200, 300, 0, 0, 100);
        QTest::newRow("trapezoid fixed") << request(55555, 333, 75, 410, 0, 1, 7);
        QTest::newRow("trapezoid over fixed range") << request(90000, 10, 50, 50, 0, 1, 5);
        QTest::newRow("trapezoid rate clamped") << request(8000, 7990, 60000, 1, 0, 0, 1);
        QTest::newRow("trapezoid zeros") << request(0, 0, 0, 0, 0, 0, 0);
        QTest::newRow("s-curve auto") << request(250000, 2000, 150, 999, 1, 0, 500);
        QTest::newRow("s-curve fixed low initial") << request(40000, 50, 400, 400, 1, 1, 10);
        QTest::newRow("s-curve jerk clamped") << request(800000, 100, 1, 1, 1, 0, 600);
        QTest::newRow("s-curve long ramp") << request(3000, 3000, 30000, 5, 1, 1, 1);
        QTest::newRow("initial above drive") << request(5000, 9000, 100, 100, 0, 0, 100);
    }
    void calculation_agreesWithTheBoardModelAndItsMoves()
    {
        QFETCH(Calc::Request, request);
        const nrxsim::SpeedProfile board({request.drive, request.initial, request.accelMs,
                                          request.decelMs,
                                          nrxsim::SpeedProfile::Shape(request.speedMode),
                                          request.range, request.rangeMode == Calc::FixedRange});
        const Calc::Result result = Calc::calculate(request);
        QCOMPARE(result.magnification, board.magnification());
        QCOMPARE(result.driveSpeed, board.driveSpeed());
        QCOMPARE(result.initialSpeed, board.initialSpeed());
        QCOMPARE(result.accelTimeMs, board.accelTimeMs());
        QCOMPARE(result.decelTimeMs, board.decelTimeMs());
        QCOMPARE(result.jerkRegister, board.jerkRegister());
        QCOMPARE(result.accelRegister, board.accelRegister());
        QCOMPARE(result.decelRegister, board.decelRegister());

        // The same settings on a simulated RM axis, read by the dialog.
        BoardApi api;
        AppState state;
        SimBoardsRig sim{api, state};
        QVERIFY(
            sim.start(true, "[RM]\nCards=2\n[RM.Card1]\nAxes=4\n[Axes]\nPlusLimit=100000000\n"));
        const BoardFamily rm = BoardFamily::RM;
        api.SetSpeedMode(rm, 1, 3, nrx_u16(request.speedMode));
        api.SetRangeMode(rm, 1, 3, nrx_u16(request.range));
        api.SetFixedRange(rm, 1, 3, nrx_u16(request.rangeMode));
        api.SetPosSpeed(rm, 1, 3, request.initial, request.drive, request.accelMs, request.decelMs);
        state.active = {rm, rm, 1, 3, {}};
        ScriptedPrompt prompt;
        RecordingFrame frame;
        COV_ActSpdCalDlg dialog({state, api, prompt, frame});
        QCOMPARE(dialog.axisList()->currentIndex(), 3);
        // R as the board holds it: a fresh 100 for 0.
        Calc::Request held = request;
        held.range = request.range == 0 ? 100 : request.range;
        const Calc::Result shown = Calc::calculate(held);
        QCOMPARE(dialog.output(0)->text().toInt(), shown.driveSpeed);
        QCOMPARE(dialog.output(2)->text().toInt(), int(shown.accelTimeMs));
        QCOMPARE(dialog.plot()->seriesCount(), 2);

        // A move long enough to cruise: both ramps, then the rest at the drive speed.
        const double vd = shown.driveSpeed;
        const double ramps = (shown.accelTimeMs + shown.decelTimeMs) / 1000.0;
        const int distance = int(qMax(vd * ramps * 2.0, vd * 0.2));
        const double predictedMs =
            1000.0 * (ramps + (distance - (shown.initialSpeed + vd) / 2.0 * ramps) / vd);
        api.Inc_Move(rm, 1, 3, distance);
        int ms = 0;
        for (; api.Done(rm, 1, 3) != 0 && ms < 600000; ++ms)
            sim.advance(rm, 1);
        QVERIFY2(qAbs(ms - predictedMs) <= 2.0 + 0.01 * predictedMs,
                 qPrintable(QStringLiteral("took %1 ms, predicted %2").arg(ms).arg(predictedMs)));
    }

    void calculation_givesTheWorkedFigures_data()
    {
        QTest::addColumn<Calc::Request>("request");
        QTest::addColumn<QList<int>>("figures"); // R used, drive, initial, accel, decel shown
        QTest::newRow("800000 under R 500")
            << request(800000, 100, 100, 100, 0, 0, 500) << QList<int>{100, 800000, 100, 99, 99};
        QTest::newRow("8001 needs R 2")
            << request(8001, 1, 100, 100, 0, 0, 100) << QList<int>{2, 8002, 2, 99, 99};
        QTest::newRow("initial lowered to drive")
            << request(5000, 9000, 100, 100, 0, 0, 100) << QList<int>{1, 5000, 5000, 0, 0};
        QTest::newRow("s-curve initial at least 100 R")
            << request(40000, 50, 400, 100, 1, 1, 10) << QList<int>{10, 40000, 1000, 395, 395};
        QTest::newRow("R 0 is 1") << request(4000, 1, 100, 100, 0, 1, 0)
                                  << QList<int>{1, 4000, 1, 99, 99};
        QTest::newRow("R 600 is 500")
            << request(100000, 500, 100, 100, 0, 1, 600) << QList<int>{500, 100000, 500, 99, 99};
    }
    void calculation_givesTheWorkedFigures()
    {
        QFETCH(Calc::Request, request);
        const Calc::Result r = Calc::calculate(request);
        QTEST((QList<int>{r.magnification, r.driveSpeed, r.initialSpeed, int(r.accelTimeMs),
                          int(r.decelTimeMs)}),
              "figures");
    }

    void calculation_roundsItsRegistersToTheNearestStep()
    {
        // 9900 pps in 130 ms at R 2: 76153.8 pps/s = register 304.6 -> 305; no speed change
        // still gives the smallest register, not zero.
        QCOMPARE(Calc::calculate(request(10000, 100, 130, 200, 0, 0, 100)).accelRegister, 305);
        QCOMPARE(Calc::calculate(request(5000, 5000, 100, 100, 0, 0, 100)).accelRegister, 1);
        // J = 4 * 9900 / 0.1^2 = 3.96e6 -> round(62.5e6 / J * 2) = 32, a 100 ms ramp; the
        // S-curve does not use the decel input.
        const Calc::Result s = Calc::calculate(request(10000, 100, 100, 900, 1, 0, 100));
        QCOMPARE(s.jerkRegister, 32);
        QCOMPARE(int(s.accelTimeMs), 100);
        QCOMPARE(s.decelTimeMs, s.accelTimeMs);
    }

    void dialog_readsTheRangeFromItsBoxAndNumbersLikeAtoi()
    {
        AppState state;
        state.registry.setLoadResult(BoardFamily::RL, 0);
        state.registry.setCardInfo(BoardFamily::RL, 0, 2, 0, 16);
        BoardApi api; // no board: every read is 0, R shows as 100
        ScriptedPrompt prompt;
        RecordingFrame frame;
        COV_ActSpdCalDlg dialog({state, api, prompt, frame});
        QVERIFY(dialog.rangeEdit()->isReadOnly());
        dialog.input(0)->setText(QStringLiteral("800000"));
        dialog.input(1)->setText(QStringLiteral("12x"));
        dialog.rangeEdit()->setText(QStringLiteral("500"));
        QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("calculate")),
                          Qt::LeftButton);
        QCOMPARE(dialog.rangeEdit()->text(), QStringLiteral("100"));
        QCOMPARE(dialog.rangeText()->text(), QStringLiteral("(100 ~ 800000)"));
        QCOMPARE(dialog.output(1)->text(), QStringLiteral("100"));
        // Each automatic calculation starts again from the board's magnification, not from the
        // smaller one the last calculation showed.
        auto calculateDrive = [&](const char* drive) {
            dialog.input(0)->setText(QLatin1String(drive));
            QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("calculate")),
                              Qt::LeftButton);
            return dialog.output(0)->text();
        };
        QCOMPARE(calculateDrive("10000"), QStringLiteral("10000"));
        QCOMPARE(dialog.rangeEdit()->text(), QStringLiteral("2"));
        QCOMPARE(calculateDrive("2000000"), QStringLiteral("800000"));
        QCOMPARE(dialog.rangeEdit()->text(), QStringLiteral("100"));
        dialog.rangeModeList()->setCurrentIndex(Calc::FixedRange);
        QVERIFY(!dialog.rangeEdit()->isReadOnly());
    }
};

QTEST_MAIN(TestActualSpeed)
#include "tst_actualspeed.moc"
