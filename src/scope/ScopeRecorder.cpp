#include "ScopeRecorder.h"

#include "BoardApi.h"
#include "PredictedSpeedProfile.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Times are kept to the microsecond so that a CSV file gives back exactly what was shown.
double roundToMicroseconds(double ms)
{
    return std::round(ms * 1000.0) / 1000.0;
}

} // namespace

ScopeRecorder::ScopeRecorder(BoardApi& board) : m_board(board) {}

void ScopeRecorder::setChannel(int index, const ScopeChannel& channel)
{
    if (index >= 0 && index < kChannels)
        m_channels[static_cast<size_t>(index)] = channel;
}

int ScopeRecorder::enabledCount() const
{
    return static_cast<int>(std::count_if(m_channels.begin(), m_channels.end(),
                                          [](const ScopeChannel& c) { return c.enabled; }));
}

void ScopeRecorder::run(double nowMs)
{
    m_running = m_settings;
    m_recorded = m_channels;
    m_running.periodMs = std::max(1, m_running.periodMs);
    m_running.lengthMs = std::max(m_running.periodMs * 10, m_running.lengthMs);
    // One frame more than the window, so a full window is on both of its edges.
    m_ring.reset(m_running.lengthMs / m_running.periodMs + 2);
    m_startMs = nowMs;
    m_hasCapture = false;
    m_captures = 0;
    if (m_running.trigger == Trigger::FreeRun) {
        m_triggered = false;
        m_state = State::Recording;
    } else {
        arm();
    }
    ++m_revision;
}

void ScopeRecorder::arm()
{
    m_ring.clear();
    m_triggered = false;
    m_sawStandstill = false;
    m_hasPrevious = false;
    m_state = State::Armed;
}

void ScopeRecorder::stop()
{
    if (m_state == State::Stopped)
        return;
    m_state = State::Stopped;
    ++m_revision;
}

void ScopeRecorder::clear()
{
    m_ring.clear();
    m_hasCapture = false;
    m_triggered = false;
    m_sawStandstill = false;
    ++m_revision;
}

double ScopeRecorder::readSignal(const ScopeChannel& channel) const
{
    const auto card = static_cast<CardNo>(channel.card);
    const auto axis = static_cast<AxisNo>(channel.axis);
    switch (channel.signal) {
    case ScopeChannel::CommandPosition:
        return m_board.GetCommandPos(channel.family, card, axis);
    case ScopeChannel::ActualPosition:
        return m_board.GetActualPos(channel.family, card, axis);
    case ScopeChannel::CommandSpeed:
        return m_board.GetCommandSpeed(channel.family, card, axis);
    case ScopeChannel::FollowingError:
        return double(m_board.GetCommandPos(channel.family, card, axis)) -
               double(m_board.GetActualPos(channel.family, card, axis));
    }
    return 0.0;
}

bool ScopeRecorder::triggerAxisMoving(const ScopeRing::Frame& frame)
{
    const int index = std::clamp(m_running.triggerChannel, 0, kChannels - 1);
    const ScopeChannel& source = m_recorded[static_cast<size_t>(index)];
    // The channel's own reading serves when it is the speed; otherwise one extra read.
    if (source.enabled && source.signal == ScopeChannel::CommandSpeed)
        return frame.values[static_cast<size_t>(index)] != 0.0;
    return m_board.GetCommandSpeed(source.family, static_cast<CardNo>(source.card),
                                   static_cast<AxisNo>(source.axis)) != 0;
}

