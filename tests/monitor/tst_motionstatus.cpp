#include "AppState.h"
#include "BoardApi.h"
#include "COV_UtMtnStWnd.h"
#include "FrameRelay.h"
#include "MotionStatusModel.h"
#include "RecordingBoard.h"
#include "RecordingFrame.h"

#include <QSignalSpy>
#include <QTableView>
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
        QString text(int row, int axis) const
        {
            return pane->model()->index(row, axis).data().toString();
        }
        QColor background(int row, int axis) const
        {
            return pane->model()->index(row, axis).data(Qt::BackgroundRole).value<QColor>();
        }
    };

private slots:
    void columns_absentAxesAreBlankAndGrey()
    {
        Rig rig(2);
        rig.board.setResultFor("GetCommandPos", 0, 1, -1500);
        rig.board.setResultFor("GetActualPos", 0, 0, 42);
        rig.board.setResultFor("GetCommandSpeed", 0, 1, 8000);
        rig.pane->refresh();
        QCOMPARE(rig.text(MotionStatusModel::CommandPosition, 1), QStringLiteral("-1500"));
        QCOMPARE(rig.text(MotionStatusModel::ActualPosition, 0), QStringLiteral("42"));
        QCOMPARE(rig.text(MotionStatusModel::CommandVelocity, 1), QStringLiteral("8000"));
        QCOMPARE(rig.background(0, 1), QColor(Qt::white));
        for (int row = 0; row < MotionStatusModel::kRows; ++row) {
            for (int axis = 2; axis < 8; ++axis) {
                QCOMPARE(rig.text(row, axis), QString());
                QCOMPARE(rig.background(row, axis), QColor(222, 222, 222));
            }
        }
        QCOMPARE(rig.board.calls().size(), 6);
        QCOMPARE(rig.pane->model()->headerData(7, Qt::Horizontal, Qt::DisplayRole).toString(),
                 QStringLiteral("7 Axis"));
        QCOMPARE(rig.pane->model()->headerData(2, Qt::Vertical, Qt::DisplayRole).toString(),
                 QStringLiteral("Command Velocity"));
    }

    void columns_followTheActiveCardOnTheNextTick()
    {
        Rig rig(2);
        rig.pane->refresh();
        rig.state.active.card = 1;
        rig.board.clearCalls();
        rig.pane->refresh();
        QCOMPARE(rig.background(0, 7), QColor(Qt::white));
        QCOMPARE(rig.board.count(QStringLiteral("GetActualPos")), 8);
        QVERIFY(rig.board.calls().contains(QStringLiteral("GetCommandPos(1,7)")));
    }

    void reading_cellsOutOfViewAreNotRead()
    {
        // Room for the header and the first data row only.
        Rig rig(4, QSize(900, 46));
        QVERIFY(QTest::qWaitForWindowExposed(rig.pane.get()));
        QVERIFY(rig.pane->isCellVisible(MotionStatusModel::CommandPosition, 3));
        QVERIFY(!rig.pane->isCellVisible(MotionStatusModel::ActualPosition, 0));
        rig.pane->refresh();
        QCOMPARE(rig.board.count(QStringLiteral("GetCommandPos")), 4);
        QCOMPARE(rig.board.count(QStringLiteral("GetActualPos")), 0);
        QCOMPARE(rig.board.count(QStringLiteral("GetCommandSpeed")), 0);
    }

    void updating_onlyChangedCellsSignal()
    {
        Rig rig(8);
        rig.pane->refresh();
        QSignalSpy changes(rig.pane->model(), &QAbstractItemModel::dataChanged);
        rig.pane->refresh();
        QCOMPARE(changes.size(), 0);
        rig.board.setResultFor("GetActualPos", 0, 5, 77);
        rig.pane->refresh();
        QCOMPARE(changes.size(), 1);
        const QModelIndex changed = changes.first().first().value<QModelIndex>();
        QCOMPARE(changed.row(), int(MotionStatusModel::ActualPosition));
        QCOMPARE(changed.column(), 5);
    }

    void doubleClick_presentAxisBecomesActiveAndOpensSingleAxis()
    {
        Rig rig(2);
        rig.pane->refresh();
        rig.pane->activateAxisAt(rig.pane->model()->index(0, 1));
        QCOMPARE(rig.state.active.axis, 1);
        QCOMPARE(rig.frame.sent, (QList<QPair<int, int>>{{UM_OPEN_TOOL, ToolSingleAxis}}));
    }

    void doubleClick_greyColumnDoesNothing()
    {
        Rig rig(2);
        rig.pane->refresh();
        rig.pane->activateAxisAt(rig.pane->model()->index(2, 4));
        rig.pane->activateAxisAt(QModelIndex());
        QCOMPARE(rig.state.active.axis, 0);
        QVERIFY(rig.frame.sent.isEmpty());
    }
};

QTEST_MAIN(TestMotionStatus)
#include "tst_motionstatus.moc"
