#pragma once

#include "BoardFamily.h"

#include <array>
#include <cstdint>
#include <vector>

class BoardApi;

// What the system I/O monitor shows of one card: the servo-side input signals of every axis
// from its card status word, the EMG input, and the alarm-reset, counter-clear, servo-on and
// run-LED outputs. It reads the board, drives the outputs and tells which lamps changed.
class SystemIoModel
{
public:
    static constexpr int kAxes = 8;
    static constexpr int kInputRows = 6;
    static constexpr int kOutputRows = 3;
    static constexpr int kEmergencyBit = 2;

    enum OutputRow
    {
        AlarmReset = 0,
        CounterClear = 1,
        ServoOn = 2
    };

    // A lamp or output button whose state changed on a refresh.
    struct Change
    {
        enum Kind
        {
            Input,
            Emergency,
            Output,
            RunLed
        };
        Kind kind;
        int axis;
        int row;
        bool on;
        bool operator==(const Change& other) const
        {
            return kind == other.kind && axis == other.axis && row == other.row && on == other.on;
        }
    };

    explicit SystemIoModel(BoardApi& board) : m_board(board) {}

    // The card status bit each input row shows.
    static int inputBit(int row);

    // Shows another card; every lamp and output counts as off until the next refresh.
    void setCard(BoardFamily family, int card, int axisCount);
    BoardFamily family() const { return m_family; }
    int card() const { return m_card; }
    int axisCount() const { return m_axisCount; }
    bool isPresent(int axis) const { return axis >= 0 && axis < m_axisCount; }

    // Reads the inputs, then the outputs, of every present axis; returns what changed.
    const std::vector<Change>& refresh();

    // A click on an output button: toggles it, or sends one counter-clear command.
    // Ignored for an absent axis and while locked.
    void clickOutput(int row, int axis);
    void clickRunLed();
    void setAllAlarmReset(bool on);
    void setAllServo(bool on);

    void setLocked(bool locked) { m_locked = locked; }
    bool locked() const { return m_locked; }

private:
    void refreshInputs();
    void refreshOutputs();
    std::uint32_t readOutput(int row, int axis);
    void noteOutput(std::uint32_t& cache, std::uint32_t value, Change change);

    BoardApi& m_board;
    BoardFamily m_family = BoardFamily::RL;
    int m_card = 0;
    int m_axisCount = 0;
    bool m_locked = false;
    std::array<std::array<bool, kInputRows>, kAxes> m_inputs{};
    bool m_emergency = false;
    std::array<std::array<std::uint32_t, kOutputRows>, kAxes> m_outputs{};
    std::uint32_t m_runLed = 0;
    std::vector<Change> m_changes;
};
