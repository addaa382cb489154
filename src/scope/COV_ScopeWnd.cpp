#include "COV_ScopeWnd.h"

#include "AppState.h"
#include "FileDialogPlace.h"
#include "FrameRelay.h"
#include "NamedButton.h"
#include "PlotNavigator.h"
#include "PlotTicks.h"
#include "PlotWidget.h"
#include "PredictedSpeedProfile.h"
#include "PromptService.h"
#include "ScopeChannelTable.h"
#include "ScopeCsv.h"
#include "ScopeReadout.h"
#include "ScopeScales.h"
#include "ScopeSetup.h"
#include "ScopeTriggerControls.h"
#include "ScopeUnits.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace {

constexpr int kPeriods[] = {1, 2, 5, 10};
constexpr int kDefaultPeriod = 1; // index of 2 ms
constexpr int kLengthsS[] = {1, 2, 5, 10, 30, 60};
constexpr int kDefaultLength = 3; // index of 10 s
const QColor kPredictedColour(255, 140, 0);

QComboBox* makeCombo(const char* name, const QString& tip)
{
    auto* combo = new QComboBox;
    combo->setObjectName(QLatin1String(name));
    combo->setToolTip(tip);
    return combo;
}

} // namespace

COV_ScopeWnd::COV_ScopeWnd(const ToolContext& context, QWidget* parent)
    : ToolView(parent), m_context(context), m_recorder(context.board)
{
    setWindowTitle(tr("Scope"));
    auto elapsed = std::make_shared<QElapsedTimer>();
    elapsed->start();
    m_clock = [elapsed] { return double(elapsed->nsecsElapsed()) / 1e6; };

    m_channels = new ScopeChannelTable(context.state.registry);
    m_plot = new PlotWidget;
    m_plot->setLegendAbove(true);
    m_plot->setObjectName(QStringLiteral("scopePlot"));
    m_plot->setAxisTitles(tr("Time [ms]"), QString());
    m_plot->setToolTip(tr("Wheel: zoom; drag: pan; right or Shift drag: zoom to a "
                          "box; double click: fit; drag a dashed line: cursor"));
    m_navigator = new PlotNavigator(m_plot);
    m_plot->setOverlay(
        [this](QPainter& painter, const PlotWidget& plot) { drawOverlay(painter, plot); });
    m_readout = new ScopeReadout;

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_channels);
    layout->addWidget(createSettingsRow());
    layout->addWidget(m_plot, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(m_readout, 1);
    bottom->addWidget(createFileButtons(), 0, Qt::AlignTop);
    layout->addLayout(bottom);

    m_sampleTimer = new QTimer(this);
    m_sampleTimer->setTimerType(Qt::PreciseTimer);
    m_drawTimer = new QTimer(this);
    m_drawTimer->setInterval(kDrawIntervalMs);
    connectControls();

    // The active axis, as the motion window that opened the scope shows it.
    const ActiveController& active = context.state.active;
    const ScopeChannel::Signal defaults[] = {
        ScopeChannel::CommandSpeed, ScopeChannel::FollowingError, ScopeChannel::CommandPosition,
        ScopeChannel::ActualPosition};
    for (int i = 0; i < ScopeRecorder::kChannels; ++i) {
        ScopeChannel channel;
        channel.enabled = i < 2;
        channel.family = active.family;
        channel.card = active.card;
        channel.axis = active.axis;
        channel.signal = defaults[i];
        m_channels->setChannel(i, channel);
    }
    applySettings();
    updateControls();
    refreshPlot();
}

COV_ScopeWnd::~COV_ScopeWnd() = default;

QSize COV_ScopeWnd::sizeHint() const
{
    // Opens inside the frame's tool area at 1366x768 with the three panes shown.
    return ToolView::sizeHint().boundedTo(QSize(860, 520));
}

