#include "BoardApi.h"
#include "RecordingBoard.h"

#include <QTest>

// Dispatch by family, arguments passed unchanged, and silence for families without a library.
class TestBoardApi : public QObject
{
    Q_OBJECT

private slots:
    void dispatch_goesToTheNamedFamilyOnly()
    {
        RecordingBoard rl(BoardFamily::RL);
        RecordingBoard rn(BoardFamily::RN);
        BoardApi api;
        rl.installInto(api);
        rn.installInto(api);

        api.Inc_Move(BoardFamily::RN, 2, 3, -1500);
        api.PutDOBit(BoardFamily::RL, 1, 63, 1);
        const nrx_u16 axes[] = {0, 2};
        const nrx_i32 targets[] = {100, -200};
        api.Multi_Abs_Move(BoardFamily::RN, 0, 2, axes, targets);

        QCOMPARE(rn.calls(), (QStringList{QStringLiteral("Inc_Move(2,3,-1500)"),
                                          QStringLiteral("Multi_Abs_Move(0,2,[0,2],[100,-200])")}));
        QCOMPARE(rl.calls(), QStringList{QStringLiteral("PutDOBit(1,63,1)")});
    }

    void dispatch_returnsResultsAndOutValues()
    {
        RecordingBoard rm(BoardFamily::RM);
        BoardApi api;
        rm.installInto(api);
        rm.setResult("GetCommandPos", -42);
        rm.setResultFor("Done", 0, 1, 1);
        rm.setOutValues("GetPosSpeed", {10, 2000, 30, 40});

        QCOMPARE(api.GetCommandPos(BoardFamily::RM, 0, 0), -42);
        QCOMPARE(api.Done(BoardFamily::RM, 0, 1), nrx_u16(1));
        QCOMPARE(api.Done(BoardFamily::RM, 0, 2), nrx_u16(0));
        nrx_i32 initial = 0, drive = 0, accel = 0, decel = 0;
        api.GetPosSpeed(BoardFamily::RM, 0, 0, &initial, &drive, &accel, &decel);
        QCOMPARE(drive, 2000);
        QCOMPARE(decel, 40);
        QCOMPARE(rm.calls().last(), QStringLiteral("GetPosSpeed(0,0,&,&,&,&)"));
    }

    void dispatch_unknownOrAbsentFamilyCallsNothing()
    {
        RecordingBoard rl(BoardFamily::RL);
        BoardApi api;
        rl.installInto(api);
        rl.setResult("GetCommandPos", 7);

        QCOMPARE(api.GetCommandPos(static_cast<BoardFamily>(3), 0, 0), 0);
        QCOMPARE(api.GetCommandPos(static_cast<BoardFamily>(-1), 0, 0), 0);
        QCOMPARE(api.GetCommandPos(BoardFamily::RM, 0, 0), 0);
        QVERIFY(!api.hasLibrary(BoardFamily::RM));
        QVERIFY(rl.calls().isEmpty());
    }

    void dispatch_familyOnlyOperationsAbsentElsewhere()
    {
        RecordingBoard rn(BoardFamily::RN);
        RecordingBoard rl(BoardFamily::RL);
        BoardApi api;
        rn.installInto(api);
        rl.installInto(api);
        rn.setResult("GetSvCClrDO", 1);
        rl.setResult("GetFilterStop", 1);
        QCOMPARE(api.GetSvCClrDO(BoardFamily::RN, 0, 0), nrx_u16(0));
        QCOMPARE(api.GetFilterStop(BoardFamily::RL, 0, 0), nrx_u16(0));
        QVERIFY(rn.calls().isEmpty());
        QVERIFY(rl.calls().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestBoardApi)
#include "tst_boardapi.moc"
