// Measures the UI-thread cost of the main frame's 10 ms MonitorTick with every pane open on
// the simulated boards, and can save a picture of the frame.
//
//   orvane_bench_frame [--boards largest|default] [--ticks N] [--screenshot file.png]
//                      [--show-polling]
//
// The board call trace records as in the program, and the Board Calls window is open; its own
// 10 ms tick is timed apart (--show-polling: with the polling reads listed, every call a row).
// "largest" is 3 families x 8 cards x 8 axes; "default" is the simulator's built-in set. The
// simulator's files go to a temporary folder, so the build's own folder is left alone.

#include "AppState.h"
#include "BoardApi.h"
#include "BoardCallClock.h"
#include "BoardLoader.h"
#include "COV_BoardCallWnd.h"
#include "COV_MainFrame.h"
#include "COV_SnMtnWnd.h"
#include "MessageBoxPrompt.h"
#include "ToolWindowFactory.h"
#include "ToolWindowHost.h"

#include <QApplication>
#include <QCheckBox>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLibrary>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

const char* const kExtrasPrefixes[kFamilyCount] = {"NRXSIM520L_", "NRXSIM540L_", "NRXSIM590L_"};

void writeLargestBoards(const QString& folder)
{
    QFile file(folder + QStringLiteral("/NrxSimBoards.ini"));
    if (!file.open(QIODevice::WriteOnly))
        return;
    QByteArray text;
    for (BoardFamily family : kAllFamilies) {
        const QByteArray name = familyShortName(family);
        text += "[" + name + "]\nCards=8\n";
        for (int card = 0; card < kMaxCards; ++card)
            text += "[" + name + ".Card" + QByteArray::number(card) + "]\nAxes=8\nIO=64\n";
    }
    file.write(text);
}

// Points each simulated library at the folder before its LoadDevice.
void useDataFolder(const QString& libraryFolder, const QString& dataFolder)
{
    using SetDataFolder = nrx_i32 (*)(const char*);
    const QByteArray folder = QFile::encodeName(dataFolder);
    for (BoardFamily family : kAllFamilies) {
        QLibrary library(libraryFolder + BoardLoader::libraryFileName(family));
        const QByteArray name = QByteArray(kExtrasPrefixes[familyIndex(family)]) + "SetDataFolder";
        if (auto set = reinterpret_cast<SetDataFolder>(library.resolve(name.constData())))
            set(folder.constData());
    }
}

// Jogs every axis of the active card so positions and status words change on every tick.
void jogActiveCard(AppState& state, BoardApi& board)
{
    const BoardFamily family = state.active.family;
    const auto card = static_cast<CardNo>(state.active.card);
    for (int axis = 0; axis < state.activeAxisCount(); ++axis) {
        const auto a = static_cast<AxisNo>(axis);
        board.SetJogSpeed(family, card, a, 100, 2000 + 500 * axis, 200);
        board.Jog_Move(family, card, a, static_cast<nrx_u16>(axis % 2));
    }
}

