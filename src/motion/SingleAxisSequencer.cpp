#include "SingleAxisSequencer.h"

#include "SingleAxisPanel.h"

SingleAxisSequencer::SingleAxisSequencer(ActiveController& active, BoardApi& board,
                                         PromptService& prompt, SequencerClockwork& clockwork,
                                         SingleAxisPanel& panel)
    : MotionSequencer(active, board, prompt, clockwork, *this, MovingOwner::SingleAxis),
      m_activeController(active), m_boardApi(board), m_singlePanel(panel)
{}

void SingleAxisSequencer::setCardAxis(CardNo card, AxisNo axis)
{
    m_card = card;
    m_axis = axis;
}

MotionTab SingleAxisSequencer::currentTab() const
{
    return m_singlePanel.currentTab();
}

MotionType SingleAxisSequencer::motionType() const
{
    return m_singlePanel.motionType();
}

bool SingleAxisSequencer::repeatTicked() const
{
    return m_singlePanel.repeatTicked();
}

bool SingleAxisSequencer::infiniteTicked() const
{
    return m_singlePanel.infiniteTicked();
}

MotionAxes SingleAxisSequencer::selectedAxes() const
{
    return MotionAxes{m_activeController.family, m_card, {m_axis}};
}

RepeatFields SingleAxisSequencer::takeRepeatFields()
{
    return m_singlePanel.takeRepeatFields();
}

std::vector<AxisPositions> SingleAxisSequencer::takePositions(const MotionAxes&,
                                                              const RepeatFields& fields)
{
    return {AxisPositions{fields.distance, fields.position1, fields.position2}};
}

void SingleAxisSequencer::writeSpeeds(const MotionAxes& target, MotionType type)
{
    const PtpSpeeds speeds = m_singlePanel.speedFields();
    const AxisNo axis = target.axes.front();
    if (type == MotionType::Jog)
        speeds.writeJog(m_boardApi, target.family, target.card, axis);
    else
        speeds.writePositioning(m_boardApi, target.family, target.card, axis);
}

void SingleAxisSequencer::writeHomeSettings(const MotionAxes& target)
{
    m_singlePanel.homeFields().write(m_boardApi, target.family, target.card, target.axes.front());
}

void SingleAxisSequencer::showCycle(int elapsedMs, int cycleCount)
{
    m_singlePanel.showCycle(elapsedMs, cycleCount);
}

void SingleAxisSequencer::clearCycleDisplay()
{
    m_singlePanel.clearCycleDisplay();
}

void SingleAxisSequencer::setSequenceLocked(bool locked)
{
    m_singlePanel.setSequenceLocked(locked);
}
