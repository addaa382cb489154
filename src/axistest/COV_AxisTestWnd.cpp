#include "COV_AxisTestWnd.h"

#include "AppState.h"
#include "AxisTestCsv.h"
#include "AxisTestForm.h"
#include "AxisTestPlots.h"
#include "AxisTestReport.h"
#include "AxisTestRun.h"
#include "OrvaneLog.h"
#include "PlotWidget.h"
#include "PollInterval.h"
#include "PromptService.h"

#include <QDesktopServices>
#include <QDir>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QJsonObject>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QTableWidget>
#include <QUrl>
#include <QVBoxLayout>

COV_AxisTestWnd::COV_AxisTestWnd(const ToolContext& context, QWidget* parent)
    : ToolView(parent), m_context(context)
{
    auto* layout = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    m_form = new AxisTestForm(this);
    left->addWidget(m_form);
    auto* buttons = new QHBoxLayout;
    m_start = new QPushButton(tr("Start"), this);
    m_stop = new QPushButton(tr("Stop"), this);
    m_stop->setToolTip(tr("Stops the tested axes at once and writes a partial report"));
    m_openReport = new QPushButton(tr("Open Report"), this);
    m_openReport->setEnabled(false);
    buttons->addWidget(m_start);
    buttons->addWidget(m_stop);
    buttons->addWidget(m_openReport);
    left->addLayout(buttons);
    m_progress = new QProgressBar(this);
    m_progressText = new QLabel(this);
    m_progressText->setWordWrap(true);
    left->addWidget(m_progress);
    left->addWidget(m_progressText);
    left->addStretch();
    layout->addLayout(left);

    auto* right = new QVBoxLayout;
    m_figures = new QTableWidget(0, 2, this);
    m_figures->setHorizontalHeaderLabels({tr("Figure"), tr("Value [pulse]")});
    m_figures->horizontalHeader()->setStretchLastSection(true);
    m_figures->verticalHeader()->hide();
    m_figures->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_figures->setMaximumHeight(130);
    right->addWidget(m_figures);
    m_plot = new PlotWidget(this);
    m_secondPlot = new PlotWidget(this);
    right->addWidget(m_plot, 1);
    right->addWidget(m_secondPlot, 1);
    layout->addLayout(right, 1);

    connect(m_start, &QPushButton::clicked, this, [this] { startTest(); });
    connect(m_stop, &QPushButton::clicked, this, [this] { stopTest(tr("Stop pressed")); });
    connect(m_openReport, &QPushButton::clicked, this, [this] {
        QDesktopServices::openUrl(
            QUrl::fromLocalFile(QDir(m_folder).filePath(QStringLiteral("report.html"))));
    });
    connect(m_form, &AxisTestForm::kindChanged, this,
            [this] { m_secondPlot->setVisible(m_form->kind() == AxisTestKind::RunIn); });
    m_secondPlot->setVisible(m_form->kind() == AxisTestKind::RunIn);
    connect(&m_timer, &QTimer::timeout, this, &COV_AxisTestWnd::tick);
    setRunning(false);
    loadCard();
}

COV_AxisTestWnd::~COV_AxisTestWnd()
{
    stopTest(QStringLiteral("window closed"));
}

void COV_AxisTestWnd::loadCard()
{
    const AppState& state = m_context.state;
    m_form->setAxisCount(state.activeAxisCount());
    setWindowTitle(
        tr("Axis Test - %1(%2)").arg(state.modelName(state.active.card)).arg(state.active.card));
}

void COV_AxisTestWnd::handleUserMessage(UserMessage message, int /*wParam*/)
{
    // A running test keeps the card it started on; the next one takes the new card.
    if (message == UM_CONTROLLER_CHANGED && !(m_run && m_run->running()))
        loadCard();
}

void COV_AxisTestWnd::setRunning(bool running)
{
    m_form->setEnabled(!running);
    m_start->setEnabled(!running);
    m_stop->setEnabled(running);
    m_context.state.active.setAxesMoving(MovingOwner::AxisTest, running);
}

bool COV_AxisTestWnd::startTest()
{
    if (m_run && m_run->running())
        return false;
    QString error;
    auto settings = m_form->settings(&error);
    if (!settings) {
        m_context.prompt.inform(error);
        return false;
    }
    const AppState& state = m_context.state;
    settings->family = state.active.family;
    settings->card = static_cast<CardNo>(state.active.card);

    // A refused start leaves no folder behind.
    AxisTestSink& sink = *this;
    auto run = std::make_unique<AxisTestRun>(m_context.board, *settings, sink);
    const QString refused = run->refusal();
    if (!refused.isEmpty()) {
        m_progressText->setText(tr("Refused: %1").arg(refused));
        m_context.prompt.inform(tr("The test cannot start: %1").arg(refused));
        return false;
    }

    m_started = QDateTime::currentDateTime();
    // Each run gets a dated folder of its own, so no earlier report is overwritten.
    QString parent = m_form->outputFolder();
    if (parent.isEmpty())
        parent = QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                     .filePath(QStringLiteral("Orvane Axis Tests"));
    m_folder = QDir(parent).filePath(
        QStringLiteral("%1-%2").arg(AxisTestReport::kindKey(settings->kind),
                                    m_started.toString(QStringLiteral("yyyyMMdd-HHmmss-zzz"))));
    if (!QDir().mkpath(m_folder)) {
        m_context.prompt.inform(tr("The folder %1 cannot be created.").arg(m_folder));
        return false;
    }
    m_csv = std::make_unique<AxisTestCsv>(QDir(m_folder).filePath(QStringLiteral("samples.csv")));
    if (!m_csv->isOpen()) {
        m_context.prompt.inform(
            tr("samples.csv cannot be written in %1: %2").arg(m_folder, m_csv->errorString()));
        return false;
    }
    m_plot->clearSeries();
    m_secondPlot->clearSeries();
    m_figures->setRowCount(0);
    m_openReport->setEnabled(false);
    m_run = std::move(run);
    m_clock.start();
    m_startedAt = m_now();
    m_shownDone = -1;
    if (!m_run->start(0)) {
        m_progressText->setText(tr("Refused: %1").arg(m_run->fault()));
        m_context.prompt.inform(tr("The test cannot start: %1").arg(m_run->fault()));
        return false;
    }
    setRunning(m_run->running());
    if (m_run->running())
        m_timer.start(kPollIntervalMs);
    else
        finish();
    showProgress();
    return true;
}