QWidget* COV_ScopeWnd::createSettingsRow()
{
    auto* row = new QWidget;
    auto* rows = new QVBoxLayout(row);
    rows->setContentsMargins(0, 0, 0, 0);
    auto* layout = new QHBoxLayout;
    // The trigger has a line of its own, so the window stays narrow enough for small screens.
    auto* triggerLine = new QHBoxLayout;
    rows->addLayout(layout);
    rows->addLayout(triggerLine);
    m_period = makeCombo("period", tr("Time between two samples"));
    for (const int ms : kPeriods)
        m_period->addItem(tr("%1 ms").arg(ms), ms);
    m_period->setCurrentIndex(kDefaultPeriod);
    m_length = makeCombo("length", tr("Time the record keeps (the ring's length)"));
    for (const int seconds : kLengthsS)
        m_length->addItem(tr("%1 s").arg(seconds), seconds * 1000);
    m_length->setCurrentIndex(kDefaultLength);
    m_trigger = new ScopeTriggerControls;
    m_repeat = new QCheckBox(tr("Repeat"));
    m_repeat->setObjectName(QStringLiteral("repeat"));
    m_repeat->setToolTip(tr("Re-arm after each capture instead of one single shot"));
    m_run = makeNamedButton(tr("Run"), "runButton", tr("Start recording"));
    m_stop = makeNamedButton(tr("Stop"), "stopButton", tr("Stop recording"));
    m_clear = makeNamedButton(tr("Clear"), "clearButton", tr("Forget the record"));
    m_status = new QLabel;
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setMinimumWidth(m_status->fontMetrics().horizontalAdvance(tr("Waiting for trigger")));
    layout->addWidget(new QLabel(tr("Period")));
    layout->addWidget(m_period);
    layout->addWidget(new QLabel(tr("Length")));
    layout->addWidget(m_length);
    layout->addWidget(m_run);
    layout->addWidget(m_stop);
    layout->addWidget(m_clear);
    layout->addStretch(1);
    triggerLine->addWidget(m_trigger);
    triggerLine->addWidget(m_repeat);
    triggerLine->addStretch(1);
    return row;
}

QWidget* COV_ScopeWnd::createFileButtons()
{
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    m_fit = makeNamedButton(tr("Fit"), "fitButton", tr("Show the whole record"));
    m_exportCsv = makeNamedButton(tr("Export CSV..."), "exportCsvButton",
                                  tr("Write the record to a CSV file"));
    m_openCsv =
        makeNamedButton(tr("Open CSV..."), "openCsvButton", tr("View a record from a CSV file"));
    m_savePng =
        makeNamedButton(tr("Save PNG..."), "savePngButton", tr("Save the plot as a picture"));
    // The state sits over the file buttons, out of the way of Run and Stop.
    layout->addWidget(m_status, 0, Qt::AlignHCenter);
    for (QPushButton* button : {m_fit, m_exportCsv, m_openCsv, m_savePng})
        layout->addWidget(button);
    return column;
}

