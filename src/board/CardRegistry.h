#pragma once

#include "BoardFamily.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>

// What the registry knows of one family's boards.
struct FamilyCardTable
{
    // LoadDevice result + 1, at most kMaxCards; zero or less means the family has no board.
    std::int32_t count = 0;
    std::array<std::int32_t, kMaxCards> axisCount{};
    std::array<std::int32_t, kMaxCards> infoValue{};
    std::array<std::int32_t, kMaxCards> ioCount{};
    std::array<std::string, kMaxCards> modelName{};
};

// The seven values the motion pages remember per family, card and axis while the program runs.
enum class TestValue
{
    Count,
    DelayTime,
    Distance,
    Position1,
    Position2,
    SetCommand,
    SetActual,
};
constexpr int kTestValueCount = 7;

// The installed boards per family, their parameters-changed flags and the remembered test
// values: the board facts every window reads.
class CardRegistry
{
public:
    CardRegistry();

    // Stores the family's count from its LoadDevice result (result + 1, at most 8 cards; an
    // error code leaves a count of zero or less).
    void setLoadResult(BoardFamily family, std::int32_t loadResult);
    // The stored count, as it is (may be negative after a load error).
    std::int32_t count(BoardFamily family) const;
    // The number of usable cards: the count, or 0 when it is not positive.
    int cardCount(BoardFamily family) const;
    bool hasBoards(BoardFamily family) const { return cardCount(family) > 0; }

    // Stores BoardInfo's results for a card and derives its model name.
    void setCardInfo(BoardFamily family, CardNo card, std::int32_t axisCount,
                     std::int32_t infoValue, std::int32_t ioCount);
    std::int32_t axisCount(BoardFamily family, int card) const;
    std::int32_t infoValue(BoardFamily family, int card) const;
    std::int32_t ioCount(BoardFamily family, int card) const;
    // The narrow model name, e.g. "NRX-RL416V"; empty for an unknown card.
    std::string modelName(BoardFamily family, int card) const;

    bool parametersChanged(BoardFamily family, int card) const;
    void setParametersChanged(BoardFamily family, int card, bool changed);
    // Called when a card's mark flips (not when it is set again), so a view can show the mark
    // without polling; an empty function stops the calls.
    using ChangedListener = std::function<void(BoardFamily family, int card, bool changed)>;
    void setChangedListener(ChangedListener listener) { m_changedListener = std::move(listener); }

    std::int32_t testValue(BoardFamily family, int card, int axis, TestValue which) const;
    void setTestValue(BoardFamily family, int card, int axis, TestValue which, std::int32_t value);

    const FamilyCardTable& table(BoardFamily family) const;

private:
    using TestValues = std::array<std::int32_t, kTestValueCount>;
    static bool validCard(BoardFamily family, int card);

    std::array<FamilyCardTable, kFamilyCount> m_tables{};
    std::array<std::array<bool, kMaxCards>, kFamilyCount> m_changed{};
    std::array<std::array<std::array<TestValues, kMaxAxes>, kMaxCards>, kFamilyCount>
        m_testValues{};
    ChangedListener m_changedListener;
};
