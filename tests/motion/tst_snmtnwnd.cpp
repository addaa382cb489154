#include "RecordingBoard.h"
#include "ToolWindowRig.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

// The single-axis window: its selectors, buttons and layout rules, the prompts on every way
// out, and every way a jog ends.
class TestSnMtnWnd : public QObject
{
    Q_OBJECT

private:
    static constexpr const char* kChanged = "Parameters are changed. Do you want to set parameter?";
    using Sent = QList<QPair<int, int>>;

    struct Rig : ToolWindowRig<>
    {
        RecordingBoard rl{BoardFamily::RL};
        RecordingBoard rm{BoardFamily::RM};

        // RL with the given axis counts per card, RM with one 8-axis card; axis 1 active.
        explicit Rig(std::initializer_list<int> rlAxes = {4})
        {
            rl.installInto(api);
            rm.installInto(api);
            state.registry.setLoadResult(BoardFamily::RL, static_cast<int>(rlAxes.size()) - 1);
            int card = 0;
            for (int axes : rlAxes)
                state.registry.setCardInfo(BoardFamily::RL, CardNo(card++), axes, 0, 16);
            state.registry.setLoadResult(BoardFamily::RM, 0);
            state.registry.setCardInfo(BoardFamily::RM, 0, 8, 0, 64);
            state.active.axis = 1;
        }
        // The window calls the board as it goes; it must go before the recording doubles.
        ~Rig() { window.reset(); }
        QStringList captions() const
        {
            QPushButton* plus = button("plusButton");
            return QStringList{button("minusButton")->text()} +
                   (plus->isHidden() ? QStringList{} : QStringList{plus->text()});
        }
    };