void COV_ScopeWnd::connectControls()
{
    connect(m_sampleTimer, &QTimer::timeout, this, [this] { sampleTick(); });
    connect(m_drawTimer, &QTimer::timeout, this, [this] { drawTick(); });
    connect(m_run, &QPushButton::clicked, this, [this] { run(); });
    connect(m_stop, &QPushButton::clicked, this, [this] { stopRecording(); });
    connect(m_clear, &QPushButton::clicked, this, [this] { clearRecording(); });
    connect(m_fit, &QPushButton::clicked, this, [this] { fit(); });
    connect(m_navigator, &PlotNavigator::fitRequested, this, [this] { fit(); });
    connect(m_navigator, &PlotNavigator::viewChanged, this, [this] { m_userView = true; });
    connect(m_navigator, &PlotNavigator::cursorsChanged, this, [this] { onCursorsChanged(); });
    connect(m_channels, &ScopeChannelTable::channelsChanged, this, [this] { applySettings(); });
    connect(m_channels, &ScopeChannelTable::scalesChanged, this, [this] { refreshPlot(); });
    connect(m_trigger, &ScopeTriggerControls::modeChanged, this, [this] { updateControls(); });
    connect(m_trigger, &ScopeTriggerControls::levelChanged, this, [this] { m_plot->update(); });
    connect(m_navigator, &PlotNavigator::levelDragged, this, [this](double level) {
        const int column = triggerColumn();
        if (column >= 0)
            m_trigger->setLevel(level, std::max(0, m_shown.columns[size_t(column)].decimals));
    });
    connect(m_exportCsv, &QPushButton::clicked, this, [this] {
        const QString path = askFile(QStringLiteral("ScopeCsv"), tr("Export CSV"),
                                     tr("CSV files (*.csv)"), QStringLiteral("csv"));
        if (!path.isEmpty())
            exportCsv(path);
    });
    connect(m_openCsv, &QPushButton::clicked, this, [this] {
        const QString path =
            askFile(QStringLiteral("ScopeCsv"), tr("Open CSV"), tr("CSV files (*.csv)"), QString());
        if (!path.isEmpty())
            openCsv(path);
    });
    connect(m_savePng, &QPushButton::clicked, this, [this] {
        const QString path = askFile(QStringLiteral("ScopePng"), tr("Save PNG"),
                                     tr("PNG pictures (*.png)"), QStringLiteral("png"));
        if (!path.isEmpty())
            savePng(path);
    });
}

QString COV_ScopeWnd::askFile(const QString& dialog, const QString& title, const QString& filter,
                              const QString& saveSuffix)
{
    QString path;
    if (saveSuffix.isEmpty()) {
        path = QFileDialog::getOpenFileName(this, title, FileDialogPlace::start(dialog), filter);
    } else {
        // Named after the channels shown: "RL0.1CommandSpeed_RL0.1FollowingError_<date>".
        QStringList channels;
        for (const ScopeRecording::Column& column : m_shown.columns)
            channels << column.name;
        for (int i = 0; channels.isEmpty() && i < ScopeRecorder::kChannels; ++i) {
            if (m_channels->channel(i).enabled)
                channels << m_channels->channel(i).name();
        }
        channels.replaceInStrings(QStringLiteral(" "), QString());
        const QString stem =
            channels.isEmpty() ? QStringLiteral("Scope") : channels.join(QLatin1Char('_'));
        path = QFileDialog::getSaveFileName(
            this, title,
            FileDialogPlace::start(dialog, FileDialogPlace::datedName(stem, saveSuffix)), filter);
    }
    FileDialogPlace::remember(dialog, path);
    return path;
}

void COV_ScopeWnd::handleUserMessage(UserMessage, int)
{
    // Each channel names its own axis, so a change of the active controller changes nothing.
}

QVariantMap COV_ScopeWnd::setup() const
{
    ScopeSetup::Channels channels;
    for (int i = 0; i < ScopeRecorder::kChannels; ++i)
        channels[size_t(i)] = m_channels->channel(i);
    return ScopeSetup::toMap(channels, shownSettings());
}

void COV_ScopeWnd::restoreSetup(const QVariantMap& setup)
{
    ScopeSetup::Channels channels;
    for (int i = 0; i < ScopeRecorder::kChannels; ++i)
        channels[size_t(i)] = m_channels->channel(i);
    ScopeRecorder::Settings settings = shownSettings();
    ScopeSetup::fromMap(setup, channels, settings);
    for (int i = 0; i < ScopeRecorder::kChannels; ++i)
        m_channels->setChannel(i, channels[size_t(i)]);
    for (auto [combo, value] :
         {std::pair{m_period, settings.periodMs}, std::pair{m_length, settings.lengthMs}}) {
        if (const int index = combo->findData(value); index >= 0)
            combo->setCurrentIndex(index);
    }
    m_trigger->setTrigger(settings.trigger, settings.triggerChannel, settings.edge);
    // The setup keeps the level in pulses; the field shows it as the channel is plotted.
    const int column = triggerColumn();
    m_trigger->setLevel(settings.level /
                            pulsesPerShownUnit(m_channels->channel(settings.triggerChannel)),
                        column >= 0 ? std::max(0, m_shown.columns[size_t(column)].decimals) : 3);
    m_repeat->setChecked(settings.repeat);
    applySettings();
    updateControls();
    refreshPlot();
}

