#include "AppState.h"
#include "BoardApi.h"
#include "CLedButton.h"
#include "COV_DIoWnd.h"
#include "COV_SnMtnWnd.h"
#include "COV_SysIoWnd.h"
#include "OutputButton.h"
#include "PaintCounter.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"

#include <QApplication>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>

#include <memory>

// Both I/O monitors on simulated RL cards of 16, 24 and 64 points, whose inputs follow
// their outputs.
class TestIoMonitorSim : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        BoardApi api;
        AppState state;
        SimBoardsRig sim{api, state};
        ScriptedPrompt prompt;
        RecordingFrame frame;
        ToolContext context{state, api, prompt, frame};
        std::unique_ptr<COV_DIoWnd> dio;
        std::unique_ptr<COV_SysIoWnd> sysIo;

        explicit Rig(int card)
        {
            sim.start(true, "[RL]\nCards=3\n[RL.Card0]\nAxes=4\nIO=16\n[RL.Card1]\nAxes=2\nIO=24\n"
                            "[RL.Card2]\nAxes=8\nIO=64\n");
            state.active.card = card;
        }
        ~Rig()
        {
            dio.reset();
            sysIo.reset();
        }
        COV_DIoWnd& openDio()
        {
            dio = std::make_unique<COV_DIoWnd>(context);
            dio->timer().stop();
            dio->show();
            return *dio;
        }
        COV_SysIoWnd& openSysIo()
        {
            sysIo = std::make_unique<COV_SysIoWnd>(context);
            sysIo->timer().stop();
            sysIo->show();
            return *sysIo;
        }
        DigitalPointPage* page(const char* name) const
        {
            return dio->findChild<DigitalPointPage*>(QLatin1String(name));
        }
        QLineEdit* edit(const char* name) const
        {
            return dio->findChild<QLineEdit*>(QLatin1String(name));
        }
        std::uint32_t outputWord(int first)
        {
            std::uint32_t word = 0;
            for (int k = 0; k < 32; ++k)
                word |= std::uint32_t(api.GetDOBit(BoardFamily::RL, 2, CardNo(first + k))) << k;
            return word;
        }
    };

