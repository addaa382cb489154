#include "COV_ComparePrmDlg.h"
#include "COV_ImportPrmDlg.h"
#include "ParameterCommandLine.h"
#include "ParameterSourceBox.h"
#include "ParameterText.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "TextFile.h"
#include "ToolContext.h"

#include <QCheckBox>
#include <QTableWidget>
#include <QTest>
#include <QTextStream>

// Axis scales in parameter files: exported as [Units.RL.Card0.Axis1], checked on reading,
// imported into this PC's settings and set side by side by compare.
class TestUnitScaleText : public QObject
{
    Q_OBJECT

private:
    static inline const QDateTime kCreated = QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5), Qt::UTC);
    static inline const AxisUnitScale kScale{QStringLiteral("mm"), 2777.777, 4};

private slots:
    void exportImportCompare_carryTheScales()
    {
        SimBoardsRig rig;
        QVERIFY(rig.start(true, "[RL]\nCards=1\n[RL.Card0]\nAxes=4\n"));
        rig.state.settingsFilePath = rig.folder.filePath(QStringLiteral("ZelbrinOrvane.ini"));
        rig.state.units.setScale(BoardFamily::RL, 0, 1, kScale);
        ParameterSet set = ParameterSet::fromBoards(rig.api, rig.state.registry);
        set.addUnits(rig.state.units);
        const QByteArray text = ParameterText::write(set, kCreated);
        QVERIFY(text.contains("\n[Units.RL.Card0.Axis1]\nUnit=mm\nPulsesPerUnit=2777.777\n"
                              "Decimals=4\n"));
        QVERIFY(!text.contains("[Units.RL.Card0.Axis0]"));
        std::vector<ParameterFault> faults;
        const ParameterSet back = ParameterText::read(text, faults);
        QVERIFY(faults.empty());
        QVERIFY(back.unitSection(BoardFamily::RL, 0, 1)->scale == kScale);

        // This PC without the scale: import offers it and keeps it in the settings file.
        const QString file = rig.folder.filePath(QStringLiteral("card.ini"));
        QVERIFY(TextFile::write(file, text));
        rig.state.units.setScale(BoardFamily::RL, 0, 1, AxisUnitScale());
        ScriptedPrompt prompt;
        RecordingFrame frame;
        const ToolContext context{rig.state, rig.api, prompt, frame};

        COV_ComparePrmDlg compare(context);
        compare.first().setScope(BoardFamily::RL, 0, 1);
        compare.second().setKind(ParameterSourceBox::File);
        compare.second().setFilePath(file);
        QVERIFY(compare.compare());
        compare.differencesOnly().setChecked(true);
        QCOMPARE(compare.table().rowCount(), 1);
        QCOMPARE(compare.table().item(0, 2)->text(), QStringLiteral("pulses"));
        QCOMPARE(compare.table().item(0, 3)->text(),
                 QStringLiteral("2777.777 pulses/mm, 4 decimals"));

        COV_ImportPrmDlg import(context);
        import.load(file);
        QCOMPARE(import.changeTable().rowCount(), 1);
        QCOMPARE(import.changeTable().item(0, 0)->text(), QStringLiteral("Units.RL.Card0.Axis1"));
        prompt.queueAnswers({true});
        QVERIFY(import.writeToBoards());
        QVERIFY(rig.state.units.scale(BoardFamily::RL, 0, 1) == kScale);
        QVERIFY(AxisUnits::read(rig.state.settingsFilePath).scale(BoardFamily::RL, 0, 1) == kScale);
        QCOMPARE(import.changeTable().rowCount(), 0);
    }

    void commandLine_exportDiffImportCarryTheScales()
    {
        SimBoardsRig rig;
        QVERIFY(rig.start(true, "[RL]\nCards=1\n[RL.Card0]\nAxes=4\n"));
        const QString settings = rig.folder.filePath(QStringLiteral("ZelbrinOrvane.ini"));
        AxisUnits units;
        units.setScale(BoardFamily::RL, 0, 2, kScale);
        QVERIFY(units.writeCard(settings, BoardFamily::RL, 0, 4));
        QString out;
        QString err;
        QTextStream outStream(&out);
        QTextStream errStream(&err);
        ParameterCommandLine cli(rig.api, rig.state.registry, outStream, errStream);
        cli.setSettingsFile(settings);
        const QString file = rig.folder.filePath(QStringLiteral("cli.ini"));
        QCOMPARE(cli.run({QStringLiteral("export"), file}), 0);
        QVERIFY(TextFile::read(file).contains("[Units.RL.Card0.Axis2]\nUnit=mm\n"));
        QCOMPARE(cli.run({QStringLiteral("diff"), file, QStringLiteral("RL:0")}), 0);

        // Without the scale here: diff names it, import keeps it.
        QVERIFY(AxisUnits().writeCard(settings, BoardFamily::RL, 0, 4));
        cli.setSettingsFile(settings);
        out.clear();
        QCOMPARE(cli.run({QStringLiteral("diff"), QStringLiteral("RL:0"), file}), 1);
        QVERIFY2(out.contains(
                     QStringLiteral("Axis 2 Unit Scale: pulses | 2777.777 pulses/mm, 4 decimals")),
                 qPrintable(out));
        QCOMPARE(cli.run({QStringLiteral("import"), file, QStringLiteral("--yes")}), 0);
        QVERIFY(AxisUnits::read(settings).scale(BoardFamily::RL, 0, 2) == kScale);
    }

    void reading_badScalesAreFaultsWithTheirLine()
    {
        SimBoardsRig rig;
        QVERIFY(rig.start(true, "[RL]\nCards=1\n[RL.Card0]\nAxes=2\n"));
        const QByteArray good =
            ParameterText::write(ParameterSet::fromBoards(rig.api, rig.state.registry), kCreated);
        const int lines = int(good.count('\n'));
        const QByteArray bad = good + "[Units.RL.Card0.Axis1]\nUnit=mm\nPulsesPerUnit=-2\n"
                                      "Decimals=9\nColour=red\n[Units.RL.Card0.Axis5]\n"
                                      "PulsesPerUnit=1\n";
        std::vector<ParameterFault> faults;
        ParameterText::read(bad, faults);
        QStringList found;
        for (const ParameterFault& f : faults)
            found << QStringLiteral("%1: %2").arg(f.line - lines).arg(f.text);
        QCOMPARE(found,
                 (QStringList{QStringLiteral("3: PulsesPerUnit: \"-2\" is not a positive number"),
                              QStringLiteral("4: Decimals: \"9\" is not 0 .. 6"),
                              QStringLiteral("5: unknown unit key Colour"),
                              QStringLiteral("6: [Units.RL.Card0.Axis5] has no axis section")}));
    }
};

QTEST_MAIN(TestUnitScaleText)
#include "tst_unitscaletext.moc"
