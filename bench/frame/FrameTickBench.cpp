// Measures the UI-thread cost of one 10 ms refresh of the whole program: the main frame's
// MonitorTick and the 10 ms poll of every tool window, with every tool-window kind open and
// the board call trace recording, on the simulated boards.
//
//   orvane_bench_frame [--boards largest|default] [--ticks N] [--size WxH]
//                      [--screenshot file.png] [--units]
//
// It reports, in one run:
//   - the mean and p99 cost of a refresh with the repaints it causes while every axis of the
//     shown card moves;
//   - the number of widget repaints over 100 refreshes while nothing moves (0 is the target:
//     a lamp, cell or field that did not change is not repainted);
//   - the period the multi-axis window's 1 ms gantry check really gets while axes jog.
// --units shows every axis in user units (2777.777 pulses/mm, 3 decimals) as Setup > "Show
// User Units" would. "largest" is 3 families x 8 cards x 8 axes; "default" is the simulator's
// built-in set. The simulator's files go to a temporary folder, so the build's own folder is left
// alone.

#include "AppState.h"
#include "BoardApi.h"
#include "BoardCallClock.h"
#include "BoardLoader.h"
#include "COV_MainFrame.h"
#include "COV_MnMtnWnd.h"
#include "MessageBoxPrompt.h"
#include "ToolView.h"
#include "ToolWindowFactory.h"
#include "ToolWindowHost.h"
#include "ToolWindowKinds.h"

#include <QApplication>
#include <QCheckBox>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QLibrary>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <map>
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
void jogActiveCard(const AppState& state, BoardApi& board)
{
    const BoardFamily family = state.active.family;
    const auto card = static_cast<CardNo>(state.active.card);
    for (int axis = 0; axis < state.activeAxisCount(); ++axis) {
        const auto a = static_cast<AxisNo>(axis);
        board.SetJogSpeed(family, card, a, 100, 2000 + 500 * axis, 200);
        board.Jog_Move(family, card, a, static_cast<nrx_u16>(axis % 2));
    }
}

// A scale that is not a whole number of pulses, on every axis of every card.
void showUserUnits(AppState& state)
{
    for (BoardFamily family : kAllFamilies)
        for (int card = 0; card < state.registry.cardCount(family); ++card)
            for (int axis = 0; axis < state.registry.axisCount(family, card); ++axis)
                state.units.setScale(family, card, axis,
                                     AxisUnitScale(QStringLiteral("mm"), 2777.777, 3));
    state.units.setShown(true);
}

void stopActiveCard(const AppState& state, BoardApi& board)
{
    for (int axis = 0; axis < state.activeAxisCount(); ++axis)
        board.Sudden_Stop(state.active.family, static_cast<CardNo>(state.active.card),
                          static_cast<AxisNo>(axis));
}

// Counts every paint event of the program, by widget class, to name what repainted at rest.
class PaintCount : public QObject
{
public:
    int paints = 0;
    std::map<QByteArray, int> byClass;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            ++paints;
            ++byClass[watched->metaObject()->className()];
        }
        return QObject::eventFilter(watched, event);
    }
    void reset()
    {
        paints = 0;
        byClass.clear();
    }
};

// The 10 ms polls of the open tool windows, taken off their timers so that the benchmark fires
// each exactly once per refresh, as the event loop would.
std::vector<QTimer*> takePollTimers(const ToolWindowHost& host)
{
    std::vector<QTimer*> polls;
    for (ToolView* view : host.openViews()) {
        if (QTimer* timer = view->pollTimer()) {
            timer->stop();
            polls.push_back(timer);
        }
    }
    return polls;
}

void refresh(COV_MainFrame& frame, const std::vector<QTimer*>& polls)
{
    frame.MonitorTick();
    for (QTimer* timer : polls)
        QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
}

double percentile(std::vector<double> values, double p)
{
    std::sort(values.begin(), values.end());
    const auto index = static_cast<std::size_t>(p * static_cast<double>(values.size() - 1));
    return values[index];
}

void report(const char* what, const std::vector<double>& values)
{
    double sum = 0;
    for (double value : values)
        sum += value;
    std::printf("%-36s mean %7.1f us  median %7.1f us  p99 %7.1f us  max %7.1f us\n", what,
                sum / static_cast<double>(values.size()), percentile(values, 0.5),
                percentile(values, 0.99), percentile(values, 1.0));
}

