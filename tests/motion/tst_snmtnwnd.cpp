#include "AppState.h"
#include "BoardApi.h"
#include "COV_SnMtnWnd.h"
#include "ManualClockwork.h"
#include "RecordingBoard.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

// The single-axis window: its selectors, buttons and layout rules, the prompts on every way
// out, the lock while a repeat runs, and every way a jog ends.
class TestSnMtnWnd : public QObject
{
    Q_OBJECT

private:
    static constexpr const char* kChanged = "Parameters are changed. Do you want to set parameter?";

    struct Rig
    {
        RecordingBoard rl{BoardFamily::RL};
        RecordingBoard rm{BoardFamily::RM};
        BoardApi api;
        AppState state;
        ScriptedPrompt prompt;
        RecordingFrame frame;
        ManualClockwork clockwork;
        ToolContext context{state, api, prompt, frame};
        std::unique_ptr<COV_SnMtnWnd> window;

        // RL with the given axis counts per card, RM with one 8-axis card; axis 1 active.
        explicit Rig(std::initializer_list<int> rlAxes = {4})
        {
            rl.installInto(api);
            rm.installInto(api);
            state.registry.setLoadResult(BoardFamily::RL, static_cast<int>(rlAxes.size()) - 1);
            int card = 0;
            for (int axes : rlAxes)
                state.registry.setCardInfo(BoardFamily::RL, static_cast<CardNo>(card++), axes, 0,
                                           16);
            state.registry.setLoadResult(BoardFamily::RM, 0);
            state.registry.setCardInfo(BoardFamily::RM, 0, 8, 0, 64);
            state.active.axis = 1;
        }
        COV_SnMtnWnd& open()
        {
            window = std::make_unique<COV_SnMtnWnd>(context, clockwork);
            return *window;
        }
        template <typename T> T* find(const char* name) const
        {
            T* widget = window->findChild<T*>(QLatin1String(name));
            Q_ASSERT(widget);
            return widget;
        }
        QPushButton* button(const char* name) const { return find<QPushButton>(name); }
        void selectTab(MotionTab tab) { find<QTabBar>("tabBar")->setCurrentIndex(int(tab)); }
        void choose(const char* comboName, int index)
        {
            auto* combo = find<QComboBox>(comboName);
            combo->setCurrentIndex(index);
            emit combo->activated(index);
        }
        void pointToPoint(MotionType type)
        {
            selectTab(MotionTab::PointToPoint);
            choose("motionType", int(type));
        }
        bool axesMoving() const { return state.active.axesMoving[0] != 0; }
        void runUntilIdle()
        {
            for (int i = 0; i < 100000 && clockwork.anyActive(); ++i)
                clockwork.run(1);
        }
    };

