#pragma once

#include "MotionButtonActions.h"
#include "MotionButtonTarget.h"
#include "MotionToolView.h"
#include "MotionTypes.h"
#include "SingleAxisPanel.h"
#include "SingleAxisSequencer.h"

#include <QTimer>

class AxisMotionReadout;
class CardSelectorRow;
class COV_SnMtnHomeWnd;
class COV_SnMtnPtpWnd;
class MotionButtonColumn;
class QComboBox;
class QStackedWidget;
class QTabBar;

// The single-axis motion tool window: moves one axis of the active controller by jog, steps,
// repeats and homing, with its servo, alarm-reset and counter-clear outputs.
class COV_SnMtnWnd : public MotionToolView, private SingleAxisPanel, private MotionButtonTarget
{
    Q_OBJECT

public:
    // Runs the sequences on `given` clockwork when there is one (a test's), on its own Qt timers
    // otherwise.
    explicit COV_SnMtnWnd(const ToolContext& context, QWidget* parent = nullptr,
                          SequencerClockwork* given = nullptr);
    ~COV_SnMtnWnd() override;

    ToolKind kind() const override { return ToolSingleAxis; }
    void handleUserMessage(UserMessage message, int wParam) override;
    QTimer* pollTimer() override { return &m_poll; }

    SingleAxisSequencer& sequencer() { return m_sequencer; }

protected:
    void askBeforeClose() override;
    MotionSequencer& motion() override { return m_sequencer; }
    void changeEvent(QEvent* event) override;

private:
    QWidget* createPageArea();
    void connectControls();

    void fillCardCombo();
    void reload();
    void loadPages();
    void updateServoCaption();
    void layoutMotionButtons();
    void promptForVisiblePage(BoardFamily family);
    // The 10 ms poll: the axis' positions and speed beside the jog buttons.
    void showAxis();

    void onTabChanged(int index);
    void onCardActivated(int index);
    void onAxisActivated(int index);
    void onControllerChanged();
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

    // MotionButtonTarget: the window's one axis, always.
    MotionAxes buttonAxes(bool tell) override;
    AxisNo servoAxis() const override { return m_axis; }
    bool mayStartMotion() override { return true; }

    SingleAxisSequencer m_sequencer;
    MotionButtonActions m_actions;

    CardNo m_card = 0;
    AxisNo m_axis = 0;
    MotionTab m_currentTab = MotionTab::Home;

    CardSelectorRow* m_cardRow = nullptr;
    QComboBox* m_axisCombo = nullptr;
    QTabBar* m_tabBar = nullptr;
    QStackedWidget* m_pages = nullptr;
    COV_SnMtnHomeWnd* m_homePage = nullptr;
    COV_SnMtnPtpWnd* m_ptpPage = nullptr;
    MotionButtonColumn* m_buttons = nullptr;
    AxisMotionReadout* m_readout = nullptr;
    QTimer m_poll;
};
