#pragma once

#include "ActualSpeedCalculator.h"
#include "ScopeChannel.h"
#include "ScopeRecording.h"
#include "ScopeRing.h"

#include <array>
#include <cstdint>

class BoardApi;

// The scope's acquisition without a window: reads the enabled channels from the boards at each
// sample, keeps them in a ring, waits for the trigger axis to start moving or the trigger
// channel to cross a level, and hands out
// what is to be shown. The caller owns the clock and calls sample() once per period.
class ScopeRecorder
{
public:
    static constexpr int kChannels = ScopeRing::kChannels;
    static constexpr double kPreTriggerShare = 0.1;

    enum class Trigger
    {
        FreeRun,
        AxisStarts,
        Level // the trigger channel's value crosses the level in the chosen direction
    };
    enum class Edge
    {
        Rising,
        Falling,
        Either
    };
    enum class State
    {
        Stopped,
        Armed,    // waiting for the trigger axis to start or the level to be crossed
        Recording // free run, or after the trigger until the window is full
    };
    struct Settings
    {
        int periodMs = 2;
        int lengthMs = 10000;
        Trigger trigger = Trigger::FreeRun;
        int triggerChannel = 0;
        Edge edge = Edge::Rising;
        double level = 0.0; // in the channel's pulses (pps for a speed)
        bool repeat = false;
    };

    explicit ScopeRecorder(BoardApi& board);

    // Takes effect at the next run(), like the settings: a record keeps the channels it was
    // made with.
    void setChannel(int index, const ScopeChannel& channel);
    const ScopeChannel& channel(int index) const { return m_channels[static_cast<size_t>(index)]; }
    int enabledCount() const;
    // Takes effect at the next run().
    void setSettings(const Settings& settings) { m_settings = settings; }
    const Settings& settings() const { return m_settings; }

    // Starts afresh at nowMs: records at once in free run, else arms the trigger.
    void run(double nowMs);
    void stop();
    void clear();
    void sample(double nowMs);

    State state() const { return m_state; }
    bool triggered() const { return m_triggered; }
    int capturesTaken() const { return m_captures; }
    // Changes whenever what recording() returns changes; the window redraws on a change.
    std::uint64_t revision() const { return m_revision; }
    // What is shown: the running record, or while re-armed the last complete capture.
    ScopeRecording recording() const;

private:
    void arm();
    bool triggerAxisMoving(const ScopeRing::Frame& frame);
    bool levelCrossed(const ScopeRing::Frame& frame);
    void trigger(double nowMs);
    double readSignal(const ScopeChannel& channel) const;
    void finishCapture();

    BoardApi& m_board;
    std::array<ScopeChannel, kChannels> m_channels{};
    std::array<ScopeChannel, kChannels> m_recorded{}; // the channels of the current run
    Settings m_settings;
    Settings m_running; // the settings of the current run
    State m_state = State::Stopped;
    ScopeRing m_ring;
    double m_startMs = 0.0;
    double m_triggerMs = 0.0;
    bool m_triggered = false;
    bool m_sawStandstill = false;
    bool m_hasPrevious = false; // a level trigger's last value, for the crossing
    double m_previous = 0.0;
    std::array<ActualSpeedCalculator::Request, kChannels> m_speedSettings{};
    ScopeRecording m_capture;
    bool m_hasCapture = false;
    int m_captures = 0;
    std::uint64_t m_revision = 0;
};
