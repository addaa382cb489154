#include "AppState.h"
#include "BitLamp.h"
#include "BitLampPainter.h"
#include "COV_MainFrame.h"
#include "COV_SimulatorWnd.h"
#include "COV_StBaseWnd.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "StatusLampPage.h"
#include "ToolWindowHost.h"
#include "ToolWindowKinds.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

namespace {

// Nothing in reach of the axes: every switch the lamps show is one the window forced.
const QByteArray Boards = "[RL]\nCards=1\n[RL.Card0]\nAxes=4\nIO=16\n[Axes]\nPlusLimit=10000000\n"
                          "MinusLimit=-10000000\nOrigin=-5000000\nZPeriod=0\n";

} // namespace

// The Simulator window in the main frame on the simulated boards: each fault it switches
// shows on the frame's status lamps at the next tick and acts on motion; forced results and
// the faults file's switches show in it.
class TestSimulatorWnd : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        AppState state;
        BoardApi board;
        SimBoardsRig sim{board, state};
        ScriptedPrompt prompt;
        ToolWindowFactory factory;
        std::unique_ptr<COV_MainFrame> frame;

        bool start(bool simulated = true, const QByteArray& boards = Boards)
        {
            if (!sim.start(false, boards))
                return false;
            if (!simulated) {
                for (BoardFamily family : kAllFamilies)
                    board.setSimExtras(family, nullptr);
            }
            state.moduleDirectory = sim.folder.path() + QLatin1Char('/');
            registerToolWindows(factory);
            frame = std::make_unique<COV_MainFrame>(state, board, prompt, factory);
            if (!frame->create(sim.loader.problems()))
                return false;
            frame->monitorTimer().stop();
            frame->resize(1366, 768);
            frame->show();
            return true;
        }
        ~Rig() { frame.reset(); }

        COV_SimulatorWnd* window()
        {
            frame->openTool(ToolSimulator);
            return static_cast<COV_SimulatorWnd*>(frame->toolWindows().view(ToolSimulator));
        }
        // Whether the frame's card page shows the bit of the axis lit, after a tick.
        bool lit(int axis, int bit, const char* caption)
        {
            frame->MonitorTick();
            const QImage shown = frame->statusView()
                                     ->page(COV_StBaseWnd::CardPage)
                                     ->lamp(axis, bit)
                                     ->image()
                                     .toImage();
            if (shown == BitLampPainter::draw(QString::fromLatin1(caption), true).toImage())
                return true;
            if (shown != BitLampPainter::draw(QString::fromLatin1(caption), false).toImage())
                qWarning("lamp %s of axis %d shows neither picture", caption, axis);
            return false;
        }
        QStringList windowMenu() const
        {
            QStringList texts;
            for (QAction* menu : frame->menuBar()->actions()) {
                if (menu->text().remove('&') == QStringLiteral("Window")) {
                    for (QAction* entry : menu->menu()->actions())
                        texts << entry->text().remove('&');
                }
            }
            return texts;
        }
    };

