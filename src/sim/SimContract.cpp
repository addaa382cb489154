#include "SimContract.h"

#include "SimConstants.h"
#include "StatusWords.h"

#include <algorithm>

namespace nrxsim {

SimContract::SimContract(int familyIndex) : family_(familyIndex) {}

SimCard* SimContract::card(nrx_u16 index)
{
    family_.advance();
    return family_.card(index);
}

SimAxis* SimContract::axis(nrx_u16 cardIndex, nrx_u16 index)
{
    SimCard* c = card(cardIndex);
    return c ? c->axis(index) : nullptr;
}

nrx_i32 SimContract::setParameter(nrx_u16 c, nrx_u16 a, Id id, nrx_i32 value)
{
    SimAxis* ax = axis(c, a);
    if (!ax)
        return 0;
    ax->setParameter(id, value);
    if (family_.log().wants(SimLog::Parameters)) {
        family_.note(SimLog::Parameters, "card " + std::to_string(c) + " axis " +
                                             std::to_string(a) + " " + AxisParameters::name(id) +
                                             "=" + std::to_string(value));
    }
    return 0;
}

nrx_i32 SimContract::parameter(nrx_u16 c, nrx_u16 a, Id id)
{
    const SimAxis* ax = axis(c, a);
    return ax ? ax->parameters()[id] : 0;
}

nrx_i32 SimContract::command(nrx_u16 c, nrx_u16 a, const char* what, bool accepted, nrx_i32 value)
{
    if (family_.log().wants(SimLog::Commands)) {
        family_.note(SimLog::Commands, "card " + std::to_string(c) + " axis " + std::to_string(a) +
                                           " " + what + " " + std::to_string(value) +
                                           (accepted ? "" : " refused: axis busy"));
    }
    return accepted ? 0 : -1;
}

// ---- device life cycle ------------------------------------------------------------------

nrx_i32 SimContract::LoadDevice(void)
{
    return family_.load();
}

nrx_i32 SimContract::UnloadDevice(void)
{
    family_.unload();
    return 0;
}

nrx_i32 SimContract::BoardInfo(nrx_u16 c, nrx_i32* reserved, nrx_i32* firmware, nrx_i32* axisCount,
                               nrx_i32* infoValue, nrx_i32* ioCount)
{
    const SimCard* cd = card(c);
    if (!cd)
        return 0;
    put(reserved, 0);
    put(firmware, cd->setup().firmware);
    put(axisCount, cd->axisCount());
    put(infoValue, cd->setup().info);
    put(ioCount, cd->ioCount());
    return 0;
}

nrx_i32 SimContract::GetDllVersion(const char*)
{
    return family_.version();
}

nrx_i32 SimContract::LogCheck(nrx_u16 level)
{
    family_.log().setLevel(std::min<int>(level, SimLog::MaxLevel));
    family_.note(SimLog::Commands, "log level " + std::to_string(level));
    return 0;
}

nrx_i32 SimContract::SaveFile(nrx_u16 c)
{
    if (!card(c))
        return 0;
    return family_.saveCard(c) ? 0 : -1;
}

nrx_i32 SimContract::Reset(nrx_u16 c)
{
    SimCard* cd = card(c);
    if (cd) {
        cd->reset();
        family_.note(SimLog::Commands, "card " + std::to_string(c) + " reset");
    }
    return 0;
}

nrx_i32 SimContract::SetSystemDefault(nrx_u16 c, nrx_u16 a)
{
    if (SimAxis* ax = axis(c, a))
        ax->restoreDefaults();
    return 0;
}

// ---- single-axis motion ------------------------------------------------------------------

nrx_i32 SimContract::Abs_Move(nrx_u16 c, nrx_u16 a, nrx_i32 position)
{
    SimAxis* ax = axis(c, a);
    return ax ? command(c, a, "Abs_Move", ax->moveTo(position, card(c)->linesFor(a)), position) : 0;
}

nrx_i32 SimContract::Inc_Move(nrx_u16 c, nrx_u16 a, nrx_i32 distance)
{
    SimAxis* ax = axis(c, a);
    return ax ? command(c, a, "Inc_Move", ax->moveBy(distance, card(c)->linesFor(a)), distance) : 0;
}

nrx_i32 SimContract::Jog_Move(nrx_u16 c, nrx_u16 a, nrx_u16 direction)
{
    SimAxis* ax = axis(c, a);
    return ax ? command(c, a, "Jog_Move", ax->jog(direction, card(c)->linesFor(a)), direction) : 0;
}

nrx_i32 SimContract::Home_Move(nrx_u16 c, nrx_u16 a)
{
    SimAxis* ax = axis(c, a);
    return ax ? command(c, a, "Home_Move", ax->home(card(c)->linesFor(a)),
                        ax->parameters()[Id::HomeMode])
              : 0;
}

nrx_i32 SimContract::Decel_Stop(nrx_u16 c, nrx_u16 a)
{
    if (SimCard* cd = card(c)) {
        cd->stop(a, true);
        command(c, a, "Decel_Stop", true);
    }
    return 0;
}

nrx_i32 SimContract::Sudden_Stop(nrx_u16 c, nrx_u16 a)
{
    if (SimCard* cd = card(c)) {
        cd->stop(a, false);
        command(c, a, "Sudden_Stop", true);
    }
    return 0;
}

nrx_u16 SimContract::Done(nrx_u16 c, nrx_u16 a)
{
    const SimAxis* ax = axis(c, a);
    return ax && ax->isMoving() ? 1 : 0;
}

nrx_i32 SimContract::GetMotionErrCod(nrx_u16 c, nrx_u16 a)
{
    const SimAxis* ax = axis(c, a);
    return ax ? ax->errorCode() : 0;
}

// ---- multi-axis motion -------------------------------------------------------------------

nrx_i32 SimContract::Multi_Abs_Move(nrx_u16 c, nrx_u16 n, const nrx_u16* axes,
                                    const nrx_i32* positions)
{
    SimCard* cd = card(c);
    return cd ? command(c, 0, "Multi_Abs_Move", cd->multiMove(n, axes, positions, true), n) : 0;
}

nrx_i32 SimContract::Multi_Inc_Move(nrx_u16 c, nrx_u16 n, const nrx_u16* axes,
                                    const nrx_i32* distances)
{
    SimCard* cd = card(c);
    return cd ? command(c, 0, "Multi_Inc_Move", cd->multiMove(n, axes, distances, false), n) : 0;
}

nrx_i32 SimContract::Multi_Jog_Move(nrx_u16 c, nrx_u16 n, const nrx_u16* axes,
                                    const nrx_u16* directions)
{
    SimCard* cd = card(c);
    return cd ? command(c, 0, "Multi_Jog_Move", cd->multiJog(n, axes, directions), n) : 0;
}

nrx_u16 SimContract::Multi_Done(nrx_u16 c, nrx_u16 n, const nrx_u16* axes)
{
    const SimCard* cd = card(c);
    if (!cd || !axes)
        return 0;
    for (int i = 0; i < n; ++i) {
        const SimAxis* ax = cd->axis(axes[i]);
        if (ax && ax->isMoving())
            return 1;
    }
    return 0;
}

nrx_i32 SimContract::Multi_Decel_Stop(nrx_u16 c, nrx_u16 n, const nrx_u16* axes)
{
    SimCard* cd = card(c);
    return cd ? command(c, 0, "Multi_Decel_Stop", cd->multiStop(n, axes, true), n) : 0;
}

nrx_i32 SimContract::Multi_Sudden_Stop(nrx_u16 c, nrx_u16 n, const nrx_u16* axes)
{
    SimCard* cd = card(c);
    return cd ? command(c, 0, "Multi_Sudden_Stop", cd->multiStop(n, axes, false), n) : 0;
}

// ---- positions and speeds ----------------------------------------------------------------

nrx_i32 SimContract::GetCommandPos(nrx_u16 c, nrx_u16 a)
{
    const SimAxis* ax = axis(c, a);
    return ax ? ax->commandPosition() : 0;
}

nrx_i32 SimContract::SetCommandPos(nrx_u16 c, nrx_u16 a, nrx_i32 position)
{
    if (SimAxis* ax = axis(c, a))
        ax->setCommandPosition(position);
    return 0;
}

nrx_i32 SimContract::GetActualPos(nrx_u16 c, nrx_u16 a)
{
    const SimAxis* ax = axis(c, a);
    return ax ? ax->actualPosition() : 0;
}

nrx_i32 SimContract::SetActualPos(nrx_u16 c, nrx_u16 a, nrx_i32 position)
{
    if (SimAxis* ax = axis(c, a))
        ax->setActualPosition(position);
    return 0;
}

nrx_i32 SimContract::GetCommandSpeed(nrx_u16 c, nrx_u16 a)
{
    const SimAxis* ax = axis(c, a);
    return ax ? ax->commandSpeed() : 0;
}

nrx_i32 SimContract::SetPosSpeed(nrx_u16 c, nrx_u16 a, nrx_i32 initial, nrx_i32 drive,
                                 nrx_i32 accelMs, nrx_i32 decelMs)
{
    setParameter(c, a, Id::PosInitial, initial);
    setParameter(c, a, Id::PosDrive, drive);
    setParameter(c, a, Id::PosAccel, accelMs);
    return setParameter(c, a, Id::PosDecel, decelMs);
}

nrx_i32 SimContract::GetPosSpeed(nrx_u16 c, nrx_u16 a, nrx_i32* initial, nrx_i32* drive,
                                 nrx_i32* accelMs, nrx_i32* decelMs)
{
    if (!axis(c, a))
        return 0;
    put(initial, parameter(c, a, Id::PosInitial));
    put(drive, parameter(c, a, Id::PosDrive));
    put(accelMs, parameter(c, a, Id::PosAccel));
    put(decelMs, parameter(c, a, Id::PosDecel));
    return 0;
}

nrx_i32 SimContract::SetJogSpeed(nrx_u16 c, nrx_u16 a, nrx_i32 initial, nrx_i32 drive,
                                 nrx_i32 accelMs)
{
    setParameter(c, a, Id::JogInitial, initial);
    setParameter(c, a, Id::JogDrive, drive);
    return setParameter(c, a, Id::JogAccel, accelMs);
}

nrx_i32 SimContract::GetJogSpeed(nrx_u16 c, nrx_u16 a, nrx_i32* initial, nrx_i32* drive,
                                 nrx_i32* accelMs)
{
    if (!axis(c, a))
        return 0;
    put(initial, parameter(c, a, Id::JogInitial));
    put(drive, parameter(c, a, Id::JogDrive));
    put(accelMs, parameter(c, a, Id::JogAccel));
    return 0;
}

nrx_i32 SimContract::SetHomeSpeed(nrx_u16 c, nrx_u16 a, nrx_i32 low, nrx_i32 high, nrx_i32 accDecMs)
{
    setParameter(c, a, Id::HomeLow, low);
    setParameter(c, a, Id::HomeHigh, high);
    return setParameter(c, a, Id::HomeAccDec, accDecMs);
}

nrx_i32 SimContract::GetHomeSpeed(nrx_u16 c, nrx_u16 a, nrx_i32* low, nrx_i32* high,
                                  nrx_i32* accDecMs)
{
    if (!axis(c, a))
        return 0;
    put(low, parameter(c, a, Id::HomeLow));
    put(high, parameter(c, a, Id::HomeHigh));
    put(accDecMs, parameter(c, a, Id::HomeAccDec));
    return 0;
}

nrx_i32 SimContract::SetHomeOffset(nrx_u16 c, nrx_u16 a, nrx_i32 offset)
{
    return setParameter(c, a, Id::HomeOffset, offset);
}

nrx_i32 SimContract::GetHomeOffset(nrx_u16 c, nrx_u16 a)
{
    return parameter(c, a, Id::HomeOffset);
}

nrx_i32 SimContract::SetHomeMode(nrx_u16 c, nrx_u16 a, nrx_u16 mode)
{
    return setParameter(c, a, Id::HomeMode, mode);
}

nrx_u16 SimContract::GetHomeMode(nrx_u16 c, nrx_u16 a)
{
    return static_cast<nrx_u16>(parameter(c, a, Id::HomeMode));
}

nrx_i32 SimContract::SetHomeDir(nrx_u16 c, nrx_u16 a, nrx_u16 direction)
{
    return setParameter(c, a, Id::HomeDir, direction);
}

nrx_u16 SimContract::GetHomeDir(nrx_u16 c, nrx_u16 a)
{
    return static_cast<nrx_u16>(parameter(c, a, Id::HomeDir));
}

// ---- parameter pairs -------------------------------------------------------------------------

#define NRXSIM_DEFINE_PAIR_(name, fam)                                                             \
    nrx_i32 SimContract::Set##name(nrx_u16 c, nrx_u16 a, nrx_u16 value)                            \
    {                                                                                              \
        return setParameter(c, a, Id::name, value);                                                \
    }                                                                                              \
    nrx_u16 SimContract::Get##name(nrx_u16 c, nrx_u16 a)                                           \
    {                                                                                              \
        return static_cast<nrx_u16>(parameter(c, a, Id::name));                                    \
    }
NRX_FOR_EACH_PARAMETER_PAIR(NRXSIM_DEFINE_PAIR_)
#undef NRXSIM_DEFINE_PAIR_

// ---- two- and three-value parameters ---------------------------------------------------

#define NRXSIM_DEFINE_TWO_VALUES_(name, first, second)                                             \
    nrx_i32 SimContract::Set##name(nrx_u16 c, nrx_u16 a, nrx_u16 x, nrx_u16 y)                     \
    {                                                                                              \
        setParameter(c, a, Id::first, x);                                                          \
        return setParameter(c, a, Id::second, y);                                                  \
    }                                                                                              \
    nrx_i32 SimContract::Get##name(nrx_u16 c, nrx_u16 a, nrx_u16* x, nrx_u16* y)                   \
    {                                                                                              \
        if (!axis(c, a))                                                                           \
            return 0;                                                                              \
        put(x, parameter(c, a, Id::first));                                                        \
        put(y, parameter(c, a, Id::second));                                                       \
        return 0;                                                                                  \
    }
NRXSIM_DEFINE_TWO_VALUES_(Hlmt, HlmtStop, HlmtLevel)
NRXSIM_DEFINE_TWO_VALUES_(SvAlm, SvAlmUse, SvAlmLevel)
NRXSIM_DEFINE_TWO_VALUES_(SvInpos, SvInposUse, SvInposLevel)
NRXSIM_DEFINE_TWO_VALUES_(SvCClr, SvCClrUse, SvCClrLevel)
#undef NRXSIM_DEFINE_TWO_VALUES_

#define NRXSIM_DEFINE_THREE_VALUES_(name, first, second, use)                                      \
    nrx_i32 SimContract::Set##name(nrx_u16 c, nrx_u16 a, nrx_i32 x, nrx_i32 y, nrx_u16 u)          \
    {                                                                                              \
        setParameter(c, a, Id::first, x);                                                          \
        setParameter(c, a, Id::second, y);                                                         \
        return setParameter(c, a, Id::use, u);                                                     \
    }                                                                                              \
    nrx_i32 SimContract::Get##name(nrx_u16 c, nrx_u16 a, nrx_i32* x, nrx_i32* y, nrx_u16* u)       \
    {                                                                                              \
        if (!axis(c, a))                                                                           \
            return 0;                                                                              \
        put(x, parameter(c, a, Id::first));                                                        \
        put(y, parameter(c, a, Id::second));                                                       \
        put(u, parameter(c, a, Id::use));                                                          \
        return 0;                                                                                  \
    }
NRXSIM_DEFINE_THREE_VALUES_(Slmt, SlmtPlus, SlmtMinus, SlmtUse)
NRXSIM_DEFINE_THREE_VALUES_(CounterRing, RingCommand, RingActual, RingUse)
#undef NRXSIM_DEFINE_THREE_VALUES_

nrx_i32 SimContract::SetEmergency(nrx_u16 c, nrx_u16 level)
{
    if (SimCard* cd = card(c))
        cd->emergencyLevel = level;
    return 0;
}

nrx_u16 SimContract::GetEmergency(nrx_u16 c)
{
    const SimCard* cd = card(c);
    return cd ? cd->emergencyLevel : 0;
}

// ---- servo signals ---------------------------------------------------------------------------

nrx_i32 SimContract::putServo(nrx_u16 c, nrx_u16 a, void (ServoLink::*set)(bool), nrx_u16 on)
{
    if (SimAxis* ax = axis(c, a))
        (ax->servo().*set)(on != 0);
    return 0;
}

nrx_u16 SimContract::servoOutput(nrx_u16 c, nrx_u16 a, bool (ServoLink::*get)() const)
{
    const SimAxis* ax = axis(c, a);
    return ax && (ax->servo().*get)() ? 1 : 0;
}

nrx_i32 SimContract::PutSvOn(nrx_u16 c, nrx_u16 a, nrx_u16 on)
{
    if (SimAxis* ax = axis(c, a))
        ax->setServoOn(on != 0);
    return 0;
}

nrx_u16 SimContract::GetSvOn(nrx_u16 c, nrx_u16 a)
{
    return servoOutput(c, a, &ServoLink::servoOn);
}

nrx_i32 SimContract::PutSvRun(nrx_u16 c, nrx_u16 a, nrx_u16 on)
{
    return putServo(c, a, &ServoLink::setServoRun, on);
}

nrx_u16 SimContract::GetSvRun(nrx_u16 c, nrx_u16 a)
{
    return servoOutput(c, a, &ServoLink::servoRun);
}

nrx_i32 SimContract::PutSvAlmRst(nrx_u16 c, nrx_u16 a, nrx_u16 on)
{
    return putServo(c, a, &ServoLink::setAlarmReset, on);
}

nrx_u16 SimContract::GetSvAlmRst(nrx_u16 c, nrx_u16 a)
{
    return servoOutput(c, a, &ServoLink::alarmReset);
}

nrx_i32 SimContract::PutSvCClrCmd(nrx_u16 c, nrx_u16 a)
{
    if (SimAxis* ax = axis(c, a))
        ax->servo().pulseCounterClear(family_.nowMs(), ax->parameters()[Id::SvCClrTime]);
    return 0;
}

nrx_u16 SimContract::GetSvCClrDO(nrx_u16 c, nrx_u16 a)
{
    const SimAxis* ax = axis(c, a);
    return ax && ax->servo().counterClearOutput(family_.nowMs()) ? 1 : 0;
}

// ---- digital I/O -------------------------------------------------------------------------------

nrx_u16 SimContract::GetDIBit(nrx_u16 c, nrx_u16 bit)
{
    const SimCard* cd = card(c);
    return cd && cd->hasPoint(bit) && cd->input(bit) ? 1 : 0;
}

nrx_u16 SimContract::GetDOBit(nrx_u16 c, nrx_u16 bit)
{
    const SimCard* cd = card(c);
    return cd && cd->hasPoint(bit) && cd->output(bit) ? 1 : 0;
}

nrx_i32 SimContract::PutDOBit(nrx_u16 c, nrx_u16 bit, nrx_u16 on)
{
    SimCard* cd = card(c);
    if (cd && cd->hasPoint(bit))
        cd->setOutput(bit, on != 0);
    return 0;
}

nrx_i32 SimContract::SetDiFilter(nrx_u16 c, nrx_u16 on)
{
    if (SimCard* cd = card(c))
        cd->diFilter = on;
    return 0;
}

nrx_u16 SimContract::GetDiFilter(nrx_u16 c)
{
    const SimCard* cd = card(c);
    return cd ? cd->diFilter : 0;
}

nrx_i32 SimContract::SetDiFilterTime(nrx_u16 c, nrx_u16 timeCode)
{
    if (SimCard* cd = card(c))
        cd->diFilterTime = timeCode;
    return 0;
}

nrx_u16 SimContract::GetDiFilterTime(nrx_u16 c)
{
    const SimCard* cd = card(c);
    return cd ? cd->diFilterTime : 0;
}

// ---- status words --------------------------------------------------------------------------

nrx_u16 SimContract::statusWord(nrx_u16 c, nrx_u16 a, uint16_t (*word)(const SimCard&, int))
{
    const SimCard* cd = card(c);
    return cd && cd->axis(a) ? word(*cd, a) : 0;
}

nrx_u16 SimContract::GetCardStatus(nrx_u16 c, nrx_u16 a)
{
    const SimCard* cd = card(c);
    return cd && cd->axis(a) ? StatusWords::card(*cd, a, family_.nowMs()) : 0;
}

nrx_u16 SimContract::GetMainStatus(nrx_u16 c, nrx_u16 a)
{
    return statusWord(c, a, &StatusWords::main);
}

nrx_u16 SimContract::GetDrvStatus(nrx_u16 c, nrx_u16 a)
{
    return statusWord(c, a, &StatusWords::drive);
}

nrx_u16 SimContract::GetErrStatus(nrx_u16 c, nrx_u16 a)
{
    return statusWord(c, a, &StatusWords::error);
}

nrx_u16 SimContract::GetInputStatus(nrx_u16 c, nrx_u16 a)
{
    return statusWord(c, a, &StatusWords::input);
}

} // namespace nrxsim
