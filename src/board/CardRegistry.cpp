#include "CardRegistry.h"

#include "BoardTexts.h"

#include <algorithm>

namespace {

constexpr std::size_t idx(BoardFamily family)
{
    return static_cast<std::size_t>(familyIndex(family));
}

// Start values a user meets the first time an axis is chosen: a short, visible move.
constexpr std::array<std::int32_t, kTestValueCount> kTestValueDefaults{1, 100, 1000, 0, 1000, 0, 0};

const FamilyCardTable kNoBoards{};

} // namespace

CardRegistry::CardRegistry()
{
    for (auto& family : m_testValues)
        for (auto& card : family)
            card.fill(kTestValueDefaults);
}

bool CardRegistry::validCard(BoardFamily family, int card)
{
    return isKnownFamily(family) && card >= 0 && card < kMaxCards;
}

void CardRegistry::setLoadResult(BoardFamily family, std::int32_t loadResult)
{
    if (!isKnownFamily(family))
        return;
    // A ninth card has no slot: the registry holds eight per family.
    const std::int64_t count = static_cast<std::int64_t>(loadResult) + 1;
    m_tables[idx(family)].count =
        static_cast<std::int32_t>(std::min<std::int64_t>(count, kMaxCards));
}

std::int32_t CardRegistry::count(BoardFamily family) const
{
    return isKnownFamily(family) ? m_tables[idx(family)].count : 0;
}

int CardRegistry::cardCount(BoardFamily family) const
{
    return std::max(0, count(family));
}

void CardRegistry::setCardInfo(BoardFamily family, CardNo card, std::int32_t axisCount,
                               std::int32_t infoValue, std::int32_t ioCount)
{
    if (!validCard(family, card))
        return;
    FamilyCardTable& table = m_tables[idx(family)];
    table.axisCount[card] = axisCount;
    table.infoValue[card] = infoValue;
    table.ioCount[card] = ioCount;
    table.modelName[card] = BoardTexts::modelName(family, axisCount, ioCount);
}

std::int32_t CardRegistry::axisCount(BoardFamily family, int card) const
{
    return validCard(family, card) ? m_tables[idx(family)].axisCount[static_cast<std::size_t>(card)]
                                   : 0;
}

std::int32_t CardRegistry::infoValue(BoardFamily family, int card) const
{
    return validCard(family, card) ? m_tables[idx(family)].infoValue[static_cast<std::size_t>(card)]
                                   : 0;
}

std::int32_t CardRegistry::ioCount(BoardFamily family, int card) const
{
    return validCard(family, card) ? m_tables[idx(family)].ioCount[static_cast<std::size_t>(card)]
                                   : 0;
}

std::string CardRegistry::modelName(BoardFamily family, int card) const
{
    return validCard(family, card) ? m_tables[idx(family)].modelName[static_cast<std::size_t>(card)]
                                   : std::string();
}

bool CardRegistry::parametersChanged(BoardFamily family, int card) const
{
    return validCard(family, card) && m_changed[idx(family)][static_cast<std::size_t>(card)];
}

void CardRegistry::setParametersChanged(BoardFamily family, int card, bool changed)
{
    if (!validCard(family, card))
        return;
    bool& mark = m_changed[idx(family)][static_cast<std::size_t>(card)];
    if (mark == changed)
        return;
    mark = changed;
    if (m_changedListener)
        m_changedListener(family, card, changed);
}

std::int32_t CardRegistry::testValue(BoardFamily family, int card, int axis, TestValue which) const
{
    if (!validCard(family, card) || axis < 0 || axis >= kMaxAxes)
        return 0;
    return m_testValues[idx(family)][static_cast<std::size_t>(card)][static_cast<std::size_t>(axis)]
                       [static_cast<std::size_t>(which)];
}

void CardRegistry::setTestValue(BoardFamily family, int card, int axis, TestValue which,
                                std::int32_t value)
{
    if (!validCard(family, card) || axis < 0 || axis >= kMaxAxes)
        return;
    m_testValues[idx(family)][static_cast<std::size_t>(card)][static_cast<std::size_t>(axis)]
                [static_cast<std::size_t>(which)] = value;
}

const FamilyCardTable& CardRegistry::table(BoardFamily family) const
{
    return isKnownFamily(family) ? m_tables[idx(family)] : kNoBoards;
}
