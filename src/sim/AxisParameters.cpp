#include "AxisParameters.h"

namespace nrxsim {

namespace {

const char* const Names[AxisParameters::Count] = {
#define NRXSIM_PAIR_NAME_(name, fam) #name,
    NRX_FOR_EACH_PARAMETER_PAIR(NRXSIM_PAIR_NAME_)
#undef NRXSIM_PAIR_NAME_
#define NRXSIM_OWN_NAME_(name, def) #name,
        NRXSIM_OWN_PARAMETERS(NRXSIM_OWN_NAME_)
#undef NRXSIM_OWN_NAME_
};

} // namespace

void AxisParameters::restoreDefaults()
{
    for (int i = 0; i < Count; ++i)
        values_[i] = defaultValue(static_cast<Id>(i));
}

const char* AxisParameters::name(Id id)
{
    const int i = static_cast<int>(id);
    return i >= 0 && i < Count ? Names[i] : "";
}

std::optional<AxisParameters::Id> AxisParameters::byName(const std::string& name)
{
    for (int i = 0; i < Count; ++i) {
        if (name == Names[i])
            return static_cast<Id>(i);
    }
    return std::nullopt;
}

int32_t AxisParameters::defaultValue(Id id)
{
    switch (id) {
    // A fresh board runs at magnification 100: 100 .. 800000 pps.
    case Id::RangeMode:
        return 100;
#define NRXSIM_OWN_DEFAULT_(name, def)                                                             \
    case Id::name:                                                                                 \
        return def;
        NRXSIM_OWN_PARAMETERS(NRXSIM_OWN_DEFAULT_)
#undef NRXSIM_OWN_DEFAULT_
    default:
        return 0;
    }
}

} // namespace nrxsim
