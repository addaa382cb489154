#include "BoardTexts.h"
#include "CardRegistry.h"

#include <QTest>

// Model names, version texts and the registry's counts and flags.
class TestBoardTexts : public QObject
{
    Q_OBJECT

private slots:
    void modelName_data()
    {
        QTest::addColumn<int>("family");
        QTest::addColumn<int>("axes");
        QTest::addColumn<int>("io");
        QTest::addColumn<QString>("name");
        QTest::newRow("few io") << 0 << 4 << 2 << "NRX-RL402V";
        QTest::newRow("sixteen io") << 0 << 4 << 16 << "NRX-RL416V";
        QTest::newRow("nine io") << 1 << 2 << 9 << "NRX-RM209V";
        QTest::newRow("ten io") << 1 << 2 << 10 << "NRX-RM210V";
        QTest::newRow("sixty-four io") << 2 << 8 << 64 << "NRX-RN864V";
        QTest::newRow("no io") << 2 << 8 << 0 << "NRX-RN800V";
    }
    void modelName()
    {
        QFETCH(int, family);
        QFETCH(int, axes);
        QFETCH(int, io);
        QFETCH(QString, name);
        QCOMPARE(QString::fromStdString(
                     BoardTexts::modelName(static_cast<BoardFamily>(family), axes, io)),
                 name);
    }

    void libraryVersion_skipsDigitsOneAndThree()
    {
        QCOMPARE(BoardTexts::libraryVersionText(10203), std::string("Dll Ver. : 1.2.3.3"));
        QCOMPARE(BoardTexts::libraryVersionText(123456), std::string("Dll Ver. : 1.3.5.6"));
        // Too short: the missing positions give empty pieces.
        QCOMPARE(BoardTexts::libraryVersionText(123), std::string("Dll Ver. : 1.3..3"));
        QCOMPARE(BoardTexts::libraryVersionText(7), std::string("Dll Ver. : 7...7"));
    }

    void firmware_noFirmwareValueDiffersByFamily()
    {
        QCOMPARE(BoardTexts::firmwareText(BoardFamily::RL, 0x51),
                 std::string("Firmware Ver. : 5.1"));
        QCOMPARE(BoardTexts::firmwareText(BoardFamily::RM, 0x51),
                 std::string("Firmware Ver. : 0.0"));
        QCOMPARE(BoardTexts::firmwareText(BoardFamily::RM, 0x50),
                 std::string("Firmware Ver. : 5.0"));
        QCOMPARE(BoardTexts::firmwareText(BoardFamily::RN, 0x50),
                 std::string("Firmware Ver. : 0.0"));
        QCOMPARE(BoardTexts::firmwareText(BoardFamily::RL, 0), std::string("Firmware Ver. : 0.0"));
        QCOMPARE(BoardTexts::firmwareText(BoardFamily::RL, 0x1a3),
                 std::string("Firmware Ver. : 1.3"));
        QCOMPARE(BoardTexts::firmwareText(BoardFamily::RN, 0xb),
                 std::string("Firmware Ver. : b.b"));
    }

    void registry_countsFromLoadResults()
    {
        CardRegistry registry;
        registry.setLoadResult(BoardFamily::RL, -4);
        registry.setLoadResult(BoardFamily::RM, 0);
        registry.setLoadResult(BoardFamily::RN, 8); // a ninth card has no slot
        QCOMPARE(registry.count(BoardFamily::RL), -3);
        QCOMPARE(registry.cardCount(BoardFamily::RL), 0);
        QVERIFY(!registry.hasBoards(BoardFamily::RL));
        QCOMPARE(registry.count(BoardFamily::RM), 1);
        QCOMPARE(registry.count(BoardFamily::RN), 8);
    }

    void registry_cardInfoAndOutOfRangeCards()
    {
        CardRegistry registry;
        registry.setCardInfo(BoardFamily::RN, 7, 8, 99, 64);
        QCOMPARE(registry.axisCount(BoardFamily::RN, 7), 8);
        QCOMPARE(registry.infoValue(BoardFamily::RN, 7), 99);
        QCOMPARE(registry.modelName(BoardFamily::RN, 7), std::string("NRX-RN864V"));
        registry.setCardInfo(BoardFamily::RN, 8, 4, 0, 16);
        QCOMPARE(registry.axisCount(BoardFamily::RN, 8), 0);
        QCOMPARE(registry.modelName(BoardFamily::RN, -1), std::string());
        QCOMPARE(registry.axisCount(static_cast<BoardFamily>(5), 0), 0);
    }

    void registry_testValuesAreKeptPerFamilyCardAndAxis()
    {
        CardRegistry registry;
        registry.setTestValue(BoardFamily::RM, 2, 5, TestValue::Position2, -777);
        QCOMPARE(registry.testValue(BoardFamily::RM, 2, 5, TestValue::Position2), -777);
        QVERIFY(registry.testValue(BoardFamily::RL, 2, 5, TestValue::Position2) != -777);
        QVERIFY(registry.testValue(BoardFamily::RM, 2, 4, TestValue::Position2) != -777);
        registry.setTestValue(BoardFamily::RM, 2, 8, TestValue::Count, 5); // no ninth axis
        QCOMPARE(registry.testValue(BoardFamily::RM, 2, 8, TestValue::Count), 0);
    }
};

QTEST_GUILESS_MAIN(TestBoardTexts)
#include "tst_boardtexts.moc"
