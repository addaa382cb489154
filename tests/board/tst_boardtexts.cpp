#include "BoardTexts.h"
#include "CardRegistry.h"

#include <QTest>

#include <tuple>
#include <utility>

// Model names, version texts and the registry's counts and flags.
class TestBoardTexts : public QObject
{
    Q_OBJECT

private slots:
    void modelName_axesThenTwoDigitsOfPoints()
    {
        using F = BoardFamily;
        const std::tuple<BoardFamily, int, int, const char*> models[] = {
            {F::RL, 4, 2, "NRX-RL402V"},  {F::RL, 4, 16, "NRX-RL416V"},
            {F::RM, 2, 9, "NRX-RM209V"},  {F::RM, 2, 10, "NRX-RM210V"},
            {F::RN, 8, 64, "NRX-RN864V"}, {F::RN, 8, 0, "NRX-RN800V"}};
        for (const auto& [family, axes, io, name] : models)
            QCOMPARE(BoardTexts::modelName(family, axes, io), std::string(name));
    }

    void versions_libraryDropsDigitsOneAndThreeFirmwareHasAFamilyBlank()
    {
        // Too short a library version leaves empty pieces.
        const std::pair<int, const char*> library[] = {
            {10203, "1.2.3.3"}, {123456, "1.3.5.6"}, {123, "1.3..3"}, {7, "7...7"}};
        for (const auto& [value, text] : library)
            QCOMPARE(BoardTexts::libraryVersionText(value), std::string("Dll Ver. : ") + text);
        // 0x51 means no firmware on RM, 0x50 on RN; RL shows both.
        const std::tuple<BoardFamily, int, const char*> firmware[] = {
            {BoardFamily::RL, 0x51, "5.1"}, {BoardFamily::RM, 0x51, "0.0"},
            {BoardFamily::RM, 0x50, "5.0"}, {BoardFamily::RN, 0x50, "0.0"},
            {BoardFamily::RL, 0, "0.0"},    {BoardFamily::RL, 0x1a3, "1.3"},
            {BoardFamily::RN, 0xb, "b.b"}};
        for (const auto& [family, value, text] : firmware)
            QCOMPARE(BoardTexts::firmwareText(family, value),
                     std::string("Firmware Ver. : ") + text);
    }

    void registry_ignoresCardsOutOfRange()
    {
        CardRegistry registry;
        registry.setCardInfo(BoardFamily::RN, 8, 4, 0, 16);
        QCOMPARE(registry.axisCount(BoardFamily::RN, 8), 0);
        QCOMPARE(registry.modelName(BoardFamily::RN, -1), std::string());
        QCOMPARE(registry.axisCount(static_cast<BoardFamily>(5), 0), 0);
        registry.setTestValue(BoardFamily::RM, 2, 8, TestValue::Count, 5); // no ninth axis
        QCOMPARE(registry.testValue(BoardFamily::RM, 2, 8, TestValue::Count), 0);
    }
};

QTEST_GUILESS_MAIN(TestBoardTexts)
#include "tst_boardtexts.moc"
