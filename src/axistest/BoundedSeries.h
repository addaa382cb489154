#pragma once

#include <QPointF>

#include <cstddef>
#include <vector>

// A series that never holds more than a set number of points however long it is fed: when
// full, neighbours merge pairwise into the larger of the two, so an 8-hour run-in plots its
// worst values in flat memory.
class BoundedSeries
{
public:
    explicit BoundedSeries(std::size_t capacity = 2048) : m_capacity(capacity) {}

    void add(double x, double y);
    const std::vector<QPointF>& points() const { return m_points; }
    // How many values each point stands for now.
    std::size_t stride() const { return m_stride; }

private:
    std::size_t m_capacity;
    std::size_t m_stride = 1;
    std::vector<QPointF> m_points;
    QPointF m_pending;
    std::size_t m_pendingCount = 0;
};
