#pragma once

#include "AxisTestRecord.h"
#include "ToolContext.h"
#include "ToolView.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QTimer>

#include <functional>
#include <memory>

class AxisTestCsv;
class AxisTestForm;
class AxisTestRun;
class PlotWidget;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableWidget;

// The "Axis Test" window: proves an axis of the active card with a home repeatability, a
// bidirectional positioning or a run-in test, shows its progress and figures live, and
// leaves report.html, samples.csv and summary.json in the chosen folder.
class COV_AxisTestWnd : public ToolView, private AxisTestSink
{
    Q_OBJECT

public:
    COV_AxisTestWnd(const ToolContext& context, QWidget* parent = nullptr);
    ~COV_AxisTestWnd() override;

    ToolKind kind() const override { return ToolAxisTest; }
    void handleUserMessage(UserMessage message, int wParam) override;
    void endMotion() override;
    QTimer* pollTimer() override { return &m_timer; }
    // Room for the fields beside a figure table and two plots.
    QSize sizeHint() const override { return {960, 540}; }

    // Starts the test the form describes; false (with a message shown) when refused.
    bool startTest();
    // Ends a running test at once with a partial report.
    void stopTest(const QString& why);
    const AxisTestRun* run() const { return m_run.get(); }
    QString reportFolder() const { return m_folder; }
    QLabel* progressText() const { return m_progressText; }
    AxisTestForm* form() const { return m_form; }
    // The milliseconds the test's dwells and times count in; tests step their own.
    void setClock(std::function<std::int64_t()> clock) { m_now = std::move(clock); }

protected:
    void beforeClose() override;

private:
    void record(const AxisTestRecord& record) override;
    void tick();
    void finish();
    void loadCard();
    void showProgress();
    void showFigures();
    void redrawPlots();
    void setRunning(bool running);

    ToolContext m_context;
    AxisTestForm* m_form = nullptr;
    QPushButton* m_start = nullptr;
    QPushButton* m_stop = nullptr;
    QPushButton* m_openReport = nullptr;
    QProgressBar* m_progress = nullptr;
    QLabel* m_progressText = nullptr;
    QTableWidget* m_figures = nullptr;
    PlotWidget* m_plot = nullptr;
    PlotWidget* m_secondPlot = nullptr;
    QTimer m_timer;
    QElapsedTimer m_clock;
    std::function<std::int64_t()> m_now = [this] { return m_clock.elapsed(); };
    std::int64_t m_startedAt = 0;
    QDateTime m_started;
    std::unique_ptr<AxisTestCsv> m_csv;
    std::unique_ptr<AxisTestRun> m_run;
    QString m_folder;
    int m_shownDone = -1;
    std::int64_t m_shownSecond = -1;
};
