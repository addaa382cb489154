#pragma once

#include "BoardFamily.h"
#include "nrx_contract.h"

#include <array>

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

template <typename Fn, Fn NrxFunctionTable::*Member> class BoardOperation;

// One operation of the contract, callable as op(family, args...) with the export's own
// parameter types. A family without a library, or without this export, calls nothing and
// yields 0.
template <typename R, typename... A, R (*NrxFunctionTable::*Member)(A...)>
class BoardOperation<R (*)(A...), Member>
{
public:
    explicit BoardOperation(const BoardTables& tables) : m_tables(tables) {}
    R operator()(BoardFamily family, A... args) const
    {
        const NrxFunctionTable* table = m_tables.find(family);
        if (table == nullptr || table->*Member == nullptr)
            return R{};
        return (table->*Member)(args...);
    }

private:
    const BoardTables& m_tables;
};

} // namespace detail

// Dispatch of every board operation to the library of a family: api.Inc_Move(family, card,
// axis, distance). Arguments pass unchanged; results come back as the library gave them.
class BoardApi
{
public:
    BoardApi() = default;
    BoardApi(const BoardApi&) = delete;
    BoardApi& operator=(const BoardApi&) = delete;

    // Installs (or, with nullptr, removes) the function table of a family. The table must
    // outlive its use here.
    void setTable(BoardFamily family, const NrxFunctionTable* table)
    {
        m_tables.set(family, table);
    }
    bool hasLibrary(BoardFamily family) const { return m_tables.find(family) != nullptr; }

private:
    BoardTables m_tables; // declared first: every operation below refers to it

public:
#define ORVANE_BOARD_OPERATION_(ret, name, params, args, families)                                 \
    detail::BoardOperation<nrx_##name##_fn, &NrxFunctionTable::name> name{m_tables};
    NRX_FOR_EACH_OPERATION(ORVANE_BOARD_OPERATION_)
#undef ORVANE_BOARD_OPERATION_
};
