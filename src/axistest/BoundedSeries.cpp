#include "BoundedSeries.h"

#include <algorithm>

void BoundedSeries::add(double x, double y)
{
    if (m_pendingCount == 0)
        m_pending = QPointF(x, y);
    else
        m_pending.setY(std::max(m_pending.y(), y));
    if (++m_pendingCount < m_stride)
        return;
    m_points.push_back(m_pending);
    m_pendingCount = 0;
    if (m_points.size() < m_capacity)
        return;
    std::vector<QPointF> merged;
    merged.reserve(m_capacity / 2 + 1);
    for (std::size_t i = 0; i + 1 < m_points.size(); i += 2)
        merged.emplace_back(m_points[i].x(), std::max(m_points[i].y(), m_points[i + 1].y()));
    if (m_points.size() % 2 != 0)
        merged.push_back(m_points.back());
    m_points = std::move(merged);
    m_stride *= 2;
}
