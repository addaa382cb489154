#include "ScopeRing.h"

#include <algorithm>

void ScopeRing::reset(int capacity)
{
    m_frames.assign(static_cast<size_t>(std::max(1, capacity)), Frame{});
    clear();
}

void ScopeRing::push(const Frame& frame)
{
    if (m_frames.empty())
        reset(1);
    if (m_size < capacity()) {
        m_frames[static_cast<size_t>((m_start + m_size) % capacity())] = frame;
        ++m_size;
        return;
    }
    m_frames[static_cast<size_t>(m_start)] = frame;
    m_start = (m_start + 1) % capacity();
}