    static void sendMove(QWidget* widget, QPoint at)
    {
        QMouseEvent move(QEvent::MouseMove, QPointF(at), widget->mapToGlobal(QPointF(at)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
    }

private slots:
    void open_showsCardAxisServoAndHomeButton()
    {
        Rig rig;
        rig.rl.setResultFor("GetSvOn", 0, 1, 1);
        COV_SnMtnWnd& window = rig.open();
        QCOMPARE(window.kind(), ToolSingleAxis);
        QCOMPARE(window.windowTitle(), QStringLiteral("Single Axis Motion - NRX-RL416V(0)"));
        auto* cards = rig.find<QComboBox>("cardCombo");
        QCOMPARE(cards->count(), 1);
        QVERIFY(!cards->isEnabled());
        auto* axes = rig.find<QComboBox>("axisCombo");
        QCOMPARE(axes->count(), 4);
        QCOMPARE(axes->currentText(), QStringLiteral("1"));
        QCOMPARE(rig.button("servoButton")->text(), QStringLiteral("Servo Off"));
        QCOMPARE(rig.button("minusButton")->text(), QStringLiteral("Home"));
        QVERIFY(rig.button("plusButton")->isHidden());
        auto* tabs = rig.find<QTabBar>("tabBar");
        QCOMPARE(tabs->tabText(0), QStringLiteral("Home"));
        QCOMPARE(tabs->tabText(1), QStringLiteral("Point To Point"));
        QCOMPARE(rig.rl.calls({"GetHomeMode", "GetJogSpeed", "GetSvOn"}),
                 (QStringList{"GetSvOn(0,1)", "GetHomeMode(0,1)", "GetJogSpeed(0,1,&,&,&)"}));
    }

    void layout_buttonsFollowTabMotionTypeAndRepeat()
    {
        Rig rig;
        rig.open();
        QPushButton* minus = rig.button("minusButton");
        QPushButton* plus = rig.button("plusButton");
        const auto captions = [&] {
            return plus->isHidden() ? QStringList{minus->text()}
                                    : QStringList{minus->text(), plus->text()};
        };
        rig.pointToPoint(MotionType::Jog);
        QCOMPARE(captions(), (QStringList{"-Jog", "+Jog"}));
        rig.choose("motionType", int(MotionType::Relative));
        QCOMPARE(captions(), (QStringList{"Dec.", "Inc"}));
        rig.find<QCheckBox>("repeat")->click();
        QCOMPARE(captions(), (QStringList{"Dec.", "Inc"}));
        rig.choose("motionType", int(MotionType::Absolute));
        QCOMPARE(captions(), QStringList{"Auto Move"});
        rig.find<QCheckBox>("repeat")->click();
        QCOMPARE(captions(), (QStringList{"Pos. 1", "Pos. 2"}));
        rig.find<QCheckBox>("repeat")->click();
        rig.selectTab(MotionTab::Home);
        QCOMPARE(captions(), QStringList{"Home"});
        QVERIFY(!rig.find<QCheckBox>("repeat")->isChecked());
        rig.selectTab(MotionTab::PointToPoint);
        QCOMPARE(captions(), (QStringList{"Pos. 1", "Pos. 2"}));
    }

    void jog_endsWithDecelStop_data()
    {
        QTest::addColumn<QString>("ending");
        QTest::newRow("release") << "release";
        QTest::newRow("pointer leaves the button") << "leave";
        QTest::newRow("focus leaves the window") << "focus";
        QTest::newRow("application deactivated") << "deactivate";
        QTest::newRow("close") << "close";
        QTest::newRow("window destroyed") << "destroy";
    }
    void jog_endsWithDecelStop()
    {
        QFETCH(QString, ending);
        Rig rig;
        QWidget top;
        auto* layout = new QVBoxLayout(&top);
        auto* elsewhere = new QLineEdit;
        layout->addWidget(elsewhere);
        layout->addWidget(&rig.open());
        top.show();
        top.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&top));
        rig.pointToPoint(MotionType::Jog);
        QPushButton* minus = rig.button("minusButton");

        QTest::mousePress(minus, Qt::LeftButton);
        QCOMPARE(rig.rl.calls({"Jog_Move", "Decel_Stop"}), QStringList{"Jog_Move(0,1,0)"});
        QVERIFY(rig.window->sequencer().isJogHeld());
        sendMove(minus, minus->rect().center());
        QCOMPARE(rig.rl.count("Decel_Stop"), 0);

        if (ending == "release") {
            QTest::mouseRelease(minus, Qt::LeftButton);
        } else if (ending == "leave") {
            sendMove(minus, QPoint(minus->width() + 5, minus->height() / 2));
        } else if (ending == "focus") {
            elsewhere->setFocus();
        } else if (ending == "deactivate") {
            emit qApp->applicationStateChanged(Qt::ApplicationInactive);
        } else if (ending == "close") {
            QSignalSpy closing(rig.window.get(), &ToolView::closeRequested);
            rig.window->requestClose();
            QCOMPARE(closing.count(), 1);
        } else {
            rig.window.reset();
        }
        QCOMPARE(rig.rl.calls({"Jog_Move", "Decel_Stop"}),
                 (QStringList{"Jog_Move(0,1,0)", "Decel_Stop(0,1)"}));
        if (rig.window) {
            QVERIFY(!rig.window->sequencer().isJogHeld());
            rig.window->setParent(nullptr);
        }
    }

    void alarmReset_heldWhilePressed()
    {
        Rig rig;
        rig.open();
        QPushButton* alarm = rig.button("alarmResetButton");
        QTest::mousePress(alarm, Qt::LeftButton);
        QCOMPARE(rig.rl.calls({"PutSvAlmRst"}), QStringList{"PutSvAlmRst(0,1,1)"});
        QTest::mouseRelease(alarm, Qt::LeftButton);
        QCOMPARE(rig.rl.calls({"PutSvAlmRst"}),
                 (QStringList{"PutSvAlmRst(0,1,1)", "PutSvAlmRst(0,1,0)"}));
    }

