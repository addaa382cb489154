#include "AppState.h"
#include "BoardApi.h"
#include "BoardCallModel.h"
#include "BoardCallText.h"
#include "COV_BoardCallWnd.h"
#include "COV_MainFrame.h"
#include "COV_SnMtnWnd.h"
#include "PaintCounter.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "ToolWindowHost.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTabBar>
#include <QTableView>
#include <QTest>

// The main frame on the simulated boards with the trace on: a relative move of the
// single-axis window as the trace and the Board Calls window show it, with and without a
// refusal forced by the boards file.
class TestBoardCalls : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        AppState state;
        BoardCallTrace trace;
        BoardApi board;
        SimBoardsRig sim{board, state};
        ScriptedPrompt prompt;
        ToolWindowFactory factory;
        std::unique_ptr<COV_MainFrame> frame;

        // One RL card of 4 axes; familyKeys go into its [RL] section.
        bool start(const QByteArray& familyKeys)
        {
            if (!sim.start(false, "[RL]\nCards=1\n" + familyKeys + "[RL.Card0]\nAxes=4\nIO=16\n"))
                return false;
            board.setTrace(&trace);
            state.moduleDirectory = sim.folder.path() + QLatin1Char('/');
            factory.registerKind(ToolSingleAxis, [](const ToolContext& c, QWidget* p) -> ToolView* {
                return new COV_SnMtnWnd(c, p);
            });
            factory.registerKind(ToolBoardCalls, [](const ToolContext& c, QWidget* p) -> ToolView* {
                return new COV_BoardCallWnd(c, p);
            });
            frame = std::make_unique<COV_MainFrame>(state, board, prompt, factory);
            if (!frame->create(sim.loader.problems()))
                return false;
            frame->monitorTimer().stop();
            frame->resize(1366, 768);
            frame->show();
            state.active.axis = 1;
            return true;
        }
        ~Rig()
        {
            frame.reset();
            trace.clear();
        }

        template <typename T> T* view(ToolKind kind)
        {
            frame->openTool(kind);
            return static_cast<T*>(frame->toolWindows().view(kind));
        }
        // A relative move of 1500 pulses from the single-axis window's "+" button; the number
        // of the first call the button made.
        std::uint64_t moveRelative()
        {
            auto* window = view<COV_SnMtnWnd>(ToolSingleAxis);
            window->findChild<QTabBar*>("tabBar")->setCurrentIndex(int(MotionTab::PointToPoint));
            auto* type = window->findChild<QComboBox*>("motionType");
            type->setCurrentIndex(int(MotionType::Relative));
            emit type->activated(int(MotionType::Relative));
            window->findChild<QLineEdit*>("position2")->setText("1500");
            const std::uint64_t clicked = trace.end();
            QTest::mouseClick(window->findChild<QPushButton*>("plusButton"), Qt::LeftButton);
            return clicked;
        }
        // "operation card axis arguments result caller" of the calls from `from` on that the
        // filter lets through.
        QStringList calls(std::uint64_t from, const BoardCallFilter& filter = {})
        {
            QStringList rows;
            for (std::uint64_t n = std::max(from, trace.begin()); n < trace.end(); ++n) {
                const BoardCall& call = trace.at(n);
                if (!filter.matches(call))
                    continue;
                QStringList columns;
                for (int c = BoardCallText::Operation; c < BoardCallText::ColumnCount; ++c)
                    columns << BoardCallText::column(call, c, board.callers());
                rows << columns.join(QLatin1Char(' '));
            }
            return rows;
        }
    };

