#include "PageParameters.h"

PageParameters::PageParameters(ParameterPage page, BoardFamily family) : m_family(family)
{
    for (ParameterCall call : ParameterCatalog::callsOf(page, family))
        m_calls.emplace_back(call, CallValues(ParameterCatalog::carriedBy(call).size(), 0));
}

PageParameters PageParameters::read(BoardApi& board, ParameterPage page, BoardFamily family,
                                    CardNo card, AxisNo axis)
{
    PageParameters values(page, family);
    for (auto& [call, carried] : values.m_calls)
        carried = ParameterCatalog::read(board, family, call, card, axis);
    return values;
}

void PageParameters::write(BoardApi& board, CardNo card, AxisNo axis) const
{
    for (const auto& [call, carried] : m_calls)
        ParameterCatalog::write(board, m_family, call, card, axis, carried);
}

std::int32_t* PageParameters::slot(std::string_view name)
{
    const ParameterInfo* info = ParameterCatalog::find(name);
    if (info == nullptr)
        return nullptr;
    for (auto& [call, carried] : m_calls) {
        if (call == info->call && info->slot < static_cast<int>(carried.size()))
            return &carried[static_cast<std::size_t>(info->slot)];
    }
    return nullptr;
}

std::int32_t PageParameters::value(std::string_view name) const
{
    const std::int32_t* found = const_cast<PageParameters*>(this)->slot(name);
    return found != nullptr ? *found : 0;
}

void PageParameters::set(std::string_view name, std::int32_t value)
{
    if (std::int32_t* found = slot(name))
        *found = value;
}

const ParameterInfo* PageParameters::firstDifference(const PageParameters& other) const
{
    const std::vector<const ParameterInfo*> all = differences(other);
    return all.empty() ? nullptr : all.front();
}

std::vector<const ParameterInfo*> PageParameters::differences(const PageParameters& other) const
{
    std::vector<const ParameterInfo*> found;
    for (std::size_t i = 0; i < m_calls.size() && i < other.m_calls.size(); ++i) {
        const auto carried = ParameterCatalog::carriedBy(m_calls[i].first);
        const CallValues& mine = m_calls[i].second;
        const CallValues& theirs = other.m_calls[i].second;
        for (std::size_t s = 0; s < mine.size() && s < theirs.size(); ++s) {
            if (carried[s]->shown && mine[s] != theirs[s])
                found.push_back(carried[s]);
        }
    }
    return found;
}
