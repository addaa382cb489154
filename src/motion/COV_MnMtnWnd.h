#pragma once

#include "GantryCheck.h"
#include "MotionButtonActions.h"
#include "MotionButtonTarget.h"
#include "MotionPanel.h"
#include "MotionSequencer.h"
#include "MotionToolView.h"
#include "MultiAxisForm.h"
#include "MultiAxisSlots.h"

#include <QTimer>

class SequencerClockwork;
class UnitEchoes;

// The multi-axis motion tool window: moves the checked axes of one card together by jog,
// relative and absolute steps with repeat, with a gantry check that stops them all when two
// neighbouring axes drift apart.
class COV_MnMtnWnd : public MotionToolView, private MotionPanel, private MotionButtonTarget
{
    Q_OBJECT

public:
    // Runs the sequences on `given` clockwork when there is one (a test's), on its own Qt timers
    // otherwise.
    explicit COV_MnMtnWnd(const ToolContext& context, QWidget* parent = nullptr,
                          SequencerClockwork* given = nullptr);
    ~COV_MnMtnWnd() override;

    ToolKind kind() const override { return ToolMultiAxis; }
    QTimer* pollTimer() override { return &m_listWatch; }
    void handleUserMessage(UserMessage message, int wParam) override;

    MotionSequencer& sequencer() { return m_sequencer; }
    // Timer 5: "All Axes", the checked axes and the editing controls follow the list.
    void onListWatch();
    // Timer 6: one period of the gantry check.
    void onGantryTick() { m_gantry.tick(); }
    const GantryCheck& gantry() const { return m_gantry; }

protected:
    void askBeforeClose() override;
    MotionSequencer& motion() override { return m_sequencer; }

private:
    void connectControls();

    BoardFamily family() const;
    void fillCardCombo();
    void reload();
    // "= 12.500 mm" beside the speed and position fields of the highlighted axis.
    void addUnitEchoes();
    void loadProfilesFromBoard();
    void showFocusedFields();
    PtpSpeeds profileFields() const;
    void writeProfiles(const MotionAxes& axes, MotionType type);
    // "Set Prm" of the checked axes; setParametersOn() names the card and axes written.
    void setParameters(MotionType type);
    void setParametersOn(const MotionAxes& checked, MotionType type);
    void applyPositions();
    bool profileChanged(BoardFamily family) const;
    void promptIfChanged(BoardFamily family);
    bool focusedChecked(bool tell);
    void updateServoCaption();
    void layoutMotionButtons();
    void onFocusChanged(int row);
    void onMotionTypeChanged(int index);
    void onErrorLimitEdited(const QString& text);
    void forEachChecked(const std::function<void(AxisNo)>& act);

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

    // MotionButtonTarget: the checked axes, and only while the focused one is among them.
    MotionAxes buttonAxes(bool tell) override;
    AxisNo servoAxis() const override { return static_cast<AxisNo>(m_focused); }
    bool mayStartMotion() override;

    MultiAxisForm m_form;
    MotionSequencer m_sequencer;
    MotionButtonActions m_actions;
    MultiAxisSlots m_slots;

    CardNo m_card = 0;
    int m_axisCount = 0;
    int m_focused = 0;
    std::vector<AxisNo> m_checked;
    bool m_listChanged = true;
    int m_editingState = -1; // what the list watch last gave the editing controls
    // The motion type whose profile the fields hold: the combo has already moved on when its
    // change is announced, and the question compares against what was shown.
    MotionType m_shownType = MotionType::Jog;
    QString m_lastValidLimit = QStringLiteral("100");

    QTimer m_listWatch;
    UnitEchoes* m_echoes = nullptr;
    GantryCheck m_gantry;
};
