#include "COV_ComparePrmDlg.h"
#include "COV_ImportPrmDlg.h"
#include "ParameterCommandLine.h"
#include "ParameterImport.h"
#include "ParameterSourceBox.h"
#include "ParameterText.h"
#include "RecordingBoard.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "TextFile.h"
#include "ToolContext.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTest>
#include <QTextStream>

namespace {
const QDateTime kCreated(QDate(2026, 11, 21), QTime(9, 30));

// Every value of a set, by section and name, for whole-board comparisons.
std::map<std::pair<std::string, std::string>, std::int32_t> flatten(const ParameterSet& set)
{
    std::map<std::pair<std::string, std::string>, std::int32_t> values;
    for (const ParameterSection& s : set.sections) {
        for (const ParameterValue& v : s.values)
            values[{s.name(), v.info->name}] = v.value;
    }
    return values;
}

// 1-based number of the line holding marker.
int lineOf(const QByteArray& text, const QByteArray& marker)
{
    const auto at = text.indexOf(marker);
    return at < 0 ? -1 : int(text.left(at).count('\n')) + 1;
}
} // namespace

// Parameters as text on the simulated boards: export, import, compare and the command line.
class TestParameterText : public QObject
{
    Q_OBJECT

private:
    // Boards of two families only (RN missing), RM with a smaller model than RL.
    static bool startTwoFamilies(SimBoardsRig& rig)
    {
        return rig.start(true, "[RL]\nCards=1\n[RL.Card0]\nAxes=4\n"
                               "[RM]\nCards=1\n[RM.Card0]\nAxes=2\n") &&
               !rig.state.registry.hasBoards(BoardFamily::RN);
    }

    // A different valid value for every parameter of every axis and card.
    static void scramble(SimBoardsRig& rig)
    {
        int n = 0;
        for (const ParameterSection& s :
             ParameterSet::fromBoards(rig.api, rig.state.registry).sections) {
            for (const ParameterValue& v : s.values) {
                const ParameterInfo& info = *v.info;
                const std::int32_t value =
                    info.isList() ? (v.value + 1 + n % 2) % (info.maximum + 1)
                                  : std::max(info.minimum, std::min(info.maximum, 3 + n * 7));
                CallValues carried = ParameterCatalog::read(
                    rig.api, s.family, info.call, CardNo(s.card), AxisNo(std::max(s.axis, 0)));
                carried[std::size_t(info.slot)] = value;
                ParameterCatalog::write(rig.api, s.family, info.call, CardNo(s.card),
                                        AxisNo(std::max(s.axis, 0)), carried);
                ++n;
            }
        }
    }

private slots:
    void export_default_import_restoresEveryFamily()
    {
        SimBoardsRig rig;
        QVERIFY(rig.start());
        scramble(rig);
        const ParameterSet before = ParameterSet::fromBoards(rig.api, rig.state.registry);
        const QString path = rig.folder.filePath(QStringLiteral("all.ini"));
        QCOMPARE(ParameterText::writeFile(path, before, kCreated), QString());

        for (const CardDescription& card : before.cards) {
            for (int axis = 0; axis < card.axes; ++axis)
                rig.api.SetSystemDefault(card.family, CardNo(card.card), AxisNo(axis));
            rig.api.SetEmergency(card.family, CardNo(card.card), 0);
        }
        QVERIFY(flatten(ParameterSet::fromBoards(rig.api, rig.state.registry)) != flatten(before));

        std::vector<ParameterFault> faults;
        const ParameterSet file = ParameterText::readFile(path, faults);
        QVERIFY2(faults.empty(), qPrintable(ParameterText::faultList(faults)));
        ParameterImport import(file, rig.api, rig.state.registry);
        QVERIFY(import.canApply() && !import.changes().empty());
        QCOMPARE(import.apply().size(), before.cards.size());
        QVERIFY(flatten(ParameterSet::fromBoards(rig.api, rig.state.registry)) == flatten(before));
        QVERIFY(ParameterImport(file, rig.api, rig.state.registry).changes().empty());
        QCOMPARE(ParameterText::write(file, kCreated), ParameterText::write(before, kCreated));
    }

    void import_writesOnlyChangedCallsOnce()
    {
        RecordingBoard rl(BoardFamily::RL);
        BoardApi api;
        rl.installInto(api);
        CardRegistry registry;
        registry.setLoadResult(BoardFamily::RL, 0);
        registry.setCardInfo(BoardFamily::RL, 0, 4, 0, 16);
        rl.setOutValues("GetSlmt", {700, -700, 1});
        ParameterSet file;
        file.sections.push_back(
            {BoardFamily::RL, 0, 1, 9, ParameterSet::readSection(api, BoardFamily::RL, 0, 1)});
        for (ParameterValue& v : file.sections[0].values) {
            if (v.info->name == std::string("SoftLimitPlus") ||
                v.info->name == std::string("PulseMode"))
                v.value = 5;
        }
        ParameterImport import(file, api, registry);
        QCOMPARE(import.changes().size(), 2u);
        rl.clearCalls();
        import.apply();
        const QStringList writes = rl.calls().filter(QRegularExpression("^Set"));
        QCOMPARE(writes, (QStringList{"SetPulseMode(0,1,5)", "SetSlmt(0,1,5,-700,1)"}));
    }

