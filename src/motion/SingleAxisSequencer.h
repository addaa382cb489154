#pragma once

#include "MotionPanel.h"
#include "MotionSequencer.h"

class SingleAxisPanel;

// The sequencing of the single-axis window: one axis, chosen with setCardAxis, on the active
// family, its figures taken from the point-to-point and home pages.
class SingleAxisSequencer : public MotionSequencer, private MotionPanel
{
public:
    SingleAxisSequencer(ActiveController& active, BoardApi& board, PromptService& prompt,
                        SequencerClockwork& clockwork, SingleAxisPanel& panel);

    void setCardAxis(CardNo card, AxisNo axis);

private:
    MotionTab currentTab() const override;
    MotionType motionType() const override;
    bool repeatTicked() const override;
    bool infiniteTicked() const override;
    MotionAxes selectedAxes() const override;
    RepeatFields takeRepeatFields() override;
    std::vector<AxisPositions> takePositions(const MotionAxes& target,
                                             const RepeatFields& fields) override;
    void writeSpeeds(const MotionAxes& target, MotionType type) override;
    void writeHomeSettings(const MotionAxes& target) override;
    void showCycle(int elapsedMs, int cycleCount) override;
    void clearCycleDisplay() override;
    void setSequenceLocked(bool locked) override;

    ActiveController& m_activeController;
    BoardApi& m_boardApi;
    SingleAxisPanel& m_singlePanel;
    CardNo m_card = 0;
    AxisNo m_axis = 0;
};
