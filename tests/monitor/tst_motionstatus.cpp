#include "AppState.h"
#include "AxisGridCanvas.h"
#include "AxisValueGridModel.h"
#include "BoardApi.h"
#include "COV_UtMtnStWnd.h"
#include "RecordingBoard.h"
#include "RecordingFrame.h"

#include <QSignalSpy>
#include <QTest>

#include <memory>

// The motion-status pane: present and absent axis columns, reading only visible cells,
// updating only changed cells, and choosing the active axis by double click.
class TestMotionStatus : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        RecordingBoard board{BoardFamily::RM};
        BoardApi api;
        AppState state;
        RecordingFrame frame;
        std::unique_ptr<COV_UtMtnStWnd> pane;

        // Card 0 with the given axes, card 1 with eight.
        explicit Rig(int axes, QSize size = QSize(900, 96))
        {
            board.installInto(api);
            state.registry.setLoadResult(BoardFamily::RM, 1);
            state.registry.setCardInfo(BoardFamily::RM, 0, axes, 0, 16);
            state.registry.setCardInfo(BoardFamily::RM, 1, 8, 0, 16);
            state.active.family = BoardFamily::RM;
            pane = std::make_unique<COV_UtMtnStWnd>(state, api, frame);
            pane->resize(size);
            pane->show();
        }
        QVariant cell(int row, int axis, int role = Qt::DisplayRole) const
        {
            return pane->model()->index(row, axis).data(role);
        }
    };

private slots:
    void columns_absentAxesAreBlankAndGreyUntilTheCardHasThem()
    {
        Rig rig(2);
        rig.board.setResultFor("GetCommandPos", 0, 1, -1500);
        rig.board.setResultFor("GetActualPos", 0, 0, 42);
        rig.board.setResultFor("GetCommandSpeed", 0, 1, 8000);
        rig.pane->refresh();
        QCOMPARE(rig.cell(COV_UtMtnStWnd::CommandPosition, 1).toString(), "-1500");
        QCOMPARE(rig.cell(COV_UtMtnStWnd::ActualPosition, 0).toString(), "42");
        QCOMPARE(rig.cell(COV_UtMtnStWnd::CommandVelocity, 1).toString(), "8000");
        QCOMPARE(rig.cell(0, 1, Qt::BackgroundRole).value<QColor>(), QColor(Qt::white));
        for (int row = 0; row < COV_UtMtnStWnd::kRows; ++row) {
            for (int axis = 2; axis < 8; ++axis) {
                QCOMPARE(rig.cell(row, axis).toString(), QString());
                QCOMPARE(rig.cell(row, axis, Qt::BackgroundRole).value<QColor>(),
                         QColor(222, 222, 222));
            }
        }
        QCOMPARE(rig.board.calls().size(), 6);

        // An unchanged tick signals nothing; a changed value signals its cell alone.
        QSignalSpy changes(rig.pane->model(), &QAbstractItemModel::dataChanged);
        rig.pane->refresh();
        QCOMPARE(changes.size(), 0);
        rig.board.setResultFor("GetActualPos", 0, 1, 77);
        rig.pane->refresh();
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.first().first().value<QModelIndex>(),
                 rig.pane->model()->index(COV_UtMtnStWnd::ActualPosition, 1));

        // The next tick after a change of the active controller shows the new card.
        rig.state.active.card = 1;
        rig.board.clearCalls();
        rig.pane->refresh();
        QCOMPARE(rig.cell(0, 7, Qt::BackgroundRole).value<QColor>(), QColor(Qt::white));
        QCOMPARE(rig.board.count(QStringLiteral("GetActualPos")), 8);
        QVERIFY(rig.board.calls().contains(QStringLiteral("GetCommandPos(1,7)")));
    }

    void reading_cellsOutOfViewAreNotRead()
    {
        // Room for the header and the first data row only.
        Rig rig(4, QSize(900, 2 * AxisGridCanvas::kRowHeight));
        QVERIFY(QTest::qWaitForWindowExposed(rig.pane.get()));
        QVERIFY(rig.pane->isCellVisible(COV_UtMtnStWnd::CommandPosition, 3));
        QVERIFY(!rig.pane->isCellVisible(COV_UtMtnStWnd::ActualPosition, 0));
        rig.pane->refresh();
        QCOMPARE(rig.board.count(QStringLiteral("GetCommandPos")), 4);
        QCOMPARE(rig.board.count(QStringLiteral("GetActualPos")), 0);
        QCOMPARE(rig.board.count(QStringLiteral("GetCommandSpeed")), 0);
    }

    void doubleClick_onlyPresentAxesBecomeActive()
    {
        Rig rig(2);
        rig.pane->refresh();
        AxisGridCanvas* grid = rig.pane->canvas();
        const auto doubleClick = [&](QPoint at) {
            QTest::mouseDClick(grid, Qt::LeftButton, {}, at);
        };
        // The grey column, its axis title, and the row names: nothing.
        doubleClick(grid->cellRect(2, 4).center());
        doubleClick(grid->cellRect(-1, 3).center());
        doubleClick(QPoint(4, grid->cellRect(0, 0).center().y()));
        QVERIFY(rig.frame.sent.isEmpty());

        const QList<QPair<int, int>> opened{{UM_OPEN_TOOL, ToolSingleAxis}};
        doubleClick(grid->cellRect(0, 1).center());
        QCOMPARE(rig.state.active.axis, 1);
        QCOMPARE(rig.frame.sent, opened);
        // The axis titles are the grid's top row and count too.
        doubleClick(grid->cellRect(-1, 0).center());
        QCOMPARE(rig.state.active.axis, 0);
        QCOMPARE(rig.frame.sent, opened + opened);
    }
};

QTEST_MAIN(TestMotionStatus)
#include "tst_motionstatus.moc"
