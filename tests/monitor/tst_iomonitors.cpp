#include "AppState.h"
#include "CLedButton.h"
#include "COV_DIoWnd.h"
#include "COV_SysIoWnd.h"
#include "OutputButton.h"
#include "RecordingBoardSet.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>
#include <QTest>

#include <memory>

// The I/O monitors' board calls, in order, against recording boards.
class TestIoMonitors : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        RecordingBoardSet boards;
        AppState state;
        ScriptedPrompt prompt;
        RecordingFrame frame;
        ToolContext context{state, boards.api, prompt, frame};

        Rig(BoardFamily family, int axes, int io)
        {
            state.registry.setLoadResult(family, 0);
            state.registry.setCardInfo(family, 0, axes, 0, io);
            state.active.family = family;
        }
        RecordingBoard& board()
        {
            return *boards.all()[std::size_t(familyIndex(state.active.family))];
        }
        template <typename W> W* find(QWidget& window, const char* name)
        {
            return window.findChild<W*>(QLatin1String(name));
        }
    };

private slots:
    void sysIo_refreshReadsEachAxisThenEachOutputRow_data()
    {
        QTest::addColumn<int>("family");
        QTest::addColumn<QStringList>("reads");
        const QStringList status{"GetCardStatus(0,0)", "GetCardStatus(0,1)", "GetSvAlmRst(0,0)",
                                 "GetSvAlmRst(0,1)"};
        const QStringList tail{"GetSvOn(0,0)", "GetSvOn(0,1)", "GetSvRun(0,0)"};
        QTest::newRow("RL") << int(BoardFamily::RL)
                            << status + QStringList{"GetSvCClrDO(0,0)", "GetSvCClrDO(0,1)"} + tail;
        QTest::newRow("RN has no counter-clear read") << int(BoardFamily::RN) << status + tail;
    }
    void sysIo_refreshReadsEachAxisThenEachOutputRow()
    {
        QFETCH(int, family);
        QFETCH(QStringList, reads);
        Rig rig(BoardFamily(family), 2, 16);
        COV_SysIoWnd window(rig.context);
        window.timer().stop();
        RecordingBoard& board = rig.board();
        // Axis 0: Z mark, alarm, EMG; axis 1: origin and an EMG bit that must not count.
        board.setResultFor("GetCardStatus", 0, 0, 0x16);
        board.setResultFor("GetCardStatus", 0, 1, 0x05);
        board.setResult("GetSvCClrDO", 1);
        board.clearCalls();
        window.tick();
        QCOMPARE(board.calls(), reads);
        QCOMPARE(window.inputLamp(0, 0)->state(), 1u); // encoder Z
        QCOMPARE(window.inputLamp(0, 1)->state(), 1u); // alarm
        QCOMPARE(window.inputLamp(1, 4)->state(), 1u); // origin
        QCOMPARE(window.inputLamp(1, 0)->state(), 0u);
        QCOMPARE(window.emergencyLamp()->state(), 1u);
        board.setResultFor("GetCardStatus", 0, 0, 0);
        window.tick();
        QCOMPARE(window.emergencyLamp()->state(), 0u);
        QCOMPARE(window.outputButton(1, SystemIoModel::CounterClear)->isOn(),
                 family != int(BoardFamily::RN));

        board.clearCalls();
        QTest::mouseClick(window.outputButton(1, SystemIoModel::CounterClear), Qt::LeftButton);
        QCOMPARE(board.calls(), QStringList{"PutSvCClrCmd(0,1)"});
    }

    void sysIo_lockAndAbsentAxesIgnoreClicks()
    {
        Rig rig(BoardFamily::RL, 4, 16);
        COV_SysIoWnd window(rig.context);
        window.timer().stop();
        RecordingBoard& board = rig.board();
        QVERIFY(!window.outputButton(4, SystemIoModel::AlarmReset)->isEnabled());
        QVERIFY(window.outputButton(3, SystemIoModel::AlarmReset)->isEnabled());
        QVERIFY(!rig.find<QComboBox>(window, "cardCombo")->isEnabled());

        rig.find<QCheckBox>(window, "outputDisable")->click();
        board.clearCalls();
        QTest::mouseClick(window.outputButton(2, SystemIoModel::ServoOn), Qt::LeftButton);
        QTest::mouseClick(window.runLedButton(), Qt::LeftButton);
        QVERIFY(!rig.find<QPushButton>(window, "allServoOn")->isEnabled());
        QVERIFY(board.calls().isEmpty());

        rig.find<QCheckBox>(window, "outputDisable")->click();
        board.setResultFor("GetSvAlmRst", 0, 2, 1);
        QTest::mouseClick(window.outputButton(2, SystemIoModel::AlarmReset), Qt::LeftButton);
        QTest::mouseClick(window.runLedButton(), Qt::LeftButton);
        rig.find<QPushButton>(window, "allServoOn")->click();
        QCOMPARE(board.calls({"PutSvAlmRst", "PutSvRun", "PutSvOn"}),
                 QStringList({"PutSvAlmRst(0,2,0)", "PutSvRun(0,0,1)", "PutSvOn(0,0,1)",
                              "PutSvOn(0,1,1)", "PutSvOn(0,2,1)", "PutSvOn(0,3,1)"}));
    }

    void dio_patternsWriteTheWholePage_data()
    {
        QTest::addColumn<int>("io");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("ons");
        QTest::newRow("Odd on 8 points") << 8 << "oddButton"
                                         << "10101010";
        QTest::newRow("Even on 8 points") << 8 << "evenButton"
                                          << "01010101";
        QTest::newRow("All On on 24 points covers 32") << 24 << "allOnButton"
                                                       << "11111111111111111111111111111111";
    }
    void dio_patternsWriteTheWholePage()
    {
        QFETCH(int, io);
        QFETCH(QString, button);
        QFETCH(QString, ons);
        Rig rig(BoardFamily::RM, 4, io);
        COV_DIoWnd window(rig.context);
        window.timer().stop();
        rig.board().clearCalls();
        rig.find<QPushButton>(window, button.toLatin1().constData())->click();
        QStringList expected;
        for (int point = 0; point < ons.size(); ++point)
            expected << QStringLiteral("PutDOBit(0,%1,%2)").arg(point).arg(ons.at(point));
        QCOMPARE(rig.board().calls(), expected);
    }

    void dio_twentyFourPointsLackPositionsEightToFifteen()
    {
        Rig rig(BoardFamily::RL, 4, 24);
        COV_DIoWnd window(rig.context);
        auto* outputs = rig.find<DigitalPointPage>(window, "outputPage");
        QList<bool> enabled;
        for (int position : {7, 8, 15, 16, 31})
            enabled << outputs->point(position)->isEnabled();
        QCOMPARE(enabled, QList<bool>({true, false, false, true, true}));
        QCOMPARE(rig.find<QTabBar>(window, "inputTabs")->count(), 1);
        QCOMPARE(window.windowTitle(), QStringLiteral("Digital IO - NRX-RL424V(0)"));
    }

    void controllerChange_setsOldFamilysFilterThenRetargets()
    {
        Rig rig(BoardFamily::RL, 4, 16);
        rig.state.registry.setLoadResult(BoardFamily::RM, 1); // two cards
        rig.state.registry.setCardInfo(BoardFamily::RM, 0, 8, 0, 64);
        rig.state.registry.setCardInfo(BoardFamily::RM, 1, 8, 0, 64);
        COV_DIoWnd dio(rig.context);
        COV_SysIoWnd sysIo(rig.context);
        rig.find<QComboBox>(dio, "filterEnable")->setCurrentIndex(1);
        rig.prompt.queueAnswers({true});
        rig.state.active.previousFamily = BoardFamily::RL;
        rig.state.active.family = BoardFamily::RM;
        rig.state.active.card = 1;
        dio.handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        sysIo.handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        QCOMPARE(rig.boards.rl.calls({"SetDiFilter"}), QStringList{"SetDiFilter(0,1)"});
        QCOMPARE(dio.windowTitle(), QStringLiteral("Digital IO - NRX-RM864V(1)"));
        QCOMPARE(rig.find<QTabBar>(dio, "outputTabs")->tabText(1), QStringLiteral("DO_1"));
        QCOMPARE(sysIo.windowTitle(), QStringLiteral("System IO - NRX-RM864V(1)"));
        QVERIFY(sysIo.outputButton(7, SystemIoModel::ServoOn)->isEnabled());
        QVERIFY(rig.find<QComboBox>(sysIo, "cardCombo")->isEnabled());
    }

    void dio_unsavedFilter_asksOnceOnClose_data()
    {
        QTest::addColumn<bool>("answer");
        QTest::addColumn<QStringList>("writes");
        QTest::newRow("No") << false << QStringList{};
        QTest::newRow("Yes") << true << QStringList{"SetDiFilter(0,1)", "SetDiFilterTime(0,4)"};
    }
    void dio_unsavedFilter_asksOnceOnClose()
    {
        QFETCH(bool, answer);
        QFETCH(QStringList, writes);
        Rig rig(BoardFamily::RL, 4, 16);
        COV_DIoWnd window(rig.context);
        rig.find<QComboBox>(window, "filterEnable")->setCurrentIndex(1);
        rig.find<QComboBox>(window, "filterTime")->setCurrentIndex(4);
        rig.prompt.queueAnswers({answer});
        QSignalSpy closing(&window, &ToolView::closeRequested);
        window.requestClose();
        window.close();
        QCOMPARE(rig.prompt.questions(),
                 QStringList{"Parameters are changed. Do you want to set parameter?"});
        QCOMPARE(rig.board().calls({"SetDiFilter", "SetDiFilterTime"}), writes);
        using Sent = QList<QPair<int, int>>;
        const Sent expected = answer ? Sent{{UM_PARAM_CHANGED, 0}} : Sent{};
        QCOMPARE(rig.frame.sent, expected);
        QCOMPARE(closing.count(), 1);
    }
};

QTEST_MAIN(TestIoMonitors)
#include "tst_iomonitors.moc"
