#include "AppState.h"
#include "COV_SysDbgWnd.h"
#include "DiagnosisGrid.h"
#include "PaintCounter.h"
#include "RecordingBoardSet.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <memory>

// The system diagnosis: the grids' formats, the digital words' bit counts, the columns of
// missing axes after a change of card or family, and reading only cells in view.
class TestSysDbg : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        RecordingBoardSet boards;
        AppState state;
        ScriptedPrompt prompt;
        RecordingFrame frame;
        std::unique_ptr<COV_SysDbgWnd> window;

        // RL: card 0 of 8 axes and card 1 of 4, both with ioCount points; RM: one card.
        explicit Rig(int ioCount = 16)
        {
            state.registry.setLoadResult(BoardFamily::RL, 1);
            state.registry.setCardInfo(BoardFamily::RL, 0, 8, 0, ioCount);
            state.registry.setCardInfo(BoardFamily::RL, 1, 4, 1, ioCount);
            state.registry.setLoadResult(BoardFamily::RM, 0);
            state.registry.setCardInfo(BoardFamily::RM, 0, 2, 0, 64);
            window = std::make_unique<COV_SysDbgWnd>(ToolContext{state, boards.api, prompt, frame});
            window->timer().stop();
            window->resize(window->sizeHint());
            window->show();
        }
        QString cell(DiagnosisGrid* grid, int row, int axis, int role = Qt::DisplayRole) const
        {
            const QVariant value = grid->values()->index(row, axis).data(role);
            return role == Qt::BackgroundRole ? value.value<QColor>().name() : value.toString();
        }
        QString io(COV_SysDbgWnd::Side side, int group) const
        {
            return window->ioWordField(side, group)->text();
        }
        void choose(const char* combo, int index)
        {
            auto* box = window->findChild<QComboBox*>(QLatin1String(combo));
            box->setCurrentIndex(index);
            emit box->activated(index);
        }
    };