private slots:
    void outputClick_lightsLoopedBackInputWithinOneTick_data()
    {
        QTest::addColumn<int>("card");
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("position");
        QTest::newRow("16 points") << 0 << 0 << 5;
        QTest::newRow("24 points, beyond the first 24") << 1 << 0 << 28;
        QTest::newRow("64 points, point 35") << 2 << 1 << 3;
    }
    void outputClick_lightsLoopedBackInputWithinOneTick()
    {
        QFETCH(int, card);
        QFETCH(int, page);
        QFETCH(int, position);
        Rig rig(card);
        COV_DIoWnd& window = rig.openDio();
        window.findChild<QTabBar*>("inputTabs")->setCurrentIndex(page);
        window.findChild<QTabBar*>("outputTabs")->setCurrentIndex(page);
        window.tick();
        QTest::mouseClick(rig.page("outputPage")->button(position), Qt::LeftButton);
        window.tick();
        QVERIFY(rig.page("inputPage")->isShownOn(position));
        QVERIFY(rig.page("outputPage")->isShownOn(position));
        const QString word = DigitalIoModel::formatWord(1U << position);
        QCOMPARE(rig.edit("outputWord")->text(), word);
        // The input word trails the lamps by one tick.
        QVERIFY(rig.edit("inputWord")->text() != word);
        window.tick();
        QCOMPARE(rig.edit("inputWord")->text(), word);
    }

    void wordEdit_writesBitsOrRefusesText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<uint>("expected");
        QTest::addColumn<bool>("refused");
        QTest::newRow("prefixed") << "0x0000000F" << 0x0000000Fu << false;
        QTest::newRow("plain lower case") << "a5" << 0xA5u << false;
        QTest::newRow("unchecked first digit reads as 0") << "0xG" << 0u << false;
        QTest::newRow("letter beyond F") << "0x12Z4" << 0x3Cu << true;
        QTest::newRow("no prefix, bad letter") << "5K" << 0x3Cu << true;
    }
    void wordEdit_writesBitsOrRefusesText()
    {
        QFETCH(QString, text);
        QFETCH(uint, expected);
        QFETCH(bool, refused);
        Rig rig(2);
        COV_DIoWnd& window = rig.openDio();
        for (int point = 0; point < 64; ++point)
            rig.api.PutDOBit(BoardFamily::RL, 2, CardNo(point), (0x3Cu >> (point % 32)) & 1U);
        rig.edit("outputWord")->setText(text);
        QTest::keyClick(rig.edit("outputWord"), Qt::Key_Return);
        QCOMPARE(rig.outputWord(0), expected);
        QCOMPARE(rig.outputWord(32), 0x3Cu); // page 1 is left alone
        QCOMPARE(rig.prompt.messages(),
                 refused ? QStringList{"Input value is incorrect!"} : QStringList{});
        if (refused)
            QCOMPARE(rig.edit("outputWord")->text(), QStringLiteral("0"));
        window.tick();
        QCOMPARE(rig.edit("outputWord")->text(), DigitalIoModel::formatWord(expected));
        QCOMPARE(rig.page("inputPage")->isShownOn(2), (expected & 4U) != 0);
    }

    void servoOn_showsOnLampAndInSingleAxisCaption()
    {
        Rig rig(0);
        COV_SysIoWnd& window = rig.openSysIo();
        rig.state.active.axis = 1;
        COV_SnMtnWnd single(rig.context);
        auto* servo = single.findChild<QPushButton*>("servoButton");
        QCOMPARE(servo->text(), QStringLiteral("Servo On"));
        QVERIFY(!window.outputButton(5, SystemIoModel::ServoOn)->isEnabled());

        QTest::mouseClick(window.outputButton(1, SystemIoModel::ServoOn), Qt::LeftButton);
        window.tick();
        QVERIFY(window.outputButton(1, SystemIoModel::ServoOn)->isOn());
        QVERIFY(!window.outputButton(0, SystemIoModel::ServoOn)->isOn());
        single.handleUserMessage(UM_VIEW_COMMAND, ToolSingleAxis);
        QCOMPARE(servo->text(), QStringLiteral("Servo Off"));

        QTest::mouseClick(window.findChild<QPushButton*>("allServoOff"), Qt::LeftButton);
        window.tick();
        QVERIFY(!window.outputButton(1, SystemIoModel::ServoOn)->isOn());
    }

    void unchangedTick_repaintsNothing()
    {
        Rig rig(2);
        COV_DIoWnd& dio = rig.openDio();
        COV_SysIoWnd& sysIo = rig.openSysIo();
        rig.api.PutDOBit(BoardFamily::RL, 2, 7, 1);
        rig.api.PutSvOn(BoardFamily::RL, 2, 3, 1);
        for (int settle = 0; settle < 2; ++settle) {
            dio.tick();
            sysIo.tick();
        }
        QCoreApplication::processEvents();

        PaintCounter counter;
        QList<QWidget*> watched;
        for (int position = 0; position < 32; ++position)
            watched << rig.page("inputPage")->point(position)
                    << rig.page("outputPage")->point(position);
        for (int axis = 0; axis < 8; ++axis) {
            for (int row = 0; row < SystemIoModel::kInputRows; ++row)
                watched << sysIo.inputLamp(axis, row);
            for (int row = 0; row < SystemIoModel::kOutputRows; ++row)
                watched << sysIo.outputButton(axis, row);
        }
        watched << sysIo.emergencyLamp() << sysIo.runLedButton() << rig.edit("inputWord")
                << rig.edit("outputWord");
        for (QWidget* widget : watched)
            widget->installEventFilter(&counter);
        dio.tick();
        sysIo.tick();
        QCoreApplication::processEvents();
        QCOMPARE(counter.paints, 0);

        // One output switched: its button and its looped-back lamp, nothing else.
        rig.api.PutDOBit(BoardFamily::RL, 2, 9, 1);
        PaintCounter lamp;
        rig.page("inputPage")->point(9)->installEventFilter(&lamp);
        dio.tick();
        QCoreApplication::processEvents();
        QCOMPARE(lamp.paints, 1);
        QCOMPARE(counter.paints, 3); // lamp, button and the output word
    }
};

QTEST_MAIN(TestIoMonitorSim)
#include "tst_iomonitorsim.moc"
