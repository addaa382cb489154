#include "AxisTestCsv.h"
#include "AxisTestReport.h"
#include "AxisTestRun.h"
#include "SimBoardsRig.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

struct Collected;

// The three tests end to end on the simulated boards, their clock stepped by hand.
class TestAxisTestRun : public QObject
{
    Q_OBJECT

private slots:
    void home_searchesAndReports();
    void positioning_exactAxisHasNoDeviation();
    void runIn_severalAxesAndStop();
    void start_refusedWithReason();
    void refusedMove_endsTheTest();
    void positioning_backlashIsTheReversal();
    void positioning_noiseScattersRepeatably();
    void home_jitterScattersTheZero();

private:
    // A positioning run over four targets, on boards described by `boards`.
    static PositioningStatistics positioningOn(const QByteArray& boards, Collected& sink);
    // Steps the boards and the run 10 ms at a time until it ends or `limitMs` passes.
    static void runOut(SimBoardsRig& rig, AxisTestRun& run, std::int64_t limitMs = 600000)
    {
        std::int64_t now = 0;
        QVERIFY(run.start(now));
        while (run.running() && now < limitMs) {
            rig.advance(BoardFamily::RL, 10);
            now += 10;
            run.tick(now);
        }
    }
};

// Keeps what a run sends, for the checks.
struct Collected : AxisTestSink
{
    std::vector<AxisTestRecord> records;
    void record(const AxisTestRecord& r) override { records.push_back(r); }
    int count(AxisTestRecord::Kind kind) const
    {
        return int(std::count_if(records.begin(), records.end(),
                                 [kind](const AxisTestRecord& r) { return r.kind == kind; }));
    }
};

void TestAxisTestRun::home_searchesAndReports()
{
    SimBoardsRig rig;
    QVERIFY(rig.start());
    QTemporaryDir out;
    AxisTestCsv csv(out.filePath("samples.csv"));
    AxisTestSettings settings;
    settings.kind = AxisTestKind::Home;
    settings.axes = {1};
    settings.runs = 3;
    settings.away = 4000;
    settings.tolerance = 5;
    settings.servoOn = true;
    AxisTestRun run(rig.api, settings, csv);
    runOut(rig, run);

    QCOMPARE(run.outcome(), AxisTestRun::Outcome::Passed);
    QCOMPARE(run.homeRuns().size(), size_t(3));
    QCOMPARE(run.homeFigures().range, 0.0); // an exact origin switch
    for (const AxisTestRecord& r : run.homeRuns()) {
        QCOMPARE(r.code, 0);
        QVERIFY(r.durationMs > 0);
    }
    // Each search ends where the next one's move away starts from.
    QCOMPARE(rig.api.GetCommandPos(BoardFamily::RL, 0, 1), 4000);

    const AxisTestReport report(
        run, AxisTestFacts::read(rig.api, rig.state.registry, BoardFamily::RL, 0, 1),
        QDateTime::currentDateTime());
    QString error;
    QVERIFY2(report.write(out.path(), &error), qPrintable(error));
    QFile json(out.filePath("summary.json"));
    QVERIFY(json.open(QIODevice::ReadOnly));
    const QJsonObject summary = QJsonDocument::fromJson(json.readAll()).object();
    QCOMPARE(summary["test"].toString(), QString("home"));
    QCOMPARE(summary["outcome"].toString(), QString("passed"));
    QCOMPARE(summary["figures"]["runs"].toArray().size(), 3);
    QVERIFY(!summary["board"]["model"].toString().isEmpty());
    QFile html(out.filePath("report.html"));
    QVERIFY(html.open(QIODevice::ReadOnly));
    const QByteArray page = html.readAll();
    QVERIFY(page.contains("data:image/png;base64,"));
    QVERIFY(page.contains("PASSED"));
    QFile samples(out.filePath("samples.csv"));
    QVERIFY(samples.open(QIODevice::ReadOnly));
    // Header, start, three searches, the end.
    QCOMPARE(samples.readAll().count('\n'), 6);
}

