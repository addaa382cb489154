#pragma once

#include "ScopeRecorder.h"
#include "ScopeRecording.h"
#include "ToolContext.h"
#include "ToolView.h"

#include <QPointF>
#include <QVector>

#include <cstdint>
#include <functional>
#include <vector>

class PlotNavigator;
class PlotWidget;
class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class QTimer;
class ScopeChannelTable;
class ScopeReadout;
class ScopeTriggerControls;

// The scope tool window: records up to four axis signals at 1 to 10 ms on a precise timer,
// with a trigger on an axis starting to move, cursors, zoom, the predicted speed profile over
// a recorded command speed, and CSV and PNG files.
class COV_ScopeWnd : public ToolView
{
    Q_OBJECT

public:
    // Milliseconds of a steady clock; the window keeps its own unless given one.
    using Clock = std::function<double()>;
    static constexpr int kDrawIntervalMs = 30;

    explicit COV_ScopeWnd(const ToolContext& context, QWidget* parent = nullptr);
    ~COV_ScopeWnd() override;

    ToolKind kind() const override { return ToolScope; }
    void handleUserMessage(UserMessage message, int wParam) override;
    QSize sizeHint() const override;
    // The channels, the time base and the trigger, kept between runs.
    QVariantMap setup() const override;
    void restoreSetup(const QVariantMap& setup) override;

    void setClock(Clock clock) { m_clock = std::move(clock); }
    ScopeRecorder& recorder() { return m_recorder; }
    ScopeChannelTable& channels() { return *m_channels; }
    PlotWidget& plot() { return *m_plot; }
    PlotNavigator& navigator() { return *m_navigator; }
    ScopeReadout& readout() { return *m_readout; }
    const ScopeRecording& shown() const { return m_shown; }

    void run();
    void stopRecording();
    void clearRecording();
    void fit();
    // What the sampling timer does: one sample at the clock's time.
    void sampleTick();
    // What the drawing timer does: a redraw when the record changed since the last one.
    void drawTick();
    void refreshPlot();

    bool exportCsv(const QString& path);
    bool openCsv(const QString& path);
    bool savePng(const QString& path);

private:
    QWidget* createSettingsRow();
    QWidget* createFileButtons();
    void connectControls();
    void applySettings();
    // The time base and trigger the controls show.
    ScopeRecorder::Settings shownSettings() const;
    void updateControls();
    void predictSpeeds();
    void updateSeries();
    void updateXRange();
    void drawOverlay(QPainter& painter, const PlotWidget& plot) const;
    void onCursorsChanged();
    // A file from the dialog kept under `dialog`: an open dialog without `saveSuffix`, a save
    // dialog suggesting a name after the channels and the date with it.
    QString askFile(const QString& dialog, const QString& title, const QString& filter,
                    const QString& saveSuffix);
    double now() const { return m_clock(); }
    // Pulses in one unit of the channel as it is plotted: 1 while it is plotted in pulses.
    double pulsesPerShownUnit(const ScopeChannel& channel) const;
    // The shown column of the trigger channel, or -1.
    int triggerColumn() const;

    ToolContext m_context;
    ScopeRecorder m_recorder;
    Clock m_clock;
    ScopeRecording m_shown;
    ScopeRecording m_file; // a CSV opened for viewing
    bool m_viewingFile = false;
    bool m_userView = false; // zoomed or panned: the time axis stays where the user put it
    bool m_placeCursors = true;
    std::uint64_t m_drawnRevision = ~std::uint64_t{0};
    int m_drawnUnits = -1; // the units' revision the plot was drawn with
    // Predicted command speed per shown column (empty where there is none).
    std::vector<QVector<QPointF>> m_predicted;

    ScopeChannelTable* m_channels = nullptr;
    QComboBox* m_period = nullptr;
    QComboBox* m_length = nullptr;
    ScopeTriggerControls* m_trigger = nullptr;
    QCheckBox* m_repeat = nullptr;
    QPushButton* m_run = nullptr;
    QPushButton* m_stop = nullptr;
    QPushButton* m_clear = nullptr;
    QPushButton* m_fit = nullptr;
    QPushButton* m_exportCsv = nullptr;
    QPushButton* m_openCsv = nullptr;
    QPushButton* m_savePng = nullptr;
    QLabel* m_status = nullptr;
    PlotWidget* m_plot = nullptr;
    PlotNavigator* m_navigator = nullptr;
    ScopeReadout* m_readout = nullptr;
    QTimer* m_sampleTimer = nullptr;
    QTimer* m_drawTimer = nullptr;
};
