#include "AppState.h"
#include "BoardApi.h"
#include "BoardCallTrace.h"
#include "COV_AboutDlg.h"
#include "COV_MainFrame.h"
#include "COV_MnMtnWnd.h"
#include "COV_SnMtnWnd.h"
#include "COV_WsSysWnd.h"
#include "MessageBoxPrompt.h"
#include "SimBoardsRig.h"
#include "ToolWindowHost.h"
#include "ToolWindowKinds.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include <functional>
#include <memory>

// The stops on the simulated boards inside the whole program: Stop All from inside every kind
// of modal window, reports that leave the toolbar usable, closing a window that moves axes.
class TestStops : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        AppState state;
        BoardApi board;
        SimBoardsRig sim{board, state};
        MessageBoxPrompt prompt;
        ToolWindowFactory factory;
        std::unique_ptr<COV_MainFrame> frame;

        bool create(const QByteArray& boards = "[RL]\nCards=2\n")
        {
            if (!sim.start(false, boards))
                return false;
            state.moduleDirectory = sim.folder.path() + QLatin1Char('/');
            registerToolWindows(factory);
            frame = std::make_unique<COV_MainFrame>(state, board, prompt, factory);
            prompt.setParent(frame.get());
            if (!frame->create(sim.loader.problems()))
                return false;
            frame->monitorTimer().stop();
            frame->resize(1200, 800);
            frame->show();
            return QTest::qWaitForWindowActive(frame.get());
        }
        ~Rig()
        {
            if (frame)
                frame->toolWindows().destroyAll();
        }
        void jog(int card, int axis)
        {
            board.Jog_Move(BoardFamily::RL, CardNo(card), AxisNo(axis), 1);
        }
        bool moving(int card, int axis)
        {
            sim.advance(BoardFamily::RL, 1);
            return board.Done(BoardFamily::RL, CardNo(card), AxisNo(axis)) != 0;
        }
        // The kind's window, opened as its menu entry does, and its controls by name.
        ToolView* open(ToolKind kind)
        {
            frame->openTool(kind);
            return frame->toolWindows().view(kind);
        }
        template <typename T> T* find(ToolKind kind, const char* name) const
        {
            T* widget = frame->toolWindows().view(kind)->findChild<T*>(QLatin1String(name));
            Q_ASSERT(widget);
            return widget;
        }
        void choose(ToolKind kind, const char* combo, int index)
        {
            auto* list = find<QComboBox>(kind, combo);
            list->setCurrentIndex(index);
            emit list->activated(index);
        }
        // A relative repeat of axes 0 and 1 of card 0, by default one that runs for minutes.
        void startMultiRepeat(int distance = 10000000)
        {
            open(ToolMultiAxis);
            auto* list = find<QListWidget>(ToolMultiAxis, "axisList");
            list->item(0)->setCheckState(Qt::Checked);
            list->item(1)->setCheckState(Qt::Checked);
            choose(ToolMultiAxis, "motionType", int(MotionType::Relative));
            auto* repeat = find<QCheckBox>(ToolMultiAxis, "repeat");
            if (!repeat->isChecked())
                repeat->click();
            find<QLineEdit>(ToolMultiAxis, "count")->setText(QStringLiteral("5"));
            find<QLineEdit>(ToolMultiAxis, "position2")->setText(QString::number(distance));
            find<QPushButton>(ToolMultiAxis, "applyButton")->click();
            QTest::mouseClick(find<QPushButton>(ToolMultiAxis, "plusButton"), Qt::LeftButton);
        }
        // A relative step of axis 2 of card 0 that runs for minutes.
        void startSingleStep()
        {
            open(ToolSingleAxis);
            find<QTabBar>(ToolSingleAxis, "tabBar")->setCurrentIndex(int(MotionTab::PointToPoint));
            choose(ToolSingleAxis, "axisCombo", 2);
            choose(ToolSingleAxis, "motionType", int(MotionType::Relative));
            find<QLineEdit>(ToolSingleAxis, "position2")->setText(QStringLiteral("10000000"));
            QTest::mouseClick(find<QPushButton>(ToolSingleAxis, "plusButton"), Qt::LeftButton);
        }
        // A jog of axis 2 of card 0, held down on the single-axis window's "+".
        void holdSingleJog()
        {
            open(ToolSingleAxis);
            find<QTabBar>(ToolSingleAxis, "tabBar")->setCurrentIndex(int(MotionTab::PointToPoint));
            choose(ToolSingleAxis, "axisCombo", 2);
            choose(ToolSingleAxis, "motionType", int(MotionType::Jog));
            QTest::mousePress(find<QPushButton>(ToolSingleAxis, "plusButton"), Qt::LeftButton);
        }
        // Whether the axes still move after the boards ran on for `ms`.
        bool movingAfter(int ms, int card, const std::vector<int>& axes)
        {
            sim.advance(BoardFamily::RL, ms);
            for (int axis : axes) {
                if (board.Done(BoardFamily::RL, CardNo(card), AxisNo(axis)) != 0)
                    return true;
            }
            return false;
        }
        void triggerMenu(const QString& entry) const
        {
            for (QAction* action : frame->findChildren<QAction*>()) {
                if (action->text().remove(QLatin1Char('&')) == entry) {
                    action->trigger();
                    return;
                }
            }
            QFAIL(qPrintable(entry));
        }
        QWidget* stopSign() const
        {
            return frame->findChild<QToolBar*>(QStringLiteral("Main"))
                ->widgetForAction(frame->stopAllAction());
        }
    };

    // Once `modal` runs, presses F12 on the focused widget of the first modal window, notes
    // whether the axes still move, and closes it and any modal window after it with Escape.
    static void pressF12Inside(Rig& rig, const std::function<void()>& modal, bool& stillMoving,
                               bool& hadFocus)
    {
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            QWidget* shown = QApplication::activeModalWidget();
            QWidget* focus = QApplication::focusWidget();
            if (shown == nullptr || focus == nullptr || focus->window() != shown)
                return;
            if (!hadFocus) {
                hadFocus = true;
                QTest::keyClick(focus, Qt::Key_F12);
                stillMoving = rig.moving(0, 1) || rig.moving(1, 2);
            }
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        });
        poll.start(10);
        modal();
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void stopAll_F12InsideEveryModalWindow()
    {
        Rig rig;
        QVERIFY(rig.create());
        const std::vector<std::pair<QString, std::function<void()>>> modals{
            {"message box", [&] { rig.prompt.inform(QStringLiteral("Input Incorrect !")); }},
            {"question", [&] { rig.prompt.askYesNo(QStringLiteral("Parameters are changed")); }},
            {"About Orvane...", {}},
            {"Environment Setup", {}},
            {"Log Level", {}},
            {"Save Parameter", {}},
            {"System Reset", {}},
            {"Export Parameters...", {}},
            {"Import Parameters...", {}},
            {"Compare Parameters...", {}},
            {"Actual Speed Calculator", {}},
            {"file dialog",
             [&] {
                 QFileDialog::getOpenFileName(rig.frame.get(), QString(), rig.sim.folder.path());
             }},
        };
        for (const auto& [name, modal] : modals) {
            rig.startMultiRepeat();
            rig.jog(1, 2);
            auto& repeat = static_cast<COV_MnMtnWnd*>(rig.frame->toolWindows().view(ToolMultiAxis))
                               ->sequencer();
            QVERIFY(repeat.isMoving());
            QVERIFY(rig.moving(0, 1));
            bool stillMoving = true;
            bool hadFocus = false;
            pressF12Inside(
                rig, modal ? modal : [&, entry = name] { rig.triggerMenu(entry); }, stillMoving,
                hadFocus);
            QVERIFY2(hadFocus, qPrintable(name));
            QVERIFY2(!stillMoving, qPrintable(name));
            QVERIFY2(!repeat.isMoving(), qPrintable(name));
            QVERIFY(QApplication::activeModalWidget() == nullptr);
        }
    }

    // Closing a motion window during a long move, whatever closes it, stops its axes.
    void closing_stopsTheWindowsAxes_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("how");
        for (int kind : {int(ToolMultiAxis), int(ToolSingleAxis)}) {
            for (const char* how : {"Close", "title bar", "Close All", "frame goes"})
                QTest::addRow("%s, %s", kind == ToolMultiAxis ? "multi" : "single", how)
                    << kind << QString::fromLatin1(how);
        }
    }
    void closing_stopsTheWindowsAxes()
    {
        QFETCH(int, kind);
        QFETCH(QString, how);
        Rig rig;
        QVERIFY(rig.create());
        const bool multi = kind == ToolMultiAxis;
        if (multi)
            rig.startMultiRepeat();
        else
            rig.startSingleStep();
        const std::vector<int> axes = multi ? std::vector<int>{0, 1} : std::vector<int>{2};
        QVERIFY(rig.movingAfter(200, 0, axes));
        const auto tool = static_cast<ToolKind>(kind);
        if (how == "Close")
            rig.find<QPushButton>(tool, "closeButton")->click();
        else if (how == "title bar")
            rig.frame->toolWindows().window(tool)->close();
        else if (how == "Close All")
            rig.triggerMenu(QStringLiteral("Close All"));
        else
            rig.frame->toolWindows().destroyAll();
        QVERIFY(rig.frame->toolWindows().view(tool) == nullptr);
        QVERIFY(!rig.state.active.anyAxesMoving());
        QVERIFY(!rig.movingAfter(3000, 0, axes));
    }

    // Every way to another active controller, tried while a multi-axis repeat runs and while a
    // single-axis jog is held: each is refused, the running window keeps its axes and its
    // lock, the repeat's steps keep to the card they started on, and S-Stop still stops them.
    void controllerChange_refusedFromEveryPathWhileMoving_data()
    {
        QTest::addColumn<bool>("repeat");
        QTest::newRow("multi-axis repeat") << true;
        QTest::newRow("held single-axis jog") << false;
    }
    void controllerChange_refusedFromEveryPathWhileMoving()
    {
        QFETCH(bool, repeat);
        BoardCallTrace trace; // outlives the rig, whose windows still call the boards as they go
        Rig rig;
        QVERIFY(rig.create("[RL]\nCards=2\n[RM]\nCards=1\n"));
        rig.board.setTrace(&trace);
        const ToolKind running = repeat ? ToolMultiAxis : ToolSingleAxis;
        if (repeat)
            rig.startMultiRepeat(3000);
        else
            rig.holdSingleJog();
        // The single-axis window's card list is one of the paths.
        rig.open(ToolSingleAxis);
        QVERIFY(rig.movingAfter(20, 0, repeat ? std::vector<int>{0, 1} : std::vector<int>{2}));
        const std::uint64_t mark = trace.end();

        const std::vector<std::pair<const char*, std::function<void()>>> paths{
            {"toolbar family", [&] { emit rig.frame->familyCombo()->activated(1); }},
            {"toolbar card", [&] { emit rig.frame->cardCombo()->activated(1); }},
            {"tree",
             [&] {
                 COV_WsSysWnd* tree = rig.frame->tree();
                 tree->setCurrentItem(tree->cardItem(BoardFamily::RL, 1));
                 rig.frame->setActiveControllerFromTree();
             }},
            {"single-axis card list", [&] { rig.choose(ToolSingleAxis, "cardCombo", 1); }},
            {"relay", [&] { rig.frame->sendToFrame(UM_CARD_CHANGED, 1); }},
        };
        for (const auto& [name, path] : paths) {
            path();
            QVERIFY2(rig.state.active.family == BoardFamily::RL && rig.state.active.card == 0,
                     name);
            QVERIFY2(rig.find<QComboBox>(ToolSingleAxis, "cardCombo")->currentIndex() == 0, name);
            QVERIFY2(rig.frame->cardCombo()->currentIndex() == 0, name);
        }
        QCOMPARE(rig.frame->findChildren<QMessageBox*>(QStringLiteral("MotionReport")).size(),
                 qsizetype(paths.size()));
        if (repeat) {
            auto* list = rig.find<QListWidget>(ToolMultiAxis, "axisList");
            QVERIFY(list->item(0)->checkState() == Qt::Checked);
            QVERIFY(list->item(1)->checkState() == Qt::Checked);
            QVERIFY(!list->isEnabled());
            QVERIFY(!rig.find<QComboBox>(ToolMultiAxis, "cardCombo")->isEnabled());
            // Further steps of the repeat: speeds and moves still go to card 0 only.
            int moves = 0;
            for (int ms = 0; ms < 5000 && moves < 2; ms += 10) {
                rig.sim.advance(BoardFamily::RL, 10);
                QTest::qWait(11);
                moves = 0;
                for (std::uint64_t n = mark; n < trace.end(); ++n)
                    moves += trace.at(n).op == BoardOp::Multi_Inc_Move ? 1 : 0;
            }
            QCOMPARE(moves, 2);
            int speeds = 0;
            for (std::uint64_t n = mark; n < trace.end(); ++n) {
                const BoardCall& call = trace.at(n);
                QVERIFY(call.card() <= 0);
                speeds += call.op == BoardOp::SetPosSpeed ? 1 : 0;
            }
            QVERIFY(speeds >= 4);
            QVERIFY(rig.state.registry.parametersChanged(BoardFamily::RL, 0));
            QVERIFY(!rig.state.registry.parametersChanged(BoardFamily::RL, 1));
        }
        QTest::mouseClick(rig.find<QPushButton>(running, "sStopButton"), Qt::LeftButton);
        QVERIFY(!rig.movingAfter(3000, 0, repeat ? std::vector<int>{0, 1} : std::vector<int>{2}));
        for (QMessageBox* report : rig.frame->findChildren<QMessageBox*>())
            report->close();
    }

    // The report counts what stopped and names each axis the board would not stop; it stays
    // through the notes of refused calls until the next motion.
    void stopAll_reportNamesTheAxesTheBoardRefused()
    {
        Rig rig;
        QVERIFY(rig.create("[RL]\nCards=1\nFail.Sudden_Stop=-1\n[RM]\nCards=1\n"));
        const int refused = rig.state.registry.axisCount(BoardFamily::RL, 0);
        const int stopped = rig.state.registry.axisCount(BoardFamily::RM, 0);
        rig.jog(0, 1);
        QTest::keyClick(rig.frame.get(), Qt::Key_F12);
        const QString model =
            QString::fromStdString(rig.state.registry.modelName(BoardFamily::RL, 0));
        QStringList names;
        for (int axis = 0; axis < refused; ++axis)
            names << QStringLiteral("%1(0) axis %2 (-1)").arg(model).arg(axis);
        const QString expected =
            QStringLiteral("Stop All: %1 axes stopped; the board refused to stop %2")
                .arg(stopped)
                .arg(names.join(QStringLiteral(", ")));
        QCOMPARE(rig.frame->stopReport()->text(), expected);
        QVERIFY(rig.moving(0, 1));
        rig.frame->MonitorTick();
        QCOMPARE(rig.frame->stopReport()->text(), expected);
        rig.startSingleStep();
        rig.frame->MonitorTick();
        QVERIFY(rig.frame->stopReport()->text().isEmpty());
    }

    // Space held on the focused "+" jogs until it is let go; the release and press pairs a
    // held key repeats in between change nothing.
    void keyboardJog_spaceHeldJogsUntilReleased()
    {
        Rig rig;
        QVERIFY(rig.create());
        rig.open(ToolSingleAxis);
        rig.find<QTabBar>(ToolSingleAxis, "tabBar")->setCurrentIndex(int(MotionTab::PointToPoint));
        rig.choose(ToolSingleAxis, "motionType", int(MotionType::Jog));
        rig.find<QPushButton>(ToolSingleAxis, "plusButton")->setFocus(Qt::TabFocusReason);
        QWidget* focused = QApplication::focusWidget();
        QCOMPARE(focused->objectName(), QStringLiteral("plusButton"));
        auto& jog =
            static_cast<COV_SnMtnWnd*>(rig.frame->toolWindows().view(ToolSingleAxis))->sequencer();
        QTest::keyPress(focused, Qt::Key_Space);
        QVERIFY(jog.isJogHeld());
        for (int repeat = 0; repeat < 5; ++repeat) {
            QVERIFY(rig.movingAfter(30, 0, {0}));
            for (QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
                QKeyEvent key(type, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
                QApplication::sendEvent(focused, &key);
            }
            QVERIFY(jog.isJogHeld());
        }
        const std::int32_t held = rig.board.GetCommandPos(BoardFamily::RL, 0, 0);
        QVERIFY(held > 0);
        QTest::keyRelease(focused, Qt::Key_Space);
        QVERIFY(!jog.isJogHeld());
        QVERIFY(!rig.movingAfter(2000, 0, {0}));
    }

    // Moving an axis whose servo is off is not refused, but the status bar says so.
    void servoOff_movingSaysSoInTheStatusBar()
    {
        Rig rig;
        QVERIFY(rig.create());
        rig.holdSingleJog();
        const QString model =
            QString::fromStdString(rig.state.registry.modelName(BoardFamily::RL, 0));
        QCOMPARE(rig.frame->statusBar()->currentMessage(),
                 QStringLiteral("Servo is off: %1(0) axis 2").arg(model));
        QVERIFY(rig.movingAfter(20, 0, {2}));
        auto* plus = rig.find<QPushButton>(ToolSingleAxis, "plusButton");
        QTest::mouseRelease(plus, Qt::LeftButton);
        QVERIFY(!rig.movingAfter(2000, 0, {2}));
        auto& jog =
            static_cast<COV_SnMtnWnd*>(rig.frame->toolWindows().view(ToolSingleAxis))->sequencer();
        QTRY_VERIFY(!jog.isMoving()); // the window's poll sees the axis at rest
        rig.board.PutSvOn(BoardFamily::RL, 0, 2, 1);
        rig.frame->statusBar()->clearMessage();
        QTest::mousePress(plus, Qt::LeftButton);
        QVERIFY(rig.movingAfter(20, 0, {2}));
        QVERIFY(rig.frame->statusBar()->currentMessage().isEmpty());
        QTest::mouseRelease(plus, Qt::LeftButton);
    }

    void motionReport_leavesTheStopSignUsable()
    {
        Rig rig;
        QVERIFY(rig.create());
        rig.frame->openTool(ToolMultiAxis);
        // "+" with the focused axis unchecked: the window's refusal.
        auto* window = rig.frame->toolWindows().view(ToolMultiAxis);
        QTest::mouseClick(window->findChild<QPushButton*>(QStringLiteral("plusButton")),
                          Qt::LeftButton);
        auto* report = rig.frame->findChild<QMessageBox*>(QStringLiteral("MotionReport"));
        QVERIFY(report != nullptr);
        QVERIFY(report->isVisible());
        QCOMPARE(report->text(), QStringLiteral("Selected axis in not checked !\n Please check "
                                                "selected axis !"));
        QVERIFY(QApplication::activeModalWidget() == nullptr);
        rig.jog(1, 3);
        QTest::mouseClick(rig.stopSign(), Qt::LeftButton);
        QVERIFY(!rig.moving(1, 3));
        QVERIFY(report->isVisible());
        report->close();
    }
};

QTEST_MAIN(TestStops)
#include "tst_stops.moc"
