#include "AppState.h"
#include "BoardApi.h"
#include "BoardFailureLog.h"
#include "COV_MainFrame.h"
#include "COV_SnMtnWnd.h"
#include "LogFile.h"
#include "OrvaneLog.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "ToolWindowHost.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>

namespace {
QStringList linesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList matching(const QStringList& lines, const QString& text)
{
    QStringList found;
    for (const QString& line : lines) {
        if (line.contains(text))
            found << line;
    }
    return found;
}
} // namespace

// The program's log file: what a refused board call and the stops write to it on the
// simulated boards, the rate limit on a call refused at every poll, and the file's rotation.
class TestProgramLog : public QObject
{
    Q_OBJECT

private slots:
    void refusedCallAndStops_loggedOnceEach()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("logs/orvane.log"));
        LogFile log(path);
        log.setEchoLevel(QtFatalMsg);
        log.install();

        AppState state;
        BoardCallTrace trace;
        BoardApi board;
        SimBoardsRig sim{board, state};
        ScriptedPrompt prompt;
        ToolWindowFactory factory;
        QVERIFY(sim.start(false, "[RL]\nCards=1\nFail.SetPosSpeed=-1\n[RL.Card0]\nAxes=4\n"));
        board.setTrace(&trace);
        state.moduleDirectory = sim.folder.path() + QLatin1Char('/');
        factory.registerKind(ToolSingleAxis, [](const ToolContext& c, QWidget* p) -> ToolView* {
            return new COV_SnMtnWnd(c, p);
        });
        COV_MainFrame frame(state, board, prompt, factory);
        QVERIFY(frame.create(sim.loader.problems()));
        frame.monitorTimer().stop();
        frame.show();
        state.active.axis = 1;

        // A relative move from the single-axis window: its speed call is refused.
        frame.openTool(ToolSingleAxis);
        auto* window = static_cast<COV_SnMtnWnd*>(frame.toolWindows().view(ToolSingleAxis));
        window->findChild<QTabBar*>("tabBar")->setCurrentIndex(int(MotionTab::PointToPoint));
        auto* type = window->findChild<QComboBox*>("motionType");
        type->setCurrentIndex(int(MotionType::Relative));
        emit type->activated(int(MotionType::Relative));
        window->findChild<QLineEdit*>("position2")->setText("1500");
        QTest::mouseClick(window->findChild<QPushButton*>("plusButton"), Qt::LeftButton);
        // The same call refused again and again, as a poll would, stays one line.
        for (int i = 0; i < 50; ++i)
            board.SetPosSpeed(BoardFamily::RL, 0, 1, 100, 10000, 100, 100);
        QTest::mouseClick(window->findChild<QPushButton*>("eStopButton"), Qt::LeftButton);
        frame.stopAllAction()->trigger();

        const QStringList lines = linesOf(path);
        const QStringList refused = matching(lines, QStringLiteral("Board call refused"));
        QCOMPARE(refused.size(), 1);
        QVERIFY(refused[0].contains(QRegularExpression(
            QStringLiteral("^\\d{4}-\\d\\d-\\d\\dT[\\d:.]+ warning orvane.board: "
                           "Board call refused: SetPosSpeed RL card 0 axis 1 .* "
                           "returned -1 \\(Single Axis\\)$"))));
        QCOMPARE(matching(lines, QStringLiteral("info orvane.motion: E-Stop pressed on RL card 0 "
                                                "axis 1"))
                     .size(),
                 1);
        QCOMPARE(
            matching(lines, QStringLiteral("info orvane.motion: Stop All Axes: 4 axes")).size(), 1);

        // Refusals held back are counted into the next line, once the interval has passed.
        BoardFailureLog failures;
        BoardCall call = trace.lastFailure();
        for (int i = 0; i < 4; ++i, call.timeUs += 1000)
            failures.note(call, board.callers());
        call.timeUs += BoardFailureLog::kIntervalUs;
        failures.note(call, board.callers());
        const QStringList counted = matching(linesOf(path), QStringLiteral("Board call refused"));
        QCOMPARE(counted.size(), 3);
        QVERIFY(counted[2].endsWith(QStringLiteral("- and 3 more time(s) since the last line")));
    }

    void fullFile_rollsOverKeepingTheNewest()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("orvane.log"));
        LogFile log(path, 300, 2);
        log.setEchoLevel(QtFatalMsg);
        log.install();
        for (int i = 0; i < 40; ++i)
            qCInfo(lcUi, "message %02d", i);

        QVERIFY(QFile::exists(path + QStringLiteral(".1")));
        QVERIFY(QFile::exists(path + QStringLiteral(".2")));
        QVERIFY(!QFile::exists(path + QStringLiteral(".3")));
        for (const QString& name : {path, path + ".1", path + ".2"})
            QVERIFY(QFileInfo(name).size() <= 300);
        QVERIFY(linesOf(path).last().endsWith(QStringLiteral("info orvane.ui: message 39")));
        // The files follow on from each other: .1 ends where the current one begins.
        const int first = linesOf(path).first().right(2).toInt();
        QVERIFY(linesOf(path + ".1")
                    .last()
                    .endsWith(QStringLiteral("message %1").arg(first - 1, 2, 10, QChar('0'))));
    }
};

QTEST_MAIN(TestProgramLog)
#include "tst_programlog.moc"
