#include "AppState.h"
#include "BoardStartup.h"
#include "MessageBoxPrompt.h"
#include "RecordingBoardSet.h"
#include "ScriptedPrompt.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

// The start-up load with its messages, the card information, the save prompt and the unload.
class TestBoardStartup : public QObject
{
    Q_OBJECT

private:
    struct Rig : RecordingBoardSet
    {
        CardRegistry registry;
        ScriptedPrompt prompt;
        BoardStartup startup{api, registry, prompt};
        Rig(int rlResult, int rmResult, int rnResult)
        {
            rl.setResult("LoadDevice", rlResult);
            rm.setResult("LoadDevice", rmResult);
            rn.setResult("LoadDevice", rnResult);
        }
    };

private slots:
    void load_noBoardAnywhereFails()
    {
        Rig rig(-1, -1, -1);
        QVERIFY(!rig.startup.loadDevices());
        QCOMPARE(rig.prompt.messages(),
                 QStringList{QStringLiteral("FAIL! LOAD DEVICE DRIVER ....")});
        rig.startup.unloadDevices();
        for (RecordingBoard* board : rig.all())
            QCOMPARE(board->calls(), QStringList{QStringLiteral("LoadDevice()")});
    }

    void load_faultyFamilyReportedGoodOneRuns()
    {
        Rig rig(-4, 0, -1);
        QVERIFY(rig.startup.loadDevices());
        QCOMPARE(rig.prompt.messages(),
                 QStringList{QStringLiteral("FAIL! RX520L DATA BUS LINE ERROR....")});
        QCOMPARE(rig.registry.count(BoardFamily::RL), -3);
        QCOMPARE(rig.registry.count(BoardFamily::RM), 1);
        QCOMPARE(rig.registry.count(BoardFamily::RN), 0);
        rig.startup.unloadDevices();
        QCOMPARE(rig.rl.count(QStringLiteral("UnloadDevice")), 0);
        QCOMPARE(rig.rm.count(QStringLiteral("UnloadDevice")), 1);
        QCOMPARE(rig.rn.count(QStringLiteral("UnloadDevice")), 0);
    }

    void load_messagesPerCodeAndFamily_data()
    {
        QTest::addColumn<int>("family");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("message");
        QTest::newRow("RL -10") << 0 << -10 << "FAIL! RX520L NOT SUPPORT THE PROCESS....";
        QTest::newRow("RL -7") << 0 << -7 << "FAIL! RX520L CHECK THE HARDWARE VERSION....";
        QTest::newRow("RL -5") << 0 << -5 << "FAIL! RX520L CEHCK UP-BOARD POSITION....";
        QTest::newRow("RL -2") << 0 << -2 << "FAIL! RX520L PARAMETER FILE DOES NOT MATCH....";
        QTest::newRow("RM -4") << 1 << -4 << "FAIL! RX540L DATA BUS LINE ERRORR....";
        QTest::newRow("RM -5") << 1 << -5 << "FAIL! RX540L CEHCK UP-BOARD POSITION....";
        QTest::newRow("RN -4") << 2 << -4 << "FAIL! RX590L DATA BUS LINE ERROR....";
        QTest::newRow("RN -2") << 2 << -2 << "FAIL! RX590L PARAMETER FILE DOES NOT MATCH....";
        QTest::newRow("RN -3 silent") << 2 << -3 << "";
        QTest::newRow("RL -6 silent") << 0 << -6 << "";
        QTest::newRow("RM -8 silent") << 1 << -8 << "";
        QTest::newRow("RN -9 silent") << 2 << -9 << "";
    }
    void load_messagesPerCodeAndFamily()
    {
        QFETCH(int, family);
        QFETCH(int, code);
        QFETCH(QString, message);
        // Another family has a board, so only the faulty family's message can appear.
        Rig rig(family == 0 ? code : 0, family == 1 ? code : 0, family == 2 ? code : 0);
        QVERIFY(rig.startup.loadDevices());
        QCOMPARE(rig.prompt.messages(), message.isEmpty() ? QStringList() : QStringList{message});
        QCOMPARE(rig.registry.count(static_cast<BoardFamily>(family)), code + 1);
    }

    void load_allFamiliesCalledBeforeAnyMessage()
    {
        Rig rig(-2, -5, -1);
        // All three answered with faults or no board: two messages, then the final failure.
        QVERIFY(!rig.startup.loadDevices());
        QCOMPARE(rig.prompt.messages(),
                 (QStringList{QStringLiteral("FAIL! RX520L PARAMETER FILE DOES NOT MATCH...."),
                              QStringLiteral("FAIL! RX540L CEHCK UP-BOARD POSITION...."),
                              QStringLiteral("FAIL! LOAD DEVICE DRIVER ....")}));
        QCOMPARE(rig.rn.count(QStringLiteral("LoadDevice")), 1);
    }

    void load_ninthCardIsClamped()
    {
        Rig rig(8, -1, -1);
        QVERIFY(rig.startup.loadDevices());
        QCOMPARE(rig.registry.count(BoardFamily::RL), 8);
    }

