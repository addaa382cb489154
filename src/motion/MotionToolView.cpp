#include "MotionToolView.h"

#include "MotionSequencer.h"
#include "QtClockwork.h"

MotionToolView::MotionToolView(const ToolContext& context, QWidget* parent,
                               SequencerClockwork* given)
    : ToolView(parent), m_context(context),
      m_ownClockwork(given != nullptr ? nullptr : std::make_unique<QtClockwork>()),
      m_clockwork(given != nullptr ? given : m_ownClockwork.get())
{}

MotionToolView::~MotionToolView() = default;

bool MotionToolView::movesAxes()
{
    return motion().isMoving() || motion().isJogHeld();
}

void MotionToolView::endMotion()
{
    motion().endSequence();
}

void MotionToolView::beforeClose()
{
    motion().endForClose();
}

void MotionToolView::hideEvent(QHideEvent* event)
{
    motion().endHeldJog();
    ToolView::hideEvent(event);
}