void TestAxisTestRun::positioning_exactAxisHasNoDeviation()
{
    SimBoardsRig rig;
    QVERIFY(rig.start());
    Collected sink;
    AxisTestSettings settings;
    settings.kind = AxisTestKind::Positioning;
    settings.from = 0;
    settings.to = 20000;
    settings.targets = 4;
    settings.runs = 2;
    settings.overrun = 500;
    settings.dwellMs = 50;
    settings.speed = 40000;
    settings.servoOn = true;
    nrx_i32 initial = 0, drive = 0, accel = 0, decel = 0;
    rig.api.GetPosSpeed(BoardFamily::RL, 0, 0, &initial, &drive, &accel, &decel);
    AxisTestRun run(rig.api, settings, sink);
    runOut(rig, run);

    QCOMPARE(run.outcome(), AxisTestRun::Outcome::Passed);
    QCOMPARE(sink.count(AxisTestRecord::Kind::Measure), 2 * 4 * 2);
    QCOMPARE(run.targets().front(), 0);
    QCOMPARE(run.targets().back(), 20000);
    for (const AxisTestRecord& r : sink.records) {
        if (r.kind == AxisTestRecord::Kind::Measure)
            QCOMPARE(r.actual, r.target);
    }
    const PositioningStatistics::Axis figures = run.positioning().axis();
    for (const double figure : {figures.a, figures.b, figures.e, figures.m, figures.r})
        QCOMPARE(figure, 0.0);
    // The board's own profile is back once the test is over.
    nrx_i32 after = 0;
    rig.api.GetPosSpeed(BoardFamily::RL, 0, 0, &initial, &after, &accel, &decel);
    QCOMPARE(after, drive);
}

void TestAxisTestRun::runIn_severalAxesAndStop()
{
    SimBoardsRig rig;
    QVERIFY(rig.start());
    Collected sink;
    AxisTestSettings settings;
    settings.kind = AxisTestKind::RunIn;
    settings.axes = {0, 2};
    settings.points = {0, 6000};
    settings.cycles = 3;
    settings.dwellMs = 20;
    settings.servoOn = true;
    AxisTestRun run(rig.api, settings, sink);
    runOut(rig, run);
    QCOMPARE(run.outcome(), AxisTestRun::Outcome::Passed);
    QCOMPARE(run.done(), 3);
    QCOMPARE(sink.count(AxisTestRecord::Kind::Cycle), 3 * 2);
    QVERIFY(run.meanCycleMs() > 0);

    // A stop mid-cycle ends the test at once and leaves no axis moving.
    settings.cycles = 100;
    AxisTestRun endless(rig.api, settings, sink);
    QVERIFY(endless.start(0));
    for (int t = 10; t <= 300; t += 10) {
        rig.advance(BoardFamily::RL, 10);
        endless.tick(t);
    }
    endless.stop("Stop pressed");
    QCOMPARE(endless.outcome(), AxisTestRun::Outcome::Stopped);
    QCOMPARE(rig.api.Done(BoardFamily::RL, 0, 0), nrx_u16(0));
    QCOMPARE(rig.api.Done(BoardFamily::RL, 0, 2), nrx_u16(0));
    QCOMPARE(sink.records.back().note, QString("stopped: Stop pressed"));
}

void TestAxisTestRun::start_refusedWithReason()
{
    SimBoardsRig rig;
    QVERIFY(rig.start());
    Collected sink;
    AxisTestSettings settings;
    settings.kind = AxisTestKind::Positioning;
    settings.axes = {3};
    {
        rig.api.PutSvOn(BoardFamily::RL, 0, 3, 0);
        AxisTestRun run(rig.api, settings, sink);
        QVERIFY(!run.start(0));
        QCOMPARE(run.fault(), QString("The servo of axis 3 is off."));
    }
    rig.api.PutSvOn(BoardFamily::RL, 0, 3, 1);
    rig.api.SetSlmt(BoardFamily::RL, 0, 3, 50000, -50000, 1);
    settings.to = 50000; // the overrun goes past
    AxisTestRun run(rig.api, settings, sink);
    QVERIFY(!run.start(0));
    QVERIFY2(run.fault().contains("outside its soft limits"), qPrintable(run.fault()));
    QCOMPARE(rig.api.Done(BoardFamily::RL, 0, 3), nrx_u16(0));
}

void TestAxisTestRun::refusedMove_endsTheTest()
{
    SimBoardsRig rig;
    QVERIFY(rig.start(true, "[RL]\nCards=1\nFail.Abs_Move=-1\n[RL.Card0]\nAxes=4\n"));
    Collected sink;
    AxisTestSettings settings;
    settings.kind = AxisTestKind::RunIn;
    settings.stopAtFault = false; // a refusal ends it all the same
    settings.servoOn = true;
    AxisTestRun run(rig.api, settings, sink);
    runOut(rig, run);
    QCOMPARE(run.outcome(), AxisTestRun::Outcome::Faulted);
    QCOMPARE(run.fault(), QString("The board refused the move (result -1)."));
}

