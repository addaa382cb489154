#pragma once

#include "ToolContext.h"
#include "ToolView.h"

#include <memory>

class MotionSequencer;
class QtClockwork;
class SequencerClockwork;

// What both motion windows keep around their sequencer: the context, the clockwork the
// sequences run on (a test's when given, the window's own Qt timers otherwise), and a held jog
// that ends when the window hides or closes.
class MotionToolView : public ToolView
{
public:
    ~MotionToolView() override;

    bool movesAxes() override;
    void endMotion() override;

protected:
    MotionToolView(const ToolContext& context, QWidget* parent, SequencerClockwork* given);

    SequencerClockwork& clockwork() const { return *m_clockwork; }
    virtual MotionSequencer& motion() = 0;

    void beforeClose() override;
    void hideEvent(QHideEvent* event) override;

    ToolContext m_context;

private:
    std::unique_ptr<QtClockwork> m_ownClockwork;
    SequencerClockwork* m_clockwork;
};
