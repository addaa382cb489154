#pragma once

#include "ParameterCatalog.h"

#include <string_view>
#include <utility>
#include <vector>

// The values of one page's parameters for one axis, kept per board call in the order the page
// reads and writes them: what the board holds, or what the page's controls show.
class PageParameters
{
public:
    // Every value 0, for a page to fill from its controls.
    PageParameters(ParameterPage page, BoardFamily family);

    static PageParameters read(BoardApi& board, ParameterPage page, BoardFamily family, CardNo card,
                               AxisNo axis);
    // One board call per group of values, in the page's order.
    void write(BoardApi& board, CardNo card, AxisNo axis) const;

    // A parameter the page's family lacks reads 0 and ignores a set.
    std::int32_t value(std::string_view name) const;
    void set(std::string_view name, std::int32_t value);

    // The first parameter the page shows whose value differs from other's; null when none.
    const ParameterInfo* firstDifference(const PageParameters& other) const;
    // Every such parameter, in the page's order.
    std::vector<const ParameterInfo*> differences(const PageParameters& other) const;

private:
    std::int32_t* slot(std::string_view name);

    BoardFamily m_family;
    std::vector<std::pair<ParameterCall, CallValues>> m_calls;
};
