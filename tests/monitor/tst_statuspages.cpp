#include "AppState.h"
#include "BitLamp.h"
#include "BitLampPainter.h"
#include "BoardApi.h"
#include "COV_StBaseWnd.h"
#include "PaintCounter.h"
#include "RecordingBoard.h"
#include "StatusLampPage.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <memory>

namespace {

QImage lampPicture(const QString& caption, bool lit)
{
    return BitLampPainter::draw(caption, lit).toImage();
}

} // namespace

// The docked status view: paging, the column and title rules, captions per family, the
// drive page's bit-12 picture, and polling only what is shown and redrawing only what changed.
class TestStatusPages : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        RecordingBoard board;
        BoardApi api;
        AppState state;
        std::unique_ptr<COV_StBaseWnd> view;

        Rig(BoardFamily family, int axes) : board(family)
        {
            board.installInto(api);
            state.registry.setLoadResult(family, 0);
            state.registry.setCardInfo(family, 0, axes, 0, 16);
            state.active.family = family;
            view = std::make_unique<COV_StBaseWnd>(state, api);
            view->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
            view->show();
        }
        StatusLampPage* card() const { return view->page(COV_StBaseWnd::CardPage); }
        StatusLampPage* drive() const { return view->page(COV_StBaseWnd::DrivePage); }
        QStringList titles(StatusLampPage* page) const
        {
            QStringList texts;
            for (int column = 0; column < 4; ++column)
                texts << page->title(column)->text();
            return texts;
        }
        QList<bool> lampsShown(StatusLampPage* page) const
        {
            QList<bool> shown;
            for (int column = 0; column < 4; ++column)
                shown << !page->lamp(column, 0)->isHidden();
            return shown;
        }
        QStringList tick()
        {
            board.clearCalls();
            view->refresh();
            return board.calls();
        }
    };

