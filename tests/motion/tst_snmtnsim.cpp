#include "BoardLoader.h"
#include "COV_SnMtnPtpWnd.h"
#include "SnMtnWindowRig.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QTemporaryDir>
#include <QTest>

// The single-axis window on the simulated RL board, with the board's clock and the window's
// timers moving together one millisecond at a time.
class TestSnMtnSim : public QObject
{
    Q_OBJECT

private:
    struct Rig : SnMtnWindowRig
    {
        QTemporaryDir folder;
        BoardLoader loader{QStringLiteral(ORVANE_SIM_DIR)};
        QLibrary extras{QDir(QStringLiteral(ORVANE_SIM_DIR))
                            .filePath(BoardLoader::libraryFileName(BoardFamily::RL))};
        nrx_i32 (*advanceClock)(nrx_i32) = nullptr;

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
            using Switch = nrx_i32 (*)(nrx_i32);
            auto setManualClock =
                reinterpret_cast<Switch>(extras.resolve("NRXSIM520L_SetManualClock"));
            auto setDataFolder = reinterpret_cast<nrx_i32 (*)(const char*)>(
                extras.resolve("NRXSIM520L_SetDataFolder"));
            advanceClock = reinterpret_cast<Switch>(extras.resolve("NRXSIM520L_AdvanceClock"));
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
            open();
            return result == 0 && axes == 4;
        }
        ~Rig()
        {
            // The window stops what it holds on the board before the library goes.
            window.reset();
            api.UnloadDevice(BoardFamily::RL);
        }

        void click(const char* name) { QTest::mouseClick(button(name), Qt::LeftButton); }
        std::int32_t commandPosition() { return api.GetCommandPos(BoardFamily::RL, 0, 1); }
        std::int32_t errorCode() { return api.GetMotionErrCod(BoardFamily::RL, 0, 1); }
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
        rig.setText("count", "3");
        rig.setText("delayTime", "150");
        rig.setText("position2", "1000");

        rig.window->show();
        rig.window->resize(rig.window->sizeHint().expandedTo(QSize(720, 0)));
        rig.click("plusButton");
        QVERIFY(rig.axesMoving());
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
        QVERIFY(!rig.axesMoving() && rig.prompt.messages().isEmpty());
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

    void plusLimit_reportedOnPointToPointOnly()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.pointToPoint(MotionType::Relative);
        rig.setText("position2", "50000");
        rig.click("plusButton");
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.errorCode(), -620);
        QCOMPARE(rig.prompt.messages(),
                 QStringList{"Abnormally stopped by positive hardware limit"});

        // Back off the switch; then a Z-phase search in the + direction, with no Z mark on the
        // axis, ends on the + limit as well.
        rig.setText("position2", "3000");
        rig.click("minusButton");
        QVERIFY(rig.runToEnd() && rig.errorCode() == 0);
        rig.prompt.clear();
        rig.selectTab(MotionTab::Home);
        rig.api.SetHomeDir(BoardFamily::RL, 0, 1, 0);
        rig.find<QComboBox>("homeMode")->setCurrentIndex(8);
        rig.click("minusButton");
        QVERIFY(rig.runToEnd());
        QCOMPARE(rig.errorCode(), -620);
        QVERIFY(rig.prompt.messages().isEmpty());
    }
};

QTEST_MAIN(TestSnMtnSim)
#include "tst_snmtnsim.moc"