    void damagedFile_reportsLineAndWritesNothing_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        QTest::addColumn<QByteArray>("marker"); // the fault is on this text's line
        QTest::addColumn<QString>("fault");
        QTest::newRow("cut in a line") << QByteArray("cut") << QByteArray()
                                       << QByteArray("PulseMode=\n") << "is not a whole number";
        QTest::newRow("cut at a section") << QByteArray("cutsection") << QByteArray()
                                          << QByteArray("[RL.Card0]") << "counts 4 axes";
        QTest::newRow("binary garbage")
            << QByteArray("InpositionUse") << QByteArray("\x01\xff\xfe\x00zz", 6)
            << QByteArray("zz") << "not text";
        QTest::newRow("duplicated key")
            << QByteArray("SpeedMode=0 ; Trapezoid\n") << QByteArray("SpeedMode=0\nSpeedMode=1\n")
            << QByteArray("SpeedMode=1") << "given twice";
        QTest::newRow("out of range")
            << QByteArray("RangeMagnification=100") << QByteArray("RangeMagnification=501")
            << QByteArray("=501") << "out of range (1 .. 500)";
        QTest::newRow("not a number")
            << QByteArray("SoftLimitPlus=") << QByteArray("SoftLimitPlus=x") << QByteArray("=x")
            << "not a whole number";
        QTest::newRow("key of another family")
            << QByteArray("FilterExternal=0 ; Disable\n")
            << QByteArray("FilterExternal=0\nFilterStop=0\n") << QByteArray("FilterStop")
            << "RL boards have no FilterStop";
        QTest::newRow("family the PC lacks") << QByteArray("RL.Card") << QByteArray("RN.Card")
                                             << QByteArray("[RN.Card0]") << "no NRX-RNxxxV board";
        QTest::newRow("axis the card lacks") << QByteArray("addaxis") << QByteArray()
                                             << QByteArray("[RL.Card0.Axis4]") << "has no axis 4";
        QTest::newRow("unknown section")
            << QByteArray("[RL.Card0.Axis3]") << QByteArray("[RL.Card0.Axle3]")
            << QByteArray("Axle3") << "unknown section";
    }
    void damagedFile_reportsLineAndWritesNothing()
    {
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        QFETCH(QByteArray, marker);
        QFETCH(QString, fault);
        SimBoardsRig rig;
        QVERIFY(startTwoFamilies(rig));
        const ParameterScope card{BoardFamily::RL, 0, -1};
        QByteArray text = ParameterText::write(
            ParameterSet::fromBoards(rig.api, rig.state.registry, card), kCreated);
        if (from == "cut")
            text.truncate(text.indexOf("PulseMode=", text.indexOf("Axis1")) + 10);
        else if (from == "cutsection")
            text.truncate(text.indexOf("[RL.Card0.Axis2]"));
        else if (from == "addaxis")
            text.replace("Axes=4", "Axes=5")
                .append(text.mid(text.indexOf("[RL.Card0.Axis3]")).replace("Axis3", "Axis4"));
        else if (from.startsWith("RL."))
            text.replace(from, to);
        else
            text.replace(text.indexOf(from), from.size(), to);
        if (from != "cut")
            text.replace("PulseMode=0 ; CW/CCW Positive", "PulseMode=3");
        const QString path = rig.folder.filePath(QStringLiteral("bad.ini"));
        QVERIFY(TextFile::write(path, text));
        const auto before = flatten(ParameterSet::fromBoards(rig.api, rig.state.registry));

        QString out, err;
        QTextStream outStream(&out), errStream(&err);
        ParameterCommandLine cli(rig.api, rig.state.registry, outStream, errStream);
        QCOMPARE(cli.run({QStringLiteral("import"), path, QStringLiteral("--yes")}),
                 int(ParameterCommandLine::BadInput));
        const int line = from == "cut" ? int(text.count('\n')) + 1 : lineOf(text, marker);
        const QString expected = QStringLiteral("Line %1: ").arg(line);
        QVERIFY2(err.contains(expected) && err.contains(fault), qPrintable(err));
        QVERIFY(out.isEmpty());
        QVERIFY(flatten(ParameterSet::fromBoards(rig.api, rig.state.registry)) == before);
    }

    void reader_survivesFuzzing()
    {
        SimBoardsRig rig;
        QVERIFY(rig.start());
        const QByteArray good = ParameterText::write(
            ParameterSet::fromBoards(rig.api, rig.state.registry, {BoardFamily::RN, 0, -1}),
            kCreated);
        QRandomGenerator random(20261121);
        int accepted = 0;
        for (int round = 0; round < 1500; ++round) {
            QByteArray text = good;
            for (int edits = 1 + random.bounded(6); edits > 0; --edits) {
                const int at = random.bounded(int(text.size()) + 1);
                switch (random.bounded(4)) {
                case 0:
                    text.insert(at, char(random.bounded(256)));
                    break;
                case 1:
                    text.remove(at, random.bounded(40));
                    break;
                case 2:
                    text.insert(at, text.mid(random.bounded(int(text.size()) + 1), 60));
                    break;
                default:
                    if (at < text.size())
                        text[at] = "=[];.\n0-9"[random.bounded(9)];
                }
            }
            std::vector<ParameterFault> faults;
            const ParameterSet set = ParameterText::read(text, faults);
            if (!faults.empty())
                continue;
            // Whatever passes must be a whole, importable file.
            ++accepted;
            QVERIFY(ParameterImport(set, rig.api, rig.state.registry).canApply());
        }
        QVERIFY(accepted < 1500);
    }

    void otherModel_importsCommonAxesOnly()
    {
        SimBoardsRig rig;
        QVERIFY(startTwoFamilies(rig));
        rig.api.SetPulseMode(BoardFamily::RL, 0, 1, 4);
        rig.api.SetPulseMode(BoardFamily::RL, 0, 3, 5);
        QByteArray text = ParameterText::write(
            ParameterSet::fromBoards(rig.api, rig.state.registry, {BoardFamily::RL, 0, -1}),
            kCreated);
        text.replace("RL.Card", "RM.Card");
        std::vector<ParameterFault> faults;
        ParameterImport import(ParameterText::read(text, faults), rig.api, rig.state.registry);
        QVERIFY(faults.empty() && import.canApply());
        QCOMPARE(
            import.otherModels(),
            QStringList{QStringLiteral("RM.Card0 is a %1; the file describes it as a NRX-RL416V")
                            .arg(QString::fromStdString(
                                rig.state.registry.modelName(BoardFamily::RM, 0)))});
        QCOMPARE(import.skipped().size(), 2);
        QVERIFY(import.skipped().front().startsWith(
            QStringLiteral("RM.Card0.Axis2 (the file is for a NRX-RL416V")));
        import.apply();
        QCOMPARE(rig.api.GetPulseMode(BoardFamily::RM, 0, 1), 4);
    }

    void commandLine_exportDiffImport()
    {
        SimBoardsRig rig;
        QVERIFY(rig.start());
        QString out, err;
        QTextStream outStream(&out), errStream(&err);
        ParameterCommandLine cli(rig.api, rig.state.registry, outStream, errStream);
        auto run = [&](const QStringList& arguments) {
            out.clear();
            err.clear();
            return cli.run(arguments);
        };
        const QString file = rig.folder.filePath(QStringLiteral("rl0.ini"));
        QCOMPARE(run({"export", file, "--family", "RL", "--card", "0"}), 0);
        QCOMPARE(run({"diff", file, "RL:0"}), 0);
        rig.api.SetHomeDir(BoardFamily::RL, 0, 2, 0);
        QCOMPARE(run({"diff", "RL:0", file}), 1);
        QCOMPARE(out, QStringLiteral("Axis 2 OriginDirection: 0 (CW) | 1 (CCW)\n"));
        QCOMPARE(run({"diff", "RL:0:2", "RL:0:1"}), 1);
        // An axis meets its own section of its card, live or exported.
        QCOMPARE(run({"diff", "RL:0:1", "RL:0"}), 0);
        QCOMPARE(run({"diff", "RL:0:2", file}), 1);
        QCOMPARE(out, QStringLiteral("Axis OriginDirection: 0 (CW) | 1 (CCW)\n"));

        cli.setSimulated({BoardFamily::RL});
        QCOMPARE(run({"import", file}), 0);
        QCOMPARE(out, QStringLiteral("RL.Card0.Axis2 OriginDirection: 0 (CW) -> 1 (CCW)\n"));
        QCOMPARE(rig.api.GetHomeDir(BoardFamily::RL, 0, 2), 0);
        QCOMPARE(run({"import", file, "--yes", "--save"}), 0);
        QCOMPARE(rig.api.GetHomeDir(BoardFamily::RL, 0, 2), 1);
        QVERIFY(QFile::exists(rig.folder.filePath(QStringLiteral("NrxSimRL_Card0.prm"))));
        // Unsaved on simulated boards: said to last only as long as the command.
        rig.api.SetHomeDir(BoardFamily::RL, 0, 2, 0);
        QCOMPARE(run({"import", file, "--yes"}), 0);
        QVERIFY(err.contains(QLatin1String("simulated")));

        // A family whose boards failed to load is left out, and the export says so.
        rig.state.registry.setLoadResult(BoardFamily::RN, -3);
        QCOMPARE(run({"export", file}), 3);
        QVERIFY(err.contains(QLatin1String("Not exported")));
        QCOMPARE(run({"diff", "RL:0:9", "RL:0"}), 2);
        QVERIFY(err.contains(QLatin1String("has no axis 9")));
        QCOMPARE(run({"import", "/dev/zero"}), 2);
        QByteArray utf16("\xFF\xFE");
        for (char c : QByteArray("[Header]\nFormatVersion=1\n"))
            utf16 += QByteArray(1, c) + QByteArray(1, '\0');
        const QString wide = rig.folder.filePath(QStringLiteral("wide.ini"));
        QFile wideFile(wide);
        QVERIFY(wideFile.open(QIODevice::WriteOnly) && wideFile.write(utf16) > 0);
        wideFile.close();
        QCOMPARE(run({"import", wide}), 2);
        QCOMPARE(err.count(QLatin1String("UTF-16")), 1);
        const QStringList listed =
            ParameterText::faultList(std::vector<ParameterFault>(250, {1, "x"})).split('\n');
        QCOMPARE(listed.size(), 201);
        QCOMPARE(listed.back(), QStringLiteral("... and 50 more fault(s)"));

        for (const QStringList& bad :
             {QStringList{"frob"}, QStringList{"export"},
              QStringList{"export", file, "--card", "0"},
              QStringList{"export", file, "--family", "RL", "--card", "7"},
              QStringList{"import", file, "--force"}, QStringList{"diff", file},
              QStringList{"diff", file, "RM:0:9"}})
            QVERIFY2(run(bad) == 2 && !err.isEmpty(), qPrintable(bad.join(' ')));
    }

    void dialogs_previewWriteAndCompare()
    {
        SimBoardsRig rig;
        QVERIFY(rig.start());
        ScriptedPrompt prompt;
        RecordingFrame frame;
        const ToolContext context{rig.state, rig.api, prompt, frame};
        const QString file = rig.folder.filePath(QStringLiteral("all.ini"));
        QCOMPARE(ParameterText::writeFile(
                     file, ParameterSet::fromBoards(rig.api, rig.state.registry), kCreated),
                 QString());
        rig.api.SetFilterTime(BoardFamily::RL, 1, 0, 6);
        rig.api.SetFilterTime(BoardFamily::RN, 0, 3, 7);

        COV_ImportPrmDlg import(context);
        import.load(file);
        QCOMPARE(import.changeTable().rowCount(), 2);
        QCOMPARE(import.changeTable().item(1, 0)->text(), QStringLiteral("RN.Card0.Axis3"));
        QCOMPARE(import.changeTable().item(1, 3)->text(), QStringLiteral("0 (0.002)"));
        prompt.queueAnswers({false, true});
        QVERIFY(!import.writeToBoards());
        QCOMPARE(rig.api.GetFilterTime(BoardFamily::RL, 1, 0), 6);
        QVERIFY(import.writeToBoards());
        QCOMPARE(rig.api.GetFilterTime(BoardFamily::RL, 1, 0), 0);
        QCOMPARE(frame.sent, (QList<QPair<int, int>>{{UM_PARAM_LEAVE_CHECK, 0},
                                                     {UM_PARAM_CHANGED, 1},
                                                     {UM_VIEW_COMMAND, ToolParameter},
                                                     {UM_VIEW_COMMAND, ToolSingleAxis},
                                                     {UM_VIEW_COMMAND, ToolMultiAxis},
                                                     {UM_VIEW_COMMAND, ToolDigitalIo}}));
        QVERIFY(rig.state.registry.parametersChanged(BoardFamily::RN, 0));
        QCOMPARE(import.changeTable().rowCount(), 0);

        rig.api.SetSpeedMode(BoardFamily::RL, 0, 1, 1);
        COV_ComparePrmDlg compare(context);
        compare.first().setScope(BoardFamily::RL, 0, 1);
        compare.second().setKind(ParameterSourceBox::File);
        compare.second().setFilePath(file);
        QVERIFY(compare.compare());
        QCOMPARE(compare.table().rowCount(), 42);
        compare.differencesOnly().setChecked(true);
        QCOMPARE(compare.table().rowCount(), 1);
        QCOMPARE(compare.table().item(0, 1)->text(), QStringLiteral("SpeedMode"));
        QVERIFY(compare.table().item(0, 2)->background() != QBrush());
    }
};

QTEST_MAIN(TestParameterText)
#include "tst_parametertext.moc"