private slots:
    void columns_fourAxisBoardPagedOneAndFour()
    {
        Rig rig(BoardFamily::RL, 4);
        QCOMPARE(rig.tick(), (QStringList{"GetCardStatus(0,0)", "GetCardStatus(0,1)",
                                          "GetCardStatus(0,2)", "GetCardStatus(0,3)"}));
        QCOMPARE(rig.titles(rig.card()), (QStringList{"0 Axis", "1 Axis", "2 Axis", "3 Axis"}));
        QCOMPARE(rig.lampsShown(rig.card()), (QList<bool>{true, true, true, true}));

        rig.view->pageNext();
        QCOMPARE(rig.tick(),
                 (QStringList{"GetCardStatus(0,1)", "GetCardStatus(0,2)", "GetCardStatus(0,3)"}));
        QCOMPARE(rig.lampsShown(rig.card()), (QList<bool>{true, true, true, false}));
        QVERIFY(rig.card()->title(3)->isHidden());
        QCOMPARE(rig.titles(rig.card()), (QStringList{"1 Axis", "2 Axis", "3 Axis", "4 Axis"}));

        rig.view->pagePrevious();
        rig.view->pagePrevious(); // not below 0
        QCOMPARE(rig.view->firstAxis(), 0);
        rig.view->pageLast();
        rig.view->pageNext(); // not above 4
        QCOMPARE(rig.view->firstAxis(), 4);
        QCOMPARE(rig.tick(), QStringList());
        QCOMPARE(rig.lampsShown(rig.card()), (QList<bool>{false, false, false, false}));
        QCOMPARE(rig.titles(rig.card()), (QStringList{"4 Axis", "5 Axis", "6 Axis", "7 Axis"}));
        // The drive page follows the same first axis.
        QCOMPARE(rig.drive()->firstAxis(), 4);
        rig.view->pageFirst();
        QCOMPARE(rig.view->firstAxis(), 0);
    }

    void columns_hiddenColumnsReturnOnlyAtTheirAxisNumbers()
    {
        Rig rig(BoardFamily::RM, 2);
        rig.tick();
        QCOMPARE(rig.lampsShown(rig.card()), (QList<bool>{true, true, false, false}));
        rig.view->pageLast();
        rig.tick();
        QCOMPARE(rig.lampsShown(rig.card()), (QList<bool>{false, false, false, false}));
        // Back at axis 0 the two present axes are read but their columns stay hidden.
        rig.view->pageFirst();
        QCOMPARE(rig.tick(), (QStringList{"GetCardStatus(0,0)", "GetCardStatus(0,1)"}));
        QCOMPARE(rig.lampsShown(rig.card()), (QList<bool>{false, false, false, false}));
        Rig none(BoardFamily::RL, 0);
        QCOMPARE(none.tick(), QStringList());
        QCOMPARE(none.lampsShown(none.card()), (QList<bool>{false, false, false, false}));
    }

    void captions_rnNamesTwoBitsOthersLeaveNc_data()
    {
        QTest::addColumn<int>("family");
        QTest::addColumn<QString>("cardBit12");
        QTest::addColumn<QString>("driveBit11");
        QTest::newRow("RL") << 0 << "NC"
                            << "NC";
        QTest::newRow("RM") << 1 << "NC"
                            << "NC";
        QTest::newRow("RN") << 2 << "I-RUN"
                            << "S-STP";
    }
    void captions_rnNamesTwoBitsOthersLeaveNc()
    {
        QFETCH(int, family);
        QFETCH(QString, cardBit12);
        QFETCH(QString, driveBit11);
        // The pages start on RL and take the family's captions at the controller change.
        Rig rig(BoardFamily::RL, 4);
        rig.state.registry.setLoadResult(static_cast<BoardFamily>(family), 0);
        rig.state.registry.setCardInfo(static_cast<BoardFamily>(family), 0, 4, 0, 16);
        rig.state.active.family = static_cast<BoardFamily>(family);
        rig.view->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        QCOMPARE(rig.card()->lamp(0, 12)->image().toImage(), lampPicture(cardBit12, false));
        QCOMPARE(rig.card()->lamp(0, 7)->image().toImage(), lampPicture("NC", false));
        QCOMPARE(rig.drive()->lamp(3, 11)->image().toImage(), lampPicture(driveBit11, false));
    }

    void polling_onlyThePageOnShow()
    {
        Rig rig(BoardFamily::RL, 4);
        rig.board.setResultFor("GetCardStatus", 0, 2, 0x0100);
        rig.board.setResultFor("GetDrvStatus", 0, 0, 0x1000);
        QCOMPARE(rig.tick().filter("GetDrvStatus").size(), 0);
        rig.view->showPage(COV_StBaseWnd::DrivePage);
        const QStringList calls = rig.tick();
        QCOMPARE(calls.filter("GetCardStatus").size(), 0);
        QCOMPARE(calls.filter("GetDrvStatus").size(), 4);
        // The card page keeps its last lamps while hidden.
        QCOMPARE(rig.card()->lamp(2, 8)->image().toImage(), lampPicture("RUN", true));
        // Drive bit 12 lights up with bit 13's picture; dark, it keeps its own caption.
        QCOMPARE(rig.drive()->lamp(0, 12)->image().toImage(), lampPicture("S-LMT-", true));
        QCOMPARE(rig.drive()->lamp(1, 12)->image().toImage(), lampPicture("S-LMT+", false));
    }

    void lamps_unchangedBoardRepaintsNothing()
    {
        Rig rig(BoardFamily::RL, 4);
        rig.board.setResultFor("GetCardStatus", 0, 0, 0x4001);
        rig.board.setResultFor("GetCardStatus", 0, 3, 0x0800);
        QVERIFY(QTest::qWaitForWindowExposed(rig.view.get()));
        rig.tick();
        QApplication::processEvents();
        QCOMPARE(rig.card()->lamp(0, 14)->image().toImage(), lampPicture("SON", true));
        QCOMPARE(rig.card()->lamp(3, 11)->image().toImage(), lampPicture("H-OK", true));

        PaintCounter counter;
        for (int column = 0; column < 4; ++column)
            for (int bit = 0; bit < 16; ++bit)
                rig.card()->lamp(column, bit)->installEventFilter(&counter);
        rig.tick();
        rig.tick();
        QApplication::processEvents();
        QCOMPARE(counter.paints, 0);

        // One bit changes: that lamp alone is redrawn.
        rig.board.setResultFor("GetCardStatus", 0, 0, 0x4003);
        PaintCounter single;
        rig.card()->lamp(0, 1)->installEventFilter(&single);
        rig.tick();
        QApplication::processEvents();
        QCOMPARE(single.paints, 1);
        QCOMPARE(counter.paints, 1);
    }

    void messages_axisGroupFollowsTheOperatedAxis()
    {
        Rig rig(BoardFamily::RL, 8);
        rig.state.active.axis = 5;
        rig.view->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        QCOMPARE(rig.view->firstAxis(), 4);
        rig.view->handleUserMessage(UM_AXIS_CHANGED, 2);
        QCOMPARE(rig.view->firstAxis(), 0);
        QCOMPARE(rig.drive()->firstAxis(), 0);
        rig.view->handleUserMessage(UM_AXIS_CHANGED, 9);
        QCOMPARE(rig.view->firstAxis(), 0);
        rig.state.statusFollowsOperation = 0;
        rig.view->handleUserMessage(UM_AXIS_CHANGED, 6);
        QCOMPARE(rig.view->firstAxis(), 0);
        // The second group of eight axes is read and shown whole.
        rig.view->pageLast();
        QCOMPARE(rig.tick(), (QStringList{"GetCardStatus(0,4)", "GetCardStatus(0,5)",
                                          "GetCardStatus(0,6)", "GetCardStatus(0,7)"}));
        QCOMPARE(rig.lampsShown(rig.card()), (QList<bool>{true, true, true, true}));
    }
};

QTEST_MAIN(TestStatusPages)
#include "tst_statuspages.moc"
