#include "BoardCallModel.h"
#include "BoardCallText.h"
#include "RecordingBoardSet.h"

#include <QSignalSpy>
#include <QTest>

// The Board Calls table: the calls that change something stay for the whole run, the polling
// reads follow their ring as it goes round, and only changes are announced.
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
    void rows_writesOutliveThePollingRing()
    {
        RecordingBoardSet boards;
        BoardCallTrace trace; // the program's ring of polling reads
        boards.api.setTrace(&trace);
        BoardCallModel model(trace, boards.api.callers());
        boards.api.SetPosSpeed(BoardFamily::RL, 0, 1, 100, 5000, 50, 50);
        // Three minutes of the frame and two windows polling 8 axes every 10 ms.
        for (int tick = 0; tick < 18000; ++tick) {
            for (int axis = 0; axis < 8; ++axis) {
                boards.api.GetCommandPos(BoardFamily::RL, 0, axis);
                boards.api.GetActualPos(BoardFamily::RL, 0, axis);
                boards.api.GetCardStatus(BoardFamily::RL, 0, axis);
            }
        }
        for (int i = 0; i < 3; ++i)
            boards.api.Inc_Move(BoardFamily::RL, 0, 1, i);
        QVERIFY(model.refresh());
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.rowText(0).section('\t', 2, 2), QStringLiteral("SetPosSpeed"));
        QCOMPARE(distances(model).mid(1), (QList<int>{0, 1, 2}));
        QVERIFY(trace.begin() > 0); // the oldest reads are gone
    }

    void rows_withPollingStartWhereTheRingDoes()
    {
        RecordingBoardSet boards;
        BoardCallTrace trace(4);
        boards.api.setTrace(&trace);
        BoardCallModel model(trace, boards.api.callers());
        BoardCallFilter everything;
        everything.hidePolling = false;
        model.setFilter(everything);
        boards.api.Inc_Move(BoardFamily::RL, 0, 0, 7);
        for (int i = 0; i < 3; ++i)
            boards.api.GetCommandPos(BoardFamily::RL, 0, i);
        QVERIFY(model.refresh());
        QCOMPARE(model.rowCount(), 4);

        // Two more reads push the oldest read out, and the move before it leaves the list.
        boards.api.GetCommandPos(BoardFamily::RL, 0, 3);
        boards.api.GetCommandPos(BoardFamily::RL, 0, 4);
        QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        QVERIFY(model.refresh());
        QCOMPARE(removed.count(), 1);
        QCOMPARE(reset.count(), 0);
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.rowText(0).section('\t', 2, 2), QStringLiteral("GetCommandPos"));
        QVERIFY(!model.refresh()); // nothing new: nothing announced

        // The move is still kept: hiding the reads shows it again.
        model.setFilter(BoardCallFilter{});
        QCOMPARE(distances(model), QList<int>{7});
        trace.clear();
        model.refresh();
        QCOMPARE(model.rowCount(), 0);
    }
};

QTEST_GUILESS_MAIN(TestBoardCallModel)
#include "tst_boardcallmodel.moc"
