#include "BoardApi.h"
#include "RecordingBoard.h"

#include <QTest>

// Silence for families without a library or without the operation; dispatch to a present
// family and its results are exercised by every test on the recording boards.
class TestBoardApi : public QObject
{
    Q_OBJECT

private slots:
    void dispatch_absentFamilyOrOperationCallsNothing()
    {
        RecordingBoard rl(BoardFamily::RL);
        RecordingBoard rn(BoardFamily::RN);
        BoardApi api;
        rl.installInto(api);
        rn.installInto(api);
        rl.setResult("GetCommandPos", 7);
        rn.setResult("GetSvCClrDO", 1);
        rl.setResult("GetFilterStop", 1);

        QCOMPARE(api.GetCommandPos(static_cast<BoardFamily>(3), 0, 0), 0);
        QCOMPARE(api.GetCommandPos(static_cast<BoardFamily>(-1), 0, 0), 0);
        QCOMPARE(api.GetCommandPos(BoardFamily::RM, 0, 0), 0);
        QVERIFY(!api.hasLibrary(BoardFamily::RM));
        QCOMPARE(api.GetSvCClrDO(BoardFamily::RN, 0, 0), nrx_u16(0));
        QCOMPARE(api.GetFilterStop(BoardFamily::RL, 0, 0), nrx_u16(0));
        QVERIFY(rl.calls().isEmpty() && rn.calls().isEmpty());
        QCOMPARE(api.GetCommandPos(BoardFamily::RL, 0, 0), 7);
    }
};

QTEST_GUILESS_MAIN(TestBoardApi)
#include "tst_boardapi.moc"
