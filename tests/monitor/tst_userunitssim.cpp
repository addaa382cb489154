#include "AppState.h"
#include "AxisGridCanvas.h"
#include "AxisValueGridModel.h"
#include "BoardApi.h"
#include "COV_SysDbgWnd.h"
#include "COV_UtMtnStWnd.h"
#include "DiagnosisGrid.h"
#include "PaintCounter.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"

#include <QTest>

#include <memory>

// User units end to end on a simulated RL card of 4 axes: an axis moved 5000 pulses with 1000
// pulses/mm reads 5.000 in the motion-status pane and the diagnosis, the titles name the
// unit, and a tick that changes nothing repaints nothing.
class TestUserUnitsSim : public QObject
{
    Q_OBJECT

private:
    static constexpr AxisNo kAxis = 1;
    static constexpr BoardFamily kRl = BoardFamily::RL;

    struct Rig
    {
        BoardApi api;
        AppState state;
        SimBoardsRig sim{api, state};
        ScriptedPrompt prompt;
        RecordingFrame frame;
        std::unique_ptr<COV_UtMtnStWnd> pane;
        std::unique_ptr<COV_SysDbgWnd> diagnosis;

        bool start()
        {
            if (!sim.start(true, "[RL]\nCards=1\n[RL.Card0]\nAxes=4\nIO=24\n[Axes]\nZPeriod=0\n"))
                return false;
            pane = std::make_unique<COV_UtMtnStWnd>(state, api, frame);
            pane->resize(900, 96);
            pane->show();
            diagnosis = std::make_unique<COV_SysDbgWnd>(ToolContext{state, api, prompt, frame});
            diagnosis->timer().stop();
            diagnosis->show();
            return QTest::qWaitForWindowExposed(pane.get()) &&
                   QTest::qWaitForWindowExposed(diagnosis.get());
        }
        ~Rig()
        {
            pane.reset();
            diagnosis.reset();
        }
        bool moveAndWait(std::int32_t distance)
        {
            api.SetPosSpeed(kRl, 0, kAxis, 100, 20000, 50, 50);
            api.Inc_Move(kRl, 0, kAxis, distance);
            for (int ms = 0; ms < 60000; ++ms) {
                if (api.Done(kRl, 0, kAxis) == 0)
                    return true;
                sim.advance(kRl, 1);
            }
            return false;
        }
        void tick()
        {
            pane->refresh();
            diagnosis->tick();
        }
        QString paneCell(int row, int axis = kAxis) const
        {
            return pane->model()->index(row, axis).data().toString();
        }
        QString diagnosisCell(int row) const
        {
            return diagnosis->positionGrid()->values()->index(row, kAxis).data().toString();
        }
        static QString title(const AxisValueGridModel* model, int section, Qt::Orientation side)
        {
            return model->headerData(section, side, Qt::DisplayRole).toString();
        }
    };

private slots:
    void move_readsInUnitsWhileShown()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.state.units.setScale(kRl, 0, kAxis, AxisUnitScale(QStringLiteral("mm"), 1000, 3));
        QVERIFY(rig.moveAndWait(5000));
        rig.tick();
        QCOMPARE(rig.paneCell(COV_UtMtnStWnd::CommandPosition), "5000"); // off: pulses as written

        rig.state.units.setShown(true);
        rig.tick();
        QCOMPARE(rig.paneCell(COV_UtMtnStWnd::CommandPosition), "5.000");
        QCOMPARE(rig.paneCell(COV_UtMtnStWnd::ActualPosition), "5.000");
        QCOMPARE(rig.diagnosisCell(COV_SysDbgWnd::ActPos), "5.000");
        QCOMPARE(rig.paneCell(COV_UtMtnStWnd::CommandPosition, 0), "0"); // axis 0 has no scale
        // Only axis 1 has a unit: its column names it, the rows do not.
        const AxisValueGridModel* model = rig.pane->model();
        QCOMPARE(Rig::title(model, kAxis, Qt::Horizontal), "1 Axis [mm]");
        QCOMPARE(Rig::title(model, 0, Qt::Horizontal), "0 Axis");
        // The diagnosis' narrow columns name it shorter.
        QCOMPARE(Rig::title(rig.diagnosis->positionGrid()->values(), kAxis, Qt::Horizontal),
                 "1 [mm]");
        QCOMPARE(Rig::title(model, COV_UtMtnStWnd::CommandPosition, Qt::Vertical),
                 "Command Position");

        // Every axis in mm: the rows name the unit, the speed in mm/s.
        for (int axis = 0; axis < 4; ++axis)
            rig.state.units.setScale(kRl, 0, axis, AxisUnitScale(QStringLiteral("mm"), 1000, 3));
        rig.api.SetPosSpeed(kRl, 0, kAxis, 100, 20000, 50, 50);
        rig.api.Inc_Move(kRl, 0, kAxis, -20000);
        rig.sim.advance(kRl, 300);
        rig.tick();
        const double speed = rig.api.GetCommandSpeed(kRl, 0, kAxis) / 1000.0;
        QCOMPARE(rig.paneCell(COV_UtMtnStWnd::CommandVelocity), QString::number(speed, 'f', 3));
        QCOMPARE(Rig::title(model, kAxis, Qt::Horizontal), "1 Axis");
        QCOMPARE(Rig::title(model, COV_UtMtnStWnd::CommandVelocity, Qt::Vertical),
                 "Command Velocity [mm/s]");
        QCOMPARE(Rig::title(rig.diagnosis->positionGrid()->values(), COV_SysDbgWnd::CmdPos,
                            Qt::Vertical),
                 "Cmd Pos [mm]");
        // The title column widened for the longer names.
        QVERIFY(
            rig.pane->canvas()->cellRect(0, 0).left() >
            rig.pane->fontMetrics().horizontalAdvance(QStringLiteral("Command Velocity [mm/s]")));

        QVERIFY(rig.moveAndWait(0));
        rig.tick();
        QCOMPARE(rig.paneCell(COV_UtMtnStWnd::CommandPosition), "-15.000");

        rig.state.units.setShown(false);
        rig.tick();
        QCOMPARE(rig.paneCell(COV_UtMtnStWnd::CommandPosition), "-15000");
        QCOMPARE(rig.diagnosisCell(COV_SysDbgWnd::CmdPos), "-15000");
    }

    void idleTicks_withUnitsShown_repaintNothing()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.state.units.setScale(kRl, 0, kAxis, AxisUnitScale(QStringLiteral("deg"), 2777.777, 6));
        rig.state.units.setShown(true);
        rig.tick();
        QCoreApplication::processEvents();
        PaintCounter paneCounter;
        PaintCounter diagnosisCounter;
        rig.pane->canvas()->installEventFilter(&paneCounter);
        rig.diagnosis->positionGrid()->canvas()->installEventFilter(&diagnosisCounter);
        for (int each = 0; each < 20; ++each) {
            rig.sim.advance(kRl, 10);
            rig.tick();
            QCoreApplication::processEvents();
        }
        QCOMPARE(paneCounter.paints, 0);
        QCOMPARE(diagnosisCounter.paints, 0);
    }
};

QTEST_MAIN(TestUserUnitsSim)
#include "tst_userunitssim.moc"
