#include "COV_SnMtnPtpWnd.h"
#include "PaintCounter.h"
#include "SimBoardsRig.h"
#include "ToolWindowRig.h"

#include <QLabel>
#include <QTest>
#include <QTimer>

// The single-axis window on the simulated RL board, with the board's clock and the window's
// timers moving together one millisecond at a time.
class TestSnMtnSim : public QObject
{
    Q_OBJECT

private:
    struct Rig : ToolWindowRig<>
    {
        SimBoardsRig sim{api, state};
        nrx_i32 (*advanceClock)(nrx_i32) = nullptr;

        // RL cards of 4 axes whose limit switches sit at +-6000 pulses, without Z marks.
        bool start(int cards = 1)
        {
            const QByteArray boards = "[RL]\nCards=" + QByteArray::number(cards) +
                                      "\n[Axes]\nPlusLimit=6000\nMinusLimit=-6000\nZPeriod=0\n";
            if (!sim.start(true, boards))
                return false;
            advanceClock = sim.extras[0].AdvanceClock;
            advance = [this] { advanceClock(1); };
            state.active.axis = 1;
            open();
            return state.registry.axisCount(BoardFamily::RL, 0) == 4;
        }
        // The window stops what it holds on the board before the library goes.
        ~Rig() { window.reset(); }

        void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
        std::int32_t commandPosition() { return api.GetCommandPos(BoardFamily::RL, 0, 1); }
        std::int32_t errorCode() { return api.GetMotionErrCod(BoardFamily::RL, 0, 1); }
    };

private slots:
    void ownAxis_positionsAndSignedSpeedBesideTheJogButtons_noRepaintAtRest()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.pointToPoint(MotionType::Jog);
        rig.window->show();
        const auto poll = [&] {
            QMetaObject::invokeMethod(rig.window->pollTimer(), "timeout", Qt::DirectConnection);
        };
        QLabel* command = rig.find<QLabel>("commandReadout");
        QLabel* actual = rig.find<QLabel>("actualReadout");
        QLabel* speed = rig.find<QLabel>("speedReadout");
        QVERIFY(rig.placeOf("commandReadout").top() > rig.placeOf("minusButton").bottom());
        QCOMPARE(rig.window->pollTimer()->interval(), 10);

        for (const char* jog : {"minusButton", "plusButton"}) {
            QTest::mousePress(rig.button(jog), Qt::LeftButton);
            rig.run(100);
            poll();
            rig.run(10);
            poll();
            const bool minus = jog == QByteArray("minusButton");
            QVERIFY2(speed->text().startsWith(minus ? QStringLiteral("\u25C0 -")
                                                    : QStringLiteral("\u25B6 ")),
                     qPrintable(speed->text()));
            QCOMPARE(command->text(), QString::number(rig.commandPosition()));
            QCOMPARE(actual->text(), QString::number(rig.api.GetActualPos(BoardFamily::RL, 0, 1)));
            QTest::mouseRelease(rig.button(jog), Qt::LeftButton);
            QVERIFY(rig.runToEnd());
            rig.run(200);
            poll();
            QCOMPARE(speed->text(), QStringLiteral("0 pps"));
        }

        rig.state.units.setScale(BoardFamily::RL, 0, 1, AxisUnitScale("mm", 1000.0, 3));
        rig.state.units.setShown(true);
        poll();
        QCOMPARE(command->text(), QStringLiteral("%1\n%2 mm")
                                      .arg(rig.commandPosition())
                                      .arg(rig.commandPosition() / 1000.0, 0, 'f', 3));