bool ScopeRecorder::levelCrossed(const ScopeRing::Frame& frame)
{
    const int index = std::clamp(m_running.triggerChannel, 0, kChannels - 1);
    const ScopeChannel& source = m_recorded[static_cast<size_t>(index)];
    // A channel that is not recorded is still read for the trigger.
    const double value =
        source.enabled ? frame.values[static_cast<size_t>(index)] : readSignal(source);
    const double level = m_running.level;
    const bool had = std::exchange(m_hasPrevious, true);
    const double previous = std::exchange(m_previous, value);
    if (!had)
        return false;
    // Reaching the level counts, so a signal that stops on it still triggers once.
    const bool rising = previous < level && value >= level;
    const bool falling = previous > level && value <= level;
    switch (m_running.edge) {
    case Edge::Rising:
        return rising;
    case Edge::Falling:
        return falling;
    case Edge::Either:
        return rising || falling;
    }
    return false;
}

void ScopeRecorder::trigger(double nowMs)
{
    m_triggered = true;
    m_triggerMs = nowMs;
    m_state = State::Recording;
    // The settings in effect at the trigger, for the predicted profile.
    for (size_t c = 0; c < m_recorded.size(); ++c) {
        const ScopeChannel& channel = m_recorded[c];
        if (channel.enabled && channel.signal == ScopeChannel::CommandSpeed)
            m_speedSettings[c] = PredictedSpeedProfile::readSettings(
                m_board, channel.family, static_cast<CardNo>(channel.card),
                static_cast<AxisNo>(channel.axis));
    }
}

void ScopeRecorder::sample(double nowMs)
{
    if (m_state == State::Stopped)
        return;
    ScopeRing::Frame frame;
    frame.time = nowMs;
    for (size_t c = 0; c < m_recorded.size(); ++c) {
        if (m_recorded[c].enabled)
            frame.values[c] = readSignal(m_recorded[c]);
    }
    m_ring.push(frame);
    ++m_revision;
    const double length = m_running.lengthMs;
    if (m_state == State::Armed && m_running.trigger == Trigger::Level) {
        if (levelCrossed(frame))
            trigger(nowMs);
        return;
    }
    if (m_state == State::Armed) {
        const bool moving = triggerAxisMoving(frame);
        if (moving && m_sawStandstill)
            trigger(nowMs);
        m_sawStandstill = m_sawStandstill || !moving;
        return;
    }
    if (m_triggered && nowMs >= m_triggerMs + length * (1.0 - kPreTriggerShare))
        finishCapture();
}

void ScopeRecorder::finishCapture()
{
    ++m_captures;
    if (!m_running.repeat) {
        m_state = State::Stopped;
        return;
    }
    m_capture = recording();
    m_hasCapture = true;
    arm();
}

ScopeRecording ScopeRecorder::recording() const
{
    if (m_state == State::Armed && m_hasCapture)
        return m_capture;
    ScopeRecording record;
    record.triggered = m_triggered;
    if (m_ring.isEmpty())
        return record;
    const double origin = m_triggered ? m_triggerMs : m_startMs;
    const double from = m_triggered ? m_triggerMs - m_running.lengthMs * kPreTriggerShare
                                    : m_ring.latest().time - m_running.lengthMs;
    int first = 0;
    while (first < m_ring.size() && m_ring.at(first).time < from - 1e-9)
        ++first;
    const auto count = static_cast<size_t>(m_ring.size() - first);
    record.times.reserve(count);
    for (int i = first; i < m_ring.size(); ++i)
        record.times.push_back(roundToMicroseconds(m_ring.at(i).time - origin));
    for (size_t c = 0; c < m_recorded.size(); ++c) {
        const ScopeChannel& channel = m_recorded[c];
        if (!channel.enabled)
            continue;
        ScopeRecording::Column column;
        column.name = channel.name();
        column.unit = ScopeChannel::unit(channel.signal);
        column.channel = static_cast<int>(c);
        column.source = channel;
        column.hasSettings = m_triggered && channel.signal == ScopeChannel::CommandSpeed;
        column.settings = m_speedSettings[c];
        column.values.reserve(count);
        for (int i = first; i < m_ring.size(); ++i)
            column.values.push_back(m_ring.at(i).values[c]);
        record.columns.push_back(std::move(column));
    }
    return record;
}