void COV_ScopeWnd::applySettings()
{
    for (int i = 0; i < ScopeRecorder::kChannels; ++i)
        m_recorder.setChannel(i, m_channels->channel(i));
    m_recorder.setSettings(shownSettings());
}

ScopeRecorder::Settings COV_ScopeWnd::shownSettings() const
{
    ScopeRecorder::Settings settings;
    settings.periodMs = m_period->currentData().toInt();
    settings.lengthMs = m_length->currentData().toInt();
    settings.trigger = m_trigger->mode();
    settings.triggerChannel = m_trigger->channel();
    settings.edge = m_trigger->edge();
    // The level is typed as the channel is plotted; the recorder compares pulses.
    settings.level =
        m_trigger->level() * pulsesPerShownUnit(m_channels->channel(m_trigger->channel()));
    settings.repeat = m_repeat->isChecked();
    return settings;
}

void COV_ScopeWnd::updateControls()
{
    const bool running = m_recorder.state() != ScopeRecorder::State::Stopped;
    // What is read and how cannot change under a running record.
    for (QWidget* widget :
         std::initializer_list<QWidget*>{m_channels, m_period, m_length, m_run, m_openCsv})
        widget->setEnabled(!running);
    m_trigger->setRunning(running);
    m_repeat->setEnabled(!running && m_trigger->mode() != ScopeRecorder::Trigger::FreeRun);
    m_stop->setEnabled(running);
    QString status = tr("Stopped");
    if (m_recorder.state() == ScopeRecorder::State::Armed)
        status = tr("Waiting for trigger");
    else if (running)
        status = tr("Recording");
    else if (m_viewingFile)
        status = tr("Viewing file");
    if (m_status->text() != status)
        m_status->setText(status);
}

void COV_ScopeWnd::run()
{
    applySettings();
    if (m_recorder.enabledCount() == 0) {
        m_context.prompt.inform(tr("Select at least one channel."));
        return;
    }
    m_viewingFile = false;
    m_userView = false;
    m_placeCursors = true;
    m_recorder.run(now());
    m_sampleTimer->start(m_recorder.settings().periodMs);
    m_drawTimer->start();
    updateControls();
    refreshPlot();
}

void COV_ScopeWnd::stopRecording()
{
    m_recorder.stop();
    m_sampleTimer->stop();
    m_drawTimer->stop();
    updateControls();
    refreshPlot();
}

void COV_ScopeWnd::clearRecording()
{
    m_recorder.clear();
    m_viewingFile = false;
    m_file = ScopeRecording();
    m_placeCursors = true;
    updateControls();
    refreshPlot();
}

void COV_ScopeWnd::fit()
{
    m_userView = false;
    m_placeCursors = true;
    refreshPlot();
}

void COV_ScopeWnd::sampleTick()
{
    m_recorder.sample(now());
    // A single shot ends by itself.
    if (m_recorder.state() == ScopeRecorder::State::Stopped && m_sampleTimer->isActive())
        stopRecording();
}

void COV_ScopeWnd::drawTick()
{
    if (m_recorder.revision() != m_drawnRevision ||
        m_context.state.units.revision() != m_drawnUnits)
        refreshPlot();
}

void COV_ScopeWnd::refreshPlot()
{
    m_drawnRevision = m_recorder.revision();
    m_drawnUnits = m_context.state.units.revision();
    m_shown = m_viewingFile ? m_file : m_recorder.recording();
    // The prediction works in pulses, before the record turns into units.
    predictSpeeds();
    if (!m_viewingFile)
        ScopeUnits::apply(m_shown, m_predicted, m_context.state.units);
    updateSeries();
    updateXRange();
    m_readout->showValues(m_shown, m_navigator->cursor(0), m_navigator->cursor(1));
    updateControls();
}

