// Measures the UI-thread cost of the main frame's 10 ms MonitorTick with every pane open on
// the simulated boards, and the period the multi-axis window's 1 ms gantry check really gets
// while three axes jog; can save pictures of the frame and of the multi-axis window.
//
//   orvane_bench_frame [--boards largest|default] [--ticks N] [--screenshot file.png]
//                      [--multi-screenshots prefix]
//
// "largest" is 3 families x 8 cards x 8 axes; "default" is the simulator's built-in set. The
// simulator's files go to a temporary folder, so the build's own folder is left alone.

#include "AppState.h"
#include "BoardApi.h"
#include "BoardLoader.h"
#include "COV_MainFrame.h"
#include "COV_MnMtnWnd.h"
#include "COV_SnMtnWnd.h"
#include "MessageBoxPrompt.h"
#include "ToolWindowFactory.h"
#include "ToolWindowHost.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QLibrary>
#include <QLineEdit>
#include <QListWidget>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

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

void checkAxes(COV_MnMtnWnd& window, int count)
{
    auto* list = window.findChild<QListWidget*>(QStringLiteral("axisList"));
    for (int row = 0; row < count && row < list->count(); ++row)
        list->item(row)->setCheckState(Qt::Checked);
    window.onListWatch();
}

void chooseMotionType(COV_MnMtnWnd& window, MotionType type)
{
    auto* combo = window.findChild<QComboBox*>(QStringLiteral("motionType"));
    combo->setCurrentIndex(static_cast<int>(type));
    emit combo->activated(static_cast<int>(type));
}

// Jogs three axes with the gantry check on (a limit no jog reaches) and lets the event loop
// run the precise 1 ms timer for two seconds.
void measureGantryPeriod(COV_MainFrame& frame)
{
    frame.sendToFrame(UM_OPEN_TOOL, ToolMultiAxis);
    auto* window = static_cast<COV_MnMtnWnd*>(frame.toolWindows().view(ToolMultiAxis));
    if (window == nullptr)
        return;
    checkAxes(*window, 3);
    auto* limit = window->findChild<QLineEdit*>(QStringLiteral("errorLimit"));
    limit->setText(QStringLiteral("100000000"));
    emit limit->textEdited(limit->text());
    window->findChild<QCheckBox*>(QStringLiteral("gantryCheck"))->setChecked(true);
    window->sequencer().press(DirectionPlus);
    QEventLoop loop;
    QTimer::singleShot(2000, &loop, &QEventLoop::quit);
    loop.exec();
    window->sequencer().release();
    std::printf("gantry check: %lld periods in 2 s, mean %.3f ms, longest %.3f ms\n",
                static_cast<long long>(window->gantry().ticks()), window->gantry().meanPeriodMs(),
                window->gantry().longestPeriodMs());
    window->findChild<QCheckBox*>(QStringLiteral("gantryCheck"))->setChecked(false);
}

// The multi-axis window in the frame at 1366 x 768 with the panes: Jog, then Absolute with
// Repeat.
void saveMultiAxisScreenshots(COV_MainFrame& frame, const QString& prefix)
{
    frame.resize(1366, 768);
    frame.sendToFrame(UM_OPEN_TOOL, ToolMultiAxis);
    auto* window = static_cast<COV_MnMtnWnd*>(frame.toolWindows().view(ToolMultiAxis));
    if (window == nullptr)
        return;
    checkAxes(*window, 3);
    QApplication::processEvents();
    const bool jog = frame.grab().save(prefix + QStringLiteral("-jog.png"));
    chooseMotionType(*window, MotionType::Absolute);
    window->findChild<QCheckBox*>(QStringLiteral("repeat"))->click();
    QApplication::processEvents();
    const bool absolute = frame.grab().save(prefix + QStringLiteral("-absolute-repeat.png"));
    std::printf("multi-axis screenshots %s\n", jog && absolute ? "saved" : "NOT saved");
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
    options.addOption({"multi-screenshots", "save the multi-axis window as PNGs", "prefix"});
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
    MessageBoxPrompt prompt;
    ToolWindowFactory factory;
    factory.registerKind(ToolSingleAxis, [](const ToolContext& c, QWidget* p) -> ToolView* {
        return new COV_SnMtnWnd(c, p);
    });
    factory.registerKind(ToolMultiAxis, [](const ToolContext& c, QWidget* p) -> ToolView* {
        return new COV_MnMtnWnd(c, p);
    });

    COV_MainFrame frame(state, board, prompt, factory);
    if (!frame.create(loader.problems())) {
        std::fprintf(stderr, "no board could be loaded from %s\n", qPrintable(libraryFolder));
        return 1;
    }
    frame.monitorTimer().stop();
    frame.resize(1400, 900);
    frame.show();
    if (options.isSet("multi-screenshots")) {
        saveMultiAxisScreenshots(frame, options.value("multi-screenshots"));
        return 0;
    }
    if (!options.isSet("screenshot")) {
        frame.sendToFrame(UM_OPEN_TOOL, ToolSingleAxis);
        frame.sendToFrame(UM_OPEN_TOOL, ToolMultiAxis);
    }
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
    tickOnly.reserve(static_cast<std::size_t>(ticks));
    withPaint.reserve(static_cast<std::size_t>(ticks));
    QElapsedTimer clock;
    for (int i = 0; i < ticks; ++i) {
        clock.start();
        frame.MonitorTick();
        const qint64 afterTick = clock.nsecsElapsed();
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
    measureGantryPeriod(frame);

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