    void buttons_servoCounterClearStopsAndParameterSetup()
    {
        Rig rig;
        rig.open();
        QPushButton* servo = rig.button("servoButton");
        servo->click();
        QCOMPARE(servo->text(), QStringLiteral("Servo Off"));
        rig.rl.setResult("GetSvOn", 1);
        servo->click();
        QCOMPARE(servo->text(), QStringLiteral("Servo On"));
        rig.button("counterClearButton")->click();
        rig.button("sStopButton")->click();
        rig.button("eStopButton")->click();
        QCOMPARE(rig.rl.calls({"PutSvOn", "PutSvCClrCmd", "Decel_Stop", "Sudden_Stop"}),
                 (QStringList{"PutSvOn(0,1,1)", "PutSvOn(0,1,0)", "PutSvCClrCmd(0,1)",
                              "Decel_Stop(0,1)", "Sudden_Stop(0,1)"}));
        rig.button("parameterSetupButton")->click();
        QCOMPARE(rig.frame.sent, (QList<QPair<int, int>>{{UM_OPEN_TOOL, ToolParameter}}));
    }

    void prompt_askedOnEveryWayOutOnlyWhenChanged()
    {
        Rig rig({4, 4});
        rig.open();
        // Unchanged fields: no question anywhere.
        rig.choose("axisCombo", 2);
        rig.selectTab(MotionTab::PointToPoint);
        rig.selectTab(MotionTab::Home);
        QVERIFY(rig.prompt.questions().isEmpty());

        rig.prompt.setDefaultAnswer(false);
        const auto edit = [&] { rig.find<QLineEdit>("highSpeed")->setText("12345"); };
        edit();
        rig.selectTab(MotionTab::PointToPoint);
        edit();
        rig.choose("axisCombo", 3);
        rig.find<QLineEdit>("driveSpeed")->setText("777");
        rig.choose("cardCombo", 1);
        rig.find<QLineEdit>("driveSpeed")->setText("778");
        rig.window->requestClose();
        QCOMPARE(rig.prompt.questions(), (QStringList{kChanged, kChanged, kChanged}));
        QCOMPARE(rig.rl.count("SetHomeMode") + rig.rl.count("SetJogSpeed"), 0);
        QCOMPARE(rig.frame.sent,
                 (QList<QPair<int, int>>{
                     {UM_AXIS_CHANGED, 2}, {UM_AXIS_CHANGED, 3}, {UM_CARD_CHANGED, 1}}));
    }

    void prompt_yesWritesThePageAndNotifiesFrame()
    {
        Rig rig;
        rig.open();
        rig.find<QLineEdit>("highSpeed")->setText("9000");
        rig.find<QLineEdit>("offset")->setText("-5");
        rig.prompt.queueAnswers({true});
        rig.selectTab(MotionTab::PointToPoint);
        QCOMPARE(rig.prompt.questions(), QStringList{kChanged});
        QCOMPARE(rig.rl.calls({"SetHomeMode", "SetHomeOffset", "SetHomeSpeed"}),
                 (QStringList{"SetHomeMode(0,1,0)", "SetHomeOffset(0,1,-5)",
                              "SetHomeSpeed(0,1,0,9000,0)"}));
        QCOMPARE(rig.frame.sent, (QList<QPair<int, int>>{{UM_PARAM_CHANGED, 0}}));

        // "Set Prm" writes the visible page without asking.
        rig.find<QLineEdit>("driveSpeed")->setText("4000");
        rig.button("setPrmButton")->click();
        QCOMPARE(rig.rl.calls({"SetJogSpeed"}), QStringList{"SetJogSpeed(0,1,0,4000,0)"});
        QCOMPARE(rig.prompt.questions().size(), 1);
        QCOMPARE(rig.frame.sent.last(), (QPair<int, int>{UM_PARAM_CHANGED, 0}));

        // A motion-type change with edited speeds asks too; Yes writes and notifies the frame.
        rig.find<QLineEdit>("driveSpeed")->setText("4200");
        rig.prompt.queueAnswers({true});
        rig.choose("motionType", int(MotionType::Relative));
        QCOMPARE(rig.rl.calls({"SetJogSpeed"}).last(), QStringLiteral("SetJogSpeed(0,1,0,4200,0)"));
        QCOMPARE(rig.frame.sent.size(), 3);
        QCOMPARE(rig.prompt.questions().size(), 2);

        // The close prompt is asked once, also when the frame then closes the child.
        rig.find<QLineEdit>("driveSpeed")->setText("4100");
        rig.window->requestClose();
        rig.window->close();
        QCOMPARE(rig.prompt.questions().size(), 3);
    }

