#include "AppState.h"
#include "BoardApi.h"
#include "COV_CopyPrmDlg.h"
#include "CardTypeSelector.h"
#include "ParameterCopy.h"
#include "RecordingBoardSet.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTableWidget>
#include <QTest>

#include <functional>
#include <memory>

// Copying a page of parameters on the simulated boards: the values land on the ticked axes
// of the target card, also across families, with the RN stop-filter rule and the card's EMG
// level; and the dialog's lists.
class TestCopyPrm : public QObject
{
    Q_OBJECT

private:
    // RL: one card of 4 axes; RM: one card of 8; RN: two cards of 4.
    struct Rig
    {
        AppState state;
        BoardApi api;
        SimBoardsRig sim{api, state};
        ScriptedPrompt prompt;
        RecordingFrame frame;
        ToolContext context{state, api, prompt, frame};

        bool start()
        {
            return sim.start(true, "[RL]\nCards=1\n[RL.Card0]\nAxes=4\n[RM]\nCards=1\n"
                                   "[RM.Card0]\nAxes=8\n[RN]\nCards=2\n[RN.Card0]\nAxes=4\n"
                                   "[RN.Card1]\nAxes=4\n") &&
                   state.registry.cardCount(BoardFamily::RN) == 2;
        }
        const NrxFunctionTable& board(BoardFamily family) { return *sim.loader.table(family); }

        // One setting of each page, read back as the board holds it.
        QList<int> probe(int page, BoardFamily family, int card, int axis)
        {
            const NrxFunctionTable& b = board(family);
            const nrx_u16 c = nrx_u16(card), a = nrx_u16(axis);
            nrx_u16 use = 0, level = 0;
            nrx_i32 plus = 0, minus = 0;
            if (page == 0)
                b.GetSvAlm(c, a, &use, &level);
            else if (page == 1)
                b.GetSlmt(c, a, &plus, &minus, &use);
            else
                use = b.GetFilterTime(c, a);
            return {use, level, plus, minus};
        }
        void setProbe(int page, BoardFamily family, int card, int axis)
        {
            const NrxFunctionTable& b = board(family);
            const nrx_u16 c = nrx_u16(card), a = nrx_u16(axis);
            if (page == 0)
                b.SetSvAlm(c, a, 7, 1);
            else if (page == 1)
                b.SetSlmt(c, a, 12345, -678, 1);
            else
                b.SetFilterTime(c, a, 9);
        }
    };

