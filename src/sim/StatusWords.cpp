#include "StatusWords.h"

#include "SimCard.h"
#include "SimConstants.h"

namespace nrxsim {

namespace {
using Signal = HomeSearch::Signal;
} // namespace

uint16_t StatusWords::card(const SimCard& card, int index, int64_t nowMs)
{
    const SimAxis& a = *card.axis(index);
    const SimAxis::Lines lines = card.linesFor(index);
    uint16_t w = 0;
    w |= a.senses(Signal::Org) ? CardBit::Org : 0;
    w |= a.senses(Signal::Z) ? CardBit::Ez : 0;
    w |= lines.emergency ? CardBit::Emg : 0;
    w |= a.inPosition() ? CardBit::Inp : 0;
    w |= a.alarmActive(lines) ? CardBit::Alm : 0;
    w |= a.limitActive(1) ? CardBit::LimitPlus : 0;
    w |= a.limitActive(-1) ? CardBit::LimitMinus : 0;
    w |= a.isMoving() ? CardBit::Run : 0;
    w |= a.errorCode() < 0 ? CardBit::Err : 0;
    w |= a.isHoming() ? CardBit::Home : 0;
    w |= a.homed() ? CardBit::HomeOk : 0;
    w |= a.servo().counterClearOutput(nowMs) ? CardBit::CounterClear : 0;
    w |= a.servo().servoOn() ? CardBit::ServoOn : 0;
    w |= a.servo().alarmReset() ? CardBit::AlarmReset : 0;
    w |= card.isRn() && a.inMultiAxisMove() ? CardBit::InterpolationRun : 0;
    return w;
}

uint16_t StatusWords::drive(const SimCard& card, int index)
{
    const SimAxis& a = *card.axis(index);
    uint16_t w = a.stopBits() | a.profileBits();
    w |= a.compareActive(1) ? DriveBit::ComparePlus : 0;
    w |= a.compareActive(-1) ? DriveBit::CompareMinus : 0;
    return w;
}

uint16_t StatusWords::main(const SimCard& card, int index)
{
    // RL groups its axes in pairs, RM and RN in fours.
    const int groupSize = card.familyIndex() == Family::RL ? 2 : 4;
    const int base = index - index % groupSize;
    uint16_t w = 0;
    for (int slot = 0; slot < groupSize && base + slot < card.axisCount(); ++slot) {
        const SimAxis& a = *card.axis(base + slot);
        w |= a.isMoving() ? 1u << (MainBit::RunShift + slot) : 0;
        w |= a.errorCode() < 0 ? 1u << (MainBit::ErrShift + slot) : 0;
        if (!card.isRn()) {
            w |= a.isHoming() ? 1u << (MainBit::HomeShift + slot) : 0;
            continue;
        }
        const SimAxis::Lines lines = card.linesFor(base + slot);
        w |= lines.emergency ? MainBit::RnEmergency : 0;
        w |= a.inMultiAxisMove() ? MainBit::RnInterpolationRun : 0;
        w |= a.isHoming() ? MainBit::RnHoming : 0;
        w |= a.homed() ? MainBit::RnHomeOk : 0;
        w |= a.servo().servoOn() ? MainBit::RnServoOn : 0;
        w |= a.alarmActive(lines) ? MainBit::RnAlarm : 0;
        w |= a.limitActive(1) || a.limitActive(-1) ? MainBit::RnLimit : 0;
        w |= a.compareActive(1) || a.compareActive(-1) ? MainBit::RnCompare : 0;
    }
    return w;
}

uint16_t StatusWords::error(const SimCard& card, int index)
{
    return card.axis(index)->errorBits();
}

uint16_t StatusWords::input(const SimCard& card, int index)
{
    const int even = index - index % 2;
    uint16_t w = inputBits(card, even);
    if (even + 1 < card.axisCount())
        w |= static_cast<uint16_t>(inputBits(card, even + 1) << InputBit::OddAxisShift);
    return w;
}

uint16_t StatusWords::inputBits(const SimCard& card, int index)
{
    const SimAxis& a = *card.axis(index);
    const SimAxis::Lines lines = card.linesFor(index);
    const bool alarm = a.alarmActive(lines);
    uint16_t w = 0;
    w |= a.servo().servoOn() && !alarm ? InputBit::Ready : 0;
    w |= a.senses(Signal::Org) ? InputBit::Org : 0;
    w |= a.senses(Signal::Z) ? InputBit::Ez : 0;
    w |= lines.emergency ? InputBit::Emg : 0;
    w |= a.limitActive(1) ? InputBit::LimitPlus : 0;
    w |= a.limitActive(-1) ? InputBit::LimitMinus : 0;
    w |= a.inPosition() ? InputBit::Inp : 0;
    w |= alarm ? InputBit::Alm : 0;
    return w;
}

uint16_t StatusWords::errorBitsFor(int32_t code)
{
    switch (code) {
    case StopCode::PlusSoftLimit:
        return ErrorBit::PlusSoftLimit;
    case StopCode::MinusSoftLimit:
        return ErrorBit::MinusSoftLimit;
    case StopCode::PlusLimit:
        return ErrorBit::PlusLimit;
    case StopCode::MinusLimit:
        return ErrorBit::MinusLimit;
    case StopCode::Alarm:
        return ErrorBit::Alarm;
    case StopCode::Emergency:
        return ErrorBit::Emergency;
    case StopCode::ZAlreadyActive:
        return ErrorBit::ZAlreadyActive;
    default:
        return code < 0 ? ErrorBit::Other : 0;
    }
}

uint16_t StatusWords::stopBitsFor(int32_t code, bool rn)
{
    switch (code) {
    case StopCode::Emergency:
        // RN wires its EMG switch as the stop input as well.
        return DriveBit::StopEmergency | (rn ? DriveBit::StopInput : 0);
    case StopCode::Alarm:
        return DriveBit::StopAlarm;
    case StopCode::PlusLimit:
        return DriveBit::StopLimitPlus;
    case StopCode::MinusLimit:
        return DriveBit::StopLimitMinus;
    default:
        return 0;
    }
}

} // namespace nrxsim