        // At rest the labels are left alone.
        PaintCounter paints;
        for (QLabel* label : {command, actual, speed})
            label->installEventFilter(&paints);
        for (int n = 0; n < 3; ++n) {
            poll();
            QApplication::processEvents();
        }
        const QString before = command->text() + actual->text() + speed->text();
        paints.paints = 0;
        for (int n = 0; n < 100; ++n) {
            poll();
            QApplication::processEvents();
        }
        QCOMPARE(command->text() + actual->text() + speed->text(), before);
        QCOMPARE(paints.paints, 0);
    }

    void relativeRepeat_threeStepsOfOneThousandWithTheSelectorsLocked()
    {
        Rig rig;
        QVERIFY(rig.start(2));
        const QList<QWidget*> lockable{
            rig.find<QComboBox>("cardCombo"), rig.find<QComboBox>("axisCombo"),
            rig.find<QTabBar>("tabBar"),      rig.find<QComboBox>("motionType"),
            rig.find<QCheckBox>("repeat"),    rig.find<QCheckBox>("infinite")};
        const auto enabled = [&] {
            QList<bool> states;
            for (QWidget* widget : lockable)
                states << widget->isEnabled();
            return states;
        };
        rig.pointToPoint(MotionType::Relative, true);
        auto* page = rig.window->findChild<COV_SnMtnPtpWnd*>();
        page->findChild<QLineEdit*>("setCommand")->setText("-700");
        page->findChild<QPushButton*>("commandButton")->click();
        rig.setText("count", "3");
        rig.setText("delayTime", "150");
        rig.setText("position2", "1000");

        rig.click("plusButton");
        QVERIFY(rig.axesMoving());
        bool lockedWhileMoving = false;
        QVERIFY(rig.runToEnd([&] {
            if (rig.text("repeatCount") == QStringLiteral("2") &&
                rig.api.GetCommandSpeed(BoardFamily::RL, 0, 1) > 0)
                lockedWhileMoving = enabled() == QList<bool>(6, false);
        }));
        QVERIFY(lockedWhileMoving);
        QCOMPARE(rig.commandPosition(), -700 + 3000);
        QCOMPARE(rig.text("repeatCount"), QStringLiteral("3"));
        QVERIFY(rig.text("cycleTime").toInt() > 300);
        QVERIFY(!rig.axesMoving() && rig.prompt.messages().isEmpty());
        QCOMPARE(enabled(), QList<bool>(6, true));
    }

    void absoluteRepeat_alternatesAndEndsAtPosition1()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.pointToPoint(MotionType::Absolute, true);
        rig.setText("count", "2");
        rig.setText("delayTime", "20");
        rig.setText("position1", "-1500");
        rig.setText("position2", "2500");
        QCOMPARE(rig.button("minusButton")->text(), QStringLiteral("Auto Move"));
        rig.click("minusButton");
        QList<int> restedAt;
        QVERIFY(rig.runToEnd([&] {
            if (rig.clockwork.pause.isActive() &&
                (restedAt.isEmpty() || restedAt.last() != rig.commandPosition()))
                restedAt << rig.commandPosition();
        }));
        QCOMPARE(restedAt, (QList<int>{-1500, 2500, -1500, 2500, -1500}));
        QCOMPARE(rig.commandPosition(), -1500);
        QCOMPARE(rig.text("repeatCount"), QStringLiteral("2"));
        QVERIFY(rig.prompt.messages().isEmpty());
    }

    // The point-to-point report of the same stop: limitStop_reportedAfterTheActiveCardChanged.
    void plusLimit_notReportedOnHome()
    {
        // A Z-phase search in the + direction, with no Z mark on the axis, ends on the + limit.
        Rig rig;
        QVERIFY(rig.start());
        rig.selectTab(MotionTab::Home);
        rig.api.SetHomeDir(BoardFamily::RL, 0, 1, 0);
        rig.find<QComboBox>("homeMode")->setCurrentIndex(8);
        rig.click("minusButton");
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.errorCode(), -620);
        QVERIFY(rig.prompt.messages().isEmpty());
    }

    void heldJog_stopsAtReleaseWhateverChangedMeanwhile_data()
    {
        QTest::addColumn<int>("change");
        QTest::newRow("motion type") << 0;
        QTest::newRow("tab") << 1;
        QTest::newRow("axis") << 2;
    }
    void heldJog_stopsAtReleaseWhateverChangedMeanwhile()
    {
        QFETCH(int, change);
        Rig rig;
        QVERIFY(rig.start());
        rig.pointToPoint(MotionType::Jog);
        rig.window->show();
        QTest::mousePress(rig.button("plusButton"), Qt::LeftButton);
        rig.run(50);
        QVERIFY(rig.commandPosition() > 0);
        // What a keyboard user can do while the button is held.
        if (change == 0)
            rig.choose("motionType", int(MotionType::Relative));
        else if (change == 1)
            rig.selectTab(MotionTab::Home);
        else if (change == 2)
            rig.choose("axisCombo", 2);
        QTest::mouseRelease(rig.button("plusButton"), Qt::LeftButton);
        for (int ms = 0; ms < 2000 && rig.api.Done(BoardFamily::RL, 0, 1) != 0; ++ms)
            rig.advanceClock(1);
        QCOMPARE(rig.api.Done(BoardFamily::RL, 0, 1), 0);
    }

    void limitStop_reportedAfterTheActiveCardChanged()
    {
        Rig rig;
        QVERIFY(rig.start(2));
        rig.pointToPoint(MotionType::Relative);
        rig.setText("position2", "50000");
        rig.click("plusButton");
        rig.run(20);
        // The user makes card 1 active from the tree while axis 1 of card 0 runs.
        rig.state.active.card = 1;
        rig.window->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        rig.click("sStopButton"); // stops card 1's axis and the running one of card 0
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.api.GetMotionErrCod(BoardFamily::RL, 0, 1), 0);
        QVERIFY(rig.commandPosition() < 6000);

        rig.state.active.card = 0;
        rig.window->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        rig.setText("position2", "50000");
        rig.click("plusButton");
        rig.run(20);
        rig.state.active.card = 1;
        rig.window->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.errorCode(), -620);
        // The report names the card the move ran on, not the one active now.
        QCOMPARE(
            rig.prompt.messages(),
            QStringList{"NRX-RL416V(0) axis 1: Abnormally stopped by positive hardware limit"});
    }
};

QTEST_MAIN(TestSnMtnSim)
#include "tst_snmtnsim.moc"
