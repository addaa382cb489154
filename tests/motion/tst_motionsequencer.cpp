#include "ActiveController.h"
#include "BoardApi.h"
#include "ManualClockwork.h"
#include "MotionPanel.h"
#include "RecordingBoard.h"
#include "ScriptedPrompt.h"
#include "SingleAxisPanel.h"
#include "SingleAxisSequencer.h"

#include <QTest>

// The motion sequencing against the recording board: which board calls a press, the timers
// and the stops make, in which order, and when the controls are locked; for one axis, and for
// several axes with stops that reach the running axes after the selection moved.
class TestMotionSequencer : public QObject
{
    Q_OBJECT

private:
    // The user's choices as the window would hand them over.
    struct Panel : SingleAxisPanel
    {
        MotionTab tab = MotionTab::PointToPoint;
        MotionType type = MotionType::Jog;
        bool repeat = false;
        bool infinite = false;
        PtpSpeeds speeds{100, 5000, 50, 60};
        RepeatFields fields{3, 200, 1000, -250, 4000};
        HomeSettings home{4, 8000, 500, 30, 12};
        QPair<int, int> shown;
        bool locked = false;

        MotionTab currentTab() const override { return tab; }
        MotionType motionType() const override { return type; }
        bool repeatTicked() const override { return repeat; }
        bool infiniteTicked() const override { return infinite; }
        PtpSpeeds speedFields() const override { return speeds; }
        RepeatFields takeRepeatFields() override { return fields; }
        HomeSettings homeFields() const override { return home; }
        void showCycle(int elapsedMs, int cycleCount) override { shown = {elapsedMs, cycleCount}; }
        void clearCycleDisplay() override { shown = {-1, -1}; }
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
        SingleAxisSequencer sequencer{active, api, prompt, clockwork, panel};

        explicit Rig(MotionType type = MotionType::Jog, bool repeat = false)
        {
            rl.installInto(api);
            sequencer.setCardAxis(0, 1);
            panel.type = type;
            panel.repeat = repeat;
        }
        bool axesMoving() const { return active.axesMoving[0] != 0; }
        bool idle() const { return !sequencer.isMoving() && !clockwork.anyActive(); }
        // The moves and stops, without the polling around them.
        QStringList moves() const
        {
            return rl.calls(
                {"Inc_Move", "Abs_Move", "Jog_Move", "Home_Move", "Decel_Stop", "Sudden_Stop"});
        }
        // Lets the poll see the axis at rest, then the dwell run out.
        void finishStep()
        {
            sequencer.onMotionPoll();
            if (clockwork.pause.isActive())
                sequencer.onDwell();
        }
    };

    struct MultiPanel : MotionPanel
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

    struct MultiRig
    {
        RecordingBoard rl{BoardFamily::RL};
        BoardApi api;
        ActiveController active;
        ScriptedPrompt prompt;
        ManualClockwork clockwork;
        MultiPanel panel;
        MotionSequencer sequencer{active, api, prompt, clockwork, panel, MovingOwner::MultiAxis};

