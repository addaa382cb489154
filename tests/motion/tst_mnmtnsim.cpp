#include "COV_MnMtnWnd.h"
#include "SimBoardsRig.h"
#include "ToolWindowRig.h"

#include <QListWidget>
#include <QTest>

// The multi-axis window on a simulated RL card of four axes, whose axis 3 slips 20 pulses in
// every 1000; board, window timers and the gantry check move on together a millisecond at a
// time.
class TestMnMtnSim : public QObject
{
    Q_OBJECT

private:
    struct Rig : ToolWindowRig<COV_MnMtnWnd>
    {
        SimBoardsRig sim{api, state};

        bool start()
        {
            if (!sim.start(true, "[RL]\nCards=1\n[Axes]\nPlusLimit=900000\nMinusLimit=-900000\n"
                                 "[RL.Card0.Axis3]\nSlip=20\n"))
                return false;
            open();
            advance = [this] {
                sim.advance(BoardFamily::RL, 1);
                window->onGantryTick();
            };
            return true;
        }
        ~Rig() { window.reset(); }
        void check(std::initializer_list<int> rows) const
        {
            for (int row : rows)
                find<QListWidget>("axisList")->item(row)->setCheckState(Qt::Checked);
        }
        void focus(int row) const { find<QListWidget>("axisList")->setCurrentRow(row); }
        // The focused axis's profile, written to it alone.
        void setSpeed(int row, int drive)
        {
            focus(row);
            setText("driveSpeed", QString::number(drive));
            setText("initialSpeed", "100");
            setText("accelTime", "100");
            setText("decelTime", "100");
            find<QPushButton>("setPrmButton")->click();
        }
        std::int32_t position(int axis)
        {
            return api.GetCommandPos(BoardFamily::RL, 0, static_cast<AxisNo>(axis));
        }
    };

private slots:
    void relativeRepeat_gantryCheck_data()
    {
        QTest::addColumn<int>("axis2Drive"); // the others run at 10000 pps
        QTest::addColumn<bool>("withSlipping");
        QTest::addColumn<int>("source");
        QTest::addColumn<int>("axis1Start");
        QTest::addColumn<int>("limit");
        QTest::addColumn<bool>("trips");
        QTest::newRow("equal profiles") << 10000 << false << 0 << 0 << 0 << false;
        QTest::newRow("other drive speed") << 20000 << false << 0 << 0 << 50 << true;
        QTest::newRow("slip, command") << 10000 << true << 0 << 0 << 50 << false;
        QTest::newRow("slip, actual") << 10000 << true << 1 << 0 << 50 << true;
        QTest::newRow("deviation at the limit") << 10000 << false << 0 << 40 << 40 << false;
        QTest::newRow("deviation over it") << 10000 << false << 0 << 41 << 40 << true;
    }
    void relativeRepeat_gantryCheck()
    {
        QFETCH(int, axis2Drive);
        QFETCH(bool, withSlipping);
        QFETCH(int, source);
        QFETCH(int, axis1Start);
        QFETCH(int, limit);
        QFETCH(bool, trips);
        Rig rig;
        QVERIFY(rig.start());
        const QList<int> axes = {0, 1, withSlipping ? 3 : 2};
        rig.choose("motionType", int(MotionType::Relative));
        rig.check({axes[0], axes[1], axes[2]});
        rig.find<QCheckBox>("setAll")->setChecked(false);
        rig.api.SetCommandPos(BoardFamily::RL, 0, 1, axis1Start);
        rig.setSpeed(axes[2], axis2Drive);
        rig.setSpeed(axes[1], 10000);
        rig.setSpeed(axes[0], 10000);
        rig.find<QCheckBox>("repeat")->click();
        rig.setText("count", "3");
        rig.setText("delayTime", "50");
        rig.setText("position2", "20000");
        rig.find<QPushButton>("applyButton")->click();
        rig.choose("gantrySource", source);
        rig.setText("errorLimit", QString::number(limit));
        emit rig.find<QLineEdit>("errorLimit")->textEdited(QString::number(limit));
        rig.find<QCheckBox>("gantryCheck")->setChecked(true);
        QTest::mouseClick(rig.find<QPushButton>("plusButton"), Qt::LeftButton);
        QVERIFY(rig.state.active.axesMoving[1] != 0);
        QVERIFY(rig.runToEnd());
        QVERIFY(rig.state.active.axesMoving[1] == 0);
        if (trips) {
            QCOMPARE(rig.prompt.messages(), QStringList{"Gantry Limit Error !"});
            for (int axis : axes)
                QVERIFY(rig.position(axis) < 20000 + axis1Start);
        } else {
            QVERIFY(rig.prompt.messages().isEmpty());
            QCOMPARE(rig.position(axes[0]), 60000);
            QCOMPARE(rig.position(axes[2]), 60000);
        }
    }

