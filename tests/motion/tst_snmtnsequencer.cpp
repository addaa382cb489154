#include "ActiveController.h"
#include "BoardApi.h"
#include "ManualClockwork.h"
#include "MotionErrorCode.h"
#include "RecordingBoard.h"
#include "ScriptedPrompt.h"
#include "SingleAxisPanel.h"
#include "SingleAxisSequencer.h"

#include <QTest>

// The single-axis sequencing against the recording board: which board calls a press, the
// timers and the stops make, in which order, and when the controls are locked.
class TestSnMtnSequencer : public QObject
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
        QList<QPair<int, int>> shown;
        int clears = 0;
        bool locked = false;

        MotionTab currentTab() const override { return tab; }
        MotionType motionType() const override { return type; }
        bool repeatTicked() const override { return repeat; }
        bool infiniteTicked() const override { return infinite; }
        PtpSpeeds speedFields() const override { return speeds; }
        RepeatFields takeRepeatFields() override { return fields; }
        HomeSettings homeFields() const override { return home; }
        void showCycle(int elapsedMs, int cycleCount) override
        {
            shown.append({elapsedMs, cycleCount});
        }
        void clearCycleDisplay() override { ++clears; }
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
        Rig()
        {
            rl.installInto(api);
            sequencer.setCardAxis(0, 1);
        }
        bool axesMoving() const { return active.axesMoving[0] != 0; }
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

