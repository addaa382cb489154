#pragma once

#include "BoardFamily.h"
#include "BoardOperationTable.h"
#include "nrxsim_extras.h"

#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

// The simulated boards' own exports of one family's library, resolved by the board loader.
struct SimExtraTable
{
#define ORVANE_SIM_EXTRA_FIELD_(ret, name, params, args) ret(*name) params = nullptr;
    NRXSIM_FOR_EACH_EXTRA(ORVANE_SIM_EXTRA_FIELD_)
#undef ORVANE_SIM_EXTRA_FIELD_
};

// A fault a rehearsal switches on the simulated boards, numbered as the libraries number them.
enum class SimSignal : std::uint16_t
{
    Alarm = NRXSIM_SIGNAL_ALARM,
    Emergency = NRXSIM_SIGNAL_EMERGENCY, // the card's; the axis is ignored
    LimitPlus = NRXSIM_SIGNAL_LIMIT_PLUS,
    LimitMinus = NRXSIM_SIGNAL_LIMIT_MINUS,
    Origin = NRXSIM_SIGNAL_ORIGIN,
    Z = NRXSIM_SIGNAL_Z,
    InpOn = NRXSIM_SIGNAL_INP_ON,
    InpOff = NRXSIM_SIGNAL_INP_OFF,
    EncoderLoss = NRXSIM_SIGNAL_ENCODER_LOSS
};

// The faults and forced results a rehearsal switches while the simulated boards run: the
// same switches the simulator's faults file sets, for families whose library is simulated.
class BoardSimulator
{
public:
    // Installs (or, with nullptr, removes) a family's extras; they must outlive their use.
    void setExtras(BoardFamily family, const SimExtraTable* extras);
    bool isSimulated(BoardFamily family) const { return extras(family) != nullptr; }
    bool anySimulated() const;

    // False when the family is not simulated or has no such card, axis or signal.
    bool setSignal(BoardFamily family, CardNo card, AxisNo axis, SimSignal signal, bool on) const;
    bool signal(BoardFamily family, CardNo card, AxisNo axis, SimSignal signal) const;

    // Whether the family's library has the operation at all (LoadDevice is never forced).
    static bool canForce(BoardFamily family, BoardOp op);
    // Forces the operation's result (it then does nothing), or frees it with nullopt.
    bool forceResult(BoardFamily family, BoardOp op, std::optional<std::int32_t> result) const;
    std::optional<std::int32_t> forcedResult(BoardFamily family, BoardOp op) const;

    // What the family's last LoadDevice found wrong in the boards file, one problem a line.
    QStringList setupWarnings(BoardFamily family) const;

private:
    const SimExtraTable* extras(BoardFamily family) const
    {
        return isKnownFamily(family) ? m_extras[std::size_t(familyIndex(family))] : nullptr;
    }

    std::array<const SimExtraTable*, kFamilyCount> m_extras{};
};