void COV_ScopeWnd::predictSpeeds()
{
    m_predicted.assign(m_shown.columns.size(), {});
    for (size_t c = 0; c < m_shown.columns.size(); ++c)
        if (m_shown.columns[c].unit == QLatin1String("pps"))
            m_predicted[c] = PredictedSpeedProfile::forRecording(m_shown, static_cast<int>(c));
}

void COV_ScopeWnd::updateSeries()
{
    m_plot->clearSeries();
    std::vector<ScopeScales::FixedRange> fixed;
    for (const ScopeRecording::Column& column : m_shown.columns) {
        const ScopeChannelTable::Scale scale =
            column.channel >= 0 ? m_channels->scale(column.channel) : ScopeChannelTable::Scale{};
        fixed.push_back(scale.automatic ? ScopeScales::FixedRange{}
                                        : std::pair{scale.low, scale.high});
    }
    // One scale per kind and unit: the first on the left, the others on the right.
    const std::vector<ScopeScales::Scale> scales = ScopeScales::group(m_shown, fixed);
    std::vector<PlotWidget::ValueAxis> rightAxes;
    for (size_t s = 0; s < scales.size(); ++s) {
        const ScopeScales::Scale& scale = scales[s];
        if (s == 0 && scale.automatic)
            m_plot->fitY();
        else if (s == 0)
            m_plot->setYRange(scale.low, scale.high);
        else
            rightAxes.push_back({scale.low, scale.high, scale.title});
        for (const int index : scale.columns) {
            const ScopeRecording::Column& column = m_shown.columns[static_cast<size_t>(index)];
            const int channel = column.channel >= 0 ? column.channel : index;
            QVector<QPointF> points;
            points.reserve(static_cast<int>(column.values.size()));
            for (size_t i = 0; i < column.values.size(); ++i)
                points.append(QPointF(m_shown.times[i], column.values[i]));
            if (s > 0)
                m_plot->setSeriesYRange(index, scale.low, scale.high);
            m_plot->setSeries(index, std::move(points), ScopeChannelTable::colour(channel),
                              QStringLiteral("%1 [%2]").arg(column.name, column.unit));
        }
    }
    if (std::any_of(m_predicted.begin(), m_predicted.end(),
                    [](const QVector<QPointF>& curve) { return !curve.isEmpty(); }))
        // A series without points only names the overlay in the legend.
        m_plot->setSeries(static_cast<int>(m_shown.columns.size()), {}, kPredictedColour,
                          tr("Predicted by the speed calculator"));
    m_plot->setRightAxes(std::move(rightAxes));
    m_plot->setAxisTitles(tr("Time [ms]"), scales.empty() ? QString() : scales.front().title);
}

double COV_ScopeWnd::pulsesPerShownUnit(const ScopeChannel& channel) const
{
    const AxisUnitScale scale =
        m_context.state.units.shownScale(channel.family, channel.card, channel.axis);
    return scale.isSet() ? scale.pulsesPerUnit() : 1.0;
}

int COV_ScopeWnd::triggerColumn() const
{
    if (m_trigger->mode() != ScopeRecorder::Trigger::Level)
        return -1;
    for (size_t c = 0; c < m_shown.columns.size(); ++c) {
        if (m_shown.columns[c].channel == m_trigger->channel())
            return static_cast<int>(c);
    }
    return -1;
}

