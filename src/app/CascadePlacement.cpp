#include "CascadePlacement.h"

QPoint CascadePlacement::placeNew(const QSize& workspace)
{
    if (m_live == 0) {
        m_offset = QPoint();
        m_placedBefore = false;
    }
    if (m_placedBefore)
        m_offset += QPoint(kStepX, kStepY);
    else
        m_placedBefore = true;
    if (m_offset.x() >= workspace.width() || m_offset.y() >= workspace.height())
        m_offset = QPoint();
    ++m_live;
    return m_offset;
}

void CascadePlacement::windowDestroyed()
{
    --m_live;
    m_offset -= QPoint(kStepX, kStepY);
}