    void load_familyWithoutLibraryCountsAsNoBoard()
    {
        Rig rig(0, 0, 0);
        rig.api.setTable(BoardFamily::RM, nullptr);
        QVERIFY(
            rig.startup.loadDevices({QStringLiteral("Board library libx.so not found in /opt")}));
        QCOMPARE(rig.prompt.messages().first(),
                 QStringLiteral("Board library libx.so not found in /opt"));
        QCOMPARE(rig.registry.count(BoardFamily::RM), 0);
        QCOMPARE(rig.rm.calls(), QStringList());
    }

    void cardInfo_storedWithModelName()
    {
        Rig rig(0, -1, -1);
        QVERIFY(rig.startup.loadDevices());
        rig.rl.setOutValuesFor("BoardInfo", 0, 0, {0, 0x31, 4, 77, 16});
        QCOMPARE(rig.startup.readCardInfo(BoardFamily::RL, 0), 0x31);
        QCOMPARE(rig.registry.axisCount(BoardFamily::RL, 0), 4);
        QCOMPARE(rig.registry.ioCount(BoardFamily::RL, 0), 16);
        QCOMPARE(rig.registry.infoValue(BoardFamily::RL, 0), 77);
        QCOMPARE(rig.registry.modelName(BoardFamily::RL, 0), std::string("NRX-RL416V"));

        rig.rl.setResult("GetDllVersion", 20415);
        QCOMPARE(rig.startup.libraryVersionText(BoardFamily::RL),
                 std::string("Dll Ver. : 2.4.5.5"));
        QVERIFY(rig.rl.calls().last().startsWith(QStringLiteral("GetDllVersion(\"")));
        QVERIFY(rig.rl.calls().last().contains(QStringLiteral("nrxMApiRlv_x64")));
    }

    void savePrompt_familiesThenCardsYesSaves()
    {
        Rig rig(1, -1, 1);
        QVERIFY(rig.startup.loadDevices());
        rig.registry.setParametersChanged(BoardFamily::RN, 1, true);
        rig.registry.setParametersChanged(BoardFamily::RN, 0, true);
        rig.registry.setParametersChanged(BoardFamily::RL, 1, true);
        rig.prompt.queueAnswers({true, false, true});
        QVERIFY(rig.startup.offerSave());
        QCOMPARE(rig.prompt.questions(),
                 (QStringList{
                     QStringLiteral("NRX-RLxxxV(1) board parameters are changed.\nDo you want to "
                                    "save parameter to file?"),
                     QStringLiteral("NRX-RNxxxV(0) board parameters are changed.\nDo you want to "
                                    "save parameter to file?"),
                     QStringLiteral("NRX-RNxxxV(1) board parameters are changed.\nDo you want to "
                                    "save parameter to file?")}));
        QCOMPARE(rig.rl.calls(QStringList{QStringLiteral("SaveFile")}),
                 QStringList{QStringLiteral("SaveFile(1)")});
        QCOMPARE(rig.rn.calls(QStringList{QStringLiteral("SaveFile")}),
                 QStringList{QStringLiteral("SaveFile(1)")});
        QCOMPARE(rig.rm.count(QStringLiteral("SaveFile")), 0);

        // Cancel ends the questions at once and keeps the program open.
        rig.prompt.clear();
        rig.prompt.queueAnswers({true});
        rig.prompt.queueCancel();
        QVERIFY(!rig.startup.offerSave());
        QCOMPARE(rig.prompt.questions().size(), 2);
        QCOMPARE(rig.rl.count(QStringLiteral("SaveFile")), 2);
        QCOMPARE(rig.rn.count(QStringLiteral("SaveFile")), 1);
    }

    // However many libraries failed, the box fits the screen: the whole list is its details.
    void messageBox_longTextScrollsAndInformingUsesTheInformationIcon()
    {
        MessageBoxPrompt prompt;
        struct Seen
        {
            QString text;
            QString details;
            QMessageBox::Icon icon = QMessageBox::NoIcon;
        } seen;
        auto readAndClose = [&seen] {
            QTimer::singleShot(0, [&seen] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                QVERIFY(box != nullptr);
                seen = {box->text(), box->detailedText(), box->icon()};
                box->accept();
            });
        };
        QStringList problems;
        for (int i = 0; i < 60; ++i)
            problems << QStringLiteral("library %1 failed").arg(i);
        readAndClose();
        prompt.inform(problems.join(QLatin1Char('\n')));
        QCOMPARE(seen.text.count(QLatin1Char('\n')), MessageBoxPrompt::kShownLines);
        QCOMPARE(seen.details, problems.join(QLatin1Char('\n')));
        QCOMPARE(seen.icon, QMessageBox::Warning);
        readAndClose();
        prompt.notify(QStringLiteral("Exported."));
        QCOMPARE(seen.text, QStringLiteral("Exported."));
        QVERIFY(seen.details.isEmpty());
        QCOMPARE(seen.icon, QMessageBox::Information);
    }
};

QTEST_MAIN(TestBoardStartup)
#include "tst_boardstartup.moc"
