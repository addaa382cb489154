#include "BoardCallModel.h"
#include "BoardCallText.h"
#include "RecordingBoardSet.h"

#include <QSignalSpy>
#include <QTest>

// The Board Calls table over a small ring: rows follow the trace as it goes round, is
// cleared or filtered, and only changes are announced.
class TestBoardCallModel : public QObject
{
    Q_OBJECT

private:
    static QList<int> distances(const BoardCallModel& model)
    {
        QList<int> shown;
        for (int row = 0; row < model.rowCount(); ++row)
            shown << model.call(row)->values[2];
        return shown;
    }

private slots:
    void rows_followTheRingAsItWraps()
    {
        RecordingBoardSet boards;
        BoardCallTrace trace(4);
        boards.api.setTrace(&trace);
        BoardCallModel model(trace, boards.api.callers());
        for (int i = 0; i < 3; ++i)
            boards.api.Inc_Move(BoardFamily::RL, 0, 0, i);
        boards.api.GetCommandPos(BoardFamily::RL, 0, 0); // hidden polling read
        QVERIFY(model.refresh());
        QCOMPARE(distances(model), (QList<int>{0, 1, 2}));

        // Two more moves push the two oldest moves out of the ring.
        boards.api.Inc_Move(BoardFamily::RL, 0, 0, 3);
        boards.api.Inc_Move(BoardFamily::RL, 0, 0, 4);
        QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        QVERIFY(model.refresh());
        QCOMPARE(removed.count(), 1);
        QCOMPARE(distances(model), (QList<int>{2, 3, 4}));
        QCOMPARE(model.rowText(2).section('\t', 2),
                 QStringLiteral("Inc_Move\t0\t0\tdistance=4\t0\tMain frame"));

        // Nothing new: nothing announced. More calls than the ring holds between two
        // refreshes: only the ring's calls remain.
        QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        QVERIFY(!model.refresh());
        for (int i = 5; i < 12; ++i)
            boards.api.Inc_Move(BoardFamily::RL, 0, 0, i);
        QVERIFY(model.call(0) == nullptr); // gone before the refresh, shown as empty
        QVERIFY(model.refresh());
        QCOMPARE(distances(model), (QList<int>{8, 9, 10, 11}));
        QCOMPARE(reset.count(), 0);

        trace.clear();
        model.refresh();
        QCOMPARE(model.rowCount(), 0);
    }
};

QTEST_GUILESS_MAIN(TestBoardCallModel)
#include "tst_boardcallmodel.moc"