void COV_ScopeWnd::updateXRange()
{
    const bool running = m_recorder.state() != ScopeRecorder::State::Stopped && !m_viewingFile;
    const double length = m_recorder.settings().lengthMs;
    // Nothing yet: the window that a run will fill.
    double low = 0.0;
    double high = length;
    if (m_shown.triggered && !m_viewingFile) {
        low = -length * ScopeRecorder::kPreTriggerShare;
        high = length * (1.0 - ScopeRecorder::kPreTriggerShare);
    } else if (running && !m_shown.isEmpty()) {
        high = std::max(m_shown.times.back(), length);
        low = high - length;
    } else if (!m_shown.isEmpty()) {
        low = m_shown.times.front();
        high = std::max(m_shown.times.back(), low + 1.0);
    }
    if (!m_userView)
        m_plot->setXRange(low, high);
    if (m_placeCursors) {
        m_placeCursors = false;
        m_navigator->setCursor(0, low + (high - low) * 0.25);
        m_navigator->setCursor(1, low + (high - low) * 0.75);
    }
}

void COV_ScopeWnd::onCursorsChanged()
{
    m_readout->showValues(m_shown, m_navigator->cursor(0), m_navigator->cursor(1));
}

void COV_ScopeWnd::drawOverlay(QPainter& painter, const PlotWidget& plot) const
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    for (size_t c = 0; c < m_predicted.size(); ++c) {
        const QVector<QPointF>& curve = m_predicted[c];
        if (curve.isEmpty())
            continue;
        const int index = static_cast<int>(c);
        QPolygonF line;
        line.reserve(curve.size());
        for (const QPointF& point : curve)
            line.append(QPointF(plot.xToPixel(point.x()), plot.yToPixel(index, point.y())));
        // Long gaps let the recorded line show through where the two agree.
        QPen pen(kPredictedColour, 2.0);
        pen.setDashPattern({3.0, 3.0});
        pen.setCosmetic(true);
        painter.setPen(pen);
        painter.drawPolyline(line);
    }
    // The trigger level across the plot, in its channel's scale; while the trigger can still
    // change, a drag moves it.
    const int column = triggerColumn();
    const bool settable = m_recorder.state() == ScopeRecorder::State::Stopped;
    m_navigator->setLevelLine(settable ? column : -1, m_trigger->level());
    if (column >= 0) {
        const double y = plot.yToPixel(column, m_trigger->level());
        QPen pen(ScopeChannelTable::colour(m_shown.columns[size_t(column)].channel), 1.0);
        pen.setStyle(Qt::DashDotLine);
        pen.setCosmetic(true);
        painter.setPen(pen);
        painter.drawLine(QPointF(plot.plotArea().left(), y), QPointF(plot.plotArea().right(), y));
        painter.drawText(QPointF(plot.plotArea().left() + 4, y - 3), tr("Trigger"));
    }
    m_navigator->paintCursors(painter, plot);
}

bool COV_ScopeWnd::exportCsv(const QString& path)
{
    QString error;
    if (ScopeCsv::write(m_shown, path, &error)) {
        m_context.frame.showNote(tr("Saved the record to %1").arg(QDir::toNativeSeparators(path)));
        return true;
    }
    m_context.prompt.inform(tr("Can not write %1:\n%2").arg(path, error));
    return false;
}

bool COV_ScopeWnd::openCsv(const QString& path)
{
    QString error;
    std::optional<ScopeRecording> record = ScopeCsv::read(path, &error);
    if (!record) {
        m_context.prompt.inform(tr("Can not read %1:\n%2").arg(path, error));
        return false;
    }
    m_file = std::move(*record);
    m_viewingFile = true;
    m_userView = false;
    m_placeCursors = true;
    setWindowTitle(tr("Scope - %1").arg(QFileInfo(path).fileName()));
    refreshPlot();
    return true;
}

bool COV_ScopeWnd::savePng(const QString& path)
{
    if (m_plot->grab().save(path, "PNG")) {
        m_context.frame.showNote(tr("Saved the plot to %1").arg(QDir::toNativeSeparators(path)));
        return true;
    }
    m_context.prompt.inform(tr("Can not write %1.").arg(path));
    return false;
}
