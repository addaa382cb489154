#include "ParameterCopy.h"

#include "ParameterCatalog.h"

#include <utility>

void ParameterCopy::copy(int page, const Source& source, const Target& target)
{
    if (page < static_cast<int>(ParameterPage::SystemIo) ||
        page > static_cast<int>(ParameterPage::Filter))
        return;
    const auto which = static_cast<ParameterPage>(page);

    // Everything is read from the source before anything is written.
    std::vector<std::pair<ParameterCall, CallValues>> fromSource;
    for (ParameterCall call : ParameterCatalog::callsOf(which, source.family))
        fromSource.emplace_back(
            call, ParameterCatalog::read(m_board, source.family, call, source.card, source.axis));
    // A call the source family lacks (only RN boards have a stop filter) takes what the
    // target's family holds at the source's card number and the target's axis: a mix kept as
    // it is. Everything else goes as read, the counter-clear use too, which the page itself
    // always writes as 1.
    const auto values = [&](ParameterCall call, AxisNo axis) {
        for (const auto& [held, carried] : fromSource) {
            if (held == call)
                return carried;
        }
        return ParameterCatalog::read(m_board, target.family, call, source.card, axis);
    };

    const std::vector<ParameterCall> calls = ParameterCatalog::callsOf(which, target.family);
    for (AxisNo axis : target.axes) {
        for (ParameterCall call : calls) {
            if (ParameterCatalog::levelOf(call) == ParameterLevel::Axis)
                ParameterCatalog::write(m_board, target.family, call, target.card, axis,
                                        values(call, axis));
        }
    }
    // The card's own values (the EMG level) follow even when no axis is ticked.
    for (ParameterCall call : calls) {
        if (ParameterCatalog::levelOf(call) == ParameterLevel::Card)
            ParameterCatalog::write(m_board, target.family, call, target.card, 0, values(call, 0));
    }
}
