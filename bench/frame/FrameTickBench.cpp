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
#include "COV_AxStMonWnd.h"
#include "COV_DIoWnd.h"
#include "COV_MainFrame.h"
#include "COV_MnMtnWnd.h"
#include "COV_SnMtnWnd.h"
#include "COV_SysDbgWnd.h"
#include "COV_SysIoWnd.h"
#include "MessageBoxPrompt.h"
#include "ToolWindowFactory.h"
#include "ToolWindowHost.h"
#include "ToolWindowKinds.h"

#include <QAbstractButton>
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
#include <QMdiSubWindow>
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

// Counts the paint events of the widgets it watches.
class PaintCount : public QObject
{
public:
    int paints = 0;
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            ++paints;
        return QObject::eventFilter(watched, event);
    }
};
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
    options.addOption({"size", "the frame's size", "WxH", "1400x900"});
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
    registerToolWindows(factory);

    COV_MainFrame frame(state, board, prompt, factory);
    if (!frame.create(loader.problems())) {
        std::fprintf(stderr, "no board could be loaded from %s\n", qPrintable(libraryFolder));
        return 1;
    }
    frame.monitorTimer().stop();
    const QStringList size = options.value("size").split(QLatin1Char('x'));
    frame.resize(size.value(0).toInt(), size.value(1).toInt());
    frame.show();
    if (options.isSet("multi-screenshots")) {
        saveMultiAxisScreenshots(frame, options.value("multi-screenshots"));
        return 0;
    }
    if (!options.isSet("screenshot")) {
        frame.sendToFrame(UM_OPEN_TOOL, ToolParameter);
        frame.sendToFrame(UM_OPEN_TOOL, ToolSingleAxis);
        frame.sendToFrame(UM_OPEN_TOOL, ToolMultiAxis);
    }
    // The monitors' own 10 ms timers are timed below, one tick each per frame tick.
    frame.sendToFrame(UM_OPEN_TOOL, ToolAxisStatus);
    frame.sendToFrame(UM_OPEN_TOOL, ToolSystemDiagnosis);
    auto* axisStatus = qobject_cast<COV_AxStMonWnd*>(frame.toolWindows().view(ToolAxisStatus));
    auto* diagnosis = qobject_cast<COV_SysDbgWnd*>(frame.toolWindows().view(ToolSystemDiagnosis));
    axisStatus->timer().stop();
    diagnosis->timer().stop();
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
    std::vector<double> axisStatusTicks;
    std::vector<double> diagnosisTicks;
    std::vector<double> monitorsWithPaint;
    for (auto* values :
         {&tickOnly, &withPaint, &axisStatusTicks, &diagnosisTicks, &monitorsWithPaint})
        values->reserve(static_cast<std::size_t>(ticks));
    QElapsedTimer clock;
    for (int i = 0; i < ticks; ++i) {
        clock.start();
        frame.MonitorTick();
        const qint64 afterTick = clock.nsecsElapsed();
        QApplication::processEvents(); // the repaints the tick asked for
        const qint64 afterPaint = clock.nsecsElapsed();
        tickOnly.push_back(static_cast<double>(afterTick) / 1000.0);
        withPaint.push_back(static_cast<double>(afterPaint) / 1000.0);
        clock.start();
        axisStatus->tick();
        const qint64 afterAxisStatus = clock.nsecsElapsed();
        diagnosis->tick();
        const qint64 afterDiagnosis = clock.nsecsElapsed();
        QApplication::processEvents();
        axisStatusTicks.push_back(static_cast<double>(afterAxisStatus) / 1000.0);
        diagnosisTicks.push_back(static_cast<double>(afterDiagnosis - afterAxisStatus) / 1000.0);
        monitorsWithPaint.push_back(static_cast<double>(clock.nsecsElapsed()) / 1000.0);
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
    std::printf("Tool-window monitor ticks:\n");
    report("  axis status tick", axisStatusTicks);
    report("  system diagnosis tick", diagnosisTicks);
    report("  both ticks and their repaints", monitorsWithPaint);

    // The two I/O monitors on the active card, their own 10 ms ticks timed apart. A tick that
    // changed no lamp must leave every lamp and output button unpainted.
    frame.sendToFrame(UM_OPEN_TOOL, ToolSystemIo);
    frame.sendToFrame(UM_OPEN_TOOL, ToolDigitalIo);
    auto* sysIo = static_cast<COV_SysIoWnd*>(frame.toolWindows().view(ToolSystemIo));
    auto* dio = static_cast<COV_DIoWnd*>(frame.toolWindows().view(ToolDigitalIo));
    sysIo->timer().stop();
    dio->timer().stop();
    QApplication::processEvents();
    PaintCount lampPaints;
    for (QWidget* view : {static_cast<QWidget*>(sysIo), static_cast<QWidget*>(dio)})
        for (QAbstractButton* lamp : view->findChildren<QAbstractButton*>())
            lamp->installEventFilter(&lampPaints);
    std::vector<double> ioTicks;
    int unchangedTicks = 0;
    int unchangedPaints = 0;
    for (int i = 0; i < ticks; ++i) {
        clock.start();
        const int changed = sysIo->tick() + dio->tick();
        ioTicks.push_back(static_cast<double>(clock.nsecsElapsed()) / 1000.0);
        lampPaints.paints = 0;
        QApplication::processEvents();
        if (changed == 0) {
            ++unchangedTicks;
            unchangedPaints += lampPaints.paints;
        }
        QThread::msleep(1);
    }
    std::printf("I/O monitors over %d ticks, %s card %d:\n", ticks,
                familyDisplayName(state.active.family), state.active.card);
    report("  System IO + Digital IO ticks", ioTicks);
    std::printf("  lamp and button paints on the %d ticks that changed nothing: %d\n",
                unchangedTicks, unchangedPaints);
    measureGantryPeriod(frame);

    if (options.isSet("screenshot")) {
        frame.sendToFrame(UM_OPEN_TOOL, ToolSingleAxis);
        QThread::msleep(300);
        frame.MonitorTick();
        axisStatus->tick();
        diagnosis->tick();
        QApplication::processEvents();
        const QString shot = options.value("screenshot");
        for (ToolKind kind : {ToolAxisStatus, ToolSystemDiagnosis}) {
            const QString name =
                QString(shot).replace(QStringLiteral(".png"), QStringLiteral("-%1.png").arg(kind));
            frame.toolWindows().window(kind)->grab().save(name);
        }
        const bool saved = frame.grab().save(options.value("screenshot"));
        std::printf("screenshot %s %s\n", qPrintable(options.value("screenshot")),
                    saved ? "saved" : "NOT saved");
    }
    return 0;
}
