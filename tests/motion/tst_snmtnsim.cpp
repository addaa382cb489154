#include "AppState.h"
#include "BoardApi.h"
#include "BoardLoader.h"
#include "COV_SnMtnPtpWnd.h"
#include "COV_SnMtnWnd.h"
#include "ManualClockwork.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// The single-axis window on the simulated RL board, with the board's clock and the window's
// timers moving together one millisecond at a time.
class TestSnMtnSim : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        QTemporaryDir folder;
        BoardLoader loader{QStringLiteral(ORVANE_SIM_DIR)};
        QLibrary extras{QDir(QStringLiteral(ORVANE_SIM_DIR))
                            .filePath(BoardLoader::libraryFileName(BoardFamily::RL))};
        nrx_i32 (*advanceClock)(nrx_i32) = nullptr;
        BoardApi api;
        AppState state;
        ScriptedPrompt prompt;
        RecordingFrame frame;
        ManualClockwork clockwork;
        ToolContext context{state, api, prompt, frame};
        std::unique_ptr<COV_SnMtnWnd> window;

        // One RL card of 4 axes whose limit switches sit at +-6000 pulses, without Z marks.
        bool start()
        {
            QFile boards(folder.filePath(QStringLiteral("NrxSimBoards.ini")));
            if (!boards.open(QIODevice::WriteOnly))
                return false;
            boards.write("[RL]\nCards=1\n[RL.Card0]\nAxes=4\nIO=16\n"
                         "[Axes]\nPlusLimit=6000\nMinusLimit=-6000\nZPeriod=0\n");
            boards.close();
            loader.loadAll();
            api.setTable(BoardFamily::RL, loader.table(BoardFamily::RL));
            auto setManualClock =
                reinterpret_cast<nrx_i32 (*)(nrx_i32)>(extras.resolve("NRXSIM520L_SetManualClock"));
            auto setDataFolder = reinterpret_cast<nrx_i32 (*)(const char*)>(
                extras.resolve("NRXSIM520L_SetDataFolder"));
            advanceClock =
                reinterpret_cast<nrx_i32 (*)(nrx_i32)>(extras.resolve("NRXSIM520L_AdvanceClock"));
            if (!api.hasLibrary(BoardFamily::RL) || !setManualClock || !setDataFolder ||
                !advanceClock)
                return false;
            setManualClock(1);
            setDataFolder(QFile::encodeName(folder.path()).constData());
            const nrx_i32 result = api.LoadDevice(BoardFamily::RL);
            state.registry.setLoadResult(BoardFamily::RL, result);
            nrx_i32 reserved = 0, firmware = 0, axes = 0, info = 0, io = 0;
            api.BoardInfo(BoardFamily::RL, 0, &reserved, &firmware, &axes, &info, &io);
            state.registry.setCardInfo(BoardFamily::RL, 0, axes, info, io);
            state.active.axis = 1;
            window = std::make_unique<COV_SnMtnWnd>(context, clockwork);
            return result == 0 && axes == 4;
        }
        ~Rig()
        {
            window.reset();
            api.UnloadDevice(BoardFamily::RL);
        }

        template <typename T> T* find(const char* name) const
        {
            return window->findChild<T*>(QLatin1String(name));
        }
        void setText(const char* name, const char* text) { find<QLineEdit>(name)->setText(text); }
        QString text(const char* name) const { return find<QLineEdit>(name)->text(); }
        void pointToPoint(MotionType type, bool repeat)
        {
            find<QTabBar>("tabBar")->setCurrentIndex(int(MotionTab::PointToPoint));
            auto* combo = find<QComboBox>("motionType");
            combo->setCurrentIndex(int(type));
            emit combo->activated(int(type));
            if (repeat)
                find<QCheckBox>("repeat")->click();
        }
        void click(const char* name) { QTest::mouseClick(find<QPushButton>(name), Qt::LeftButton); }
        std::int32_t commandPosition() { return api.GetCommandPos(BoardFamily::RL, 0, 1); }
        // Runs board and window together until the sequence is over (at most a minute).
        template <typename F> bool runToEnd(F eachMs)
        {
            for (int ms = 0; ms < 60000; ++ms) {
                if (!window->sequencer().isMoving() && !clockwork.anyActive())
                    return true;
                clockwork.run(1, [&] {
                    advanceClock(1);
                    eachMs();
                });
            }
            return false;
        }
        bool runToEnd()
        {
            return runToEnd([] {});
        }
    };