        MultiRig() { rl.installInto(api); }
        QStringList moves() const
        {
            return rl.calls({"Multi_Inc_Move", "Multi_Abs_Move", "Multi_Jog_Move",
                             "Multi_Decel_Stop", "Multi_Sudden_Stop"});
        }
    };

private slots:
    void jog_busyAxisIgnoresPressThenJogRunsFromPressToRelease()
    {
        Rig rig;
        rig.rl.setResultFor("Done", 0, 1, 1);
        rig.sequencer.press(DirectionPlus);
        QCOMPARE(rig.rl.calls(), QStringList{"Done(0,1)"});
        QVERIFY(rig.idle() && rig.panel.shown.first == 0);
        rig.rl.setResultFor("Done", 0, 1, 0);
        rig.sequencer.press(DirectionPlus);
        QCOMPARE(rig.rl.calls(), (QStringList{"Done(0,1)", "Done(0,1)",
                                              "SetJogSpeed(0,1,100,5000,50)", "Jog_Move(0,1,1)"}));
        QVERIFY(rig.clockwork.poll.isActive() && rig.clockwork.cycle.isActive());
        rig.sequencer.press(DirectionMinus); // a running motion ignores presses unasked
        rig.rl.setResultFor("Done", 0, 1, 1);
        rig.sequencer.onMotionPoll();
        rig.sequencer.release();
        rig.sequencer.release();
        QCOMPARE(rig.rl.count("Done"), 3);
        QCOMPARE(rig.moves(), (QStringList{"Jog_Move(0,1,1)", "Decel_Stop(0,1)"}));
        QVERIFY(rig.sequencer.isMoving());
        rig.rl.setResultFor("Done", 0, 1, 0);
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.idle() && !rig.axesMoving() && !rig.panel.locked);
    }

    void relative_repeatOfThreeDwellsAndUnlocksAfterLastDwell()
    {
        Rig rig(MotionType::Relative, true);
        rig.sequencer.press(DirectionPlus);
        rig.sequencer.release(); // a step button's release stops nothing
        const QStringList step{"SetPosSpeed(0,1,100,5000,50,60)", "Inc_Move(0,1,1000)"};
        QCOMPARE(rig.rl.calls(), (QStringList{"Done(0,1)", "GetCommandPos(0,1)"} + step));
        QVERIFY(rig.panel.locked && rig.axesMoving());
        for (int count = 2; count <= 3; ++count) {
            rig.sequencer.onMotionPoll();
            QVERIFY(!rig.clockwork.poll.isActive() && rig.clockwork.pause.interval() == 200);
            rig.sequencer.onDwell();
            QVERIFY(rig.clockwork.poll.isActive() && !rig.clockwork.pause.isActive());
            QCOMPARE(rig.sequencer.cycleCount(), count);
        }
        // The last step has ended, but the sequence still waits one delay time.
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.clockwork.pause.isActive() && rig.panel.locked && rig.axesMoving());
        rig.sequencer.onDwell();
        QVERIFY(rig.idle() && !rig.panel.locked && !rig.axesMoving());
        QCOMPARE(rig.rl.calls({"SetPosSpeed", "Inc_Move", "Abs_Move", "Decel_Stop"}),
                 step + step + step);
    }

    void singleMove_withoutRepeatOrWithCountZeroOrNegative_data()
    {
        QTest::addColumn<MotionType>("type");
        QTest::addColumn<bool>("repeat");
        QTest::addColumn<int>("count");
        QTest::addColumn<QStringList>("moves");
        QTest::newRow("relative, no repeat")
            << MotionType::Relative << false << 3 << QStringList{"Inc_Move(0,1,-1000)"};
        QTest::newRow("relative, repeat, count 0")
            << MotionType::Relative << true << 0 << QStringList{"Inc_Move(0,1,-1000)"};
        QTest::newRow("absolute, no repeat")
            << MotionType::Absolute << false << 1 << QStringList{"Abs_Move(0,1,-250)"};
        QTest::newRow("absolute, negative count")
            << MotionType::Absolute << true << -1 << QStringList{};
    }
    void singleMove_withoutRepeatOrWithCountZeroOrNegative()
    {
        QFETCH(MotionType, type);
        QFETCH(bool, repeat);
        QFETCH(int, count);
        QFETCH(QStringList, moves);
        Rig rig(type, repeat);
        rig.panel.fields.count = count;
        rig.clockwork.now = 9000;
        rig.sequencer.press(DirectionMinus);
        // Only a running repeat locks the controls; without Repeat the controller may change.
        QCOMPARE(rig.axesMoving(), repeat && !moves.isEmpty());
        QCOMPARE(rig.panel.locked, rig.axesMoving());
        // The cycle clock counts from the press, except for an absolute repeat.
        rig.clockwork.now = 9120;
        if (rig.clockwork.cycle.isActive())
            rig.sequencer.onCycleClock();
        QCOMPARE(rig.panel.shown.first, type == MotionType::Absolute && repeat ? -1 : 120);
        for (int i = 0; i < 3 && rig.sequencer.isMoving(); ++i)
            rig.finishStep();
        QCOMPARE(rig.moves(), moves);
        QVERIFY(rig.idle() && !rig.axesMoving() && !rig.panel.locked);
    }

    void relative_infiniteReturnsToStartWithoutCountingIt()
    {
        Rig rig(MotionType::Relative, true);
        rig.panel.infinite = true;
        rig.panel.fields.count = 2;
        rig.rl.setResult("GetCommandPos", -300);
        rig.sequencer.press(DirectionPlus);
        QList<int> counts{rig.sequencer.cycleCount()};
        for (int i = 0; i < 6; ++i) {
            rig.finishStep();
            counts << rig.sequencer.cycleCount();
        }
        const QString inc = "Inc_Move(0,1,1000)", back = "Abs_Move(0,1,-300)";
        QCOMPARE(rig.moves(), (QStringList{inc, inc, back, inc, inc, back, inc}));
        QCOMPARE(counts, (QList<int>{1, 2, 2, 3, 4, 4, 5}));
        rig.sequencer.decelStop();
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.idle() && !rig.axesMoving());
        QCOMPARE(rig.moves().size(), 8);
    }

    void absolute_repeatAlternatesCountingFromFirstMoveToPosition2()
    {
        Rig rig(MotionType::Absolute, true);
        rig.panel.fields.count = 2;
        rig.sequencer.press(DirectionMinus);
        QVERIFY(!rig.clockwork.cycle.isActive());
        rig.clockwork.now = 5000;
        rig.finishStep();
        rig.clockwork.now = 5432;
        rig.sequencer.onCycleClock();
        QCOMPARE(rig.panel.shown, (QPair<int, int>{432, 0}));
        // The alternation and its count on a board: tst_snmtnsim's absolute repeat.
        while (rig.sequencer.isMoving())
            rig.finishStep();
        QVERIFY(rig.idle() && !rig.axesMoving());

        // Count 0 repeats until stopped; a stop during the dwell issues no further move.
        rig.panel.fields.count = 0;
        rig.sequencer.press(DirectionMinus);
        for (int i = 0; i < 8; ++i)
            rig.finishStep();
        QCOMPARE(rig.sequencer.cycleCount(), 4);
        rig.sequencer.onMotionPoll();
        rig.sequencer.suddenStop();
        QVERIFY(!rig.clockwork.pause.isActive() && !rig.panel.locked);
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.idle());
        QCOMPARE(rig.rl.count("Abs_Move"), 5 + 9);
    }

    void home_writesParametersSearchesAndRewritesSoftLimits()
    {
        Rig rig;
        rig.panel.tab = MotionTab::Home;
        rig.rl.setResultFor("GetCardStatus", 0, 1, 0x801);
        rig.rl.setOutValuesFor("GetSlmt", 0, 1, {50000, -20000, 1});
        rig.sequencer.press(DirectionMinus);
        QCOMPARE(rig.rl.calls(),
                 (QStringList{"Done(0,1)", "SetHomeMode(0,1,4)", "SetHomeOffset(0,1,12)",
                              "SetHomeSpeed(0,1,500,8000,30)", "Home_Move(0,1)"}));
        QVERIFY(rig.clockwork.poll.isActive() && !rig.clockwork.cycle.isActive());
        rig.rl.clearCalls();
        rig.sequencer.onMotionPoll();
        QCOMPARE(rig.rl.calls(),
                 (QStringList{"Done(0,1)", "GetMotionErrCod(0,1)", "GetCardStatus(0,1)",
                              "GetSlmt(0,1,&,&,&)", "SetSlmt(0,1,50000,-20000,1)"}));
        // Without the home-complete bit the soft limits are left alone.
        rig.rl.setResultFor("GetCardStatus", 0, 1, 0x7ff);
        rig.sequencer.press(DirectionMinus);
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.idle() && rig.rl.count("SetSlmt") == 1);
    }

    void stops_endSequenceAtNextPoll_data()
    {
        QTest::addColumn<bool>("sudden");
        QTest::newRow("S-Stop") << false;
        QTest::newRow("E-Stop") << true;
    }
    void stops_endSequenceAtNextPoll()
    {
        QFETCH(bool, sudden);
        Rig rig(MotionType::Relative, true);
        const QString stop = sudden ? "Sudden_Stop(0,1)" : "Decel_Stop(0,1)";
        const auto press = [&] { sudden ? rig.sequencer.suddenStop() : rig.sequencer.decelStop(); };
        // Idle: only the stop, and this window's AxesMoving cleared.
        rig.active.setAxesMoving(MovingOwner::SingleAxis, true);
        press();
        QVERIFY(rig.idle() && !rig.axesMoving());

        rig.sequencer.press(DirectionPlus);
        rig.rl.setResult("Done", 1);
        press();
        QCOMPARE(rig.moves(), (QStringList{stop, "Inc_Move(0,1,1000)", stop}));
        QVERIFY(!rig.axesMoving() && !rig.panel.locked);
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.sequencer.isMoving());
        rig.rl.setResult("Done", 0);
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.idle());
    }

    void abnormalEnd_reportedByTab_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("onHome");
        const auto row = [](int code, const char* message, bool onHome) {
            QTest::addRow("%d", code) << code << QString::fromLatin1(message) << onHome;
        };
        row(-600, "Abnormally stopped by positive soft limit", false);
        row(-610, "Abnormally stopped by negative soft limit", false);
        row(-620, "Abnormally stopped by positive hardware limit", false);
        row(-630, "Abnormally stopped by negative hardware limit", false);
        row(-640, "Abnormally stopped by alarm input signal", true);
        row(-650, "Abnormally stopped by EMG signal", true);
        row(-660, "Already start Encoder z-phase signal", true);
        row(-9999, "Abnormally stopped by ETC. error", false);
        row(-700, "", false);
    }
    void abnormalEnd_reportedByTab()
    {
        QFETCH(int, code);
        QFETCH(QString, message);
        QFETCH(bool, onHome);
        for (MotionTab tab : {MotionTab::PointToPoint, MotionTab::Home}) {
            Rig rig(MotionType::Relative, true);
            rig.panel.tab = tab;
            rig.rl.setResult("GetMotionErrCod", code);
            rig.sequencer.press(DirectionPlus);
            rig.sequencer.onMotionPoll();
            const bool shown = tab == MotionTab::PointToPoint ? !message.isEmpty() : onHome;
            QCOMPARE(rig.prompt.messages(), shown ? QStringList{message} : QStringList{});
            QVERIFY(rig.idle() && !rig.axesMoving());
        }
    }

    void multi_relativeRepeatMultiCallsThenReturnsAndReportsFirstNegativeCode()
    {
        MultiRig rig;
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

    void multi_stopsReachTheRunningAxesAfterTheSelectionMoved()
    {
        MultiRig rig;
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

QTEST_GUILESS_MAIN(TestMotionSequencer)
#include "tst_motionsequencer.moc"
