#pragma once

#include "SimFamily.h"
#include "SimRehearsal.h"
#include "nrx_contract.h"

namespace nrxsim {

// The board contract and the simulator's extras on one family's simulated boards.
class SimContract
{
public:
    // Bit numbers and null pointers beyond the address are refused quietly: nothing is
    // written.
    explicit SimContract(int familyIndex);

    SimFamily& family() { return family_; }

#define NRXSIM_DECLARE_OPERATION_(ret, name, params, args, fam) ret name params;
    NRX_FOR_EACH_OPERATION(NRXSIM_DECLARE_OPERATION_)
#undef NRXSIM_DECLARE_OPERATION_

    const int32_t* forcedResult(BoardOp op) const
    {
        return family_.forcedResult(op);
    }

    SimRehearsal& extras()
    {
        return extras_;
    }

private:
    using Id = AxisParameters::Id;
    SimCard* card(nrx_u16 card);
    SimAxis* axis(nrx_u16 card, nrx_u16 axis);
    nrx_i32 setParameter(nrx_u16 card, nrx_u16 axis, Id id, nrx_i32 value);
    nrx_i32 parameter(nrx_u16 card, nrx_u16 axis, Id id);
    template <typename T> static void put(T* out, nrx_i32 value)
    {
        if (out)
            *out = static_cast<T>(value);
    }
    nrx_i32 putServo(nrx_u16 card, nrx_u16 axis, void (ServoLink::*set)(bool), nrx_u16 on);
    nrx_u16 servoOutput(nrx_u16 card, nrx_u16 axis, bool (ServoLink::*get)() const);
    nrx_u16 statusWord(nrx_u16 card, nrx_u16 axis, uint16_t (*word)(const SimCard&, int));
    nrx_i32 command(nrx_u16 card, nrx_u16 axis, const char* what, bool accepted, nrx_i32 value = 0);

    SimFamily family_;
    SimRehearsal extras_{family_};
};

} // namespace nrxsim
