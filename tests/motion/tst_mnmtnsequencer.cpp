#include "ActiveController.h"
#include "BoardApi.h"
#include "ManualClockwork.h"
#include "MotionPanel.h"
#include "MotionSequencer.h"
#include "RecordingBoard.h"
#include "ScriptedPrompt.h"

#include <QTest>

// The sequencing of several axes against the recording board: the multi-axis operations with
// their axis lists, and stops that reach the running axes after the selection moved.
class TestMnMtnSequencer : public QObject
{
    Q_OBJECT

private:
    struct Panel : MotionPanel
    {
        MotionType type = MotionType::Relative;
        bool repeat = true;
        MotionAxes selection{BoardFamily::RL, 0, {0, 2}};
        QStringList written;
        bool locked = false;

        MotionTab currentTab() const override { return MotionTab::PointToPoint; }
        MotionType motionType() const override { return type; }
        bool repeatTicked() const override { return repeat; }
        bool infiniteTicked() const override { return false; }
        MotionAxes selectedAxes() const override { return selection; }
        RepeatFields takeRepeatFields() override { return RepeatFields{2, 50, 0, 0, 0}; }
        std::vector<AxisPositions> takePositions(const MotionAxes& target,
                                                 const RepeatFields&) override
        {
            std::vector<AxisPositions> positions;
            for (AxisNo axis : target.axes)
                positions.push_back({100 * (axis + 1), -5, 7 * (axis + 1)});
            return positions;
        }
        void writeSpeeds(const MotionAxes& target, MotionType) override
        {
            written << QString::number(target.axes.size());
        }
        void writeHomeSettings(const MotionAxes&) override {}
        void showCycle(int, int) override {}
        void clearCycleDisplay() override {}
        void setSequenceLocked(bool lock) override { locked = lock; }
    };

    struct Rig
    {
        RecordingBoard rl{BoardFamily::RL};
        BoardApi api;
        ActiveController active;
        ScriptedPrompt prompt;
        ManualClockwork clockwork;
        Panel panel;
        MotionSequencer sequencer{active, api, prompt, clockwork, panel, MovingOwner::MultiAxis};

        Rig() { rl.installInto(api); }
        QStringList moves() const
        {
            return rl.calls({"Multi_Inc_Move", "Multi_Abs_Move", "Multi_Jog_Move",
                             "Multi_Decel_Stop", "Multi_Sudden_Stop"});
        }
    };

private slots:
    void relativeRepeat_multiCallsThenReturnsAndReportsFirstNegativeCode()
    {
        Rig rig;
        rig.rl.setResultFor("GetCommandPos", 0, 2, 40);
        rig.sequencer.press(DirectionMinus);
        QVERIFY(rig.active.axesMoving[1] != 0 && rig.active.axesMoving[0] == 0);
        rig.sequencer.onMotionPoll();
        rig.sequencer.onDwell();
        QCOMPARE(rig.moves(), (QStringList{"Multi_Inc_Move(0,2,[0,2],[-100,-300])",
                                           "Multi_Inc_Move(0,2,[0,2],[-100,-300])"}));
        QCOMPARE(rig.panel.written.size(), 2);
        // Axis 2 ran into its limit, axis 0 ended normally: the multi-axis wording.
        rig.rl.setResultFor("GetMotionErrCod", 0, 2, -630);
        rig.sequencer.onMotionPoll();
        QCOMPARE(rig.prompt.messages(), QStringList{"Abnormally stopped by -limit signal"});
        QVERIFY(!rig.sequencer.isMoving() && !rig.panel.locked && rig.active.axesMoving[1] == 0);
    }

    void stops_reachTheRunningAxesAfterTheSelectionMoved()
    {
        Rig rig;
        rig.panel.type = MotionType::Jog;
        rig.panel.repeat = false;
        rig.sequencer.press(DirectionPlus);
        rig.panel.selection = MotionAxes{BoardFamily::RM, 1, {3, 4}};
        rig.sequencer.suddenStop();
        rig.sequencer.release();
        QCOMPARE(rig.moves(),
                 (QStringList{"Multi_Jog_Move(0,2,[0,2],[1,1])", "Multi_Sudden_Stop(0,2,[0,2])",
                              "Multi_Decel_Stop(0,2,[0,2])"}));
        rig.rl.clearCalls();
        rig.sequencer.abortWith(QStringLiteral("Gantry Limit Error !"));
        QCOMPARE(rig.moves(), QStringList{"Multi_Sudden_Stop(0,2,[0,2])"});
        QCOMPARE(rig.prompt.messages(), QStringList{"Gantry Limit Error !"});
    }
};

QTEST_GUILESS_MAIN(TestMnMtnSequencer)
#include "tst_mnmtnsequencer.moc"