private slots:
    void jog_runsFromPressToRelease()
    {
        Rig rig;
        rig.sequencer.press(DirectionPlus);
        QCOMPARE(rig.rl.calls(),
                 (QStringList{"Done(0,1)", "SetJogSpeed(0,1,100,5000,50)", "Jog_Move(0,1,1)"}));
        QVERIFY(rig.clockwork.poll.isActive() && rig.clockwork.cycle.isActive());
        rig.rl.setResult("Done", 1);
        rig.sequencer.onMotionPoll();
        rig.sequencer.release();
        rig.sequencer.release();
        QCOMPARE(rig.moves(), (QStringList{"Jog_Move(0,1,1)", "Decel_Stop(0,1)"}));
        QVERIFY(rig.sequencer.isMoving());
        rig.rl.setResult("Done", 0);
        rig.sequencer.onMotionPoll();
        QVERIFY(!rig.sequencer.isMoving() && !rig.clockwork.anyActive());
        QVERIFY(!rig.axesMoving() && !rig.panel.locked);
    }

    void press_busyAxisOrRunningSequenceIgnored()
    {
        Rig rig;
        rig.rl.setResultFor("Done", 0, 1, 1);
        rig.sequencer.press(DirectionPlus);
        QCOMPARE(rig.rl.calls(), QStringList{"Done(0,1)"});
        QVERIFY(!rig.sequencer.isMoving() && !rig.clockwork.anyActive());
        QCOMPARE(rig.panel.clears, 0);
        rig.rl.setResultFor("Done", 0, 1, 0);
        rig.sequencer.press(DirectionPlus);
        rig.rl.clearCalls();
        rig.sequencer.press(DirectionMinus);
        QVERIFY(rig.rl.calls().isEmpty());
    }

    void relative_repeatOfThreeDwellsAndUnlocksAfterLastDwell()
    {
        Rig rig;
        rig.panel.type = MotionType::Relative;
        rig.panel.repeat = true;
        rig.sequencer.press(DirectionPlus);
        rig.sequencer.release(); // a step button's release stops nothing
        const QStringList step{"SetPosSpeed(0,1,100,5000,50,60)", "Inc_Move(0,1,1000)"};
        QCOMPARE(rig.rl.calls(), (QStringList{"Done(0,1)", "GetCommandPos(0,1)"} + step));
        QVERIFY(rig.panel.locked && rig.axesMoving());
        for (int count = 2; count <= 3; ++count) {
            rig.sequencer.onMotionPoll();
            QVERIFY(!rig.clockwork.poll.isActive() && rig.clockwork.pause.isActive());
            QCOMPARE(rig.clockwork.pause.interval(), 200);
            rig.sequencer.onDwell();
            QVERIFY(rig.clockwork.poll.isActive() && !rig.clockwork.pause.isActive());
            QCOMPARE(rig.sequencer.cycleCount(), count);
        }
        // The last step has ended, but the sequence still waits one delay time.
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.clockwork.pause.isActive() && rig.panel.locked && rig.axesMoving());
        rig.sequencer.onDwell();
        QVERIFY(!rig.panel.locked && !rig.axesMoving());
        QVERIFY(!rig.sequencer.isMoving() && !rig.clockwork.anyActive());
        QCOMPARE(rig.rl.calls({"SetPosSpeed", "Inc_Move", "Abs_Move", "Decel_Stop"}),
                 step + step + step);
    }

    void relative_withoutRepeatOrCountZeroMakesOneStep_data()
    {
        QTest::addColumn<bool>("repeat");
        QTest::addColumn<int>("count");
        QTest::newRow("no repeat, count 3") << false << 3;
        QTest::newRow("repeat, count 0") << true << 0;
    }
    void relative_withoutRepeatOrCountZeroMakesOneStep()
    {
        QFETCH(bool, repeat);
        QFETCH(int, count);
        Rig rig;
        rig.panel.type = MotionType::Relative;
        rig.panel.repeat = repeat;
        rig.panel.fields.count = count;
        rig.sequencer.press(DirectionMinus);
        // Without Repeat nothing is locked and the controller may change.
        QCOMPARE(rig.axesMoving(), repeat);
        QCOMPARE(rig.panel.locked, repeat);
        for (int i = 0; i < 3 && rig.sequencer.isMoving(); ++i)
            rig.finishStep();
        QCOMPARE(rig.moves(), QStringList{"Inc_Move(0,1,-1000)"});
        QVERIFY(!rig.sequencer.isMoving() && !rig.axesMoving() && !rig.panel.locked);
    }

    void relative_infiniteReturnsToStartWithoutCountingIt()
    {
        Rig rig;
        rig.panel.type = MotionType::Relative;
        rig.panel.repeat = true;
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
        QVERIFY(!rig.axesMoving());
        rig.sequencer.onMotionPoll();
        QVERIFY(!rig.sequencer.isMoving() && !rig.clockwork.anyActive());
        QCOMPARE(rig.moves().size(), 8);
    }

    void absolute_repeatAlternatesAndEndsAtPosition1()
    {
        Rig rig;
        rig.panel.type = MotionType::Absolute;
        rig.panel.repeat = true;
        rig.panel.fields.count = 2;
        rig.sequencer.press(DirectionMinus);
        // With Repeat the cycle clock waits for the first move to Position 2.
        QVERIFY(!rig.clockwork.cycle.isActive());
        rig.clockwork.tick.set(5000);
        rig.finishStep();
        QVERIFY(rig.clockwork.cycle.isActive());
        rig.clockwork.tick.set(5432);
        rig.sequencer.onCycleClock();
        QCOMPARE(rig.panel.shown.last(), (QPair<int, int>{432, 0}));
        while (rig.sequencer.isMoving())
            rig.finishStep();
        const QString one = "Abs_Move(0,1,-250)", two = "Abs_Move(0,1,4000)";
        QCOMPARE(rig.moves(), (QStringList{one, two, one, two, one}));
        QCOMPARE(rig.sequencer.cycleCount(), 2);
        QVERIFY(!rig.axesMoving() && !rig.clockwork.anyActive());
    }

    void absolute_countZeroRunsUntilStoppedNegativeCountNotAtAll()
    {
        Rig rig;
        rig.panel.type = MotionType::Absolute;
        rig.panel.repeat = true;
        rig.panel.fields.count = 0;
        rig.sequencer.press(DirectionMinus);
        for (int i = 0; i < 8; ++i)
            rig.finishStep();
        QCOMPARE(rig.sequencer.cycleCount(), 4);
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.clockwork.pause.isActive());
        rig.sequencer.suddenStop(); // during the dwell: no further move
        QVERIFY(!rig.clockwork.pause.isActive() && !rig.panel.locked);
        rig.sequencer.onMotionPoll();
        QVERIFY(!rig.sequencer.isMoving());
        QCOMPARE(rig.rl.count("Abs_Move"), 9);

        rig.rl.clearCalls();
        // Without Repeat the cycle clock counts from the press.
        rig.panel.repeat = false;
        rig.panel.fields.count = 1;
        rig.clockwork.tick.set(9000);
        rig.sequencer.press(DirectionPlus);
        rig.clockwork.tick.set(9120);
        rig.sequencer.onCycleClock();
        QCOMPARE(rig.panel.shown.last(), (QPair<int, int>{120, 0}));
        rig.sequencer.onMotionPoll();
        QVERIFY(!rig.sequencer.isMoving());

        rig.rl.clearCalls();
        rig.panel.repeat = true;
        rig.panel.fields.count = -1;
        rig.sequencer.press(DirectionMinus);
        QVERIFY(rig.moves().isEmpty() && !rig.panel.locked);
        rig.sequencer.onMotionPoll();
        QVERIFY(!rig.sequencer.isMoving() && !rig.clockwork.anyActive());
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
        QCOMPARE(rig.rl.count("SetSlmt"), 1);
        QVERIFY(!rig.sequencer.isMoving());
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
        Rig rig;
        const QString stop = sudden ? "Sudden_Stop(0,1)" : "Decel_Stop(0,1)";
        // Idle: only the stop, and this window's AxesMoving cleared.
        rig.active.setAxesMoving(MovingOwner::SingleAxis, true);
        sudden ? rig.sequencer.suddenStop() : rig.sequencer.decelStop();
        QVERIFY(!rig.clockwork.anyActive() && !rig.axesMoving());

        rig.panel.type = MotionType::Relative;
        rig.panel.repeat = true;
        rig.sequencer.press(DirectionPlus);
        rig.rl.setResult("Done", 1);
        sudden ? rig.sequencer.suddenStop() : rig.sequencer.decelStop();
        QCOMPARE(rig.moves(), (QStringList{stop, "Inc_Move(0,1,1000)", stop}));
        QVERIFY(!rig.axesMoving() && !rig.panel.locked);
        rig.sequencer.onMotionPoll();
        QVERIFY(rig.sequencer.isMoving());
        rig.rl.setResult("Done", 0);
        rig.sequencer.onMotionPoll();
        QVERIFY(!rig.sequencer.isMoving() && !rig.clockwork.anyActive());
    }

    void abnormalEnd_reportedByTab_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("pointToPoint");
        QTest::addColumn<bool>("onHome");
        QTest::newRow("-600") << -600 << "Abnormally stopped by positive soft limit" << false;
        QTest::newRow("-610") << -610 << "Abnormally stopped by negative soft limit" << false;
        QTest::newRow("-620") << -620 << "Abnormally stopped by positive hardware limit" << false;
        QTest::newRow("-630") << -630 << "Abnormally stopped by negative hardware limit" << false;
        QTest::newRow("-640") << -640 << "Abnormally stopped by alarm input signal" << true;
        QTest::newRow("-650") << -650 << "Abnormally stopped by EMG signal" << true;
        QTest::newRow("-660") << -660 << "Already start Encoder z-phase signal" << true;
        QTest::newRow("-9999") << -9999 << "Abnormally stopped by ETC. error" << false;
        QTest::newRow("-700") << -700 << "" << false;
    }
    void abnormalEnd_reportedByTab()
    {
        QFETCH(int, code);
        QFETCH(QString, pointToPoint);
        QFETCH(bool, onHome);
        for (MotionTab tab : {MotionTab::PointToPoint, MotionTab::Home}) {
            Rig rig;
            rig.panel.tab = tab;
            rig.panel.type = MotionType::Relative;
            rig.panel.repeat = true;
            rig.rl.setResult("GetMotionErrCod", code);
            rig.sequencer.press(DirectionPlus);
            rig.sequencer.onMotionPoll();
            const bool shown = tab == MotionTab::PointToPoint ? !pointToPoint.isEmpty() : onHome;
            QCOMPARE(rig.prompt.messages(), shown ? QStringList{pointToPoint} : QStringList{});
            QVERIFY(!rig.sequencer.isMoving() && !rig.clockwork.anyActive() && !rig.axesMoving());
        }
    }

    void errorCode_multiAxisWording()
    {
        const auto multi = [](int code) {
            return MotionErrorCode(code).message(MotionErrorCode::Wording::MultiAxis);
        };
        QCOMPARE(multi(-600), QStringLiteral("Abnormally stopped by +soft-limit signal"));
        QCOMPARE(multi(-610), QStringLiteral("Abnormally stopped by -soft-limit signal"));
        QCOMPARE(multi(-620), QStringLiteral("Abnormally stopped by +limit signal"));
        QCOMPARE(multi(-630), QStringLiteral("Abnormally stopped by -limit signal"));
        QCOMPARE(multi(-650), QStringLiteral("Abnormally stopped by EMG signal"));
        QVERIFY(multi(0).isEmpty() && multi(-1).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestSnMtnSequencer)
#include "tst_snmtnsequencer.moc"
