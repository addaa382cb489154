#include "ParameterCatalog.h"

#include "BoardApi.h"

#include <limits>

namespace {

using Call = ParameterCall;
using Page = ParameterPage;
using Texts = std::vector<const char*>;

constexpr std::int32_t kIntMin = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kIntMax = std::numeric_limits<std::int32_t>::max();
constexpr unsigned kRnOnly = 0x4;

const Texts kLevels{QT_TRANSLATE_NOOP("ParameterCatalog", "Low Active"),
                    QT_TRANSLATE_NOOP("ParameterCatalog", "High Active")};
const Texts kEnable{QT_TRANSLATE_NOOP("ParameterCatalog", "Disable"),
                    QT_TRANSLATE_NOOP("ParameterCatalog", "Enable")};
const Texts kUse{QT_TRANSLATE_NOOP("ParameterCatalog", "Unused"),
                 QT_TRANSLATE_NOOP("ParameterCatalog", "Use")};
const Texts kDirections{QT_TRANSLATE_NOOP("ParameterCatalog", "CW"),
                        QT_TRANSLATE_NOOP("ParameterCatalog", "CCW")};

ParameterInfo list(const char* name, Call call, int slot, Page page, Texts choices,
                   unsigned families = kEveryFamily)
{
    const auto last = static_cast<std::int32_t>(choices.size()) - 1;
    return {name,     call, slot, ParameterLevel::Axis, page, true,
            families, 0,    last, std::move(choices)};
}

ParameterInfo number(const char* name, Call call, int slot, Page page, std::int32_t minimum,
                     std::int32_t maximum)
{
    return {name, call, slot, ParameterLevel::Axis, page, true, kEveryFamily, minimum, maximum, {}};
}

ParameterInfo onCard(ParameterInfo info)
{
    info.level = ParameterLevel::Card;
    return info;
}

ParameterInfo notShown(ParameterInfo info)
{
    info.shown = false;
    return info;
}

std::vector<ParameterInfo> makeCatalog()
{
    const Texts clearTimes{"0.01", "0.02", "0.1", "0.2", "1", "2", "10", "20"};
    const Texts filterTimes{"0.002", "0.256", "0.512", "1.024",
                            "2.048", "4.096", "8.192", "16.384"};
    const Texts inputFilterTimes{"0.001", "0.002", "0.004",  "0.008", "0.016", "0.032",
                                 "0.064", "0.128", "0.256",  "0.512", "1.024", "2.048",
                                 "4.096", "8.192", "16.384", "32.768"};
    const Texts homeModes{QT_TRANSLATE_NOOP("ParameterCatalog", "0 : LowHome (ORG)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "1 : LowHome (ORG+EZ)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "2 : HighHome (ORG)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "3 : HighHome (ORG+EZ)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "4 : LowHome (Limit)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "5 : LowHome (Limit+EZ)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "6 : HighHome (Limit)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "7 : HighHome (Limit+EZ)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "8 : LowHome (EZ)"),
                          QT_TRANSLATE_NOOP("ParameterCatalog", "9 : CurPos (ORG)")};
    const auto io = Page::SystemIo;
    const auto motion = Page::MotionParameter;
    const auto filter = Page::Filter;
    return {
        // System IO, in the page's order.
        list("AlarmUse", Call::SvAlm, 0, io, kEnable),
        list("AlarmLevel", Call::SvAlm, 1, io, kLevels),
        list("InpositionUse", Call::SvInpos, 0, io, kEnable),
        list("InpositionLevel", Call::SvInpos, 1, io, kLevels),
        list("LimitStopMode", Call::Hlmt, 0, io,
             {QT_TRANSLATE_NOOP("ParameterCatalog", "E-Stop"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "S-Stop")}),
        list("LimitLevel", Call::Hlmt, 1, io, kLevels),
        list("OriginLevel", Call::Org, 0, io, kLevels),
        list("EncoderZLevel", Call::EncoderZ, 0, io, kLevels),
        // The page always writes use 1 and has no control for it.
        notShown(list("CounterClearUse", Call::SvCClr, 0, io, kEnable)),
        list("CounterClearLevel", Call::SvCClr, 1, io, kLevels),
        list("CounterClearTime", Call::SvCClrTime, 0, io, clearTimes),
        onCard(list("EmergencyLevel", Call::Emergency, 0, io, kLevels)),
        // Motion Parameter.
        number("RangeMagnification", Call::RangeMode, 0, motion, 1, 500),
        list("RangeMode", Call::FixedRange, 0, motion,
             {QT_TRANSLATE_NOOP("ParameterCatalog", "Automatic Range"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "Fixed Range")}),
        list("SpeedMode", Call::SpeedMode, 0, motion,
             {QT_TRANSLATE_NOOP("ParameterCatalog", "Trapezoid"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "Paravola(S-Curve)")}),
        list("PulseMode", Call::PulseMode, 0, motion,
             {QT_TRANSLATE_NOOP("ParameterCatalog", "CW/CCW Positive"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "CW/CCW Negative"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "PLS POS/DIR Low"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "PLS POS/DIR HI"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "PLS NEG/DIR Low"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "PLS NEG/DIR HI")}),
        list("EncoderDirection", Call::EncoderDir, 0, motion, kDirections),
        list("EncoderMode", Call::EncoderMode, 0, motion,
             {QT_TRANSLATE_NOOP("ParameterCatalog", "x4(EA/EB)"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "x2(EA/EB)"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "x1(EA/EB)"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "Up/Down")}),
        list("OriginDirection", Call::HomeDir, 0, motion, kDirections),
        list("CompareCounter", Call::CompCountMode, 0, motion,
             {QT_TRANSLATE_NOOP("ParameterCatalog", "Command"),
              QT_TRANSLATE_NOOP("ParameterCatalog", "Actual")}),
        number("SoftLimitPlus", Call::Slmt, 0, motion, kIntMin, kIntMax),
        number("SoftLimitMinus", Call::Slmt, 1, motion, kIntMin, kIntMax),
        list("SoftLimitUse", Call::Slmt, 2, motion, kUse),
        number("CounterRingCommand", Call::CounterRing, 0, motion, kIntMin, kIntMax),
        number("CounterRingActual", Call::CounterRing, 1, motion, kIntMin, kIntMax),
        list("CounterRingUse", Call::CounterRing, 2, motion, kUse),
        // Filter.
        list("FilterTime", Call::FilterTime, 0, filter, filterTimes),
        list("FilterSensor", Call::FilterSensor, 0, filter, kEnable),
        list("FilterServo", Call::FilterSvIF, 0, filter, kEnable),
        list("FilterEncoderZ", Call::FilterEncoderZ, 0, filter, kEnable),
        list("FilterExternal", Call::FilterExt, 0, filter, kEnable),
        list("FilterStop", Call::FilterStop, 0, filter, kEnable, kRnOnly),
        // The single-axis window's pages.
        list("HomeMode", Call::HomeMode, 0, Page::Home, homeModes),
        number("HomeOffset", Call::HomeOffset, 0, Page::Home, kIntMin, kIntMax),
        number("HomeLowSpeed", Call::HomeSpeed, 0, Page::Home, 0, kIntMax),
        number("HomeHighSpeed", Call::HomeSpeed, 1, Page::Home, 0, kIntMax),
        number("HomeAccDecTime", Call::HomeSpeed, 2, Page::Home, 0, kIntMax),
        number("PosInitialSpeed", Call::PosSpeed, 0, Page::PointToPoint, 0, kIntMax),
        number("PosDriveSpeed", Call::PosSpeed, 1, Page::PointToPoint, 0, kIntMax),
        number("PosAccelTime", Call::PosSpeed, 2, Page::PointToPoint, 0, kIntMax),
        number("PosDecelTime", Call::PosSpeed, 3, Page::PointToPoint, 0, kIntMax),
        number("JogInitialSpeed", Call::JogSpeed, 0, Page::PointToPoint, 0, kIntMax),
        number("JogDriveSpeed", Call::JogSpeed, 1, Page::PointToPoint, 0, kIntMax),
        number("JogAccelTime", Call::JogSpeed, 2, Page::PointToPoint, 0, kIntMax),
        // The digital I/O window's card-wide input filter.
        onCard(list("InputFilter", Call::DiFilter, 0, Page::DigitalIo, kEnable)),
        onCard(list("InputFilterTime", Call::DiFilterTime, 0, Page::DigitalIo, inputFilterTimes)),
    };
}

std::uint16_t u16(const CallValues& values, std::size_t i)
{
    return static_cast<std::uint16_t>(i < values.size() ? values[i] : 0);
}

std::int32_t i32(const CallValues& values, std::size_t i)
{
    return i < values.size() ? values[i] : 0;
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
    for (const ParameterInfo& info : all()) {
        if (info.page == page && info.existsIn(family) &&
            (calls.empty() || calls.back() != info.call))
            calls.push_back(info.call);
    }
    return calls;
}

ParameterLevel ParameterCatalog::levelOf(ParameterCall call)
{
    return call == Call::Emergency || call == Call::DiFilter || call == Call::DiFilterTime
               ? ParameterLevel::Card
               : ParameterLevel::Axis;
}

const char* ParameterCatalog::callName(ParameterCall call)
{
    switch (call) {
    case Call::RangeMode:
        return "RangeMode";
    case Call::FixedRange:
        return "FixedRange";
    case Call::SpeedMode:
        return "SpeedMode";
    case Call::PulseMode:
        return "PulseMode";
    case Call::EncoderDir:
        return "EncoderDir";
    case Call::EncoderMode:
        return "EncoderMode";
    case Call::HomeDir:
        return "HomeDir";
    case Call::CompCountMode:
        return "CompCountMode";
    case Call::Slmt:
        return "Slmt";
    case Call::CounterRing:
        return "CounterRing";
    case Call::SvAlm:
        return "SvAlm";
    case Call::SvInpos:
        return "SvInpos";
    case Call::Hlmt:
        return "Hlmt";
    case Call::Org:
        return "Org";
    case Call::EncoderZ:
        return "EncoderZ";
    case Call::SvCClr:
        return "SvCClr";
    case Call::SvCClrTime:
        return "SvCClrTime";
    case Call::Emergency:
        return "Emergency";
    case Call::FilterTime:
        return "FilterTime";
    case Call::FilterSensor:
        return "FilterSensor";
    case Call::FilterSvIF:
        return "FilterSvIF";
    case Call::FilterEncoderZ:
        return "FilterEncoderZ";
    case Call::FilterExt:
        return "FilterExt";
    case Call::FilterStop:
        return "FilterStop";
    case Call::HomeMode:
        return "HomeMode";
    case Call::HomeOffset:
        return "HomeOffset";
    case Call::HomeSpeed:
        return "HomeSpeed";
    case Call::PosSpeed:
        return "PosSpeed";
    case Call::JogSpeed:
        return "JogSpeed";
    case Call::DiFilter:
        return "DiFilter";
    case Call::DiFilterTime:
        return "DiFilterTime";
    }
    return "";
}

CallValues ParameterCatalog::read(BoardApi& board, BoardFamily f, ParameterCall call, CardNo c,
                                  AxisNo a)
{
    std::uint16_t u0 = 0, u1 = 0, u2 = 0;
    std::int32_t v0 = 0, v1 = 0, v2 = 0, v3 = 0;
    switch (call) {
    case Call::RangeMode:
        return {board.GetRangeMode(f, c, a)};
    case Call::FixedRange:
        return {board.GetFixedRange(f, c, a)};
    case Call::SpeedMode:
        return {board.GetSpeedMode(f, c, a)};
    case Call::PulseMode:
        return {board.GetPulseMode(f, c, a)};
    case Call::EncoderDir:
        return {board.GetEncoderDir(f, c, a)};
    case Call::EncoderMode:
        return {board.GetEncoderMode(f, c, a)};
    case Call::HomeDir:
        return {board.GetHomeDir(f, c, a)};
    case Call::CompCountMode:
        return {board.GetCompCountMode(f, c, a)};
    case Call::Slmt:
        board.GetSlmt(f, c, a, &v0, &v1, &u2);
        return {v0, v1, u2};
    case Call::CounterRing:
        board.GetCounterRing(f, c, a, &v0, &v1, &u2);
        return {v0, v1, u2};
    case Call::SvAlm:
        board.GetSvAlm(f, c, a, &u0, &u1);
        return {u0, u1};
    case Call::SvInpos:
        board.GetSvInpos(f, c, a, &u0, &u1);
        return {u0, u1};
    case Call::Hlmt:
        board.GetHlmt(f, c, a, &u0, &u1);
        return {u0, u1};
    case Call::Org:
        return {board.GetOrg(f, c, a)};
    case Call::EncoderZ:
        return {board.GetEncoderZ(f, c, a)};
    case Call::SvCClr:
        board.GetSvCClr(f, c, a, &u0, &u1);
        return {u0, u1};
    case Call::SvCClrTime:
        return {board.GetSvCClrTime(f, c, a)};
    case Call::Emergency:
        return {board.GetEmergency(f, c)};
    case Call::FilterTime:
        return {board.GetFilterTime(f, c, a)};
    case Call::FilterSensor:
        return {board.GetFilterSensor(f, c, a)};
    case Call::FilterSvIF:
        return {board.GetFilterSvIF(f, c, a)};
    case Call::FilterEncoderZ:
        return {board.GetFilterEncoderZ(f, c, a)};
    case Call::FilterExt:
        return {board.GetFilterExt(f, c, a)};
    case Call::FilterStop:
        return {board.GetFilterStop(f, c, a)};
    case Call::HomeMode:
        return {board.GetHomeMode(f, c, a)};
    case Call::HomeOffset:
        return {board.GetHomeOffset(f, c, a)};
    case Call::HomeSpeed:
        board.GetHomeSpeed(f, c, a, &v0, &v1, &v2);
        return {v0, v1, v2};
    case Call::PosSpeed:
        board.GetPosSpeed(f, c, a, &v0, &v1, &v2, &v3);
        return {v0, v1, v2, v3};
    case Call::JogSpeed:
        board.GetJogSpeed(f, c, a, &v0, &v1, &v2);
        return {v0, v1, v2};
    case Call::DiFilter:
        return {board.GetDiFilter(f, c)};
    case Call::DiFilterTime:
        return {board.GetDiFilterTime(f, c)};
    }
    return {};
}

void ParameterCatalog::write(BoardApi& board, BoardFamily f, ParameterCall call, CardNo c, AxisNo a,
                             const CallValues& v)
{
    switch (call) {
    case Call::RangeMode:
        board.SetRangeMode(f, c, a, u16(v, 0));
        break;
    case Call::FixedRange:
        board.SetFixedRange(f, c, a, u16(v, 0));
        break;
    case Call::SpeedMode:
        board.SetSpeedMode(f, c, a, u16(v, 0));
        break;
    case Call::PulseMode:
        board.SetPulseMode(f, c, a, u16(v, 0));
        break;
    case Call::EncoderDir:
        board.SetEncoderDir(f, c, a, u16(v, 0));
        break;
    case Call::EncoderMode:
        board.SetEncoderMode(f, c, a, u16(v, 0));
        break;
    case Call::HomeDir:
        board.SetHomeDir(f, c, a, u16(v, 0));
        break;
    case Call::CompCountMode:
        board.SetCompCountMode(f, c, a, u16(v, 0));
        break;
    case Call::Slmt:
        board.SetSlmt(f, c, a, i32(v, 0), i32(v, 1), u16(v, 2));
        break;
    case Call::CounterRing:
        board.SetCounterRing(f, c, a, i32(v, 0), i32(v, 1), u16(v, 2));
        break;
    case Call::SvAlm:
        board.SetSvAlm(f, c, a, u16(v, 0), u16(v, 1));
        break;
    case Call::SvInpos:
        board.SetSvInpos(f, c, a, u16(v, 0), u16(v, 1));
        break;
    case Call::Hlmt:
        board.SetHlmt(f, c, a, u16(v, 0), u16(v, 1));
        break;
    case Call::Org:
        board.SetOrg(f, c, a, u16(v, 0));
        break;
    case Call::EncoderZ:
        board.SetEncoderZ(f, c, a, u16(v, 0));
        break;
    case Call::SvCClr:
        board.SetSvCClr(f, c, a, u16(v, 0), u16(v, 1));
        break;
    case Call::SvCClrTime:
        board.SetSvCClrTime(f, c, a, u16(v, 0));
        break;
    case Call::Emergency:
        board.SetEmergency(f, c, u16(v, 0));
        break;
    case Call::FilterTime:
        board.SetFilterTime(f, c, a, u16(v, 0));
        break;
    case Call::FilterSensor:
        board.SetFilterSensor(f, c, a, u16(v, 0));
        break;
    case Call::FilterSvIF:
        board.SetFilterSvIF(f, c, a, u16(v, 0));
        break;
    case Call::FilterEncoderZ:
        board.SetFilterEncoderZ(f, c, a, u16(v, 0));
        break;
    case Call::FilterExt:
        board.SetFilterExt(f, c, a, u16(v, 0));
        break;
    case Call::FilterStop:
        board.SetFilterStop(f, c, a, u16(v, 0));
        break;
    case Call::HomeMode:
        board.SetHomeMode(f, c, a, u16(v, 0));
        break;
    case Call::HomeOffset:
        board.SetHomeOffset(f, c, a, i32(v, 0));
        break;
    case Call::HomeSpeed:
        board.SetHomeSpeed(f, c, a, i32(v, 0), i32(v, 1), i32(v, 2));
        break;
    case Call::PosSpeed:
        board.SetPosSpeed(f, c, a, i32(v, 0), i32(v, 1), i32(v, 2), i32(v, 3));
        break;
    case Call::JogSpeed:
        board.SetJogSpeed(f, c, a, i32(v, 0), i32(v, 1), i32(v, 2));
        break;
    case Call::DiFilter:
        board.SetDiFilter(f, c, u16(v, 0));
        break;
    case Call::DiFilterTime:
        board.SetDiFilterTime(f, c, u16(v, 0));
        break;
    }
}
