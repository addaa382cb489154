#include "ParameterCatalog.h"
#include "SimBoardsRig.h"

#include <QDir>
#include <QTest>

#include <map>
#include <set>
#include <string>

// The catalogue against the simulated boards: what one call writes, its getter reads back,
// also after a save and a power cycle, and the axis's defaults come back on request.
class TestParameterCatalog : public QObject
{
    Q_OBJECT

private:
    using Snapshot = std::map<ParameterCall, CallValues>;

    static Snapshot readAll(BoardApi& api, BoardFamily family, AxisNo axis)
    {
        Snapshot values;
        for (const ParameterInfo& info : ParameterCatalog::all()) {
            if (info.existsIn(family))
                values[info.call] = ParameterCatalog::read(api, family, info.call, 0, axis);
        }
        return values;
    }

    // A valid value of every parameter that differs from the one given.
    static Snapshot changed(const Snapshot& from)
    {
        Snapshot to = from;
        for (auto& [call, values] : to) {
            const auto carried = ParameterCatalog::carriedBy(call);
            for (std::size_t slot = 0; slot < values.size(); ++slot) {
                const ParameterInfo& info = *carried[slot];
                std::int32_t& v = values[slot];
                if (info.isList())
                    v = (v + 1) % (info.maximum + 1);
                else
                    v = v == 37 ? 38 : 37 + (info.minimum < 0 ? -1000 * int(slot) : 0);
            }
        }
        return to;
    }

private slots:
    void catalogue_namesAndSlotsAreWhole()
    {
        std::set<std::string> names;
        for (const ParameterInfo& info : ParameterCatalog::all()) {
            QVERIFY2(names.insert(info.name).second, info.name);
            const auto carried = ParameterCatalog::carriedBy(info.call);
            QCOMPARE(carried[std::size_t(info.slot)], &info);
            QCOMPARE(ParameterCatalog::levelOf(info.call), info.level);
            QCOMPARE(ParameterCatalog::find(info.name), &info);
        }
    }

    void everyParameter_persistsAndDefaults_data()
    {
        QTest::addColumn<BoardFamily>("family");
        QTest::newRow("RL") << BoardFamily::RL;
        QTest::newRow("RM") << BoardFamily::RM;
        QTest::newRow("RN") << BoardFamily::RN;
    }
    void everyParameter_persistsAndDefaults()
    {
        QFETCH(BoardFamily, family);
        SimBoardsRig rig;
        QVERIFY(rig.start());
        const AxisNo axis = 1;
        const Snapshot factory = readAll(rig.api, family, axis);
        const Snapshot neighbour = readAll(rig.api, family, 0);
        const Snapshot wanted = changed(factory);
        QCOMPARE(wanted.size(), family == BoardFamily::RN ? 31u : 30u);
        for (const auto& [call, values] : wanted)
            ParameterCatalog::write(rig.api, family, call, 0, axis, values);
        QVERIFY(readAll(rig.api, family, axis) == wanted);

        // Saved files are whole (no temporary left) and the other axes kept their settings.
        QVERIFY(rig.saveAndReload());
        QVERIFY(readAll(rig.api, family, axis) == wanted);
        QVERIFY(QDir(rig.folder.path()).entryList({"*.new"}, QDir::Files).isEmpty());
        for (const auto& [call, values] : readAll(rig.api, family, 0)) {
            const bool card = ParameterCatalog::levelOf(call) == ParameterLevel::Card;
            QVERIFY(card || values == neighbour.at(call));
        }

        rig.api.SetSystemDefault(family, 0, axis);
        const Snapshot restored = readAll(rig.api, family, axis);
        for (const auto& [call, values] : restored) {
            const bool card = ParameterCatalog::levelOf(call) == ParameterLevel::Card;
            QVERIFY2(values == (card ? wanted : factory).at(call),
                     ParameterCatalog::callName(call));
        }
    }
};

QTEST_GUILESS_MAIN(TestParameterCatalog)
#include "tst_parametercatalog.moc"
