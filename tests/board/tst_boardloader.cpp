#include "BoardLoader.h"

#include <QTest>

#include <map>
#include <string>

// Resolving exports into tables, and the loader's refusal of incomplete or missing libraries.
class TestBoardLoader : public QObject
{
    Q_OBJECT

private slots:
    void resolve_namesCarryTheFamilyPrefix()
    {
        std::map<std::string, int> asked;
        static int dummy = 0;
        auto resolver = [&asked](const char* name) -> void* {
            ++asked[name];
            return &dummy;
        };
        NrxFunctionTable table{};
        QVERIFY(BoardLoader::resolveTable(BoardFamily::RM, resolver, table).isEmpty());
        QVERIFY(asked.count("NRX540L_Inc_Move"));
        QVERIFY(asked.count("NRX540L_GetSvCClrDO"));
        QVERIFY(!asked.count("NRX540L_SetFilterStop"));
        QVERIFY(table.Inc_Move != nullptr);
        QVERIFY(table.SetFilterStop == nullptr);

        asked.clear();
        QVERIFY(BoardLoader::resolveTable(BoardFamily::RN, resolver, table).isEmpty());
        QVERIFY(asked.count("NRX590L_SetFilterStop"));
        QVERIFY(asked.count("NRX590L_GetFilterStop"));
        QVERIFY(!asked.count("NRX590L_GetSvCClrDO"));
        QCOMPARE(asked.size(), std::size_t(105 - 1));
    }

    void load_libraryLackingExportsIsRejected()
    {
        BoardLoader loader(QStringLiteral(BROKEN_LIBRARY_DIR));
        loader.loadAll();
        QVERIFY(loader.table(BoardFamily::RL) == nullptr);
        const QString problems = loader.problems().join(QLatin1Char('\n'));
        QVERIFY2(problems.contains(BoardLoader::libraryFileName(BoardFamily::RL)),
                 qPrintable(problems));
        // The missing export is named, the present ones are not.
        QVERIFY2(problems.contains(QStringLiteral("NRX520L_Inc_Move")), qPrintable(problems));
        QVERIFY(!problems.contains(QStringLiteral("NRX520L_LoadDevice,")));
        // RM and RN are absent from that folder and not searched for beyond it.
        QVERIFY(loader.table(BoardFamily::RM) == nullptr &&
                loader.table(BoardFamily::RN) == nullptr);
        QCOMPARE(loader.problems().size(), 3);
        QVERIFY(problems.contains(BoardLoader::libraryFileName(BoardFamily::RM) + " not found"));
        QVERIFY(problems.contains(BoardLoader::libraryFileName(BoardFamily::RN)));
    }
};

QTEST_GUILESS_MAIN(TestBoardLoader)
#include "tst_boardloader.moc"
