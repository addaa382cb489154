#include "ActiveController.h"
#include "BoardApi.h"
#include "GantryCheck.h"
#include "ManualClockwork.h"
#include "MotionPanel.h"
#include "MotionSequencer.h"
#include "RecordingBoard.h"
#include "ScriptedPrompt.h"

#include <QTest>

#include <cstdint>
#include <limits>

// The gantry check's whole decision, row by row: whether a period reads at all (on, and a
// motion running that no stop has ended), which axes and counter it reads, and the verdict
// of each axis against the next, the last against the first.
class TestGantryCheck : public QObject
{
    Q_OBJECT

private:
    // Three axes of card 1 start; the selection moves away once they run.
    struct Panel : MotionPanel
    {
        MotionType type = MotionType::Jog;
        MotionAxes selection{BoardFamily::RL, 1, {1, 3, 4}};

        MotionTab currentTab() const override { return MotionTab::PointToPoint; }
        MotionType motionType() const override { return type; }
        bool repeatTicked() const override { return false; }
        bool infiniteTicked() const override { return false; }
        MotionAxes selectedAxes() const override { return selection; }
        RepeatFields takeRepeatFields() override { return {}; }
        std::vector<AxisPositions> takePositions(const MotionAxes& target,
                                                 const RepeatFields&) override
        {
            return std::vector<AxisPositions>(target.axes.size());
        }
        void writeSpeeds(const MotionAxes&, MotionType) override {}
        void writeHomeSettings(const MotionAxes&) override {}
        void showCycle(int, int) override {}
        void clearCycleDisplay() override {}
        void setSequenceLocked(bool) override {}
    };

    static constexpr std::int32_t kMin = std::numeric_limits<std::int32_t>::min();
    static constexpr std::int32_t kMax = std::numeric_limits<std::int32_t>::max();

private slots:
    void verdict_data()
    {
        QTest::addColumn<QString>("motion");   // none, jog, absolute, or absolute then S-Stop
        QTest::addColumn<QString>("switches"); // the check's on/off, in order
        QTest::addColumn<int>("source");
        QTest::addColumn<int>("limit");
        QTest::addColumn<QList<int>>("command");
        QTest::addColumn<QList<int>>("actual");
        QTest::addColumn<bool>("reads");
        QTest::addColumn<bool>("stops");
        const QList<int> zero{0, 0, 0};
        // clang-format off
        QTest::newRow("jog, every pair within") << "jog" << "on" << 0 << 100
            << QList<int>{0, 40, 80} << zero << true << false;
        QTest::newRow("jog, only the last and first apart") << "jog" << "on" << 0 << 60
            << QList<int>{0, 60, 120} << zero << true << true;
        QTest::newRow("absolute, difference equal to the limit") << "absolute" << "on" << 0 << 50
            << QList<int>{0, 50, 0} << zero << true << false;
        QTest::newRow("absolute, one over the limit") << "absolute" << "on" << 0 << 50
            << QList<int>{0, 51, 0} << zero << true << true;
        QTest::newRow("actual source sees the slip") << "absolute" << "on" << 1 << 100
            << zero << QList<int>{0, 0, 500} << true << true;
        QTest::newRow("command source ignores it") << "absolute" << "on" << 0 << 100
            << zero << QList<int>{0, 0, 500} << true << false;
        QTest::newRow("INT32_MIN against INT32_MAX") << "jog" << "on" << 0 << kMax
            << QList<int>{kMin, kMax, kMax} << zero << true << true;
        QTest::newRow("INT32_MAX apart at that limit") << "jog" << "on" << 0 << kMax
            << QList<int>{0, kMax, 0} << zero << true << false;
        QTest::newRow("near INT32_MAX, within") << "absolute" << "on" << 0 << 100
            << QList<int>{kMax, kMax - 100, kMax} << zero << true << false;
        QTest::newRow("near INT32_MIN, over") << "absolute" << "on" << 0 << 100
            << QList<int>{kMin, kMin + 101, kMin} << zero << true << true;
        QTest::newRow("off") << "absolute" << "off" << 0 << 100
            << QList<int>{0, 500, 0} << zero << false << false;
        QTest::newRow("switched on, then off") << "jog" << "on,off" << 0 << 100
            << QList<int>{0, 500, 0} << zero << false << false;
        QTest::newRow("switched off, then on again") << "jog" << "on,off,on" << 0 << 100
            << QList<int>{0, 500, 0} << zero << true << true;
        QTest::newRow("no motion") << "none" << "on" << 0 << 100
            << QList<int>{0, 500, 0} << zero << false << false;
        QTest::newRow("stop already given") << "stopped" << "on" << 0 << 100
            << QList<int>{0, 500, 0} << zero << false << false;
        // clang-format on
    }
    void verdict()
    {
        QFETCH(QString, motion);
        QFETCH(QString, switches);
        QFETCH(int, source);
        QFETCH(int, limit);
        QFETCH(QList<int>, command);
        QFETCH(QList<int>, actual);
        QFETCH(bool, reads);
        QFETCH(bool, stops);

        RecordingBoard rl{BoardFamily::RL};
        BoardApi api;
        rl.installInto(api);
        ActiveController active;
        ScriptedPrompt prompt;
        ManualClockwork clockwork;
        Panel panel;
        MotionSequencer sequencer{active, api, prompt, clockwork, panel, MovingOwner::MultiAxis};
        int stopsGiven = 0;
        GantryCheck check{sequencer, api, [&stopsGiven] { ++stopsGiven; }};

        if (motion != QLatin1String("none")) {
            panel.type = motion == QLatin1String("jog") ? MotionType::Jog : MotionType::Absolute;
            sequencer.press(DirectionPlus);
            QVERIFY(sequencer.isMoving());
            if (motion == QLatin1String("stopped"))
                sequencer.decelStop();
        }
        panel.selection = MotionAxes{BoardFamily::RL, 0, {0, 2}};
        for (const QString& each : switches.split(QLatin1Char(',')))
            check.setOn(each == QLatin1String("on"));
        check.setSource(source == 1 ? GantryCheck::Source::Actual : GantryCheck::Source::Command);
        check.setLimit(limit);

        const AxisNo started[] = {1, 3, 4};
        for (int i = 0; i < 3; ++i) {
            rl.setResultFor("GetCommandPos", 1, started[i], command.at(i));
            rl.setResultFor("GetActualPos", 1, started[i], actual.at(i));
        }
        rl.clearCalls();
        check.tick();

        // Card and axis of every read: always those the motion started on, in their order.
        const QString counter =
            source == 1 ? QStringLiteral("GetActualPos") : QStringLiteral("GetCommandPos");
        QStringList expected;
        if (reads) {
            for (AxisNo axis : started)
                expected << QStringLiteral("%1(1,%2)").arg(counter).arg(axis);
        }
        QCOMPARE(rl.calls({"GetCommandPos", "GetActualPos"}), expected);
        QCOMPARE(stopsGiven, stops ? 1 : 0);
    }
};

QTEST_GUILESS_MAIN(TestGantryCheck)
#include "tst_gantrycheck.moc"