private slots:
    void relativeRepeat_threeStepsOfOneThousand()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.pointToPoint(MotionType::Relative, true);
        auto* page = rig.window->findChild<COV_SnMtnPtpWnd*>();
        page->findChild<QLineEdit*>("setCommand")->setText("-700");
        page->findChild<QPushButton*>("commandButton")->click();
        QCOMPARE(rig.commandPosition(), -700);
        rig.setText("count", "3");
        rig.setText("delayTime", "150");
        rig.setText("position2", "1000");

        rig.window->show();
        rig.window->resize(rig.window->sizeHint().expandedTo(QSize(720, 0)));
        rig.click("plusButton");
        QVERIFY(rig.state.active.axesMoving[0] != 0);
        bool shot = false;
        QVERIFY(rig.runToEnd([&] {
            if (!shot && rig.text("repeatCount") == QStringLiteral("2") &&
                rig.api.GetCommandSpeed(BoardFamily::RL, 0, 1) > 0) {
                // Let the layout settle first: nothing else runs the event loop here.
                QCoreApplication::processEvents();
                shot = rig.window->grab().save(QStringLiteral("/tmp/snmtnwnd_sim_moving.png"));
            }
        }));
        QVERIFY(shot);
        QCOMPARE(rig.commandPosition(), -700 + 3000);
        QCOMPARE(rig.text("repeatCount"), QStringLiteral("3"));
        QVERIFY(rig.text("cycleTime").toInt() > 300);
        QCOMPARE(rig.state.active.axesMoving[0], 0);
        QVERIFY(rig.prompt.messages().isEmpty());
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
        QCOMPARE(rig.find<QPushButton>("minusButton")->text(), QStringLiteral("Auto Move"));
        rig.click("minusButton");
        QList<int> restedAt;
        bool dwelling = false;
        QVERIFY(rig.runToEnd([&] {
            if (rig.clockwork.pause.isActive() && !dwelling)
                restedAt << rig.commandPosition();
            dwelling = rig.clockwork.pause.isActive();
        }));
        QCOMPARE(restedAt, (QList<int>{-1500, 2500, -1500, 2500, -1500}));
        QCOMPARE(rig.commandPosition(), -1500);
        QCOMPARE(rig.text("repeatCount"), QStringLiteral("2"));
        QVERIFY(rig.prompt.messages().isEmpty());
    }

    void plusLimit_reportedOnPointToPointOnly()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.pointToPoint(MotionType::Relative, false);
        rig.setText("position2", "50000");
        rig.click("plusButton");
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.api.GetMotionErrCod(BoardFamily::RL, 0, 1), -620);
        QCOMPARE(rig.prompt.messages(),
                 QStringList{"Abnormally stopped by positive hardware limit"});

        // Back off the switch; then a Z-phase search in the + direction, with no Z mark on the
        // axis, ends on the + limit as well.
        rig.setText("position2", "3000");
        rig.click("minusButton");
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.api.GetMotionErrCod(BoardFamily::RL, 0, 1), 0);
        rig.prompt.clear();
        rig.find<QTabBar>("tabBar")->setCurrentIndex(int(MotionTab::Home));
        rig.api.SetHomeDir(BoardFamily::RL, 0, 1, 0);
        rig.find<QComboBox>("homeMode")->setCurrentIndex(8);
        rig.click("minusButton");
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.api.GetMotionErrCod(BoardFamily::RL, 0, 1), -620);
        QVERIFY(rig.prompt.messages().isEmpty());
    }
};

QTEST_MAIN(TestSnMtnSim)
#include "tst_snmtnsim.moc"
