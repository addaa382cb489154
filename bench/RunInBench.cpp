// An 8-hour run-in of the 8 axes of a simulated RM card, sampled every 10 ms as the Axis Test
// window samples it, with the simulated clock stepped by hand: how long the recorder takes
// and whether its memory stays flat (resident size after the first hour and at the end).
// samples.csv is streamed to a temporary folder as in a real run.
#include "AxisTestCsv.h"
#include "AxisTestRun.h"
#include "BoardApi.h"
#include "BoardLoader.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLibrary>
#include <QTemporaryDir>

#include <cstdio>
#include <fstream>
#include <string>

namespace {

// The resident set size now, in MiB (Linux); -1 where it cannot be read.
double residentMiB()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("VmRSS:", 0) == 0)
            return std::stod(line.substr(6)) / 1024.0;
    }
    return -1;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int hours = argc > 1 ? std::atoi(argv[1]) : 8;
    QTemporaryDir folder;
    BoardLoader loader{QStringLiteral(ORVANE_SIM_DIR)};
    QLibrary extras(QDir(QStringLiteral(ORVANE_SIM_DIR))
                        .filePath(BoardLoader::libraryFileName(BoardFamily::RM)));
    using Switch = nrx_i32 (*)(nrx_i32);
    auto setManualClock = reinterpret_cast<Switch>(extras.resolve("NRXSIM540L_SetManualClock"));
    auto advanceClock = reinterpret_cast<Switch>(extras.resolve("NRXSIM540L_AdvanceClock"));
    auto setDataFolder =
        reinterpret_cast<nrx_i32 (*)(const char*)>(extras.resolve("NRXSIM540L_SetDataFolder"));
    loader.loadAll();
    BoardApi api;
    api.setTable(BoardFamily::RM, loader.table(BoardFamily::RM));
    if (!setManualClock || !advanceClock || !setDataFolder || !api.hasLibrary(BoardFamily::RM)) {
        std::fprintf(stderr, "cannot load the simulated RM boards\n");
        return 2;
    }
    setManualClock(1);
    setDataFolder(QFile::encodeName(folder.path()).constData()); // the built-in 8-axis card
    if (api.LoadDevice(BoardFamily::RM) < 0) {
        std::fprintf(stderr, "LoadDevice failed\n");
        return 2;
    }

    AxisTestSettings settings;
    settings.kind = AxisTestKind::RunIn;
    settings.family = BoardFamily::RM;
    settings.axes = {0, 1, 2, 3, 4, 5, 6, 7};
    settings.points = {0, 20000};
    settings.dwellMs = 100;
    settings.cycles = 0;
    settings.durationS = hours * 3600;
    settings.servoOn = true;
    AxisTestCsv csv(folder.filePath(QStringLiteral("samples.csv")));
    AxisTestRun run(api, settings, csv);
    if (!run.start(0)) {
        std::fprintf(stderr, "refused: %s\n", qPrintable(run.fault()));
        return 2;
    }

    QElapsedTimer wall;
    wall.start();
    double afterFirstHour = -1;
    std::int64_t now = 0;
    while (run.running()) {
        advanceClock(10);
        now += 10;
        run.tick(now);
        if (now == 3600 * 1000)
            afterFirstHour = residentMiB();
    }
    const double seconds = wall.elapsed() / 1000.0;
    const std::int64_t samples = now / 10;
    std::printf("run-in recorder, 8 axes, %d simulated hour(s) sampled every 10 ms\n", hours);
    std::printf("  outcome          %s, %d cycles\n", AxisTestRun::outcomeKey(run.outcome()),
                run.done());
    std::printf("  wall time        %.1f s (%.2f us per 10 ms sample)\n", seconds,
                seconds * 1e6 / double(samples));
    std::printf("  resident memory  %.1f MiB after the first hour, %.1f MiB at the end\n",
                afterFirstHour, residentMiB());
    std::printf("  plotted points   %zu (each for %zu cycles)\n", run.cycleTimes().points().size(),
                run.cycleTimes().stride());
    std::printf("  samples.csv      %.1f MiB\n",
                QFileInfo(folder.filePath(QStringLiteral("samples.csv"))).size() / 1048576.0);
    return seconds < 60 ? 0 : 1;
}
