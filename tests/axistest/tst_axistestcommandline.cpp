#include "AxisTestCommandLine.h"
#include "SimBoardsRig.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

// "orvane test" in the process, on the simulated boards: what the exit code says.
class TestAxisTestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void parse_refusesBadArguments_data();
    void parse_refusesBadArguments();
    void run_exitCodes();
};

void TestAxisTestCommandLine::parse_refusesBadArguments_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown test") << "homing RL:0:1"
                                  << "unknown test";
    QTest::newRow("no axis") << "home RL:0"
                             << "no axis";
    QTest::newRow("two axes homed") << "home RL:0:1,RL:0:2"
                                    << "only runin";
    QTest::newRow("axes on two cards") << "runin RL:0:1,RL:1:1 --between 0,10"
                                       << "one card";
    QTest::newRow("runs not a number") << "home RL:0:1 --runs 12a"
                                       << "--runs takes";
    QTest::newRow("no travel") << "positioning RL:0:1 --from 0"
                               << "--from and --to";
    QTest::newRow("one point") << "runin RL:0:1 --between 5"
                               << "--between P,P";
    QTest::newRow("both ends") << "runin RL:0:1 --between 0,9 --cycles 2 --duration 9"
                               << "not both";
    QTest::newRow("unknown option") << "home RL:0:1 --fast"
                                    << "unknown option";
    QTest::newRow("negative tolerance") << "home RL:0:1 --tolerance -1"
                                        << "--tolerance";
}

void TestAxisTestCommandLine::parse_refusesBadArguments()
{
    QFETCH(QString, arguments);
    QFETCH(QString, message);
    QString folder, error;
    QVERIFY(!AxisTestCommandLine::parse(arguments.split(' '), &folder, &error));
    QVERIFY2(error.contains(message), qPrintable(error));
}

void TestAxisTestCommandLine::run_exitCodes()
{
    QTemporaryDir out;
    QString outText, errText;
    QTextStream toOut(&outText), toErr(&errText);
    const auto run = [&](SimBoardsRig& rig, const QString& arguments) {
        AxisTestCommandLine command(rig.api, rig.state.registry, toOut, toErr);
        command.setSettingsFile(out.filePath("ZelbrinOrvane.ini"));
        return command.run(arguments.split(' '));
    };
    QFile settings(out.filePath("ZelbrinOrvane.ini"));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[Units.RL.0.1]\nUnit=mm\nPulsesPerUnit=1000\nDecimals=3\n");
    settings.close();
    {
        SimBoardsRig rig;
        QVERIFY(rig.start());
        QCOMPARE(run(rig, "home RL:0:9"), int(AxisTestCommandLine::BadInput));
        rig.api.PutSvOn(BoardFamily::RL, 0, 1, 0);
        QCOMPARE(run(rig, "home RL:0:1 --out " + out.filePath("off")),
                 int(AxisTestCommandLine::BadInput));
        QVERIFY(errText.contains("servo of axis 1 is off"));

        // The command waits on the clock, so the boards run on theirs.
        rig.extras[0].SetManualClock(0);
        const QString folder = out.filePath("home");
        QCOMPARE(run(rig, "home RL:0:1 --runs 2 --away 3000 --servo-on --units --out " + folder),
                 int(AxisTestCommandLine::Passed));
        QFile summary(folder + "/summary.json");
        QVERIFY(summary.open(QIODevice::ReadOnly));
        const QJsonDocument json = QJsonDocument::fromJson(summary.readAll());
        QCOMPARE(json["outcome"].toString(), QString("passed"));
        QCOMPARE(json["units"]["unit"].toString(), QString("mm")); // the scale of the file
        QVERIFY(json["figures_units"]["range"].isDouble());
        QVERIFY(QFile::exists(folder + "/report.html"));
        QVERIFY(QFile::exists(folder + "/samples.csv"));
    }
    SimBoardsRig failing;
    QVERIFY(failing.start(true, "[RL]\nCards=1\nFail.Abs_Move=-1\n[RL.Card0]\nAxes=4\n"));
    QCOMPARE(run(failing, "runin RL:0:0 --between 0,100 --servo-on --out " + out.filePath("f")),
             int(AxisTestCommandLine::Failed));
    QVERIFY(outText.contains("faulted: The board refused the move (result -1)."));
}

QTEST_MAIN(TestAxisTestCommandLine)
#include "tst_axistestcommandline.moc"
