#include "AxisTestCommandLine.h"

#include "AxisTestCsv.h"
#include "AxisTestReport.h"
#include "AxisTestRun.h"
#include "AxisUnits.h"
#include "CardRegistry.h"
#include "CommandLineStart.h"
#include "HeadlessBoards.h"
#include "ParameterCommandLine.h"
#include "ParameterSet.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QTextStream>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <map>
#include <thread>

#ifdef Q_OS_WIN
#include <io.h>
#define isatty _isatty
#define fileno _fileno
#else
#include <unistd.h>
#endif

namespace {

volatile std::sig_atomic_t interrupted = 0;

void onInterrupt(int)
{
    interrupted = 1;
}

// A whole number argument, within bounds.
bool wholeNumber(const QString& text, long long low, long long high, long long& value)
{
    bool ok = false;
    value = text.toLongLong(&ok);
    return ok && value >= low && value <= high;
}

QString progressLine(const AxisTestRun& run)
{
    const auto seconds = [](std::int64_t ms) { return QString::number(ms / 1000.0, 'f', 1); };
    QString line = run.planned() > 0 ? QStringLiteral("%1 of %2").arg(run.done()).arg(run.planned())
                                     : QStringLiteral("%1 cycles").arg(run.done());
    line += QStringLiteral(", %1 s").arg(seconds(run.elapsedMs()));
    if (run.timeLeftMs() >= 0)
        line += QStringLiteral(", %1 s left").arg(seconds(run.timeLeftMs()));
    if (run.settings().kind == AxisTestKind::RunIn)
        line += QStringLiteral(", worst following error %1").arg(run.worstFollowingError());
    return line;
}

} // namespace

AxisTestCommandLine::AxisTestCommandLine(BoardApi& board, const CardRegistry& registry,
                                         QTextStream& out, QTextStream& err)
    : m_board(board), m_registry(registry), m_out(out), m_err(err)
{}

QString AxisTestCommandLine::usage()
{
    return QStringLiteral(
        "Usage: orvane test TEST AXIS [OPTIONS]\n"
        "Prove an axis on the boards, without a window. AXIS is written RL:0:1 (family,\n"
        "card, axis).\n"
        "\n"
        "  home AXIS [--runs N] [--away P] [--tolerance P]\n"
        "      N home searches (10), each followed by a move away by P pulses (10000);\n"
        "      passes when the completed positions lie within the tolerance.\n"
        "  positioning AXIS --from P --to P [--targets M] [--runs N] [--overrun P]\n"
        "              [--dwell MS] [--tolerance P]\n"
        "      ISO 230-2 bidirectional test: M targets (5) over the travel, each approached\n"
        "      N times (5) from each side past an overrun (1000) with a dwell (500 ms);\n"
        "      passes when the accuracy A is within the tolerance.\n"
        "  runin AXIS[,AXIS...] --between P,P [--cycles N | --duration SECONDS]\n"
        "        [--dwell MS] [--tolerance P] [--keep-going]\n"
        "      Absolute moves between two points on axes of one card, N cycles (10) or for\n"
        "      a duration; ends at the first fault unless --keep-going; a tolerance is the\n"
        "      largest following error allowed.\n"
        "\n"
        "Every test: --speed PPS (drive speed of its moves; default the axis's positioning\n"
        "profile), --servo-on (switch the servo on first; otherwise a servo that is off\n"
        "refuses the start), --out DIR (default a new dated folder here) for report.html,\n"
        "samples.csv and summary.json, --units (the figures also in the axis's unit, from\n"
        "the scales in ZelbrinOrvane.ini beside the program). Ctrl+C stops the axes and\n"
        "writes a partial report.\n"
        "\n"
        "Exit codes: 0 passed, 1 failed (tolerance, fault or stopped), 2 bad input or a\n"
        "refused start.\n");
}

bool AxisTestCommandLine::isCommand(int argc, char** argv)
{
    return argc >= 2 && std::strcmp(argv[1], "test") == 0;
}

