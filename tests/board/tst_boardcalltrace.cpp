#include "BoardApi.h"
#include "BoardCallFilter.h"
#include "BoardCallText.h"
#include "BoardFailureNote.h"
#include "CardRegistry.h"
#include "RecordingBoardSet.h"

#include <QTest>

Q_DECLARE_METATYPE(BoardCallFilter)

// The board call trace: what a call leaves in the ring, in which order, under whose name,
// what the filters let through and when a refusal becomes a note.
class TestBoardCallTrace : public QObject
{
    Q_OBJECT

private:
    // The operation names and columns of every call the trace holds, oldest first.
    static QStringList kept(const BoardCallTrace& trace, const QStringList& callers)
    {
        QStringList rows;
        for (std::uint64_t n = trace.begin(); n < trace.end(); ++n) {
            const BoardCall& call = trace.at(n);
            QStringList columns;
            for (int c = BoardCallText::Family; c < BoardCallText::ColumnCount; ++c)
                columns << BoardCallText::column(call, c, callers);
            rows << columns.join(QLatin1Char('|'));
        }
        return rows;
    }

private slots:
    void record_argumentsResultAndCaller()
    {
        RecordingBoardSet boards;
        BoardCallTrace trace(16);
        boards.api.setTrace(&trace);
        BoardApi window(boards.api, QStringLiteral("Single Axis"));
        boards.rl.setResult("SetPosSpeed", -1);
        boards.rn.setOutValues("GetSlmt", {5000, -5000, 1});

        window.SetPosSpeed(BoardFamily::RL, 0, 1, 100, 5000, 50, 60);
        window.Inc_Move(BoardFamily::RL, 0, 1, -1500);
        const nrx_u16 axes[] = {0, 3};
        const nrx_i32 distances[] = {100, -200};
        boards.api.Multi_Inc_Move(BoardFamily::RN, 1, 2, axes, distances);
        nrx_i32 plus = 0, minus = 0;
        nrx_u16 use = 0;
        boards.api.GetSlmt(BoardFamily::RN, 0, 2, &plus, &minus, &use);
        boards.api.SaveFile(BoardFamily::RL, 1);

        QCOMPARE(
            kept(trace, boards.api.callers()),
            (QStringList{
                "RL|SetPosSpeed|0|1|initial=100 drive=5000 accelMs=50 decelMs=60|-1|Single Axis",
                "RL|Inc_Move|0|1|distance=-1500|0|Single Axis",
                "RN|Multi_Inc_Move|1||n=2 axes=[0,3] distances=[100,-200]|0|Main frame",
                "RN|GetSlmt|0|2|&plus=5000 &minus=-5000 &use=1|0|Main frame",
                "RL|SaveFile|1|||0|Main frame"}));
        QVERIFY(trace.at(trace.begin()).timeUs <= trace.at(trace.end() - 1).timeUs);
        QCOMPARE(trace.failureCount(), std::uint64_t(1));

        // A second handle of the same name signs as the first; paused, nothing is kept but
        // a refusal is still counted.
        QCOMPARE(BoardApi(boards.api, QStringLiteral("Single Axis")).caller(), window.caller());
        trace.setPaused(true);
        window.SetPosSpeed(BoardFamily::RL, 0, 2, 1, 2, 3, 4);
        QCOMPARE(trace.end(), std::uint64_t(5));
        QCOMPARE(trace.failureCount(), std::uint64_t(2));
        QCOMPARE(trace.lastFailure().axis(), 2);
    }

    void filter_conditionsCombine_data()
    {
        QTest::addColumn<BoardCallFilter>("filter");
        QTest::addColumn<QStringList>("operations");
        const auto filter = [](auto set) {
            BoardCallFilter f;
            f.hidePolling = false;
            set(f);
            return f;
        };
        QTest::newRow("card, family and axis")
            << filter([](BoardCallFilter& f) { f.card = 0, f.family = 0, f.axis = 1; })
            << QStringList{"SetPosSpeed", "Inc_Move", "Done"};
        QTest::newRow("axis among multi-axis axes")
            << filter([](BoardCallFilter& f) { f.axis = 3; })
            << QStringList{"Multi_Inc_Move", "GetCommandPos", "Abs_Move"};
        QTest::newRow("failures only, caller")
            << filter([](BoardCallFilter& f) { f.failuresOnly = true, f.caller = 1; })
            << QStringList{"SetPosSpeed"};
        QTest::newRow("failures only: a negative position is no failure")
            << filter([](BoardCallFilter& f) { f.failuresOnly = true, f.family = 2; })
            << QStringList{};
        QTest::newRow("caller and family exclude each other")
            << filter([](BoardCallFilter& f) { f.caller = 1, f.family = 2; }) << QStringList{};
    }

    void filter_conditionsCombine()
    {
        QFETCH(BoardCallFilter, filter);
        QFETCH(QStringList, operations);
        RecordingBoardSet boards;
        BoardCallTrace trace;
        boards.api.setTrace(&trace);
        BoardApi window(boards.api, QStringLiteral("Single Axis"));
        boards.rl.setResultFor("SetPosSpeed", 0, 1, -1);
        boards.rn.setResult("GetCommandPos", -800);
        const nrx_u16 axes[] = {0, 3};
        const nrx_i32 distances[] = {100, -200};

        window.SetPosSpeed(BoardFamily::RL, 0, 1, 1, 2, 3, 4);
        window.Inc_Move(BoardFamily::RL, 0, 1, 1000);
        window.Done(BoardFamily::RL, 0, 1);
        boards.api.SetPosSpeed(BoardFamily::RL, 0, 2, 1, 2, 3, 4);
        boards.api.Multi_Inc_Move(BoardFamily::RN, 1, 2, axes, distances);
        boards.api.GetCommandPos(BoardFamily::RN, 0, 3);
        boards.api.SaveFile(BoardFamily::RN, 1);
        boards.api.Abs_Move(BoardFamily::RN, 0, 3, 0);

        QStringList shown;
        for (std::uint64_t n = trace.begin(); n < trace.end(); ++n) {
            if (filter.matches(trace.at(n)))
                shown << QString::fromLatin1(trace.at(n).info().name);
        }
        QCOMPARE(shown, operations);
    }

    void failureNote_atMostOneASecond()
    {
        RecordingBoardSet boards;
        BoardCallTrace trace;
        boards.api.setTrace(&trace);
        CardRegistry registry;
        registry.setLoadResult(BoardFamily::RL, 0);
        registry.setCardInfo(BoardFamily::RL, 0, 4, 0, 16);
        boards.rl.setResult("SetPosSpeed", -1);
        boards.rl.setResult("SaveFile", -3);
        BoardFailureNote note;
        const QString model = QString::fromStdString(registry.modelName(BoardFamily::RL, 0));

        QCOMPARE(note.take(trace, registry, 0), QString());
        boards.api.SetPosSpeed(BoardFamily::RL, 0, 1, 1, 2, 3, 4);
        QCOMPARE(note.take(trace, registry, 10),
                 QStringLiteral("SetPosSpeed on %1(0) axis 1 returned -1").arg(model));
        QCOMPARE(note.take(trace, registry, 20), QString());
        boards.api.SaveFile(BoardFamily::RL, 0);
        QCOMPARE(note.take(trace, registry, 999999), QString());
        QCOMPARE(note.take(trace, registry, 1000010),
                 QStringLiteral("SaveFile on %1(0) returned -3").arg(model));
    }
};

QTEST_GUILESS_MAIN(TestBoardCallTrace)
#include "tst_boardcalltrace.moc"