    void controllerChange_promptsForPreviousFamilyThenRebuilds()
    {
        Rig rig;
        rig.open();
        rig.find<QLineEdit>("lowSpeed")->setText("321");
        rig.state.active.previousFamily = BoardFamily::RL;
        rig.state.active.family = BoardFamily::RM;
        rig.rl.clearCalls();
        rig.prompt.queueAnswers({true});
        rig.window->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        QCOMPARE(rig.prompt.questions(), QStringList{kChanged});
        QCOMPARE(rig.rl.calls({"GetHomeMode", "SetHomeSpeed"}),
                 (QStringList{"GetHomeMode(0,1)", "SetHomeSpeed(0,1,321,0,0)"}));
        QCOMPARE(rig.rm.count("SetHomeSpeed"), 0);
        QCOMPARE(rig.window->windowTitle(), QStringLiteral("Single Axis Motion - NRX-RM864V(0)"));
        QCOMPARE(rig.find<QComboBox>("axisCombo")->count(), 8);
        QCOMPARE(rig.find<QLineEdit>("lowSpeed")->text(), QStringLiteral("0"));
    }

    void cardChange_resetsAxisBeyondTheCard()
    {
        Rig rig({4, 2});
        rig.state.active.axis = 3;
        rig.open();
        QVERIFY(rig.find<QComboBox>("cardCombo")->isEnabled());
        rig.choose("cardCombo", 1);
        QCOMPARE(rig.window->windowTitle(), QStringLiteral("Single Axis Motion - NRX-RL216V(1)"));
        QCOMPARE(rig.find<QComboBox>("axisCombo")->count(), 2);
        QCOMPARE(rig.find<QComboBox>("axisCombo")->currentIndex(), 0);
        QCOMPARE(rig.state.active.axis, 0);
        QCOMPARE(rig.frame.sent, (QList<QPair<int, int>>{{UM_CARD_CHANGED, 1}}));
        rig.rl.clearCalls();
        rig.window->handleUserMessage(UM_VIEW_COMMAND, ToolMultiAxis);
        QVERIFY(rig.rl.calls().isEmpty());
        rig.window->handleUserMessage(UM_VIEW_COMMAND, ToolSingleAxis);
        QCOMPARE(rig.rl.calls({"GetSvOn"}), QStringList{"GetSvOn(1,0)"});
    }

    void repeat_locksControlsAndAxesMovingUntilLastDwell()
    {
        Rig rig({4, 4});
        rig.open();
        rig.pointToPoint(MotionType::Relative);
        rig.find<QCheckBox>("repeat")->click();
        rig.find<QLineEdit>("count")->setText("2");
        rig.find<QLineEdit>("delayTime")->setText("50");
        const QList<QWidget*> locked{
            rig.find<QComboBox>("cardCombo"), rig.find<QComboBox>("axisCombo"),
            rig.find<QTabBar>("tabBar"),      rig.find<QComboBox>("motionType"),
            rig.find<QCheckBox>("repeat"),    rig.find<QCheckBox>("infinite")};
        QTest::mouseClick(rig.button("plusButton"), Qt::LeftButton);
        for (QWidget* widget : locked)
            QVERIFY2(!widget->isEnabled(), qPrintable(widget->objectName()));
        QVERIFY(rig.axesMoving());

        // The second step is on its way; after it the last dwell is still locked.
        rig.clockwork.run(10 + 50);
        QCOMPARE(rig.rl.count("Inc_Move"), 2);
        rig.clockwork.run(10 + 49);
        QVERIFY(rig.axesMoving());
        QVERIFY(!rig.find<QTabBar>("tabBar")->isEnabled());
        rig.clockwork.run(1);
        QVERIFY(!rig.axesMoving());
        for (QWidget* widget : locked)
            QVERIFY2(widget->isEnabled(), qPrintable(widget->objectName()));
        QCOMPARE(rig.find<QLineEdit>("repeatCount")->text(), QStringLiteral("2"));
    }
};

QTEST_MAIN(TestSnMtnWnd)
#include "tst_snmtnwnd.moc"
