#pragma once

#include "BoardFamily.h"
#include "ParameterCalls.h"

#include <cstdint>
#include <string_view>
#include <vector>

class BoardApi;

// Whether a parameter belongs to the whole card or to one axis.
enum class ParameterLevel
{
    Card,
    Axis
};

// Where a stored parameter is edited. The first three are the parameter setup window's tabs,
// numbered as its pages are.
enum class ParameterPage
{
    SystemIo = 0,
    MotionParameter = 1,
    Filter = 2,
    Home,         // the single-axis window's home page
    PointToPoint, // the single-axis window's point-to-point page
    DigitalIo,    // the digital I/O window's filter settings
};

// The board calls that store parameters; one call writes every value it carries.
enum class ParameterCall
{
#define ORVANE_PARAMETER_CALL_ENUM_(pair, page) pair,
#define ORVANE_PARAMETER_CALL_SKIP_(name, domain)
    ORVANE_FOR_EACH_STORED_PARAMETER(ORVANE_PARAMETER_CALL_ENUM_, ORVANE_PARAMETER_CALL_SKIP_)
#undef ORVANE_PARAMETER_CALL_ENUM_
#undef ORVANE_PARAMETER_CALL_SKIP_
};

constexpr unsigned familyBit(BoardFamily family)
{
    return 1u << familyIndex(family);
}

// One stored parameter: its name in text files, where it lives and what it may hold.
struct ParameterInfo
{
    const char* name;     // stable and readable, e.g. "SoftLimitPlus"
    ParameterCall call;   // the board call pair that reads and writes it
    int slot;             // its place among the values the call carries
    ParameterLevel level; // card-wide or per axis
    ParameterPage page;   // the page that edits it
    bool shown;           // false for a value the page writes without a control for it
    unsigned families;    // familyBit() of every family that has it
    std::int32_t minimum;
    std::int32_t maximum;
    std::vector<const char*> choices; // list texts by code; empty for a plain number

    bool isList() const { return !choices.empty(); }
    bool existsIn(BoardFamily family) const { return (families & familyBit(family)) != 0; }
    bool accepts(std::int32_t value) const { return value >= minimum && value <= maximum; }
    // The list text of a code, or null for a number or a code off the list.
    const char* meaning(std::int32_t value) const;
};

// The values one board call carries, in its argument order.
using CallValues = std::vector<std::int32_t>;

// Every parameter the boards store, listed once: the pages, copy, export, import and compare
// all read it from here.
class ParameterCatalog
{
public:
    // Every parameter: per page in the order the page reads and writes its calls.
    static const std::vector<ParameterInfo>& all();
    // The parameter of that name, or null.
    static const ParameterInfo* find(std::string_view name);
    // The parameters a call carries, in its argument order.
    static std::vector<const ParameterInfo*> carriedBy(ParameterCall call);
    // The calls of a page the family has, in the order the page reads and writes them.
    static std::vector<ParameterCall> callsOf(ParameterPage page, BoardFamily family);
    static ParameterLevel levelOf(ParameterCall call);
    // "Slmt", "SvAlm", ...: the operation name without Get or Set.
    static const char* callName(ParameterCall call);

    // Reads the call's values from the family's board (axis is ignored for card-wide calls).
    static CallValues read(BoardApi& board, BoardFamily family, ParameterCall call, CardNo card,
                           AxisNo axis);
    // Writes the call's values, as many as it carries, in one board call; the board's result.
    static std::int32_t write(BoardApi& board, BoardFamily family, ParameterCall call, CardNo card,
                              AxisNo axis, const CallValues& values);
};