std::optional<AxisTestSettings> AxisTestCommandLine::parse(const QStringList& arguments,
                                                           QString* folder, QString* error,
                                                           bool* units)
{
    const auto fail = [error](const QString& text) {
        *error = text;
        return std::nullopt;
    };
    AxisTestSettings settings;
    const QString kind = arguments.value(0);
    if (kind == QLatin1String("home"))
        settings.kind = AxisTestKind::Home;
    else if (kind == QLatin1String("positioning"))
        settings.kind = AxisTestKind::Positioning;
    else if (kind == QLatin1String("runin"))
        settings.kind = AxisTestKind::RunIn;
    else
        return fail(QStringLiteral("unknown test \"%1\"").arg(kind));
    if (settings.kind == AxisTestKind::Home)
        settings.runs = 10;
    else
        settings.runs = 5;

    static const QStringList valued = {
        "--runs",    "--away",  "--tolerance", "--out",    "--from",     "--to",   "--targets",
        "--overrun", "--dwell", "--between",   "--cycles", "--duration", "--speed"};
    std::map<QString, QString> options;
    QStringList positional;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& a = arguments[i];
        if (a == QLatin1String("--servo-on"))
            settings.servoOn = true;
        else if (a == QLatin1String("--keep-going"))
            settings.stopAtFault = false;
        else if (a == QLatin1String("--units") && units != nullptr)
            *units = true;
        else if (valued.contains(a) && i + 1 < arguments.size())
            options[a] = arguments[++i];
        else if (a.startsWith(QLatin1String("--")))
            return fail(QStringLiteral("unknown option or missing value: %1").arg(a));
        else
            positional << a;
    }
    if (positional.size() != 1)
        return fail(QStringLiteral("name one AXIS (or, for runin, a list of axes)"));

    settings.axes.clear();
    for (const QString& text : positional.front().split(QLatin1Char(','))) {
        const auto scope = ParameterScope::parse(text);
        if (!scope || scope->card < 0 || scope->axis < 0)
            return fail(QStringLiteral("\"%1\" is no axis; write it as RL:0:1").arg(text));
        if (!settings.axes.empty() &&
            (*scope->family != settings.family || scope->card != settings.card))
            return fail(QStringLiteral("the axes of a run-in must be on one card"));
        settings.family = *scope->family;
        settings.card = static_cast<CardNo>(scope->card);
        settings.axes.push_back(static_cast<AxisNo>(scope->axis));
    }

    const auto number = [&](const char* name, long long low, long long high, auto& into) {
        const auto it = options.find(QLatin1String(name));
        if (it == options.end())
            return true;
        long long value = 0;
        if (!wholeNumber(it->second, low, high, value)) {
            *error = QStringLiteral("%1 takes a whole number from %2 to %3, not \"%4\"")
                         .arg(QLatin1String(name))
                         .arg(low)
                         .arg(high)
                         .arg(it->second);
            return false;
        }
        into = static_cast<std::remove_reference_t<decltype(into)>>(value);
        return true;
    };
    constexpr long long kMax = 2147483647LL;
    if (!number("--runs", 1, 10000, settings.runs) ||
        !number("--away", -kMax, kMax, settings.away) ||
        !number("--from", -kMax, kMax, settings.from) ||
        !number("--to", -kMax, kMax, settings.to) ||
        !number("--targets", 2, 1000, settings.targets) ||
        !number("--overrun", 0, kMax, settings.overrun) ||
        !number("--dwell", 0, 600000, settings.dwellMs) ||
        !number("--cycles", 1, kMax, settings.cycles) ||
        !number("--duration", 1, 10LL * 24 * 3600, settings.durationS) ||
        !number("--speed", 1, kMax, settings.speed))
        return std::nullopt;
    if (options.count(QStringLiteral("--tolerance"))) {
        bool ok = false;
        settings.tolerance = options[QStringLiteral("--tolerance")].toDouble(&ok);
        if (!ok || settings.tolerance < 0)
            return fail(QStringLiteral("--tolerance takes a number of pulses, 0 or more"));
    }

    if (settings.kind == AxisTestKind::Positioning &&
        (!options.count(QStringLiteral("--from")) || !options.count(QStringLiteral("--to"))))
        return fail(QStringLiteral("positioning needs --from and --to"));
    if (settings.kind == AxisTestKind::RunIn) {
        const QStringList between =
            options[QStringLiteral("--between")].split(QLatin1Char(','), Qt::SkipEmptyParts);
        long long a = 0, b = 0;
        if (between.size() != 2 || !wholeNumber(between[0], -kMax, kMax, a) ||
            !wholeNumber(between[1], -kMax, kMax, b))
            return fail(QStringLiteral("runin needs --between P,P (two positions in pulses)"));
        settings.pattern = RunInPattern::Absolute;
        settings.points = {static_cast<std::int32_t>(a), static_cast<std::int32_t>(b)};
        if (options.count(QStringLiteral("--duration"))) {
            if (options.count(QStringLiteral("--cycles")))
                return fail(QStringLiteral("give --cycles or --duration, not both"));
            settings.cycles = 0;
        }
    } else if (settings.axes.size() != 1) {
        return fail(QStringLiteral("only runin tests several axes"));
    }

    *folder =
        options.count(QStringLiteral("--out"))
            ? options[QStringLiteral("--out")]
            : QStringLiteral("axistest-%1-%2")
                  .arg(kind,
                       QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss")));
    return settings;
}