private slots:
    void faults_eachLightsItsLampAtTheNextTick()
    {
        Rig rig;
        QVERIFY(rig.start());
        COV_SimulatorWnd* window = rig.window();
        QVERIFY(window);
        struct Case
        {
            int row;
            int bit;
            const char* caption;
            bool litWhenOn;
        };
        // Rows: +Limit, -Limit, Origin, Z, Alarm, INP on, INP off (encoder loss has no lamp).
        const Case cases[] = {{0, 5, "LMT+", true}, {1, 6, "LMT-", true}, {2, 0, "ORG", true},
                              {3, 1, "EZ", true},   {4, 4, "ALM", true},  {6, 3, "INP", false}};
        for (const Case& c : cases) {
            QVERIFY2(rig.lit(2, c.bit, c.caption) != c.litWhenOn, c.caption);
            QTest::mouseClick(window->faultBox(2, c.row), Qt::LeftButton);
            QVERIFY2(rig.lit(2, c.bit, c.caption) == c.litWhenOn, c.caption);
            QVERIFY2(rig.lit(1, c.bit, c.caption) != c.litWhenOn, c.caption); // that axis alone
            QTest::mouseClick(window->faultBox(2, c.row), Qt::LeftButton);
            QVERIFY2(rig.lit(2, c.bit, c.caption) != c.litWhenOn, c.caption);
        }
        // In-position stuck on while the axis runs; it and stuck-off exclude each other.
        rig.board.Jog_Move(BoardFamily::RL, 0, 2, 1);
        rig.sim.advance(BoardFamily::RL, 50);
        QVERIFY(!rig.lit(2, 3, "INP"));
        QTest::mouseClick(window->faultBox(2, 5), Qt::LeftButton);
        QVERIFY(rig.lit(2, 3, "INP"));
        QTest::mouseClick(window->faultBox(2, 6), Qt::LeftButton);
        QVERIFY(!window->faultBox(2, 5)->isChecked());
        QVERIFY(!rig.lit(2, 3, "INP"));
        QTest::mouseClick(window->emergencyBox(), Qt::LeftButton);
        QVERIFY(rig.lit(0, 2, "EMG"));
        QVERIFY(rig.lit(3, 2, "EMG"));
        // EMG stopped the jog as the real switch would.
        rig.sim.advance(BoardFamily::RL, 1);
        QCOMPARE(rig.board.Done(BoardFamily::RL, 0, 2), 0);
        QCOMPARE(rig.board.GetMotionErrCod(BoardFamily::RL, 0, 2), -650);
        QTest::mouseClick(window->emergencyBox(), Qt::LeftButton);
        QVERIFY(!rig.lit(0, 2, "EMG"));
    }

    void faults_stopMotionAsTheRealInputs()
    {
        Rig rig;
        QVERIFY(rig.start());
        COV_SimulatorWnd* window = rig.window();
        rig.board.Jog_Move(BoardFamily::RL, 0, 1, 1);
        rig.sim.advance(BoardFamily::RL, 100);
        QTest::mouseClick(window->faultBox(1, 0), Qt::LeftButton);
        rig.sim.advance(BoardFamily::RL, 1);
        QCOMPARE(rig.board.Done(BoardFamily::RL, 0, 1), 0);
        QCOMPARE(rig.board.GetMotionErrCod(BoardFamily::RL, 0, 1), -620);
        // A lost encoder: the command runs on, the actual position stands.
        QTest::mouseClick(window->faultBox(3, 7), Qt::LeftButton);
        rig.board.Inc_Move(BoardFamily::RL, 0, 3, 1000);
        rig.sim.advance(BoardFamily::RL, 2000);
        QCOMPARE(rig.board.GetCommandPos(BoardFamily::RL, 0, 3), 1000);
        QCOMPARE(rig.board.GetActualPos(BoardFamily::RL, 0, 3), 0);
    }

    void forcedResults_andTheFaultsFileShowInTheWindow()
    {
        Rig rig;
        QVERIFY(rig.start());
        COV_SimulatorWnd* window = rig.window();
        auto* operation = window->findChild<QComboBox*>("operationCombo");
        operation->setCurrentIndex(operation->findText("Inc_Move"));
        window->findChild<QLineEdit*>("resultEdit")->setText("-5");
        QTest::mouseClick(window->findChild<QPushButton*>("forceButton"), Qt::LeftButton);
        QCOMPARE(rig.board.Inc_Move(BoardFamily::RL, 0, 0, 100), -5);
        auto* forced = window->findChild<QListWidget*>("forcedList");
        QCOMPARE(forced->count(), 1);
        QCOMPARE(forced->item(0)->text(), QStringLiteral("Inc_Move returns -5"));
        QTest::mouseClick(window->findChild<QPushButton*>("freeAllButton"), Qt::LeftButton);
        QCOMPARE(forced->count(), 0);
        QCOMPARE(rig.board.Inc_Move(BoardFamily::RL, 0, 0, 100), 0);

        QFile file(QDir(rig.sim.folder.path()).filePath("NrxSimFaults.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[RL.Card0.Axis2]\nLimitMinus=1\n[RL]\nFail.Sudden_Stop=-9\n");
        file.close();
        rig.sim.advance(BoardFamily::RL, 150);
        window->refresh();
        QVERIFY(window->faultBox(2, 1)->isChecked());
        QCOMPARE(forced->item(0)->text(), QStringLiteral("Sudden_Stop returns -9"));
        QVERIFY(rig.lit(2, 6, "LMT-"));
    }

    void boardsFileProblems_inTheStatusBarOnceAtStart()
    {
        {
            Rig rig;
            QVERIFY(rig.start(true, Boards + "[Axes]\nPlusLimt=5\nServoDamping=5\n"));
            const QString shown = rig.frame->statusBar()->currentMessage();
            QCOMPARE(shown.count("PlusLimt", Qt::CaseInsensitive), 1); // every family reads it
            QVERIFY2(shown.contains("ServoDamping=5 ignored"), qPrintable(shown));
        }
        Rig clean;
        QVERIFY(clean.start());
        QCOMPARE(clean.frame->statusBar()->currentMessage(), QStringLiteral("Ready"));
    }

    void menu_offersTheWindowOnlyOnSimulatedBoards()
    {
        for (const bool simulated : {true, false}) {
            Rig rig;
            QVERIFY(rig.start(simulated));
            QCOMPARE(rig.windowMenu().contains("Simulator"), simulated);
        }
    }
};

QTEST_MAIN(TestSimulatorWnd)
#include "tst_simulatorwnd.moc"
