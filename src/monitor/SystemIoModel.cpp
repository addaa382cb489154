#include "SystemIoModel.h"

#include "BoardApi.h"

namespace {
// Encoder Z, alarm, in-position, +limit, origin, -limit: the rows top to bottom.
constexpr std::array<int, SystemIoModel::kInputRows> kInputBits{1, 4, 3, 5, 0, 6};

CardNo cardNo(int card)
{
    return static_cast<CardNo>(card);
}

AxisNo axisNo(int axis)
{
    return static_cast<AxisNo>(axis);
}
} // namespace

int SystemIoModel::inputBit(int row)
{
    return kInputBits[static_cast<std::size_t>(row)];
}

void SystemIoModel::setCard(BoardFamily family, int card, int axisCount)
{
    m_family = family;
    m_card = card;
    m_axisCount = axisCount < 0 ? 0 : (axisCount > kAxes ? kAxes : axisCount);
    for (auto& axis : m_inputs)
        axis.fill(false);
    for (auto& axis : m_outputs)
        axis.fill(0);
    m_emergency = false;
    m_runLed = 0;
}

const std::vector<SystemIoModel::Change>& SystemIoModel::refresh()
{
    m_changes.clear();
    refreshInputs();
    refreshOutputs();
    return m_changes;
}

void SystemIoModel::refreshInputs()
{
    for (int axis = 0; axis < m_axisCount; ++axis) {
        const std::uint16_t word = m_board.GetCardStatus(m_family, cardNo(m_card), axisNo(axis));
        auto& shown = m_inputs[static_cast<std::size_t>(axis)];
        for (int row = 0; row < kInputRows; ++row) {
            const bool on = (word >> inputBit(row) & 1U) != 0;
            if (on != shown[static_cast<std::size_t>(row)]) {
                shown[static_cast<std::size_t>(row)] = on;
                m_changes.push_back({Change::Input, axis, row, on});
            }
        }
        // One EMG switch per card: only the first axis' bit counts.
        const bool emergency = (word >> kEmergencyBit & 1U) != 0;
        if (axis == 0 && emergency != m_emergency) {
            m_emergency = emergency;
            m_changes.push_back({Change::Emergency, 0, 0, emergency});
        }
    }
}

std::uint32_t SystemIoModel::readOutput(int row, int axis)
{
    const CardNo card = cardNo(m_card);
    switch (row) {
    case AlarmReset:
        return m_board.GetSvAlmRst(m_family, card, axisNo(axis));
    case CounterClear:
        // RN boards cannot report their counter-clear output.
        return m_family == BoardFamily::RN ? 0 : m_board.GetSvCClrDO(m_family, card, axisNo(axis));
    default:
        return m_board.GetSvOn(m_family, card, axisNo(axis));
    }
}

void SystemIoModel::noteOutput(std::uint32_t& cache, std::uint32_t value, Change change)
{
    if ((value != 0) == (cache != 0))
        return;
    cache = value;
    change.on = value != 0;
    m_changes.push_back(change);
}

void SystemIoModel::refreshOutputs()
{
    for (int row = 0; row < kOutputRows; ++row) {
        for (int axis = 0; axis < m_axisCount; ++axis) {
            noteOutput(m_outputs[static_cast<std::size_t>(axis)][static_cast<std::size_t>(row)],
                       readOutput(row, axis), {Change::Output, axis, row, false});
        }
    }
    noteOutput(m_runLed, m_board.GetSvRun(m_family, cardNo(m_card), 0),
               {Change::RunLed, 0, 0, false});
}

void SystemIoModel::clickOutput(int row, int axis)
{
    if (!isPresent(axis) || m_locked)
        return;
    const CardNo card = cardNo(m_card);
    const AxisNo a = axisNo(axis);
    switch (row) {
    case AlarmReset:
        m_board.PutSvAlmRst(m_family, card, a, m_board.GetSvAlmRst(m_family, card, a) == 0 ? 1 : 0);
        break;
    case CounterClear:
        m_board.PutSvCClrCmd(m_family, card, a);
        break;
    case ServoOn:
        m_board.PutSvOn(m_family, card, a, m_board.GetSvOn(m_family, card, a) == 0 ? 1 : 0);
        break;
    default:
        break;
    }
}

void SystemIoModel::clickRunLed()
{
    if (m_axisCount == 0 || m_locked)
        return;
    const CardNo card = cardNo(m_card);
    m_board.PutSvRun(m_family, card, 0, m_board.GetSvRun(m_family, card, 0) == 0 ? 1 : 0);
}

void SystemIoModel::setAllAlarmReset(bool on)
{
    if (m_locked)
        return;
    for (int axis = 0; axis < m_axisCount; ++axis)
        m_board.PutSvAlmRst(m_family, cardNo(m_card), axisNo(axis), on ? 1 : 0);
}

void SystemIoModel::setAllServo(bool on)
{
    if (m_locked)
        return;
    for (int axis = 0; axis < m_axisCount; ++axis)
        m_board.PutSvOn(m_family, cardNo(m_card), axisNo(axis), on ? 1 : 0);
}
