#include "ParameterCatalog.h"

#include "BoardApi.h"

#include <QCoreApplication>

#include <iterator>
#include <limits>
#include <tuple>
#include <utility>

namespace {

// What a parameter may hold, as the list in ParameterCalls.h writes it.
struct Domain
{
    std::int32_t minimum;
    std::int32_t maximum;
    std::vector<const char*> choices;
    bool shown = true;
};

using Texts = std::vector<const char*>;

const Texts kLevels{QT_TRANSLATE_NOOP("ParameterCatalog", "Low Active"),
                    QT_TRANSLATE_NOOP("ParameterCatalog", "High Active")};
const Texts kEnable{QT_TRANSLATE_NOOP("ParameterCatalog", "Disable"),
                    QT_TRANSLATE_NOOP("ParameterCatalog", "Enable")};
const Texts kUse{QT_TRANSLATE_NOOP("ParameterCatalog", "Unused"),
                 QT_TRANSLATE_NOOP("ParameterCatalog", "Use")};
const Texts kDirections{QT_TRANSLATE_NOOP("ParameterCatalog", "CW"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "CCW")};
// The lists with words in them, marked here for translation: the parameter list in
// ParameterCalls.h is a macro, where the translation tools do not look.
const Texts kLimitStops{QT_TRANSLATE_NOOP("ParameterCatalog", "E-Stop"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "S-Stop")};
const Texts kRangeModes{QT_TRANSLATE_NOOP("ParameterCatalog", "Automatic Range"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "Fixed Range")};
const Texts kSpeedModes{QT_TRANSLATE_NOOP("ParameterCatalog", "Trapezoid"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "Paravola(S-Curve)")};
const Texts kPulseModes{QT_TRANSLATE_NOOP("ParameterCatalog", "CW/CCW Positive"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "CW/CCW Negative"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "PLS POS/DIR Low"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "PLS POS/DIR HI"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "PLS NEG/DIR Low"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "PLS NEG/DIR HI")};
const Texts kEncoderModes{QT_TRANSLATE_NOOP("ParameterCatalog", "x4(EA/EB)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "x2(EA/EB)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "x1(EA/EB)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "Up/Down")};
const Texts kCompareCounters{QT_TRANSLATE_NOOP("ParameterCatalog", "Command"),
                             QT_TRANSLATE_NOOP("ParameterCatalog", "Actual")};
const Texts kHomeModes{QT_TRANSLATE_NOOP("ParameterCatalog", "0 : LowHome (ORG)"),
                       QT_TRANSLATE_NOOP("ParameterCatalog", "1 : LowHome (ORG+EZ)"),
                       QT_TRANSLATE_NOOP("ParameterCatalog", "2 : HighHome (ORG)"),
                       QT_TRANSLATE_NOOP("ParameterCatalog", "3 : HighHome (ORG+EZ)"),
                       QT_TRANSLATE_NOOP("ParameterCatalog", "4 : LowHome (Limit)"),
                       QT_TRANSLATE_NOOP("ParameterCatalog", "5 : LowHome (Limit+EZ)"),
                       QT_TRANSLATE_NOOP("ParameterCatalog", "6 : HighHome (Limit)"),
                       QT_TRANSLATE_NOOP("ParameterCatalog", "7 : HighHome (Limit+EZ)"),
                       QT_TRANSLATE_NOOP("ParameterCatalog", "8 : LowHome (EZ)"),
                       QT_TRANSLATE_NOOP("ParameterCatalog", "9 : CurPos (ORG)")};

Domain oneOf(Texts choices)
{
    const auto last = static_cast<std::int32_t>(choices.size()) - 1;
    return {0, last, std::move(choices)};
}

Domain between(std::int32_t minimum, std::int32_t maximum)
{
    return {minimum, maximum, {}};
}

const Domain anyNumber =
    between(std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max());
const Domain notNegative = between(0, std::numeric_limits<std::int32_t>::max());

Domain hidden(Domain domain)
{
    domain.shown = false;
    return domain;
}

// The families that export an operation, by BoardOp.
constexpr unsigned kOperationFamilies[] = {
#define ORVANE_OPERATION_FAMILIES_(ret, name, params, args, families) families,
    NRX_FOR_EACH_OPERATION(ORVANE_OPERATION_FAMILIES_)
#undef ORVANE_OPERATION_FAMILIES_
};
static_assert(NRX_FAMILIES_RN == (1u << familyIndex(BoardFamily::RN)),
              "the contract's family masks count families as familyBit() does");

// The prototype and number of a BoardApi operation, from the type of its member.
template <typename Member> struct Operation;
template <typename Fn, Fn NrxFunctionTable::*Entry, BoardOp Op>
struct Operation<detail::BoardOperation<Fn, Entry, Op> BoardApi::*>
{
    using Prototype = Fn;
    static constexpr unsigned families = kOperationFamilies[static_cast<std::size_t>(Op)];
};

template <typename Fn> struct Prototype;
template <typename R, typename... A> struct Prototype<R (*)(A...)>
{
    static constexpr std::size_t count = sizeof...(A);
    template <std::size_t I> using Arg = std::tuple_element_t<I, std::tuple<A...>>;
};

std::int32_t at(const CallValues& values, std::size_t i)
{
    return i < values.size() ? values[i] : 0;
}

// Reads and writes one call pair whatever its shape: GetX(card) and GetX(card, axis) return
// the one value, GetX(card, axis, &a, &b, ...) fill in several; SetX takes them after the
// card and, for an axis call, the axis.
template <auto Get, auto Set> struct CallPair
{
    using Getter = Prototype<typename Operation<decltype(Get)>::Prototype>;
    using Setter = Prototype<typename Operation<decltype(Set)>::Prototype>;
    static constexpr bool onCard = Getter::count == 1;
    static constexpr std::size_t address = onCard ? 1 : 2; // card, or card and axis
    static constexpr std::size_t carried = Setter::count - address;
    static_assert(Getter::count == address || Getter::count == address + carried,
                  "a getter returns one value or fills in each value its setter takes");

    static CallValues read(BoardApi& board, BoardFamily f, CardNo c, AxisNo a)
    {
        if constexpr (onCard)
            return {(board.*Get)(f, c)};
        else if constexpr (Getter::count == 2)
            return {(board.*Get)(f, c, a)};
        else
            return readFilled(board, f, c, a, std::make_index_sequence<carried>());
    }

    static std::int32_t write(BoardApi& board, BoardFamily f, CardNo c, AxisNo a,
                              const CallValues& v)
    {
        return writeEach(board, f, c, a, v, std::make_index_sequence<carried>());
    }

private:
    template <std::size_t... I>
    static CallValues readFilled(BoardApi& board, BoardFamily f, CardNo c, AxisNo a,
                                 std::index_sequence<I...>)
    {
        std::tuple<std::remove_pointer_t<typename Getter::template Arg<I + 2>>...> out{};
        (board.*Get)(f, c, a, &std::get<I>(out)...);
        return {static_cast<std::int32_t>(std::get<I>(out))...};
    }

    template <std::size_t... I>
    static std::int32_t writeEach(BoardApi& board, BoardFamily f, CardNo c, AxisNo a,
                                  const CallValues& v, std::index_sequence<I...>)
    {
        if constexpr (onCard)
            return static_cast<std::int32_t>(
                (board.*Set)(f, c, static_cast<typename Setter::template Arg<I + 1>>(at(v, I))...));
        else
            return static_cast<std::int32_t>((board.*Set)(
                f, c, a, static_cast<typename Setter::template Arg<I + 2>>(at(v, I))...));
    }
};

// What the catalogue knows of one call pair, by ParameterCall.
struct CallEntry
{
    const char* name;
    ParameterPage page;
    ParameterLevel level;
    unsigned families;
    CallValues (*read)(BoardApi&, BoardFamily, CardNo, AxisNo);
    std::int32_t (*write)(BoardApi&, BoardFamily, CardNo, AxisNo, const CallValues&);
};

template <auto Get, auto Set> constexpr CallEntry callEntry(const char* name, ParameterPage page)
{
    using Pair = CallPair<Get, Set>;
    return {name,
            page,
            Pair::onCard ? ParameterLevel::Card : ParameterLevel::Axis,
            Operation<decltype(Get)>::families & Operation<decltype(Set)>::families,
            &Pair::read,
            &Pair::write};
}

constexpr CallEntry kCalls[] = {
#define ORVANE_CALL_ENTRY_(pair, page)                                                             \
    callEntry<&BoardApi::Get##pair, &BoardApi::Set##pair>(#pair, ParameterPage::page),
#define ORVANE_CALL_SKIP_(name, domain)
    ORVANE_FOR_EACH_STORED_PARAMETER(ORVANE_CALL_ENTRY_, ORVANE_CALL_SKIP_)
#undef ORVANE_CALL_ENTRY_
#undef ORVANE_CALL_SKIP_
};

const CallEntry& entry(ParameterCall call)
{
    return kCalls[static_cast<std::size_t>(call)];
}

std::vector<ParameterInfo> makeCatalog()
{
    std::vector<ParameterInfo> catalog;
    ParameterCall call{};
    int slot = 0;
    const auto add = [&](const char* name, Domain domain) {
        const CallEntry& e = entry(call);
        catalog.push_back({name, call, slot++, e.level, e.page, domain.shown, e.families,
                           domain.minimum, domain.maximum, std::move(domain.choices)});
    };
#define ORVANE_CATALOG_CALL_(pair, page)                                                           \
    call = ParameterCall::pair;                                                                    \
    slot = 0;
#define ORVANE_CATALOG_VALUE_(name, domain) add(#name, domain);
    ORVANE_FOR_EACH_STORED_PARAMETER(ORVANE_CATALOG_CALL_, ORVANE_CATALOG_VALUE_)
#undef ORVANE_CATALOG_CALL_
#undef ORVANE_CATALOG_VALUE_
    return catalog;
}

} // namespace

const char* ParameterInfo::meaning(std::int32_t value) const
{
    if (value < 0 || value >= static_cast<std::int32_t>(choices.size()))
        return nullptr;
    return choices[static_cast<std::size_t>(value)];
}

const std::vector<ParameterInfo>& ParameterCatalog::all()
{
    static const std::vector<ParameterInfo> catalog = makeCatalog();
    return catalog;
}

const ParameterInfo* ParameterCatalog::find(std::string_view name)
{
    for (const ParameterInfo& info : all()) {
        if (name == info.name)
            return &info;
    }
    return nullptr;
}

std::vector<const ParameterInfo*> ParameterCatalog::carriedBy(ParameterCall call)
{
    std::vector<const ParameterInfo*> carried;
    for (const ParameterInfo& info : all()) {
        if (info.call == call)
            carried.push_back(&info);
    }
    return carried;
}

std::vector<ParameterCall> ParameterCatalog::callsOf(ParameterPage page, BoardFamily family)
{
    std::vector<ParameterCall> calls;
    for (std::size_t i = 0; i < std::size(kCalls); ++i) {
        if (kCalls[i].page == page && (kCalls[i].families & familyBit(family)) != 0)
            calls.push_back(static_cast<ParameterCall>(i));
    }
    return calls;
}

ParameterLevel ParameterCatalog::levelOf(ParameterCall call)
{
    return entry(call).level;
}

const char* ParameterCatalog::callName(ParameterCall call)
{
    return entry(call).name;
}

CallValues ParameterCatalog::read(BoardApi& board, BoardFamily family, ParameterCall call,
                                  CardNo card, AxisNo axis)
{
    return entry(call).read(board, family, card, axis);
}

std::int32_t ParameterCatalog::write(BoardApi& board, BoardFamily family, ParameterCall call,
                                     CardNo card, AxisNo axis, const CallValues& values)
{
    return entry(call).write(board, family, card, axis, values);
}
