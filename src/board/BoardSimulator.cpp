#include "BoardSimulator.h"

#include "BoardLog.h"

namespace {

constexpr int kOperationFamilies[] = {
#define ORVANE_OP_FAMILIES_(ret, name, params, args, families) families,
    NRX_FOR_EACH_OPERATION(ORVANE_OP_FAMILIES_)
#undef ORVANE_OP_FAMILIES_
};

// The signals by number, as the log names them.
constexpr const char* kSignalNames[] = {"alarm",        "EMG",           "+limit",
                                        "-limit",       "origin",        "Z",
                                        "INP stuck on", "INP stuck off", "encoder loss"};

} // namespace

void BoardSimulator::setExtras(BoardFamily family, const SimExtraTable* extras)
{
    if (isKnownFamily(family))
        m_extras[std::size_t(familyIndex(family))] = extras;
}

bool BoardSimulator::anySimulated() const
{
    for (BoardFamily family : kAllFamilies) {
        if (isSimulated(family))
            return true;
    }
    return false;
}

bool BoardSimulator::setSignal(BoardFamily family, CardNo card, AxisNo axis, SimSignal signal,
                               bool on) const
{
    const SimExtraTable* table = extras(family);
    if (table == nullptr || table->SetSignal == nullptr ||
        table->SetSignal(card, axis, static_cast<nrx_u16>(signal), on ? 1 : 0) < 0)
        return false;
    const auto number = static_cast<std::size_t>(signal);
    qCInfo(lcBoard).noquote() << QStringLiteral("Simulated %1 card %2 axis %3: %4 %5")
                                     .arg(QLatin1String(familyShortName(family)))
                                     .arg(card)
                                     .arg(axis)
                                     .arg(QLatin1String(number < std::size(kSignalNames)
                                                            ? kSignalNames[number]
                                                            : "signal"))
                                     .arg(on ? QStringLiteral("on") : QStringLiteral("off"));
    return true;
}

bool BoardSimulator::signal(BoardFamily family, CardNo card, AxisNo axis, SimSignal signal) const
{
    const SimExtraTable* table = extras(family);
    return table != nullptr && table->GetSignal != nullptr &&
           table->GetSignal(card, axis, static_cast<nrx_u16>(signal)) == 1;
}

bool BoardSimulator::canForce(BoardFamily family, BoardOp op)
{
    const auto index = static_cast<std::size_t>(op);
    return isKnownFamily(family) && op != BoardOp::LoadDevice &&
           index < std::size(kOperationFamilies) &&
           (kOperationFamilies[index] & (1 << familyIndex(family))) != 0;
}

bool BoardSimulator::forceResult(BoardFamily family, BoardOp op,
                                 std::optional<std::int32_t> result) const
{
    const SimExtraTable* table = extras(family);
    if (table == nullptr || table->SetForcedResult == nullptr || !canForce(family, op) ||
        table->SetForcedResult(boardOpInfo(op).name, result ? 1 : 0, result.value_or(0)) < 0)
        return false;
    qCInfo(lcBoard).noquote() << QStringLiteral("Simulated %1: %2 %3")
                                     .arg(QLatin1String(familyShortName(family)),
                                          QLatin1String(boardOpInfo(op).name),
                                          result ? QStringLiteral("forced to %1").arg(*result)
                                                 : QStringLiteral("works again"));
    return true;
}

std::optional<std::int32_t> BoardSimulator::forcedResult(BoardFamily family, BoardOp op) const
{
    const SimExtraTable* table = extras(family);
    nrx_i32 result = 0;
    if (table == nullptr || table->GetForcedResult == nullptr ||
        table->GetForcedResult(boardOpInfo(op).name, &result) != 1)
        return std::nullopt;
    return result;
}

QStringList BoardSimulator::setupWarnings(BoardFamily family) const
{
    const SimExtraTable* table = extras(family);
    if (table == nullptr || table->GetSetupWarnings == nullptr)
        return {};
    QByteArray text(64 * 1024, '\0');
    if (table->GetSetupWarnings(text.data(), nrx_i32(text.size())) <= 0)
        return {};
    return QString::fromUtf8(text.constData()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
