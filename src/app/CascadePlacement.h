#pragma once

#include <QPoint>
#include <QSize>

// Where a new tool window goes: each one 23, 29 further down-right than the last, back to
// the corner when it would leave the workspace or when no tool window is open.
class CascadePlacement
{
public:
    static constexpr int kStepX = 23;
    static constexpr int kStepY = 29;

    // The position of a tool window being created in a workspace of the given size.
    QPoint placeNew(const QSize& workspace);
    // A tool window went away: the offset steps back, with no lower bound, as users know it.
    void windowDestroyed();

    int liveWindows() const { return m_live; }
    QPoint offset() const { return m_offset; }

private:
    QPoint m_offset;
    bool m_placedBefore = false;
    int m_live = 0;
};
