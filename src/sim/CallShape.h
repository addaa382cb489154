#pragma once

#include "BoardOperationTable.h"

#include <cstdint>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace nrxsim {

class SimFamily;

// What one contract call addresses, read from its parameter list, and what it answers when
// the card or axis is not there (no LoadDevice yet, or a wrong number).
struct CallShape
{
    // A status result takes the boards' refusal; a quantity or a status word reads 0.
    static constexpr int32_t Refused = -1;

    struct Address
    {
        int card = -1;
        int axis = -1;
    };
    bool card = false; // the first parameter is a card number
    bool axis = false; // the second parameter is an axis number
    bool status = false;

    static constexpr CallShape of(std::string_view name, std::string_view params, bool i32Result)
    {
        CallShape s;
        s.card = params.substr(0, 13) == "(nrx_u16 card";
        s.axis = params.find("nrx_u16 axis") != std::string_view::npos;
        s.status = i32Result && !detail::isValueResult(name);
        return s;
    }

    // Whether the call's card and axis exist (and the boards are loaded); a wrong address
    // goes to the log's errors.
    bool reaches(SimFamily& family, Address address) const;

    // The card and axis numbers among a call's arguments, where they stand.
    template <typename... A> static Address address(A... args)
    {
        Address a;
        const auto all = std::make_tuple(args...);
        if constexpr (sizeof...(A) >= 1) {
            if constexpr (std::is_integral_v<std::tuple_element_t<0, decltype(all)>>)
                a.card = static_cast<int>(std::get<0>(all));
        }
        if constexpr (sizeof...(A) >= 2) {
            if constexpr (std::is_integral_v<std::tuple_element_t<1, decltype(all)>>)
                a.axis = static_cast<int>(std::get<1>(all));
        }
        return a;
    }
};

} // namespace nrxsim
