// UI-thread cost of the scope while it records: 4 channels sampled every 2 ms from the
// simulated boards (loaded as Orvane loads them, on their manual clock, axes jogging) with a
// full 10 s ring, and the window redrawn every 30 ms (record, series, readout and the plot
// painted at its on-screen size). Figures are thread CPU time per 10 ms of recording; on a
// shared machine wall time mostly measures waiting for a core.
#include "AppState.h"
#include "BoardApi.h"
#include "BoardLoader.h"
#include "COV_ScopeWnd.h"
#include "FrameRelay.h"
#include "PlotWidget.h"
#include "PromptService.h"
#include "ScopeChannelTable.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLibrary>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdio>
#include <ctime>

namespace {

constexpr double BudgetMs = 1.0;
constexpr int PeriodMs = 2;
constexpr int DrawMs = COV_ScopeWnd::kDrawIntervalMs;
constexpr int MeasuredMs = 6000;

double threadCpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
}

struct NoPrompt : PromptService
{
    bool askYesNo(const QString&) override { return false; }
    void inform(const QString&) override {}
};
struct NoFrame : FrameRelay
{
    void sendToFrame(UserMessage, int) override {}
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    // One RL card of 4 axes whose limits are far enough for the whole run.
    QTemporaryDir folder;
    QFile boards(folder.filePath(QStringLiteral("NrxSimBoards.ini")));
    if (!boards.open(QIODevice::WriteOnly) ||
        boards.write("[RL]\nCards=1\n[RL.Card0]\nAxes=4\nIO=16\n[Axes]\nPlusLimit=1000000000\n"
                     "MinusLimit=-1000000000\n") < 0)
        return 2;
    boards.close();
    BoardLoader loader{QStringLiteral(ORVANE_SIM_DIR)};
    QLibrary extras(QDir(QStringLiteral(ORVANE_SIM_DIR))
                        .filePath(BoardLoader::libraryFileName(BoardFamily::RL)));
    using Switch = nrx_i32 (*)(nrx_i32);
    auto setManualClock = reinterpret_cast<Switch>(extras.resolve("NRXSIM520L_SetManualClock"));
    auto advanceClock = reinterpret_cast<Switch>(extras.resolve("NRXSIM520L_AdvanceClock"));
    auto setDataFolder =
        reinterpret_cast<nrx_i32 (*)(const char*)>(extras.resolve("NRXSIM520L_SetDataFolder"));
    loader.loadAll();
    BoardApi api;
    api.setTable(BoardFamily::RL, loader.table(BoardFamily::RL));
    if (!setManualClock || !advanceClock || !setDataFolder || !api.hasLibrary(BoardFamily::RL)) {
        std::fprintf(stderr, "cannot load the simulated RL boards\n");
        return 2;
    }
    setManualClock(1);
    setDataFolder(QFile::encodeName(folder.path()).constData());
    AppState state;
    state.registry.setLoadResult(BoardFamily::RL, api.LoadDevice(BoardFamily::RL));
    state.registry.setCardInfo(BoardFamily::RL, 0, 4, 0, 16);
    NoPrompt prompt;
    NoFrame frame;
    ToolContext context{state, api, prompt, frame};

    int nowMs = 0;
    COV_ScopeWnd scope(context);
    scope.setClock([&nowMs] { return double(nowMs); });
    scope.resize(860, 600);
    scope.show();
    for (int axis = 0; axis < 4; ++axis) {
        ScopeChannel channel;
        channel.enabled = true;
        channel.axis = axis;
        channel.signal = static_cast<ScopeChannel::Signal>(axis);
        scope.channels().setChannel(axis, channel);
        api.SetJogSpeed(BoardFamily::RL, 0, static_cast<AxisNo>(axis), 100, 4000 * (axis + 1), 300);
        api.Jog_Move(BoardFamily::RL, 0, static_cast<AxisNo>(axis), 1);
    }
    scope.run();
    QImage image(scope.plot().size(), QImage::Format_ARGB32_Premultiplied);
    double sampling = 0.0;
    double drawing = 0.0;
    int draws = 0;
    // The first 10 s fill the ring; the rest is measured.
    const int totalMs = scope.recorder().settings().lengthMs + MeasuredMs;
    for (int ms = 1; ms <= totalMs; ++ms) {
        advanceClock(1);
        nowMs = ms;
        const bool measured = ms > totalMs - MeasuredMs;
        if (ms % PeriodMs == 0) {
            const double start = threadCpuMs();
            scope.sampleTick();
            sampling += measured ? threadCpuMs() - start : 0.0;
        }
        if (ms % DrawMs == 0 && measured) {
            const double start = threadCpuMs();
            scope.refreshPlot();
            QPainter painter(&image);
            scope.plot().paintPlot(painter, image.rect());
            painter.end();
            drawing += threadCpuMs() - start;
            ++draws;
        }
    }
    const double per10 = (sampling + drawing) / (MeasuredMs / 10.0);
    std::printf("scope, 4 channels every %d ms, %d points each, drawn every %d ms at %dx%d: "
                "sampling %.3f ms + drawing %.3f ms (%.3f ms per draw) per 10 ms = %.3f ms "
                "cpu per 10 ms (budget %.1f ms)\n",
                PeriodMs, scope.shown().sampleCount(), DrawMs, image.width(), image.height(),
                sampling / (MeasuredMs / 10.0), drawing / (MeasuredMs / 10.0), drawing / draws,
                per10, BudgetMs);
    if (argc > 1)
        scope.grab().save(QString::fromLocal8Bit(argv[1]));
    for (int axis = 0; axis < 4; ++axis)
        api.Sudden_Stop(BoardFamily::RL, 0, static_cast<AxisNo>(axis));
    api.UnloadDevice(BoardFamily::RL);
    return per10 < BudgetMs ? 0 : 1;
}