    static void sendMove(QWidget* widget, QPoint at)
    {
        QMouseEvent move(QEvent::MouseMove, QPointF(at), widget->mapToGlobal(QPointF(at)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
    }

private slots:
    void open_thenButtonsFollowTabMotionTypeAndRepeat()
    {
        Rig rig;
        rig.rl.setResultFor("GetSvOn", 0, 1, 1);
        QCOMPARE(rig.open().windowTitle(), QStringLiteral("Single Axis Motion - NRX-RL416V(0)"));
        QCOMPARE(rig.rl.calls({"GetHomeMode", "GetJogSpeed", "GetSvOn"}),
                 (QStringList{"GetSvOn(0,1)", "GetHomeMode(0,1)", "GetJogSpeed(0,1,&,&,&)"}));
        auto* cards = rig.find<QComboBox>("cardCombo");
        auto* axes = rig.find<QComboBox>("axisCombo");
        QVERIFY(cards->count() == 1 && !cards->isEnabled());
        QVERIFY(axes->count() == 4 && axes->currentText() == QStringLiteral("1"));
        QCOMPARE(rig.button("servoButton")->text(), QStringLiteral("Servo Off"));
        auto* tabs = rig.find<QTabBar>("tabBar");
        QCOMPARE(QStringList({tabs->tabText(0), tabs->tabText(1)}),
                 (QStringList{"Home", "Point To Point"}));
        QCOMPARE(rig.captions(), QStringList{"Home"});

        // The stop buttons never move and the window keeps its size while the user works.
        rig.window->show();
        QCoreApplication::processEvents();
        const QRect eStop = rig.placeOf("eStopButton");
        const QRect sStop = rig.placeOf("sStopButton");
        const QSize size = rig.window->size();
        const auto steady = [&] {
            QCoreApplication::processEvents();
            return rig.placeOf("eStopButton") == eStop && rig.placeOf("sStopButton") == sStop &&
                   rig.window->size() == size;
        };

        auto* repeat = rig.find<QCheckBox>("repeat");
        rig.pointToPoint(MotionType::Jog);
        QVERIFY(steady());
        QCOMPARE(rig.captions(), (QStringList{"-Jog", "+Jog"}));
        rig.pointToPoint(MotionType::Relative, true);
        QCOMPARE(rig.captions(), (QStringList{"Dec.", "Inc"}));
        QVERIFY(steady());
        rig.choose("motionType", int(MotionType::Absolute));
        QCOMPARE(rig.captions(), QStringList{"Auto Move"});
        QVERIFY(steady());
        repeat->click();
        QCOMPARE(rig.captions(), (QStringList{"Pos. 1", "Pos. 2"}));
        QVERIFY(steady());
        repeat->click();
        rig.selectTab(MotionTab::Home);
        QVERIFY(rig.captions() == QStringList{"Home"} && !repeat->isChecked());
        QVERIFY(steady());
        rig.selectTab(MotionTab::PointToPoint);
        QCOMPARE(rig.captions(), (QStringList{"Pos. 1", "Pos. 2"}));
    }

    void jog_endsWithDecelStop_data()
    {
        QTest::addColumn<QString>("ending");
        for (const char* ending : {"release", "leave", "focus", "deactivate", "close", "destroy"})
            QTest::newRow(ending) << QString::fromLatin1(ending);
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
        QVERIFY(rig.window->sequencer().isJogHeld());
        sendMove(minus, minus->rect().center());
        QCOMPARE(rig.rl.calls({"Jog_Move", "Decel_Stop"}), QStringList{"Jog_Move(0,1,0)"});

        if (ending == "release")
            QTest::mouseRelease(minus, Qt::LeftButton);
        else if (ending == "leave")
            sendMove(minus, QPoint(minus->width() + 5, minus->height() / 2));
        else if (ending == "focus")
            elsewhere->setFocus();
        else if (ending == "deactivate")
            emit qApp->applicationStateChanged(Qt::ApplicationInactive);
        else if (ending == "close")
            rig.window->requestClose();
        else
            rig.window.reset();
        QCOMPARE(rig.rl.calls({"Jog_Move", "Decel_Stop"}),
                 (QStringList{"Jog_Move(0,1,0)", "Decel_Stop(0,1)"}));
        if (rig.window) {
            QVERIFY(!rig.window->sequencer().isJogHeld());
            rig.window->setParent(nullptr);
        }
    }

    void buttons_alarmResetServoCounterClearStopsAndParameterSetup()
    {
        Rig rig;
        rig.open();
        for (const char* name : {"eStopButton", "sStopButton", "setPrmButton", "counterClearButton",
                                 "alarmResetButton"})
            QVERIFY2(!rig.button(name)->toolTip().isEmpty(), name);
        QTest::mousePress(rig.button("alarmResetButton"), Qt::LeftButton);
        QCOMPARE(rig.rl.calls({"PutSvAlmRst"}), QStringList{"PutSvAlmRst(0,1,1)"});
        QTest::mouseRelease(rig.button("alarmResetButton"), Qt::LeftButton);
        QPushButton* servo = rig.button("servoButton");
        servo->click();
        QCOMPARE(servo->text(), QStringLiteral("Servo Off"));
        rig.rl.setResult("GetSvOn", 1);
        servo->click();
        QCOMPARE(servo->text(), QStringLiteral("Servo On"));
        for (const char* name : {"counterClearButton", "sStopButton", "eStopButton"})
            rig.button(name)->click();
        QCOMPARE(
            rig.rl.calls({"PutSvAlmRst", "PutSvOn", "PutSvCClrCmd", "Decel_Stop", "Sudden_Stop"}),
            (QStringList{"PutSvAlmRst(0,1,1)", "PutSvAlmRst(0,1,0)", "PutSvOn(0,1,1)",
                         "PutSvOn(0,1,0)", "PutSvCClrCmd(0,1)", "Decel_Stop(0,1)",
                         "Sudden_Stop(0,1)"}));
        rig.button("parameterSetupButton")->click();
        QCOMPARE(rig.frame.sent, (Sent{{UM_OPEN_TOOL, ToolParameter}}));
    }

    void prompt_askedOnEveryWayOutOnlyWhenChangedAndYesWrites()
    {
        Rig rig({4, 4});
        rig.open();
        // Unchanged fields: no question anywhere.
        rig.choose("axisCombo", 2);
        rig.selectTab(MotionTab::PointToPoint);
        rig.selectTab(MotionTab::Home);
        QVERIFY(rig.prompt.questions().isEmpty());

        // Yes writes the page that was shown, in its order, and tells the frame.
        rig.setText("highSpeed", "9000");
        rig.setText("offset", "-5");
        rig.prompt.queueAnswers({true, true});
        rig.selectTab(MotionTab::PointToPoint);
        QCOMPARE(rig.rl.calls({"SetHomeMode", "SetHomeOffset", "SetHomeSpeed"}),
                 (QStringList{"SetHomeMode(0,2,0)", "SetHomeOffset(0,2,-5)",
                              "SetHomeSpeed(0,2,0,9000,0)"}));
        // "Set Prm" writes without asking; a motion-type change asks like the ways out.
        rig.setText("driveSpeed", "4000");
        rig.button("setPrmButton")->click();
        rig.setText("driveSpeed", "4200");
        rig.choose("motionType", int(MotionType::Relative));
        // No writes nothing.
        rig.setText("driveSpeed", "777");
        rig.choose("axisCombo", 3);
        rig.setText("driveSpeed", "778");
        rig.choose("cardCombo", 1);
        rig.setText("driveSpeed", "779");
        rig.window->requestClose();
        rig.window->close();
        QCOMPARE(rig.prompt.questions(), QStringList(5, kChanged));
        QCOMPARE(rig.rl.calls({"SetJogSpeed", "SetPosSpeed"}),
                 (QStringList{"SetJogSpeed(0,2,0,4000,0)", "SetJogSpeed(0,2,0,4200,0)"}));
        const QPair<int, int> written{UM_PARAM_CHANGED, 0};
        QCOMPARE(rig.frame.sent, (Sent{{UM_AXIS_CHANGED, 2},
                                       written,
                                       written,
                                       written,
                                       {UM_AXIS_CHANGED, 3},
                                       {UM_CARD_CHANGED, 1}}));
    }

    void controllerChange_promptsForPreviousFamilyThenRebuilds()
    {
        Rig rig;
        rig.open();
        rig.setText("lowSpeed", "321");
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
        QCOMPARE(rig.text("lowSpeed"), QStringLiteral("0"));
    }

    void cardChange_resetsAxisBeyondTheCardAndReloadsOnViewCommand()
    {
        Rig rig({4, 2});
        rig.state.active.axis = 3;
        rig.open();
        QVERIFY(rig.find<QComboBox>("cardCombo")->isEnabled());
        rig.choose("cardCombo", 1);
        QCOMPARE(rig.window->windowTitle(), QStringLiteral("Single Axis Motion - NRX-RL216V(1)"));
        auto* axes = rig.find<QComboBox>("axisCombo");
        QVERIFY(axes->count() == 2 && axes->currentIndex() == 0 && rig.state.active.axis == 0);
        QCOMPARE(rig.frame.sent, (Sent{{UM_CARD_CHANGED, 1}}));
        rig.rl.clearCalls();
        rig.window->handleUserMessage(UM_VIEW_COMMAND, ToolMultiAxis);
        QVERIFY(rig.rl.calls().isEmpty());
        rig.window->handleUserMessage(UM_VIEW_COMMAND, ToolSingleAxis);
        QCOMPARE(rig.rl.calls({"GetSvOn"}), QStringList{"GetSvOn(1,0)"});
    }
};

QTEST_MAIN(TestSnMtnWnd)
#include "tst_snmtnwnd.moc"
