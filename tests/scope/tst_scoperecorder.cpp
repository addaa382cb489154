#include "PredictedSpeedProfile.h"
#include "ScopeCsv.h"
#include "ScopeRecorder.h"
#include "ScopeSimRig.h"
#include "TextFile.h"

#include <QTest>

#include <cmath>

// The scope's acquisition on a simulated board: a recorded move against the calculator's
// prediction, the trigger modes, and damaged CSV files.
class TestScopeRecorder : public QObject
{
    Q_OBJECT

private:
    static ScopeChannel channel(ScopeChannel::Signal signal)
    {
        ScopeChannel c;
        c.enabled = true;
        c.family = ScopeSimRig::Rl;
        c.card = 0;
        c.axis = ScopeSimRig::Axis;
        c.signal = signal;
        return c;
    }
    static void configure(ScopeRecorder& recorder, int periodMs, int lengthMs,
                          ScopeRecorder::Trigger trigger, bool repeat = false)
    {
        recorder.setChannel(0, channel(ScopeChannel::CommandSpeed));
        recorder.setChannel(1, channel(ScopeChannel::CommandPosition));
        recorder.setChannel(2, channel(ScopeChannel::FollowingError));
        ScopeRecorder::Settings settings;
        settings.periodMs = periodMs;
        settings.lengthMs = lengthMs;
        settings.trigger = trigger;
        settings.repeat = repeat;
        recorder.setSettings(settings);
    }
    // Board and scope together, a millisecond at a time; `each` may start moves.
    template <typename F>
    static void runFor(ScopeSimRig& rig, ScopeRecorder& recorder, int ms, F each)
    {
        const int period = recorder.settings().periodMs;
        for (int i = 0; i < ms; ++i) {
            rig.advance(1);
            each(rig.nowMs);
            if (rig.nowMs % period == 0)
                recorder.sample(rig.nowMs);
        }
    }
    // Times of the recorded corners: top reached, top left, back at standstill.
    static std::array<double, 3> recordedCorners(const ScopeRecording& record)
    {
        const std::vector<double>& v = record.columns[0].values;
        const double top = *std::max_element(v.begin(), v.end());
        int i = record.indexAt(0.0);
        while (v[static_cast<size_t>(i)] < top - 0.5)
            ++i;
        const double reached = record.times[static_cast<size_t>(i)];
        while (v[static_cast<size_t>(i)] >= top - 0.5)
            ++i;
        const double left = record.times[static_cast<size_t>(i)];
        while (v[static_cast<size_t>(i)] != 0.0)
            ++i;
        return {reached, left, record.times[static_cast<size_t>(i)]};
    }

private slots:
    void relativeMove_matchesPredictedCorners_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("initial");
        QTest::addColumn<int>("accel");
        QTest::addColumn<int>("decel");
        QTest::addColumn<int>("distance");
        QTest::addColumn<int>("period");
        QTest::newRow("trapezoid 2 ms") << 0 << 1000 << 150 << 250 << 12000 << 2;
        QTest::newRow("trapezoid 1 ms") << 0 << 500 << 80 << 40 << -9000 << 1;
        QTest::newRow("trapezoid triangle 5 ms") << 0 << 1000 << 300 << 300 << 2000 << 5;
        QTest::newRow("s-curve 2 ms") << 1 << 1000 << 200 << 200 << 15000 << 2;
        QTest::newRow("s-curve triangle 10 ms") << 1 << 1000 << 400 << 400 << 3000 << 10;
    }
    void relativeMove_matchesPredictedCorners()
    {
        QFETCH(int, mode);
        QFETCH(int, initial);
        QFETCH(int, accel);
        QFETCH(int, decel);
        QFETCH(int, distance);
        QFETCH(int, period);
        ScopeSimRig rig;
        QVERIFY(rig.start());
        rig.setSpeeds(20000, initial, accel, decel, mode);
        ScopeRecorder recorder(rig.api);
        configure(recorder, period, 3000, ScopeRecorder::Trigger::AxisStarts);
        recorder.run(rig.nowMs);
        runFor(rig, recorder, 4000, [&](int ms) {
            if (ms == 737)
                rig.api.Inc_Move(ScopeSimRig::Rl, 0, ScopeSimRig::Axis, distance);
        });
        QCOMPARE(recorder.state(), ScopeRecorder::State::Stopped);
        const ScopeRecording record = recorder.recording();
        QVERIFY(record.triggered);
        QCOMPARE(record.times.front(), -300.0);
        QVERIFY(record.columns[0].hasSettings);
        QCOMPARE(record.columns[1].values.back() - record.columns[1].values.front(),
                 double(distance));

        const double travelled = PredictedSpeedProfile::recordedDistance(record, 0);
        QVERIFY2(std::fabs(travelled - std::abs(distance)) < std::abs(distance) * 0.01,
                 qPrintable(QString::number(travelled)));
        const PredictedSpeedProfile::Move move =
            PredictedSpeedProfile::forDistance(record.columns[0].settings, travelled);
        const std::array<double, 3> predicted{move.accelEndMs(), move.decelStartMs(), move.endMs()};
        ScopeRecording magnitude = record;
        for (double& v : magnitude.columns[0].values)
            v = std::fabs(v);
        const std::array<double, 3> recorded = recordedCorners(magnitude);
        for (size_t i = 0; i < 3; ++i)
            QVERIFY2(std::fabs(recorded[i] - predicted[i]) <= period,
                     qPrintable(QStringLiteral("corner %1: recorded %2 ms, predicted %3 ms")
                                    .arg(i)
                                    .arg(recorded[i])
                                    .arg(predicted[i])));
        QVERIFY(!PredictedSpeedProfile::forRecording(record, 0).isEmpty());
        if (move.cruiseMs > 0.0) {
            // Seen while the axis cruises, the prediction ends at the drive speed, now.
            ScopeRecording cut = record;
            const auto keep =
                static_cast<size_t>(cut.indexAt((move.accelEndMs() + move.decelStartMs()) / 2));
            cut.times.resize(keep);
            for (ScopeRecording::Column& column : cut.columns)
                column.values.resize(keep);
            QCOMPARE(PredictedSpeedProfile::forRecording(cut, 0).last(),
                     QPointF(cut.times.back(), move.ramps.drive));
        }
    }

    void csv_refusesDamagedFiles_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no time column") << QByteArray("Speed [pps]\n1\n");
        QTest::newRow("short row") << QByteArray("Time [ms],A [pps]\n0,1\n2\n");
        QTest::newRow("not a number") << QByteArray("Time [ms],A [pps]\n0,x\n");
        QTest::newRow("time backwards") << QByteArray("Time [ms],A [pps]\n2,1\n1,1\n");
    }
    void csv_refusesDamagedFiles()
    {
        QFETCH(QByteArray, text);
        QTemporaryDir folder;
        QVERIFY(TextFile::write(folder.filePath(QStringLiteral("bad.csv")), text));
        QString error;
        QVERIFY(!ScopeCsv::read(folder.filePath(QStringLiteral("bad.csv")), &error).has_value());
        QVERIFY(!error.isEmpty());
    }

    void trigger_freeRunRingAndRepeat()
    {
        ScopeSimRig rig;
        QVERIFY(rig.start());
        rig.setSpeeds(20000, 1000, 50, 50, 0);
        ScopeRecorder recorder(rig.api);

        // Free run keeps the last window only, timed from Run.
        configure(recorder, 5, 500, ScopeRecorder::Trigger::FreeRun);
        recorder.run(rig.nowMs);
        runFor(rig, recorder, 1200, [](int) {});
        ScopeRecording record = recorder.recording();
        QCOMPARE(record.times.back(), 1200.0);
        QCOMPARE(record.times.front(), 700.0);
        QCOMPARE(record.columns.size(), size_t(3));
        QCOMPARE(recorder.state(), ScopeRecorder::State::Recording);
        recorder.stop();
        // A stopped record keeps the channels it was made with.
        recorder.setChannel(2, ScopeChannel{});
        QCOMPARE(recorder.recording().columns.size(), size_t(3));

        // Armed while the axis already moves: the move in progress does not trigger, the
        // next start does; repeat re-arms and keeps the capture on show.
        configure(recorder, 2, 400, ScopeRecorder::Trigger::AxisStarts, true);
        rig.api.Inc_Move(ScopeSimRig::Rl, 0, ScopeSimRig::Axis, 3000);
        recorder.run(rig.nowMs);
        runFor(rig, recorder, 100, [](int) {});
        QCOMPARE(recorder.state(), ScopeRecorder::State::Armed);
        runFor(rig, recorder, 1000, [&](int ms) {
            if (ms == 1500)
                rig.api.Inc_Move(ScopeSimRig::Rl, 0, ScopeSimRig::Axis, 2000);
        });
        QCOMPARE(recorder.capturesTaken(), 1);
        QCOMPARE(recorder.state(), ScopeRecorder::State::Armed);
        record = recorder.recording();
        QVERIFY(record.triggered);
        QCOMPARE(record.times.front(), -40.0);
        QCOMPARE(record.times.back(), 360.0);
        QCOMPARE(record.columns[1].values.back(), 5000.0);
    }

    void trigger_levelFiresAtTheCrossingWithinOneSample_data()
    {
        using Edge = ScopeRecorder::Edge;
        QTest::addColumn<int>("edge");
        QTest::addColumn<int>("move"); // pulses from 3000, started at 1500 ms
        QTest::addColumn<bool>("fires");
        QTest::newRow("rising, up") << int(Edge::Rising) << 2000 << true;
        QTest::newRow("rising, down") << int(Edge::Rising) << -2000 << false;
        QTest::newRow("falling, down") << int(Edge::Falling) << -2000 << true;
        QTest::newRow("either, down") << int(Edge::Either) << -2000 << true;
    }
    void trigger_levelFiresAtTheCrossingWithinOneSample()
    {
        QFETCH(int, edge);
        QFETCH(int, move);
        QFETCH(bool, fires);
        ScopeSimRig rig;
        QVERIFY(rig.start());
        rig.setSpeeds(20000, 1000, 50, 50, 0);
        rig.api.Inc_Move(ScopeSimRig::Rl, 0, ScopeSimRig::Axis, 3000);
        rig.advance(1000);
        ScopeRecorder recorder(rig.api);
        configure(recorder, 5, 400, ScopeRecorder::Trigger::Level);
        ScopeRecorder::Settings settings = recorder.settings();
        settings.triggerChannel = 1; // the command position
        settings.edge = static_cast<ScopeRecorder::Edge>(edge);
        // Halfway, and on no sample.
        const double level = 3000 + move / 2 + 3;
        settings.level = level;
        recorder.setSettings(settings);
        recorder.run(rig.nowMs);
        runFor(rig, recorder, 1000, [&](int ms) {
            if (ms == 1500)
                rig.api.Inc_Move(ScopeSimRig::Rl, 0, ScopeSimRig::Axis, move);
        });
        QCOMPARE(recorder.state(),
                 fires ? ScopeRecorder::State::Stopped : ScopeRecorder::State::Armed);
        if (!fires)
            return;
        // The sample at 0 is the first past the level; the one before has not reached it.
        const ScopeRecording record = recorder.recording();
        QCOMPARE(record.times.front(), -40.0);
        const auto at = static_cast<size_t>(record.indexAt(0.0));
        const std::vector<double>& position = record.columns[1].values;
        const double sign = move > 0 ? 1.0 : -1.0;
        QVERIFY2(sign * (position[at] - level) >= 0.0 && sign * (position[at - 1] - level) < 0.0,
                 qPrintable(QStringLiteral("%1 %2").arg(position[at - 1]).arg(position[at])));
    }
};

QTEST_MAIN(TestScopeRecorder)
#include "tst_scoperecorder.moc"
