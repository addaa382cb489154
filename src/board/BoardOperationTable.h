#pragma once

#include "nrx_contract.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <type_traits>

// Every operation of the contract by number, in the contract's order.
enum class BoardOp : std::uint16_t
{
#define ORVANE_BOARD_OP_ENUM_(ret, name, params, args, families) name,
    NRX_FOR_EACH_OPERATION(ORVANE_BOARD_OP_ENUM_)
#undef ORVANE_BOARD_OP_ENUM_
};

// How one parameter of an operation travels: a plain number, a value the library writes
// back, an array of the multi-axis calls (its length is the count before it), or a text.
enum class BoardArgKind : std::uint8_t
{
    Value,
    Out,
    Array,
    Text
};

namespace detail {

template <typename T> constexpr BoardArgKind boardArgKind()
{
    if constexpr (std::is_integral_v<T>)
        return BoardArgKind::Value;
    else if constexpr (std::is_same_v<T, const char*>)
        return BoardArgKind::Text;
    else if constexpr (std::is_const_v<std::remove_pointer_t<T>>)
        return BoardArgKind::Array;
    else
        return BoardArgKind::Out;
}

template <typename Fn> struct BoardArgShape;
template <typename R, typename... A> struct BoardArgShape<R (*)(A...)>
{
    static constexpr std::uint8_t count = sizeof...(A);
    static constexpr std::array<BoardArgKind, 6> kinds{boardArgKind<A>()...};
};

// Results that are quantities rather than an accepted/refused status.
constexpr bool isValueResult(std::string_view name)
{
    for (std::string_view value :
         {"LoadDevice", "GetDllVersion", "GetMotionErrCod", "GetCommandPos", "GetActualPos",
          "GetCommandSpeed", "GetHomeOffset"}) {
        if (name == value)
            return true;
    }
    return false;
}

// The reads that the 10 ms timers of the windows and panes repeat.
constexpr bool isPollingRead(std::string_view name)
{
    for (std::string_view polled :
         {"Done",         "Multi_Done",      "GetMotionErrCod", "GetCommandPos",
          "GetActualPos", "GetCommandSpeed", "GetCardStatus",   "GetMainStatus",
          "GetDrvStatus", "GetErrStatus",    "GetInputStatus",  "GetDIBit",
          "GetDOBit",     "GetSvOn",         "GetSvRun",        "GetSvAlmRst",
          "GetSvCClrDO",  "GetEmergency",    "GetDiFilter",     "GetDiFilterTime"}) {
        if (name == polled)
            return true;
    }
    return false;
}

} // namespace detail

// What the program knows about one operation beyond its prototype.
struct BoardOpInfo
{
    const char* name;
    const char* argNames; // "(card, axis, distance)", as the contract names the parameters
    std::uint8_t argCount;
    std::array<BoardArgKind, 6> argKinds;
    bool returnsStatus; // a negative result is a refusal
    bool polled;
};

inline constexpr BoardOpInfo kBoardOps[] = {
#define ORVANE_BOARD_OP_INFO_(ret, name, params, args, families)                                   \
    {#name,                                                                                        \
     #args,                                                                                        \
     detail::BoardArgShape<nrx_##name##_fn>::count,                                                \
     detail::BoardArgShape<nrx_##name##_fn>::kinds,                                                \
     std::is_same_v<ret, nrx_i32> && !detail::isValueResult(#name),                                \
     detail::isPollingRead(#name)},
    NRX_FOR_EACH_OPERATION(ORVANE_BOARD_OP_INFO_)
#undef ORVANE_BOARD_OP_INFO_
};

constexpr int kBoardOpCount = static_cast<int>(sizeof(kBoardOps) / sizeof(kBoardOps[0]));

constexpr const BoardOpInfo& boardOpInfo(BoardOp op)
{
    return kBoardOps[static_cast<std::size_t>(op)];
}