private slots:
    void grids_formatDecimalAndHexadecimal_readOnlyCellsInView()
    {
        Rig rig;
        rig.boards.rl.setResultFor("GetCommandPos", 0, 1, -1500);
        rig.boards.rl.setResultFor("GetCommandSpeed", 0, 7, 250000);
        rig.boards.rl.setResultFor("GetCardStatus", 0, 0, 0x2A);
        rig.boards.rl.setResultFor("GetInputStatus", 0, 3, 0x1ABCD); // cut to 16 bits
        rig.window->tick();
        DiagnosisGrid* positions = rig.window->positionGrid();
        DiagnosisGrid* statuses = rig.window->statusGrid();
        QCOMPARE(rig.cell(positions, COV_SysDbgWnd::CmdPos, 1), "-1500");
        QCOMPARE(rig.cell(positions, COV_SysDbgWnd::CmdVel, 7), "250000");
        QCOMPARE(rig.cell(statuses, 0, 0), "002A");
        QCOMPARE(rig.cell(statuses, 4, 3), "ABCD");
        QCOMPARE(rig.cell(statuses, 1, 0), "0000");

        // A tick that changes nothing paints nothing; a change signals its cell alone.
        QSignalSpy changes(statuses->values(), &QAbstractItemModel::dataChanged);
        PaintCounter paints;
        statuses->canvas()->installEventFilter(&paints);
        positions->canvas()->installEventFilter(&paints);
        QApplication::processEvents();
        paints.paints = 0;
        rig.window->tick();
        QApplication::processEvents();
        QCOMPARE(changes.size(), 0);
        QCOMPARE(paints.paints, 0);
        rig.boards.rl.setResultFor("GetMainStatus", 0, 6, 3);
        rig.window->tick();
        QApplication::processEvents();
        QCOMPARE(changes.size(), 1);
        QCOMPARE(paints.paints, 1);
        QCOMPARE(changes.first().first().value<QModelIndex>(), statuses->values()->index(2, 6));
        rig.boards.rl.clearCalls();

        // Room for the titles, the first two axes and the first two rows.
        AxisGridCanvas* canvas = statuses->canvas();
        const QPoint corner = canvas->cellRect(1, 1).bottomRight();
        statuses->setFixedSize(corner.x() + 3, corner.y() + 3);
        QVERIFY(QTest::qWaitForWindowExposed(rig.window.get()));
        rig.window->tick();
        QCOMPARE(rig.boards.rl.count("GetCardStatus"), 2);
        QCOMPARE(rig.boards.rl.count("GetDrvStatus"), 2);
        QCOMPARE(rig.boards.rl.count("GetInputStatus"), 0);
        QCOMPARE(rig.boards.rl.count("GetCommandPos"), 8);
        rig.window->hide();
        rig.boards.rl.clearCalls();
        rig.window->tick();
        QCOMPARE(rig.boards.rl.count("GetCommandPos"), 0);
    }

    void io_bitCountsPerCard_data()
    {
        QTest::addColumn<int>("ioCount");
        QTest::addColumn<int>("bitsRead");
        QTest::addColumn<QString>("group0");
        QTest::addColumn<QString>("group1");
        QTest::newRow("16 points") << 16 << 16 << "0x00008001"
                                   << "";
        QTest::newRow("24 points read 32") << 24 << 32 << "0x80018001"
                                           << "";
        QTest::newRow("64 points") << 64 << 64 << "0x80018001"
                                   << "0x00000100";
    }
    void io_bitCountsPerCard()
    {
        QFETCH(int, ioCount);
        QFETCH(int, bitsRead);
        QFETCH(QString, group0);
        QFETCH(QString, group1);
        Rig rig(ioCount);
        for (int bit : {0, 15, 16, 31, 40}) {
            rig.boards.rl.setResultFor("GetDIBit", 0, bit, 1);
            rig.boards.rl.setResultFor("GetDOBit", 0, bit, 1);
        }
        rig.window->tick();
        QCOMPARE(rig.boards.rl.count("GetDIBit"), bitsRead);
        QCOMPARE(rig.boards.rl.count("GetDOBit"), bitsRead);
        QCOMPARE(rig.boards.rl.calls({"GetDIBit"}).last(),
                 QStringLiteral("GetDIBit(0,%1)").arg(bitsRead - 1));
        for (auto side : {COV_SysDbgWnd::Inputs, COV_SysDbgWnd::Outputs}) {
            QCOMPARE(rig.io(side, 0), group0);
            QCOMPARE(rig.io(side, 1), group1);
        }
    }

    void cardChange_greysAndBlanksMissingAxesOnTheNextTick()
    {
        Rig rig(64);
        rig.boards.rl.setResultFor("GetActualPos", 0, 6, -7);
        rig.window->tick();
        QCOMPARE(rig.cell(rig.window->positionGrid(), 1, 6), "-7");
        rig.choose("cardCombo", 1);
        QCOMPARE(rig.cell(rig.window->positionGrid(), 1, 6), "-7"); // not before the tick
        rig.boards.rl.clearCalls();
        rig.window->tick();
        QCOMPARE(rig.boards.rl.count("GetActualPos"), 4);
        QCOMPARE(rig.boards.rl.count("GetErrStatus"), 4);
        QVERIFY(rig.boards.rl.calls().contains("GetErrStatus(1,3)"));
        for (DiagnosisGrid* grid : {rig.window->positionGrid(), rig.window->statusGrid()}) {
            for (int row = 0; row < grid->values()->rowCount(); ++row) {
                QCOMPARE(rig.cell(grid, row, 3, Qt::BackgroundRole), "#ffffff");
                for (int axis = 4; axis < 8; ++axis) {
                    QCOMPARE(rig.cell(grid, row, axis), QString());
                    QCOMPARE(rig.cell(grid, row, axis, Qt::BackgroundRole), "#dedede");
                }
            }
        }

        // Another family: its card list, its card 0, its own library.
        auto* cards = rig.window->findChild<QComboBox*>("cardCombo");
        QVERIFY(cards->isEnabled());
        rig.choose("familyCombo", 1);
        QCOMPARE(rig.window->family(), BoardFamily::RM);
        QCOMPARE(cards->count(), 1);
        QVERIFY(!cards->isEnabled());
        rig.window->tick();
        QCOMPARE(rig.boards.rm.count("GetCommandPos"), 2);
        QCOMPARE(rig.io(COV_SysDbgWnd::Inputs, 1), "0x00000000");
        QCOMPARE(rig.cell(rig.window->statusGrid(), 0, 2, Qt::BackgroundRole), "#dedede");
    }
};

QTEST_MAIN(TestSysDbg)
#include "tst_sysdbg.moc"
