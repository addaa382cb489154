#pragma once

#include "SimFamily.h"
#include "nrxsim_extras.h"

namespace nrxsim {

// The simulated boards' own exports beyond the contract: the manual clock, the data folder
// and the faults a rehearsal switches while the boards run.
class SimRehearsal
{
public:
    explicit SimRehearsal(SimFamily& family) : family_(family) {}

#define NRXSIM_DECLARE_EXTRA_(ret, name, params, args) ret name params;
    NRXSIM_FOR_EACH_EXTRA(NRXSIM_DECLARE_EXTRA_)
#undef NRXSIM_DECLARE_EXTRA_

private:
    SimFamily& family_;
};

} // namespace nrxsim