bool AxisTestCommandLine::axisExists(const AxisTestSettings& settings) const
{
    if (settings.card >= m_registry.cardCount(settings.family))
        return false;
    const int axes = m_registry.axisCount(settings.family, settings.card);
    for (const AxisNo axis : settings.axes) {
        if (axis >= axes)
            return false;
    }
    return true;
}

int AxisTestCommandLine::run(const QStringList& arguments)
{
    QString folder;
    QString error;
    bool units = false;
    const auto settings = parse(arguments, &folder, &error, &units);
    if (!settings) {
        m_err << "orvane test: " << error << "\n" << usage();
        m_err.flush();
        return BadInput;
    }
    if (!axisExists(*settings)) {
        m_err << "orvane test: the PC has no such axis: " << arguments.value(1) << Qt::endl;
        return BadInput;
    }
    if (!QDir().mkpath(folder)) {
        m_err << "orvane test: cannot create the folder " << folder << Qt::endl;
        return BadInput;
    }
    AxisTestCsv csv(QDir(folder).filePath(QStringLiteral("samples.csv")));
    if (!csv.isOpen()) {
        m_err << "orvane test: cannot write samples.csv: " << csv.errorString() << Qt::endl;
        return BadInput;
    }
    const QDateTime started = QDateTime::currentDateTime();
    AxisTestFacts facts = AxisTestFacts::read(m_board, m_registry, settings->family, settings->card,
                                              settings->axes.front());
    AxisUnitScale scale;
    if (units) {
        scale = AxisUnits::read(m_settingsFile)
                    .scale(settings->family, settings->card, settings->axes.front());
        if (!scale.isSet())
            m_err << "orvane test: the axis has no unit scale in " << m_settingsFile
                  << "; the figures are in pulses only" << Qt::endl;
    }
    AxisTestRun run(m_board, *settings, csv);
    QElapsedTimer clock;
    clock.start();
    if (!run.start(0)) {
        m_err << "orvane test: refused: " << run.fault() << Qt::endl;
        return BadInput;
    }

    interrupted = 0;
    const auto previous = std::signal(SIGINT, onInterrupt);
    const bool terminal = isatty(fileno(stdout)) != 0;
    std::int64_t lastPrinted = -1000;
    int lastDone = -1;
    while (run.running()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
        run.tick(clock.elapsed());
        if (interrupted != 0)
            run.stop(QStringLiteral("interrupted"));
        // A bar redrawn in place on a terminal; otherwise a line per second at most.
        const std::int64_t now = clock.elapsed();
        if (terminal && now - lastPrinted >= 200) {
            const int width = 30;
            const int filled = run.planned() > 0 ? width * run.done() / run.planned() : 0;
            m_out << "\r[" << QString(filled, QLatin1Char('#'))
                  << QString(width - filled, QLatin1Char('.')) << "] " << progressLine(run)
                  << "   ";
            m_out.flush();
            lastPrinted = now;
        } else if (!terminal && run.done() != lastDone && now - lastPrinted >= 1000) {
            m_out << progressLine(run) << "\n";
            m_out.flush();
            lastPrinted = now;
            lastDone = run.done();
        }
    }
    std::signal(SIGINT, previous);
    if (terminal)
        m_out << "\n";

    const AxisTestReport report(run, std::move(facts), started, scale);
    if (!report.write(folder, &error))
        m_err << "orvane test: " << error << Qt::endl;
    m_out << AxisTestRun::outcomeKey(run.outcome());
    if (!run.fault().isEmpty())
        m_out << ": " << run.fault();
    m_out << "\nReport: " << QDir(folder).absoluteFilePath(QStringLiteral("report.html")) << "\n";
    m_out.flush();
    return run.outcome() == AxisTestRun::Outcome::Passed ? Passed : Failed;
}

int AxisTestCommandLine::main(int argc, char** argv)
{
    // The report's plots are drawn with the program's widgets, which need a platform even
    // where there is no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    CommandLineStart start;
    int exit = Passed;
    if (start.printedUsage(usage(), BadInput, &exit))
        return exit;
    HeadlessBoards boards(start.err);
    if (!boards.load())
        return BadInput;
    AxisTestCommandLine command(boards.api(), boards.registry(), start.out, start.err);
    command.setSettingsFile(ParameterCommandLine::settingsFilePath());
    return command.run(start.arguments());
}
