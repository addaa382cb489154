#pragma once

#include <array>
#include <cstddef>
#include <vector>

// A fixed number of the latest samples, oldest first; pushing into a full ring drops the
// oldest, so a long recording costs no allocation per sample.
class ScopeRing
{
public:
    static constexpr int kChannels = 4;
    struct Frame
    {
        double time = 0.0; // ms of the scope's clock
        std::array<double, kChannels> values{};
    };

    void reset(int capacity);
    void clear()
    {
        m_start = 0;
        m_size = 0;
    }
    void push(const Frame& frame);
    int size() const { return m_size; }
    int capacity() const { return static_cast<int>(m_frames.size()); }
    bool isEmpty() const { return m_size == 0; }
    // 0 is the oldest kept frame.
    const Frame& at(int index) const
    {
        return m_frames[static_cast<std::size_t>((m_start + index) % capacity())];
    }
    const Frame& latest() const { return at(m_size - 1); }

private:
    std::vector<Frame> m_frames;
    int m_start = 0;
    int m_size = 0;
};