void COV_AxisTestWnd::stopTest(const QString& why)
{
    if (!m_run || !m_run->running())
        return;
    m_run->stop(why);
    finish();
}

void COV_AxisTestWnd::endMotion()
{
    stopTest(tr("Stop All"));
}

bool COV_AxisTestWnd::movesAxes()
{
    return m_run && m_run->running();
}

void COV_AxisTestWnd::beforeClose()
{
    stopTest(tr("window closed"));
}

void COV_AxisTestWnd::tick()
{
    if (!m_run)
        return;
    m_run->tick(m_now() - m_startedAt);
    if (!m_run->running()) {
        finish();
        return;
    }
    // Once a unit or a second goes by: the window changes nothing between.
    const std::int64_t second = m_run->elapsedMs() / 1000;
    if (m_run->done() != m_shownDone || second != m_shownSecond)
        showProgress();
}

void COV_AxisTestWnd::finish()
{
    m_timer.stop();
    setRunning(false);
    if (!m_run)
        return;
    const AxisTestSettings& settings = m_run->settings();
    // An axis with a unit scale gets its figures in that unit too, shown or not on screen.
    const AxisTestReport report(
        *m_run,
        AxisTestFacts::read(m_context.board, m_context.state.registry, settings.family,
                            settings.card, settings.axes.front()),
        m_started,
        m_context.state.units.scale(settings.family, settings.card, settings.axes.front()));
    QString error;
    if (!report.write(m_folder, &error))
        m_context.prompt.inform(error);
    else
        m_openReport->setEnabled(true);
    m_csv.reset();
    showProgress();
    showFigures();
    redrawPlots();
}

void COV_AxisTestWnd::showProgress()
{
    const AxisTestRun& run = *m_run;
    m_shownDone = run.done();
    m_shownSecond = run.elapsedMs() / 1000;
    const int planned = run.planned();
    if (planned > 0) {
        m_progress->setRange(0, planned);
        m_progress->setValue(run.done());
    } else {
        const auto total = std::max<std::int64_t>(1, run.settings().durationS * 1000LL);
        m_progress->setRange(0, 1000);
        m_progress->setValue(int(std::min<std::int64_t>(1000, run.elapsedMs() * 1000 / total)));
    }
    QString text;
    if (run.running()) {
        text = planned > 0 ? tr("%1 of %2").arg(run.done()).arg(planned)
                           : tr("Cycle %1").arg(run.done() + 1);
        text += tr(", elapsed %1 s").arg(run.elapsedMs() / 1000);
        if (run.timeLeftMs() >= 0)
            text += tr(", %1 s left").arg(run.timeLeftMs() / 1000);
        if (run.settings().kind == AxisTestKind::RunIn)
            text += tr(", worst following error %1").arg(run.worstFollowingError());
    } else {
        text = QString::fromLatin1(AxisTestRun::outcomeKey(run.outcome())).toUpper();
        if (!run.fault().isEmpty())
            text += QStringLiteral(": ") + run.fault();
        text += QStringLiteral("\n") + tr("Report in %1").arg(QDir::toNativeSeparators(m_folder));
    }
    m_progressText->setText(text);
}

void COV_AxisTestWnd::showFigures()
{
    const AxisTestReport report(*m_run, {}, m_started);
    const QJsonObject figures = report.summary().value(QStringLiteral("figures")).toObject();
    m_figures->setRowCount(0);
    for (auto it = figures.begin(); it != figures.end(); ++it) {
        if (!it.value().isDouble())
            continue;
        const int row = m_figures->rowCount();
        m_figures->insertRow(row);
        m_figures->setItem(row, 0, new QTableWidgetItem(it.key()));
        m_figures->setItem(row, 1,
                           new QTableWidgetItem(QString::number(it.value().toDouble(), 'f', 3)));
    }
    m_figures->resizeColumnToContents(0);
}

void COV_AxisTestWnd::redrawPlots()
{
    AxisTestPlots::draw(*m_plot, *m_run, 0);
    if (AxisTestPlots::count(m_run->settings().kind) > 1)
        AxisTestPlots::draw(*m_secondPlot, *m_run, 1);
}

void COV_AxisTestWnd::record(const AxisTestRecord& record)
{
    if (m_csv)
        m_csv->record(record);
    // Plots follow each finished unit, not each poll.
    if (record.kind != AxisTestRecord::Kind::Event && m_run)
        redrawPlots();
}
