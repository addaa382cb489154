#pragma once

#include "nrx_contract.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace nrxsim {

// Parameters of the board's own (not from the pair list): P(name, default).
#define NRXSIM_OWN_PARAMETERS(P)                                                                   \
    P(HomeMode, 0)                                                                                 \
    P(HomeDir, 1)                                                                                  \
    P(HomeOffset, 0)                                                                               \
    P(PosInitial, 100)                                                                             \
    P(PosDrive, 10000)                                                                             \
    P(PosAccel, 100)                                                                               \
    P(PosDecel, 100)                                                                               \
    P(JogInitial, 100)                                                                             \
    P(JogDrive, 10000)                                                                             \
    P(JogAccel, 100)                                                                               \
    P(HomeLow, 2000)                                                                               \
    P(HomeHigh, 20000)                                                                             \
    P(HomeAccDec, 100)                                                                             \
    P(HlmtStop, 0)                                                                                 \
    P(HlmtLevel, 0)                                                                                \
    P(SvAlmUse, 1)                                                                                 \
    P(SvAlmLevel, 0)                                                                               \
    P(SvInposUse, 0)                                                                               \
    P(SvInposLevel, 0)                                                                             \
    P(SvCClrUse, 1)                                                                                \
    P(SvCClrLevel, 0)                                                                              \
    P(SlmtPlus, 1000000)                                                                           \
    P(SlmtMinus, -1000000)                                                                         \
    P(SlmtUse, 0)                                                                                  \
    P(RingCommand, 10000)                                                                          \
    P(RingActual, 10000)                                                                           \
    P(RingUse, 0)

// Every stored setting of one axis, by name, with its factory default.
class AxisParameters
{
public:
    enum class Id
    {
#define NRXSIM_PAIR_ID_(name, fam) name,
        NRX_FOR_EACH_PARAMETER_PAIR(NRXSIM_PAIR_ID_)
#undef NRXSIM_PAIR_ID_
#define NRXSIM_OWN_ID_(name, def) name,
            NRXSIM_OWN_PARAMETERS(NRXSIM_OWN_ID_)
#undef NRXSIM_OWN_ID_
                Count
    };
    static constexpr int Count = static_cast<int>(Id::Count);

    AxisParameters()
    {
        restoreDefaults();
    }

    int32_t operator[](Id id) const
    {
        return values_[static_cast<int>(id)];
    }
    void set(Id id, int32_t value)
    {
        values_[static_cast<int>(id)] = value;
    }
    void restoreDefaults();

    static const char* name(Id id);
    static std::optional<Id> byName(const std::string& name);
    static int32_t defaultValue(Id id);

private:
    std::array<int32_t, Count> values_{};
};

} // namespace nrxsim
