#pragma once

#include "MotionTypes.h"
#include "SingleAxisPanel.h"
#include "SingleAxisSequencer.h"
#include "ToolContext.h"
#include "ToolView.h"

#include <memory>

class COV_SnMtnHomeWnd;
class COV_SnMtnPtpWnd;
class JogReleaseGuard;
class QComboBox;
class QPushButton;
class QStackedWidget;
class QTabBar;
class QtClockwork;

// The single-axis motion tool window: moves one axis of the active controller by jog, steps,
// repeats and homing, with its servo, alarm-reset and counter-clear outputs.
class COV_SnMtnWnd : public ToolView, private SingleAxisPanel
{
    Q_OBJECT

public:
    explicit COV_SnMtnWnd(const ToolContext& context, QWidget* parent = nullptr);
    // Runs the sequences on the given timers and clock instead of its own.
    COV_SnMtnWnd(const ToolContext& context, SequencerClockwork& clockwork,
                 QWidget* parent = nullptr);
    ~COV_SnMtnWnd() override;

    ToolKind kind() const override { return ToolSingleAxis; }
    void handleUserMessage(UserMessage message, int wParam) override;
    void endMotion() override { m_sequencer.endSequence(); }

    SingleAxisSequencer& sequencer() { return m_sequencer; }

protected:
    void beforeClose() override;
    void askBeforeClose() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    COV_SnMtnWnd(const ToolContext& context, std::unique_ptr<QtClockwork> ownClockwork,
                 SequencerClockwork* clockwork, QWidget* parent);

    QWidget* createSelectorRow();
    QWidget* createPageArea();
    QWidget* createButtonColumn();
    void keepColumnWidth(QWidget& column) const;
    QWidget* createMotionButtons();
    void connectControls();

    void fillCardCombo();
    void reload();
    void loadPages();
    void updateServoCaption();
    void layoutMotionButtons();
    void promptForVisiblePage(BoardFamily family);

    void onTabChanged(int index);
    void onCardActivated(int index);
    void onAxisActivated(int index);
    void onControllerChanged();
    void onServoClicked();
    void onSetPrmClicked();

    // SingleAxisPanel
    MotionTab currentTab() const override { return m_currentTab; }
    MotionType motionType() const override;
    bool repeatTicked() const override;
    bool infiniteTicked() const override;
    PtpSpeeds speedFields() const override;
    RepeatFields takeRepeatFields() override;
    HomeSettings homeFields() const override;
    void showCycle(int elapsedMs, int cycleCount) override;
    void clearCycleDisplay() override;
    void setSequenceLocked(bool locked) override;

    ToolContext m_context;
    std::unique_ptr<QtClockwork> m_ownClockwork;
    SingleAxisSequencer m_sequencer;

    CardNo m_card = 0;
    AxisNo m_axis = 0;
    MotionTab m_currentTab = MotionTab::Home;
    bool m_servoOn = false;

    QComboBox* m_cardCombo = nullptr;
    QComboBox* m_axisCombo = nullptr;
    QTabBar* m_tabBar = nullptr;
    QStackedWidget* m_pages = nullptr;
    COV_SnMtnHomeWnd* m_homePage = nullptr;
    COV_SnMtnPtpWnd* m_ptpPage = nullptr;
    QPushButton* m_eStop = nullptr;
    QPushButton* m_sStop = nullptr;
    QPushButton* m_servo = nullptr;
    QPushButton* m_minus = nullptr;
    QPushButton* m_plus = nullptr;
    QPushButton* m_alarmReset = nullptr;
    QPushButton* m_counterClear = nullptr;
    QPushButton* m_setPrm = nullptr;
    QPushButton* m_parameterSetup = nullptr;
    QPushButton* m_scope = nullptr;
    QPushButton* m_close = nullptr;
    JogReleaseGuard* m_jogGuard = nullptr;
};