double percentile(std::vector<double> values, double share)
{
    std::sort(values.begin(), values.end());
    const auto at = static_cast<std::size_t>(share * static_cast<double>(values.size() - 1));
    return values[at];
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qtApp(argc, argv);
    QCommandLineParser options;
    options.addOption({"boards", "largest or default", "set", "largest"});
    options.addOption({"ticks", "ticks to time", "count", "2000"});
    options.addOption({"screenshot", "save the frame as a PNG", "file"});
    options.addOption({"show-polling", "list the polling reads in the Board Calls window"});
    options.process(qtApp);

    QTemporaryDir data;
    if (options.value("boards") == QLatin1String("largest"))
        writeLargestBoards(data.path());
    const QString libraryFolder = QCoreApplication::applicationDirPath() + QLatin1Char('/');
    BoardLoader loader(libraryFolder);
    loader.loadAll();
    useDataFolder(libraryFolder, data.path());

    AppState state;
    state.moduleDirectory = data.path() + QLatin1Char('/');
    BoardApi board;
    for (BoardFamily family : kAllFamilies)
        board.setTable(family, loader.table(family));
    BoardCallTrace trace;
    board.setTrace(&trace);
    BoardCallClock traceClock(trace);
    qtApp.installEventFilter(&traceClock);
    MessageBoxPrompt prompt;
    ToolWindowFactory factory;
    factory.registerKind(ToolSingleAxis, [](const ToolContext& c, QWidget* p) -> ToolView* {
        return new COV_SnMtnWnd(c, p);
    });
    factory.registerKind(ToolBoardCalls, [](const ToolContext& c, QWidget* p) -> ToolView* {
        return new COV_BoardCallWnd(c, p);
    });

    COV_MainFrame frame(state, board, prompt, factory);
    if (!frame.create(loader.problems())) {
        std::fprintf(stderr, "no board could be loaded from %s\n", qPrintable(libraryFolder));
        return 1;
    }
    frame.monitorTimer().stop();
    frame.resize(1400, 900);
    frame.show();
    if (!options.isSet("screenshot")) {
        frame.sendToFrame(UM_OPEN_TOOL, ToolSingleAxis);
        frame.sendToFrame(UM_OPEN_TOOL, ToolBoardCalls);
    }
    auto* calls = static_cast<COV_BoardCallWnd*>(frame.toolWindows().view(ToolBoardCalls));
    if (calls && options.isSet("show-polling"))
        calls->findChild<QCheckBox*>(QStringLiteral("hidePolling"))->setChecked(false);
    QApplication::processEvents();
    jogActiveCard(state, board);

    int cards = 0;
    for (BoardFamily family : kAllFamilies)
        cards += state.registry.cardCount(family);
    std::printf("boards: %d cards, active %s card %d with %d axes\n", cards,
                familyDisplayName(state.active.family), state.active.card, state.activeAxisCount());

    const int ticks = options.value("ticks").toInt();
    std::vector<double> tickOnly;
    std::vector<double> withPaint;
    std::vector<double> callsTick;
    tickOnly.reserve(static_cast<std::size_t>(ticks));
    withPaint.reserve(static_cast<std::size_t>(ticks));
    QElapsedTimer clock;
    const std::uint64_t recordedBefore = trace.end();
    for (int i = 0; i < ticks; ++i) {
        clock.start();
        frame.MonitorTick();
        const qint64 afterTick = clock.nsecsElapsed();
        if (calls) {
            clock.start();
            calls->tick();
            callsTick.push_back(static_cast<double>(clock.nsecsElapsed()) / 1000.0);
        }
        QApplication::processEvents(); // the repaints the tick asked for
        const qint64 afterPaint = clock.nsecsElapsed();
        tickOnly.push_back(static_cast<double>(afterTick) / 1000.0);
        withPaint.push_back(static_cast<double>(afterPaint) / 1000.0);
        // Let the simulated axes move on between ticks, so every tick shows new values.
        QThread::msleep(1);
    }
    auto report = [&](const char* what, const std::vector<double>& values) {
        double sum = 0;
        for (double value : values)
            sum += value;
        std::printf("%-32s mean %7.1f us  median %7.1f us  p99 %7.1f us  max %7.1f us\n", what,
                    sum / static_cast<double>(values.size()), percentile(values, 0.5),
                    percentile(values, 0.99), percentile(values, 1.0));
    };
    std::printf("MonitorTick over %d ticks, every pane open:\n", ticks);
    report("  tick (board reads, widgets)", tickOnly);
    report("  tick and its repaints", withPaint);
    const double recordedPerTick = static_cast<double>(trace.end() - recordedBefore) / ticks;
    // The trace's share of the tick: ticks with it off and on, alternating so that a busy
    // machine weighs on both alike.
    std::vector<double> traced[2];
    for (int i = 0; i < ticks; ++i) {
        const int on = i % 2;
        board.setTrace(on ? &trace : nullptr);
        QApplication::processEvents();
        clock.start();
        frame.MonitorTick();
        traced[on].push_back(static_cast<double>(clock.nsecsElapsed()) / 1000.0);
        QThread::msleep(1);
    }
    board.setTrace(&trace);
    report("  tick, trace off", traced[0]);
    report("  tick, trace on", traced[1]);
    if (calls) {
        std::printf("Board Calls window (%s), %.1f calls recorded per tick:\n",
                    options.isSet("show-polling") ? "polling reads shown" : "polling reads hidden",
                    recordedPerTick);
        report("  its own tick", callsTick);
    }

    if (options.isSet("screenshot")) {
        frame.sendToFrame(UM_OPEN_TOOL, ToolSingleAxis);
        QThread::msleep(300);
        frame.MonitorTick();
        QApplication::processEvents();
        const bool saved = frame.grab().save(options.value("screenshot"));
        std::printf("screenshot %s %s\n", qPrintable(options.value("screenshot")),
                    saved ? "saved" : "NOT saved");
    }
    return 0;
}
