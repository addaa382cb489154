#pragma once

#include "MotionPanel.h"
#include "MotionSequencer.h"
#include "MultiAxisSlots.h"
#include "ToolContext.h"
#include "ToolView.h"

#include <QElapsedTimer>
#include <QTimer>

#include <memory>

class JogReleaseGuard;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QtClockwork;
class SequencerClockwork;

// The multi-axis motion tool window: moves the checked axes of one card together by jog,
// relative and absolute steps with repeat, with a gantry check that stops them all when two
// neighbouring axes drift apart.
class COV_MnMtnWnd : public ToolView, private MotionPanel
{
    Q_OBJECT

public:
    static constexpr int kListWatchIntervalMs = 10;
    static constexpr int kGantryIntervalMs = 1;

    explicit COV_MnMtnWnd(const ToolContext& context, QWidget* parent = nullptr);
    // Runs the sequences on the given timers and clock instead of its own.
    COV_MnMtnWnd(const ToolContext& context, SequencerClockwork& clockwork,
                 QWidget* parent = nullptr);
    ~COV_MnMtnWnd() override;

    ToolKind kind() const override { return ToolMultiAxis; }
    void handleUserMessage(UserMessage message, int wParam) override;
    void requestClose() override;
    void endMotion() override { m_sequencer.endSequence(); }

    MotionSequencer& sequencer() { return m_sequencer; }
    // Timer 5: "All Axes", the checked axes and the editing controls follow the list.
    void onListWatch();
    // Timer 6: the gantry check.
    void onGantryTick();
    QTimer& gantryTimer() { return m_gantryTimer; }
    // Mean and longest time between gantry checks since the check was ticked, in ms.
    double gantryMeanPeriodMs() const;
    double gantryLongestPeriodMs() const { return m_gantryLongestNs / 1e6; }
    const std::vector<AxisNo>& checkedAxes() const { return m_checked; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    COV_MnMtnWnd(const ToolContext& context, std::unique_ptr<QtClockwork> ownClockwork,
                 SequencerClockwork* clockwork, QWidget* parent);

    QWidget* createAxisColumn();
    QWidget* createProfileGroup();
    QWidget* createRepeatGroup();
    QWidget* createCounterGroup();
    QWidget* createGantryGroup();
    QWidget* createButtonColumn();
    void connectControls();

    BoardFamily family() const;
    void fillCardCombo();
    void reload();
    void loadProfilesFromBoard();
    void showFocusedFields();
    PtpSpeeds profileFields() const;
    void writeProfiles(const std::vector<AxisNo>& axes, MotionType type);
    void setParameters();
    void applyPositions();
    bool profileChanged(BoardFamily family) const;
    void promptIfChanged(BoardFamily family);
    bool focusedChecked(bool tell);
    void updateServoCaption();
    void layoutMotionButtons();
    void pressMotion(MotionDirection direction);
    void onFocusChanged(int row);
    void onMotionTypeChanged(int index);
    void onServoClicked();
    void onGantryBox(bool on);
    void onErrorLimitEdited(const QString& text);
    void forEachChecked(const std::function<void(AxisNo)>& act);
    bool closePrompted();

    // MotionPanel
    MotionTab currentTab() const override { return MotionTab::PointToPoint; }
    MotionType motionType() const override;
    bool repeatTicked() const override;
    bool infiniteTicked() const override;
    MotionAxes selectedAxes() const override;
    RepeatFields takeRepeatFields() override;
    std::vector<AxisPositions> takePositions(const MotionAxes& target,
                                             const RepeatFields& fields) override;
    void writeSpeeds(const MotionAxes& target, MotionType type) override;
    void writeHomeSettings(const MotionAxes&) override {}
    void showCycle(int elapsedMs, int cycleCount) override;
    void clearCycleDisplay() override;
    void setSequenceLocked(bool locked) override;

    ToolContext m_context;
    std::unique_ptr<QtClockwork> m_ownClockwork;
    MotionSequencer m_sequencer;
    MultiAxisSlots m_slots;

    CardNo m_card = 0;
    int m_axisCount = 0;
    int m_focused = 0;
    std::vector<AxisNo> m_checked;
    bool m_listChanged = true;
    int m_editingState = -1; // what the list watch last gave the editing controls
    std::int32_t m_errorLimit = 100;
    QString m_lastValidLimit = QStringLiteral("100");
    bool m_closeConfirmed = false;

    QTimer m_listWatch;
    QTimer m_gantryTimer;
    QElapsedTimer m_gantryClock;
    qint64 m_gantryLastNs = -1;
    qint64 m_gantryTicks = 0;
    qint64 m_gantryFirstNs = 0;
    qint64 m_gantryLongestNs = 0;

    QComboBox* m_cardCombo = nullptr;
    QListWidget* m_axisList = nullptr;
    QCheckBox* m_allAxes = nullptr;
    QComboBox* m_motionTypeCombo = nullptr;
    QLineEdit* m_drive = nullptr;
    QLineEdit* m_initial = nullptr;
    QLineEdit* m_accel = nullptr;
    QLineEdit* m_decel = nullptr;
    QLabel* m_accelLabel = nullptr;
    QCheckBox* m_setAll = nullptr;
    QPushButton* m_setPrm = nullptr;
    QCheckBox* m_repeat = nullptr;
    QCheckBox* m_infinite = nullptr;
    QLineEdit* m_count = nullptr;
    QLineEdit* m_delay = nullptr;
    QLineEdit* m_position1 = nullptr;
    QLineEdit* m_position2 = nullptr;
    QLabel* m_position2Label = nullptr;
    QCheckBox* m_applyAll = nullptr;
    QPushButton* m_apply = nullptr;
    QLineEdit* m_setCommand = nullptr;
    QLineEdit* m_setActual = nullptr;
    QLineEdit* m_repeatCount = nullptr;
    QLineEdit* m_cycleTime = nullptr;
    QCheckBox* m_gantryBox = nullptr;
    QComboBox* m_gantrySource = nullptr;
    QLineEdit* m_errorLimitEdit = nullptr;
    QPushButton* m_eStop = nullptr;
    QPushButton* m_sStop = nullptr;
    QPushButton* m_servo = nullptr;
    QPushButton* m_minus = nullptr;
    QPushButton* m_plus = nullptr;
    QPushButton* m_alarmReset = nullptr;
    QPushButton* m_counterClear = nullptr;
    QPushButton* m_parameterSetup = nullptr;
    QPushButton* m_close = nullptr;
    JogReleaseGuard* m_jogGuard = nullptr;
};