PositioningStatistics TestAxisTestRun::positioningOn(const QByteArray& boards, Collected& sink)
{
    SimBoardsRig rig;
    if (!rig.start(true, boards))
        return PositioningStatistics(std::vector<PositioningStatistics::Target>{});
    AxisTestSettings settings;
    settings.kind = AxisTestKind::Positioning;
    settings.from = 0;
    settings.to = 20000;
    settings.targets = 4;
    settings.runs = 3;
    settings.overrun = 500;
    settings.dwellMs = 20;
    settings.speed = 40000;
    settings.servoOn = true;
    AxisTestRun run(rig.api, settings, sink);
    runOut(rig, run);
    if (run.outcome() != AxisTestRun::Outcome::Passed)
        return PositioningStatistics(std::vector<PositioningStatistics::Target>{});
    return run.positioning();
}

void TestAxisTestRun::positioning_backlashIsTheReversal()
{
    Collected sink;
    const PositioningStatistics stats =
        positioningOn("[RL]\n[RL.Card0.Axis0]\nBacklash=20\nPositionNoise=0\nHomeJitter=0\n", sink);
    QCOMPARE(stats.atTargets().size(), size_t(4));
    QVERIFY2(std::abs(stats.axis().b - 20) <= 1, qPrintable(QString::number(stats.axis().b)));
    for (const auto& t : stats.atTargets())
        QVERIFY(std::abs(t.reversal + 20) <= 1); // approached from below, the load lags
    // Play alone repeats exactly.
    QCOMPARE(stats.axis().rUp, 0.0);
    QCOMPARE(stats.axis().rDown, 0.0);
}

void TestAxisTestRun::positioning_noiseScattersRepeatably()
{
    const QByteArray boards = "[RL]\n[Axes]\nPositionNoise=5\n";
    Collected sink;
    const PositioningStatistics stats = positioningOn(boards, sink);
    QCOMPARE(stats.atTargets().size(), size_t(4));
    for (const AxisTestRecord& r : sink.records) {
        if (r.kind == AxisTestRecord::Kind::Measure)
            QVERIFY(std::abs(r.value) <= 5);
    }
    // R is at most 2 s up + 2 s down + |B|; three values within +-5 have s of at most 5.8.
    QVERIFY(stats.axis().r > 0);
    QVERIFY2(stats.axis().r <= 4 * 5.8 + 10, qPrintable(QString::number(stats.axis().r)));
    QVERIFY(stats.axis().b <= 10);
    // Seeded: a second run on fresh boards measures the same.
    Collected again;
    QCOMPARE(positioningOn(boards, again).axis().r, stats.axis().r);
}

void TestAxisTestRun::home_jitterScattersTheZero()
{
    SimBoardsRig rig;
    QVERIFY(rig.start(true, "[RL]\n[RL.Card0.Axis1]\nHomeJitter=30\n"));
    Collected sink;
    AxisTestSettings settings;
    settings.kind = AxisTestKind::Home;
    settings.axes = {1};
    settings.runs = 8;
    settings.away = 4000;
    settings.tolerance = 60;
    settings.servoOn = true;
    AxisTestRun run(rig.api, settings, sink);
    runOut(rig, run);
    QCOMPARE(run.outcome(), AxisTestRun::Outcome::Passed);
    QCOMPARE(run.homeRuns().size(), size_t(8));
    const AxisTestRun::HomeFigures figures = run.homeFigures();
    QVERIFY(figures.range > 0);
    QVERIFY(figures.range <= 60);
    QVERIFY(figures.min >= -30 && figures.max <= 30);

    // With a scale of 1000 pulses/mm the figures come in mm beside the pulses.
    const AxisTestReport report(run, {}, QDateTime::currentDateTime(),
                                AxisUnitScale("mm", 1000, 3));
    const QJsonObject summary = report.summary();
    QCOMPARE(summary["units"]["unit"].toString(), QString("mm"));
    QCOMPARE(summary["figures"]["range"].toDouble(), figures.range);
    QCOMPARE(summary["figures_units"]["range"].toDouble(), figures.range / 1000);
    const QJsonObject first = summary["figures_units"]["runs"][0].toObject();
    QCOMPARE(first["position"].toDouble(), run.homeRuns().front().actual / 1000.0);
    QCOMPARE(first["time_ms"].toInteger(), run.homeRuns().front().durationMs);
    QVERIFY(report.html().contains("<th>mm</th>"));
}

QTEST_MAIN(TestAxisTestRun)
#include "tst_axistestrun.moc"