private slots:
    void relativeMove_tracedAsSpeedThenMoveOfTheWindow()
    {
        Rig rig;
        QVERIFY(rig.start({}));
        const std::uint64_t before = rig.moveRelative();

        QCOMPARE(rig.calls(before),
                 (QStringList{"SetPosSpeed 0 1 initial=100 drive=10000 accelMs=100 decelMs=100 0 "
                              "Single Axis",
                              "Inc_Move 0 1 distance=1500 0 Single Axis"}));
        // The reads of the frame's tick are signed by the panes that made them.
        const std::uint64_t tick = rig.trace.end();
        rig.frame->MonitorTick();
        QStringList callers;
        for (std::uint64_t n = tick; n < rig.trace.end(); ++n)
            callers << rig.board.callers().at(rig.trace.at(n).caller);
        callers.removeDuplicates();
        callers.sort();
        QCOMPARE(callers, (QStringList{"Axis Status pane", "Motion Status pane"}));
        // No refused call to note; the servo of the moved axis is off, which is said instead.
        QVERIFY(rig.frame->statusBar()->currentMessage().startsWith(QLatin1String("Servo is off")));
    }

    void forcedRefusal_showsUnderFailuresOnlyAndInStatusBar()
    {
        Rig rig;
        QVERIFY(rig.start("Fail.SetPosSpeed=-1\n"));
        // Opened from the Window menu.
        for (QAction* action : rig.frame->findChildren<QAction*>()) {
            if (action->text().remove(QLatin1Char('&')) == QStringLiteral("Board Calls"))
                action->trigger();
        }
        auto* calls = static_cast<COV_BoardCallWnd*>(rig.frame->toolWindows().view(ToolBoardCalls));
        QVERIFY(calls);
        calls->findChild<QCheckBox*>("failuresOnly")->setChecked(true);
        QCOMPARE(calls->model()->rowCount(), 0);
        // Ticks that bring no call to show leave the table alone.
        QApplication::processEvents();
        PaintCounter paints;
        calls->table()->viewport()->installEventFilter(&paints);
        rig.frame->MonitorTick();
        calls->refresh();
        QApplication::processEvents();
        QCOMPARE(paints.paints, 0);
        rig.moveRelative();
        calls->refresh();

        BoardCallModel& model = *calls->model();
        QCOMPARE(model.rowCount(), 1);
        const auto cell = [&](int column) { return model.index(0, column).data().toString(); };
        QCOMPARE(cell(BoardCallText::Operation), QStringLiteral("SetPosSpeed"));
        QCOMPARE(cell(BoardCallText::Axis), QStringLiteral("1"));
        QCOMPARE(cell(BoardCallText::Result), QStringLiteral("-1"));
        QCOMPARE(cell(BoardCallText::Caller), QStringLiteral("Single Axis"));
        // The move itself went through.
        QVERIFY(rig.calls(0).last().startsWith("Inc_Move 0 1 distance=1500 0"));

        rig.frame->MonitorTick();
        const QString model0 =
            QString::fromStdString(rig.state.registry.modelName(BoardFamily::RL, 0));
        QCOMPARE(rig.frame->statusBar()->currentMessage(),
                 QStringLiteral("SetPosSpeed on %1(0) axis 1 returned -1").arg(model0));

        // Polling reads join the table when shown; the failure filter off, the rest too.
        calls->findChild<QCheckBox*>("failuresOnly")->setChecked(false);
        const int withoutPolling = model.rowCount();
        QVERIFY(withoutPolling >= 2);
        calls->findChild<QCheckBox*>("hidePolling")->setChecked(false);
        QVERIFY(model.rowCount() > withoutPolling);
        calls->findChild<QLineEdit*>("operation")->setText("inc_move");
        QCOMPARE(model.rowCount(), 1);

        // Export writes the rows shown; pause stops recording; clear empties the table.
        QTemporaryDir out;
        QVERIFY(calls->exportCsv(out.filePath("calls.csv")));
        QFile csv(out.filePath("calls.csv"));
        QVERIFY(csv.open(QIODevice::ReadOnly));
        const QList<QByteArray> lines = csv.readAll().split('\n');
        QCOMPARE(lines.size(), 3);
        QVERIFY(lines[1].endsWith(",RL,Inc_Move,0,1,distance=1500,0,Single Axis\r"));
        auto* pause = calls->findChild<QPushButton*>("pause");
        pause->click();
        const std::uint64_t paused = rig.trace.end();
        rig.board.Inc_Move(BoardFamily::RL, 0, 2, 10);
        QCOMPARE(rig.trace.end(), paused);
        pause->click();
        rig.board.Inc_Move(BoardFamily::RL, 0, 2, 20);
        calls->refresh();
        QCOMPARE(model.rowCount(), 2);
        calls->clear();
        QCOMPARE(model.rowCount(), 0);
    }
};

QTEST_MAIN(TestBoardCalls)
#include "tst_boardcalls.moc"
