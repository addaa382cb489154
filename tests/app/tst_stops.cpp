#include "AppState.h"
#include "BoardApi.h"
#include "COV_AboutDlg.h"
#include "COV_MainFrame.h"
#include "COV_MnMtnWnd.h"
#include "COV_SnMtnWnd.h"
#include "MessageBoxPrompt.h"
#include "SimBoardsRig.h"
#include "ToolWindowHost.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QStatusBar>
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
            factory.registerKind(ToolSingleAxis, [](const ToolContext& c, QWidget* p) {
                return static_cast<ToolView*>(new COV_SnMtnWnd(c, p));
            });
            factory.registerKind(ToolMultiAxis, [](const ToolContext& c, QWidget* p) {
                return static_cast<ToolView*>(new COV_MnMtnWnd(c, p));
            });
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
        QWidget* stopSign() const
        {
            return frame->findChild<QToolBar*>(QStringLiteral("Main"))
                ->widgetForAction(frame->stopAllAction());
        }
    };

    // Once `modal` runs, presses F12 on the focused widget of the modal window, notes whether
    // the axes still move, and closes it with Escape.
    static void pressF12Inside(Rig& rig, const std::function<void()>& modal, bool& stillMoving,
                               bool& hadFocus)
    {
        auto* poll = new QTimer(rig.frame.get());
        QObject::connect(poll, &QTimer::timeout, poll, [&rig, &stillMoving, &hadFocus, poll] {
            QWidget* shown = QApplication::activeModalWidget();
            QWidget* focus = QApplication::focusWidget();
            if (shown == nullptr || focus == nullptr || focus->window() != shown)
                return;
            poll->deleteLater();
            hadFocus = true;
            QTest::keyClick(focus, Qt::Key_F12);
            stillMoving = rig.moving(0, 1) || rig.moving(1, 2);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        });
        poll->start(10);
        modal();
    }

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void stopAll_F12InsideEveryModalWindow()
    {
        Rig rig;
        QVERIFY(rig.create());
        const std::vector<std::pair<const char*, std::function<void()>>> modals{
            {"message box", [&] { rig.prompt.inform(QStringLiteral("Input Incorrect !")); }},
            {"question", [&] { rig.prompt.askYesNo(QStringLiteral("Parameters are changed")); }},
            {"dialog",
             [&] {
                 COV_AboutDlg about(rig.frame.get());
                 about.exec();
             }},
            {"file dialog",
             [&] {
                 QFileDialog::getOpenFileName(rig.frame.get(), QString(), rig.sim.folder.path(),
                                              QString(), nullptr, QFileDialog::DontUseNativeDialog);
             }},
        };
        for (const auto& [name, modal] : modals) {
            rig.jog(0, 1);
            rig.jog(1, 2);
            QVERIFY(rig.moving(0, 1));
            bool stillMoving = true;
            bool hadFocus = false;
            pressF12Inside(rig, modal, stillMoving, hadFocus);
            QVERIFY2(hadFocus, name);
            QVERIFY2(!stillMoving, name);
            QVERIFY(QApplication::activeModalWidget() == nullptr);
        }
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
