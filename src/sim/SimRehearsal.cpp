#include "SimRehearsal.h"

#include <algorithm>
#include <string>

namespace nrxsim {

nrx_i32 SimRehearsal::SetManualClock(nrx_i32 on)
{
    family_.advance();
    family_.clock().setManual(on != 0);
    return 0;
}

nrx_i32 SimRehearsal::AdvanceClock(nrx_i32 ms)
{
    if (!family_.clock().advance(ms))
        return -1;
    family_.advance();
    return 0;
}

nrx_i32 SimRehearsal::SetDataFolder(const char* folder)
{
    family_.setDataFolder(folder ? folder : "");
    return 0;
}

nrx_i32 SimRehearsal::SetSignal(nrx_u16 c, nrx_u16 a, nrx_u16 signal, nrx_u16 on)
{
    family_.advance();
    SimCard* cd = family_.card(c);
    if (!cd)
        return 0;
    if (signal == NRXSIM_SIGNAL_EMERGENCY) {
        cd->setForcedEmergency(on != 0);
        return 0;
    }
    SimAxis* ax = cd->axis(a);
    using S = HomeSearch::Signal;
    constexpr S switches[] = {S::LimitPlus, S::LimitMinus, S::Org, S::Z};
    if (!ax)
        return 0;
    if (signal == NRXSIM_SIGNAL_ALARM)
        ax->servo().setLatchedAlarm(on != 0);
    else if (signal >= NRXSIM_SIGNAL_LIMIT_PLUS && signal <= NRXSIM_SIGNAL_Z)
        ax->forceSwitch(switches[signal - NRXSIM_SIGNAL_LIMIT_PLUS], on != 0);
    else if (signal == NRXSIM_SIGNAL_INP_ON || signal == NRXSIM_SIGNAL_INP_OFF)
        ax->setInposStuck(on == 0 ? 0 : signal == NRXSIM_SIGNAL_INP_ON ? 1 : 2);
    else if (signal == NRXSIM_SIGNAL_ENCODER_LOSS)
        ax->setEncoderLost(on != 0);
    return 0;
}

nrx_i32 SimRehearsal::SetForcedResult(const char* operation, nrx_i32 use, nrx_i32 result)
{
    return family_.setForcedResult(operation ? operation : "", use != 0, result) ? 0 : -1;
}

nrx_i32 SimRehearsal::GetSignal(nrx_u16 c, nrx_u16 a, nrx_u16 signal)
{
    SimCard* cd = family_.card(c);
    if (!cd)
        return -1;
    if (signal == NRXSIM_SIGNAL_EMERGENCY)
        return cd->forcedEmergency() ? 1 : 0;
    const SimAxis* ax = cd->axis(a);
    if (!ax)
        return -1;
    using S = HomeSearch::Signal;
    switch (signal) {
    case NRXSIM_SIGNAL_ALARM:
        return ax->servo().latchedAlarm() ? 1 : 0;
    case NRXSIM_SIGNAL_LIMIT_PLUS:
        return ax->switchForced(S::LimitPlus) ? 1 : 0;
    case NRXSIM_SIGNAL_LIMIT_MINUS:
        return ax->switchForced(S::LimitMinus) ? 1 : 0;
    case NRXSIM_SIGNAL_ORIGIN:
        return ax->switchForced(S::Org) ? 1 : 0;
    case NRXSIM_SIGNAL_Z:
        return ax->switchForced(S::Z) ? 1 : 0;
    case NRXSIM_SIGNAL_INP_ON:
        return ax->inposStuck() == 1 ? 1 : 0;
    case NRXSIM_SIGNAL_INP_OFF:
        return ax->inposStuck() == 2 ? 1 : 0;
    case NRXSIM_SIGNAL_ENCODER_LOSS:
        return ax->encoderLost() ? 1 : 0;
    default:
        return -1;
    }
}

nrx_i32 SimRehearsal::GetForcedResult(const char* operation, nrx_i32* result)
{
    int32_t forced = 0;
    const int state = family_.forcedResult(operation ? operation : "", forced);
    if (state == 1 && result)
        *result = forced;
    return state;
}

nrx_i32 SimRehearsal::GetSetupWarnings(char* buffer, nrx_i32 size)
{
    std::string lines;
    for (const std::string& warning : family_.setupWarnings())
        lines += warning + '\n';
    if (buffer && size > 0) {
        const std::size_t length = std::min(lines.size(), static_cast<std::size_t>(size - 1));
        lines.copy(buffer, length);
        buffer[length] = '\0';
    }
    return static_cast<nrx_i32>(family_.setupWarnings().size());
}

nrx_i32 SimRehearsal::GetMachinePos(nrx_u16 c, nrx_u16 a)
{
    family_.advance();
    const SimCard* cd = family_.card(c);
    const SimAxis* ax = cd ? cd->axis(a) : nullptr;
    return ax ? static_cast<nrx_i32>(ax->machinePosition()) : 0;
}

} // namespace nrxsim