// Jogs three axes with the gantry check on (a limit no jog reaches) and lets the event loop
// run the precise 1 ms timer for two seconds.
void measureGantryPeriod(COV_MainFrame& frame)
{
    auto* window = static_cast<COV_MnMtnWnd*>(frame.toolWindows().view(ToolMultiAxis));
    if (window == nullptr)
        return;
    auto* list = window->findChild<QListWidget*>(QStringLiteral("axisList"));
    for (int row = 0; row < 3 && row < list->count(); ++row)
        list->item(row)->setCheckState(Qt::Checked);
    window->onListWatch();
    auto* limit = window->findChild<QLineEdit*>(QStringLiteral("errorLimit"));
    limit->setText(QStringLiteral("100000000"));
    emit limit->textEdited(limit->text());
    auto* check = window->findChild<QCheckBox*>(QStringLiteral("gantryCheck"));
    check->setChecked(true);
    window->sequencer().press(DirectionPlus);
    QEventLoop loop;
    QTimer::singleShot(2000, &loop, &QEventLoop::quit);
    loop.exec();
    window->sequencer().release();
    std::printf("gantry check: %lld periods in 2 s, mean %.3f ms, longest %.3f ms\n",
                static_cast<long long>(window->gantry().ticks()), window->gantry().meanPeriodMs(),
                window->gantry().longestPeriodMs());
    check->setChecked(false);
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qtApp(argc, argv);
    QCommandLineParser options;
    options.addOption({"boards", "largest or default", "set", "largest"});
    options.addOption({"ticks", "refreshes to time while axes move", "count", "2000"});
    options.addOption({"size", "the frame's size", "WxH", "1400x900"});
    options.addOption({"screenshot", "save the frame with every window open as a PNG", "file"});
    options.addOption({"units", "show every axis in user units"});
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
    // The trace records as in the program.
    BoardCallTrace trace;
    board.setTrace(&trace);
    BoardCallClock traceClock(trace);
    qtApp.installEventFilter(&traceClock);
    MessageBoxPrompt prompt;
    ToolWindowFactory factory;
    registerToolWindows(factory);

    COV_MainFrame frame(state, board, prompt, factory);
    if (!frame.create(loader.problems())) {
        std::fprintf(stderr, "no board could be loaded from %s\n", qPrintable(libraryFolder));
        return 1;
    }
    frame.monitorTimer().stop();
    if (options.isSet("units"))
        showUserUnits(state);
    const QStringList size = options.value("size").split(QLatin1Char('x'));
    frame.resize(size.value(0).toInt(), size.value(1).toInt());
    frame.show();
    for (const ToolWindowKind& entry : toolWindowKinds())
        frame.sendToFrame(UM_OPEN_TOOL, entry.kind);
    QApplication::processEvents();
    const std::vector<QTimer*> polls = takePollTimers(frame.toolWindows());

    int cards = 0;
    for (BoardFamily family : kAllFamilies)
        cards += state.registry.cardCount(family);
    std::printf("boards: %d cards, active %s card %d with %d axes; %zu tool windows open, "
                "%zu with a 10 ms poll\n",
                cards, familyDisplayName(state.active.family), state.active.card,
                state.activeAxisCount(), frame.toolWindows().openViews().size(), polls.size());

    // Moving: every axis of the shown card jogs, so every tick has new values to show.
    jogActiveCard(state, board);
    const int ticks = options.value("ticks").toInt();
    std::vector<double> tickOnly;
    std::vector<double> withPaint;
    QElapsedTimer clock;
    for (int i = 0; i < ticks; ++i) {
        clock.start();
        refresh(frame, polls);
        const qint64 afterTick = clock.nsecsElapsed();
        QApplication::processEvents(); // the repaints the refresh asked for
        tickOnly.push_back(static_cast<double>(afterTick) / 1000.0);
        withPaint.push_back(static_cast<double>(clock.nsecsElapsed()) / 1000.0);
        // Let the simulated axes move on between ticks.
        QThread::msleep(1);
    }
    std::printf("one 10 ms refresh (frame + every tool window) over %d ticks, axes moving:\n",
                ticks);
    report("  refresh (board reads, widgets)", tickOnly);
    report("  refresh and its repaints", withPaint);

    // At rest: once the axes have stopped and everything shows their last values, 100
    // refreshes must not repaint anything.
    stopActiveCard(state, board);
    frame.setFocus();
    for (int i = 0; i < 100; ++i) {
        refresh(frame, polls);
        QApplication::processEvents();
        QThread::msleep(1);
    }
    PaintCount paints;
    qtApp.installEventFilter(&paints);
    for (int i = 0; i < 100; ++i) {
        refresh(frame, polls);
        QApplication::processEvents();
    }
    qtApp.removeEventFilter(&paints);
    std::printf("repaints over 100 refreshes at rest: %d", paints.paints);
    for (const auto& [name, count] : paints.byClass)
        std::printf("  %s:%d", name.constData(), count);
    std::printf("\n");

    measureGantryPeriod(frame);

    if (options.isSet("screenshot")) {
        jogActiveCard(state, board);
        QThread::msleep(300);
        refresh(frame, polls);
        QApplication::processEvents();
        const bool saved = frame.grab().save(options.value("screenshot"));
        std::printf("screenshot %s %s\n", qPrintable(options.value("screenshot")),
                    saved ? "saved" : "NOT saved");
    }
    return 0;
}
