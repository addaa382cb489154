#pragma once

#include "BoardCall.h"
#include "BoardFamily.h"

#include <QStringList>

#include <array>
#include <cstdint>

// Writes refused board calls to the program's log as warnings. A poll that keeps failing
// must not flood the file: after an operation on a card is logged, its further refusals
// within kIntervalUs are only counted, and the count goes with the next line logged for it.
class BoardFailureLog
{
public:
    static constexpr std::int64_t kIntervalUs = 5000000;

    // callers are the names indexed by BoardCall::caller.
    void note(const BoardCall& call, const QStringList& callers);

    // "SetPosSpeed RL card 0 axis 1 initial=100 drive=5000 returned -1 (Single Axis)"
    static QString line(const BoardCall& call, const QStringList& callers);

private:
    struct Operation
    {
        std::int64_t loggedUs = 0;
        std::uint32_t held = 0;
        bool logged = false;
    };
    // One per family, card and operation; calls without a card share card 0's.
    std::array<Operation, std::size_t(kFamilyCount* kMaxCards* kBoardOpCount)> m_operations{};
};