    void preconditions_andAHeldJogStopsAtRelease()
    {
        Rig rig;
        QVERIFY(rig.start());
        auto* plus = rig.find<QPushButton>("plusButton");
        rig.check({1});
        // The focused row 0 is not checked: refused, the button is not left drawn pressed.
        for (QPushButton* button : {plus, rig.find<QPushButton>("alarmResetButton")}) {
            QTest::mousePress(button, Qt::LeftButton);
            QVERIFY(!button->isDown());
            QTest::mouseRelease(button, Qt::LeftButton);
        }
        rig.find<QPushButton>("eStopButton")->click();
        rig.focus(1);
        QTest::mouseClick(plus, Qt::LeftButton);
        const QString notChecked =
            QStringLiteral("Selected axis in not checked !\n Please check selected axis !");
        QCOMPARE(rig.prompt.messages(), (QStringList{notChecked, notChecked, notChecked,
                                                     "Please Select at least 2 axes !"}));

        // Jog two axes; the user unchecks one and changes the motion type before letting go.
        rig.check({2});
        QTest::mousePress(plus, Qt::LeftButton);
        rig.clockwork.run(100, [&] { rig.sim.advance(BoardFamily::RL, 1); });
        QVERIFY(rig.position(1) > 0 && rig.position(2) > 0);
        rig.find<QListWidget>("axisList")->item(2)->setCheckState(Qt::Unchecked);
        rig.window->onListWatch();
        QVERIFY(!rig.find<QCheckBox>("allAxes")->isChecked());
        rig.choose("motionType", int(MotionType::Absolute));
        QTest::mouseRelease(plus, Qt::LeftButton);
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.api.Done(BoardFamily::RL, 0, 1), 0);
        QCOMPARE(rig.api.Done(BoardFamily::RL, 0, 2), 0);
        QCOMPARE(rig.prompt.messages().size(), 4);

        // E-Stop with the focused row unchecked still ends the running jog on its own axes.
        rig.choose("motionType", int(MotionType::Jog));
        rig.check({2});
        QTest::mousePress(plus, Qt::LeftButton);
        rig.clockwork.run(100, [&] { rig.sim.advance(BoardFamily::RL, 1); });
        rig.focus(0);
        rig.find<QPushButton>("eStopButton")->click();
        QCOMPARE(rig.prompt.messages().size(), 5);
        const std::int32_t stoppedAt = rig.position(2);
        rig.clockwork.run(100, [&] { rig.sim.advance(BoardFamily::RL, 1); });
        QCOMPARE(rig.position(2), stoppedAt);
        QTest::mouseRelease(plus, Qt::LeftButton);
    }

    void layout_stopButtonsAndSizeStayPutAcrossMotionTypes()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.window->show();
        QCoreApplication::processEvents();
        const QRect eStop = rig.placeOf("eStopButton");
        const QRect sStop = rig.placeOf("sStopButton");
        const QSize size = rig.window->size();
        for (MotionType type : {MotionType::Relative, MotionType::Absolute, MotionType::Jog}) {
            rig.choose("motionType", int(type));
            QCOMPARE(rig.find<QCheckBox>("repeat")->isVisible(), type != MotionType::Jog);
            for (int click = 0; click < 2 && type != MotionType::Jog; ++click) {
                rig.find<QCheckBox>("repeat")->click();
                QCoreApplication::processEvents();
                QCOMPARE(rig.placeOf("eStopButton"), eStop);
                QCOMPARE(rig.placeOf("sStopButton"), sStop);
                QCOMPARE(rig.window->size(), size);
            }
        }
    }
};

QTEST_MAIN(TestMnMtnSim)
#include "tst_mnmtnsim.moc"