    static void choose(QComboBox* list, int index)
    {
        list->setCurrentIndex(index);
        emit list->activated(index);
    }

private slots:
    void copy_landsThePageOnTheTickedTargetAxes_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<BoardFamily>("from");
        QTest::addColumn<int>("fromCard");
        QTest::addColumn<int>("fromAxis");
        QTest::addColumn<BoardFamily>("to");
        QTest::addColumn<int>("toCard");
        QTest::addColumn<QList<int>>("ticked");
        QTest::addColumn<bool>("toAll");
        using F = BoardFamily;
        QTest::newRow("system io RL to RM")
            << 0 << F::RL << 0 << 2 << F::RM << 0 << QList<int>{1, 6} << false;
        QTest::newRow("system io, no row ticked")
            << 0 << F::RN << 1 << 3 << F::RL << 0 << QList<int>{} << false;
        QTest::newRow("motion RM to RL, to all")
            << 1 << F::RM << 0 << 7 << F::RL << 0 << QList<int>{0, 1, 2, 3} << true;
        QTest::newRow("motion RN onto itself")
            << 1 << F::RN << 1 << 2 << F::RN << 1 << QList<int>{2, 3} << false;
        QTest::newRow("filter RN to RN")
            << 2 << F::RN << 0 << 1 << F::RN << 1 << QList<int>{0, 3} << false;
        QTest::newRow("filter RL to RN")
            << 2 << F::RL << 0 << 3 << F::RN << 1 << QList<int>{0, 1, 2} << false;
        QTest::newRow("filter RN to RM")
            << 2 << F::RN << 1 << 0 << F::RM << 0 << QList<int>{5} << false;
    }
    void copy_landsThePageOnTheTickedTargetAxes()
    {
        QFETCH(int, page);
        QFETCH(BoardFamily, from);
        QFETCH(int, fromCard);
        QFETCH(int, fromAxis);
        QFETCH(BoardFamily, to);
        QFETCH(int, toCard);
        QFETCH(QList<int>, ticked);
        QFETCH(bool, toAll);
        Rig rig;
        QVERIFY(rig.start());
        // The RN stop filters that a copy from another family reads: RN card fromCard.
        for (int axis = 0; axis < 4; ++axis)
            rig.board(BoardFamily::RN)
                .SetFilterStop(nrx_u16(fromCard), nrx_u16(axis), nrx_u16(50 + axis));
        rig.setProbe(page, from, fromCard, fromAxis);
        if (from == BoardFamily::RN)
            rig.board(from).SetFilterStop(nrx_u16(fromCard), nrx_u16(fromAxis), 26);
        rig.board(from).SetEmergency(nrx_u16(fromCard), 1);
        const QList<int> source = rig.probe(page, from, fromCard, fromAxis);
        const int toAxes = rig.state.registry.axisCount(to, toCard);
        QList<QList<int>> before;
        for (int axis = 0; axis < toAxes; ++axis)
            before << rig.probe(page, to, toCard, axis);

        rig.state.active.family = from;
        COV_CopyPrmDlg dialog(rig.context, CardNo(fromCard), AxisNo(fromAxis), page);
        choose(dialog.targetSelector()->typeList(),
               dialog.targetSelector()->typeList()->findText(familyDisplayName(to)));
        choose(dialog.targetSelector()->cardList(), toCard);
        // A new target card refills the source axis list, so the source is chosen last.
        choose(dialog.sourceSelector()->cardList(), fromCard);
        dialog.sourceAxisList()->setCurrentIndex(fromAxis);
        QCOMPARE(dialog.axisRows()->rowCount(), toAxes);
        if (toAll)
            dialog.toAllBox()->click();
        for (int row : ticked)
            dialog.setRowTicked(row, true);
        dialog.syncToAll();
        QCOMPARE(dialog.toAllBox()->isChecked(), ticked.size() == toAxes);
        dialog.copyAndClose();

        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(rig.frame.sent, (QList<QPair<int, int>>{{UM_VIEW_COMMAND, 102}}));
        for (int axis = 0; axis < toAxes; ++axis) {
            const bool copied = ticked.contains(axis);
            QCOMPARE(rig.probe(page, to, toCard, axis), copied ? source : before[axis]);
            if (page == 2 && to == BoardFamily::RN && copied) {
                const int stop = from == BoardFamily::RN ? 26 : 50 + axis;
                QCOMPARE(int(rig.board(to).GetFilterStop(nrx_u16(toCard), nrx_u16(axis))), stop);
            }
        }
        if (page == 0)
            QCOMPARE(int(rig.board(to).GetEmergency(nrx_u16(toCard))), 1);
    }

    void copy_callsTheBoardsInOrder_data()
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<QStringList>("sourceCalls");
        QTest::addColumn<QStringList>("targetCalls");
        const QStringList systemIoWrites = {
            "SetSvAlm(1,%1,0,0)",  "SetSvInpos(1,%1,0,0)", "SetHlmt(1,%1,0,0)",    "SetOrg(1,%1,0)",
            "SetEncoderZ(1,%1,0)", "SetSvCClr(1,%1,0,0)",  "SetSvCClrTime(1,%1,0)"};
        const QStringList motionWrites = {"SetRangeMode(1,%1,0)",  "SetFixedRange(1,%1,0)",
                                          "SetSpeedMode(1,%1,0)",  "SetPulseMode(1,%1,0)",
                                          "SetEncoderDir(1,%1,0)", "SetEncoderMode(1,%1,0)",
                                          "SetHomeDir(1,%1,0)",    "SetCompCountMode(1,%1,0)",
                                          "SetSlmt(1,%1,0,0,0)",   "SetCounterRing(1,%1,0,0,0)"};
        const QStringList filterWrites = {"SetFilterTime(1,%1,0)", "SetFilterSensor(1,%1,0)",
                                          "SetFilterSvIF(1,%1,0)", "SetFilterEncoderZ(1,%1,0)",
                                          "SetFilterExt(1,%1,0)",  "GetFilterStop(0,%1)",
                                          "SetFilterStop(1,%1,0)"};
        const auto forAxes = [](const QStringList& calls) {
            QStringList all;
            for (int axis : {0, 2})
                for (const QString& call : calls)
                    all << call.arg(axis);
            return all;
        };
        QTest::newRow("system io")
            << 0 << QStringList{"GetSvAlm(0,1,&,&)",  "GetSvInpos(0,1,&,&)", "GetHlmt(0,1,&,&)",
                                "GetOrg(0,1)",        "GetEncoderZ(0,1)",    "GetSvCClr(0,1,&,&)",
                                "GetSvCClrTime(0,1)", "GetEmergency(0)"}
            << forAxes(systemIoWrites) + QStringList{"SetEmergency(1,0)"};
        QTest::newRow("motion") << 1
                                << QStringList{"GetRangeMode(0,1)",  "GetFixedRange(0,1)",
                                               "GetSpeedMode(0,1)",  "GetPulseMode(0,1)",
                                               "GetEncoderDir(0,1)", "GetEncoderMode(0,1)",
                                               "GetHomeDir(0,1)",    "GetCompCountMode(0,1)",
                                               "GetSlmt(0,1,&,&,&)", "GetCounterRing(0,1,&,&,&)"}
                                << forAxes(motionWrites);
        QTest::newRow("filter") << 2
                                << QStringList{"GetFilterTime(0,1)", "GetFilterSensor(0,1)",
                                               "GetFilterSvIF(0,1)", "GetFilterEncoderZ(0,1)",
                                               "GetFilterExt(0,1)"}
                                << forAxes(filterWrites);
    }
    void copy_callsTheBoardsInOrder()
    {
        QFETCH(int, page);
        RecordingBoardSet boards;
        ParameterCopy(boards.api).copy(page, {BoardFamily::RL, 0, 1}, {BoardFamily::RN, 1, {0, 2}});
        QTEST(boards.rl.calls(), "sourceCalls");
        QTEST(boards.rn.calls(), "targetCalls");
        QVERIFY(boards.rm.calls().isEmpty());
    }

    void lists_followTheirOddRules()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.state.active.family = BoardFamily::RN;
        COV_CopyPrmDlg dialog(rig.context, 1, 2, 0);
        CardTypeSelector* from = dialog.sourceSelector();
        CardTypeSelector* to = dialog.targetSelector();
        QCOMPARE(from->card(), 1);

        // Another target family: card 0, that card's rows, none ticked.
        choose(to->typeList(), 1);
        QCOMPARE(to->card(), 0);
        QCOMPARE(dialog.axisRows()->rowCount(), 8);
        QCOMPARE(dialog.axisRows()->item(7, 0)->text(), QStringLiteral("7 Axis"));
        QCOMPARE(dialog.axisRows()->item(7, 0)->checkState(), Qt::Unchecked);

        // Another target card: the source card list decides, the source axes are refilled for
        // that card of the target family, the rows stay.
        choose(to->typeList(), 2);
        dialog.setRowTicked(1, true);
        choose(to->cardList(), 0);
        QCOMPARE(dialog.targetAxisCount(), 4);
        QCOMPARE(dialog.sourceAxisList()->count(), 4);
        QCOMPARE(dialog.sourceAxisList()->currentIndex(), 0);
        QCOMPARE(dialog.axisRows()->item(1, 0)->checkState(), Qt::Checked);

        // " To All" ticks and unticks every row.
        dialog.toAllBox()->click();
        dialog.toAllBox()->click();
        QCOMPARE(dialog.axisRows()->item(0, 0)->checkState(), Qt::Unchecked);
    }
};

QTEST_MAIN(TestCopyPrm)
#include "tst_copyprm.moc"
