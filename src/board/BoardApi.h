#pragma once

#include "BoardCallTrace.h"
#include "BoardFailureLog.h"
#include "BoardFamily.h"
#include "BoardOperationTable.h"
#include "BoardSimulator.h"
#include "nrx_contract.h"

#include <QString>
#include <QStringList>

#include <array>
#include <memory>

// The resolved function tables of the three families; a null entry is a family without a
// library.
class BoardTables
{
public:
    const NrxFunctionTable* find(BoardFamily family) const
    {
        return isKnownFamily(family) ? m_tables[static_cast<std::size_t>(familyIndex(family))]
                                     : nullptr;
    }
    void set(BoardFamily family, const NrxFunctionTable* table)
    {
        if (isKnownFamily(family))
            m_tables[static_cast<std::size_t>(familyIndex(family))] = table;
    }

private:
    std::array<const NrxFunctionTable*, kFamilyCount> m_tables{};
};

namespace detail {

// What every handle on the same boards shares: the tables, the trace, the callers' names and
// the log of refused calls.
struct BoardLink
{
    BoardTables tables;
    BoardCallTrace* trace = nullptr;
    QStringList callers;
    BoardFailureLog failures;
    BoardSimulator simulator;
};

// Where a handle's calls go and whose they are.
struct BoardCallSite
{
    BoardLink* link;
    std::uint16_t caller;
};

template <typename Fn, Fn NrxFunctionTable::*Member, BoardOp Op> class BoardOperation;

// One operation of the contract, callable as op(family, args...) with the export's own
// parameter types. A family without a library, or without this export, calls nothing and
// yields 0. A call that reaches a library is written to the trace, if there is one, and a
// refusal the trace notices goes to the program's log.
template <typename R, typename... A, R (*NrxFunctionTable::*Member)(A...), BoardOp Op>
class BoardOperation<R (*)(A...), Member, Op>
{
public:
    explicit BoardOperation(const BoardCallSite& site) : m_site(site) {}
    R operator()(BoardFamily family, A... args) const
    {
        const BoardLink& link = *m_site.link;
        const NrxFunctionTable* table = link.tables.find(family);
        if (table == nullptr || table->*Member == nullptr)
            return R{};
        const R result = (table->*Member)(args...);
        if (link.trace != nullptr) {
            const std::uint64_t failures = link.trace->failureCount();
            link.trace->record(Op, family, m_site.caller, result, args...);
            if (link.trace->failureCount() != failures)
                m_site.link->failures.note(link.trace->lastFailure(), link.callers);
        }
        return result;
    }

private:
    const BoardCallSite& m_site;
};

} // namespace detail

// Dispatch of every board operation to the library of a family: api.Inc_Move(family, card,
// axis, distance). Arguments pass unchanged; results come back as the library gave them.
//
// A handle made from another, BoardApi(boards, "Single Axis"), reaches the same libraries and
// trace but signs its calls with that caller's name. This is how the trace knows which window
// or pane made a call: the frame hands each pane, and the tool-window host each tool window,
// a handle of its own in its ToolContext, so a window tags its calls by just using
// context.board.
class BoardApi
{
public:
    static constexpr const char* kMainCaller = "Main frame";

    BoardApi() : m_link(std::make_shared<detail::BoardLink>()), m_site{m_link.get(), 0}
    {
        m_link->callers << QString::fromLatin1(kMainCaller);
    }
    BoardApi(const BoardApi& boards, const QString& caller)
        : m_link(boards.m_link), m_site{m_link.get(), callerId(*m_link, caller)}
    {}
    BoardApi(const BoardApi&) = delete;
    BoardApi& operator=(const BoardApi&) = delete;

    // Installs (or, with nullptr, removes) the function table of a family. The table must
    // outlive its use here.
    void setTable(BoardFamily family, const NrxFunctionTable* table)
    {
        m_link->tables.set(family, table);
    }
    bool hasLibrary(BoardFamily family) const { return m_link->tables.find(family) != nullptr; }
    // Installs (or removes) the extras of a simulated family's library, for the rehearsal
    // switches every handle reaches through simulator().
    void setSimExtras(BoardFamily family, const SimExtraTable* extras)
    {
        m_link->simulator.setExtras(family, extras);
    }
    const BoardSimulator& simulator() const { return m_link->simulator; }

    // The trace every handle on these boards writes to; null records nothing. It must
    // outlive its use here.
    void setTrace(BoardCallTrace* trace) { m_link->trace = trace; }
    BoardCallTrace* trace() const { return m_link->trace; }
    // The callers' names, indexed by BoardCall::caller.
    const QStringList& callers() const { return m_link->callers; }
    std::uint16_t caller() const { return m_site.caller; }

private:
    static std::uint16_t callerId(detail::BoardLink& link, const QString& caller)
    {
        qsizetype id = link.callers.indexOf(caller);
        if (id < 0) {
            id = link.callers.size();
            link.callers << caller;
        }
        return static_cast<std::uint16_t>(id);
    }

    // declared first: every operation below refers to them
    std::shared_ptr<detail::BoardLink> m_link;
    detail::BoardCallSite m_site;

public:
#define ORVANE_BOARD_OPERATION_(ret, name, params, args, families)                                 \
    detail::BoardOperation<nrx_##name##_fn, &NrxFunctionTable::name, BoardOp::name> name{m_site};
    NRX_FOR_EACH_OPERATION(ORVANE_BOARD_OPERATION_)
#undef ORVANE_BOARD_OPERATION_
};
