#include "ParameterSet.h"

#include "AxisUnits.h"
#include "BoardApi.h"
#include "BoardLoader.h"
#include "BoardTexts.h"
#include "CardRegistry.h"

#include <QStringList>

namespace {

bool belongsAt(const ParameterInfo& info, BoardFamily family, int axis)
{
    const ParameterLevel wanted = axis < 0 ? ParameterLevel::Card : ParameterLevel::Axis;
    return info.existsIn(family) && info.level == wanted;
}

std::string withoutPrefix(const std::string& text)
{
    const auto colon = text.find(" : ");
    return colon == std::string::npos ? text : text.substr(colon + 3);
}

} // namespace

std::optional<ParameterScope> ParameterScope::parse(const QString& text)
{
    const QStringList parts = text.split(QLatin1Char(':'));
    if (parts.size() > 3)
        return std::nullopt;
    ParameterScope scope;
    for (BoardFamily family : kAllFamilies) {
        if (parts[0].compare(QLatin1String(familyShortName(family)), Qt::CaseInsensitive) == 0)
            scope.family = family;
    }
    if (!scope.family)
        return std::nullopt;
    int* numbers[] = {&scope.card, &scope.axis};
    for (int i = 1; i < parts.size(); ++i) {
        bool ok = false;
        const int n = parts[i].toInt(&ok);
        // Numbers beyond the boards still name a board, so the PC can say it has none.
        if (!ok || n < 0 || n > 999)
            return std::nullopt;
        *numbers[i - 1] = n;
    }
    return scope;
}

const ParameterValue* ParameterSection::find(const ParameterInfo* info) const
{
    for (const ParameterValue& value : values) {
        if (value.info == info)
            return &value;
    }
    return nullptr;
}

std::string ParameterSection::name() const
{
    std::string text = std::string(familyShortName(family)) + ".Card" + std::to_string(card);
    if (axis >= 0)
        text += ".Axis" + std::to_string(axis);
    return text;
}

std::string UnitSection::name() const
{
    return std::string("Units.") + familyShortName(family) + ".Card" + std::to_string(card) +
           ".Axis" + std::to_string(axis);
}

void ParameterSet::addUnits(const AxisUnits& from)
{
    for (const ParameterSection& section : sections) {
        const AxisUnitScale scale = from.scale(section.family, section.card, section.axis);
        if (section.axis >= 0 && scale.isSet())
            units.push_back({section.family, section.card, section.axis, 0, scale});
    }
}

const UnitSection* ParameterSet::unitSection(BoardFamily family, int card, int axis) const
{
    for (const UnitSection& each : units)
        if (each.family == family && each.card == card && each.axis == axis)
            return &each;
    return nullptr;
}

std::vector<ParameterValue> ParameterSet::readSection(BoardApi& board, BoardFamily family,
                                                      CardNo card, int axis)
{
    std::vector<ParameterValue> values;
    const auto boardAxis = static_cast<AxisNo>(axis < 0 ? 0 : axis);
    CallValues carried;
    const ParameterInfo* previous = nullptr;
    for (const ParameterInfo& info : ParameterCatalog::all()) {
        if (!belongsAt(info, family, axis))
            continue;
        // One read per call, however many values it carries.
        if (previous == nullptr || previous->call != info.call)
            carried = ParameterCatalog::read(board, family, info.call, card, boardAxis);
        previous = &info;
        const auto slot = static_cast<std::size_t>(info.slot);
        values.push_back({&info, slot < carried.size() ? carried[slot] : 0});
    }
    return values;
}

ParameterSet ParameterSet::fromBoards(BoardApi& board, const CardRegistry& registry,
                                      const ParameterScope& scope)
{
    ParameterSet set;
    for (BoardFamily family : kAllFamilies) {
        if (scope.family && *scope.family != family)
            continue;
        const QByteArray library = BoardLoader::libraryFileName(family).toLatin1();
        const std::string version = withoutPrefix(
            BoardTexts::libraryVersionText(board.GetDllVersion(family, library.constData())));
        for (int card = 0; card < registry.cardCount(family); ++card) {
            if (scope.card >= 0 && scope.card != card)
                continue;
            const auto cardNo = static_cast<CardNo>(card);
            nrx_i32 reserved = 0, firmware = 0, axes = 0, info = 0, io = 0;
            board.BoardInfo(family, cardNo, &reserved, &firmware, &axes, &info, &io);
            set.cards.push_back({family, card, registry.modelName(family, card),
                                 withoutPrefix(BoardTexts::firmwareText(family, firmware)), version,
                                 registry.axisCount(family, card)});
            if (scope.axis < 0)
                set.sections.push_back(
                    {family, card, -1, 0, readSection(board, family, cardNo, -1)});
            for (int axis = 0; axis < registry.axisCount(family, card); ++axis) {
                if (scope.axis < 0 || scope.axis == axis)
                    set.sections.push_back(
                        {family, card, axis, 0, readSection(board, family, cardNo, axis)});
            }
        }
    }
    return set;
}

const CardDescription* ParameterSet::card(BoardFamily family, int cardNo) const
{
    for (const CardDescription& description : cards) {
        if (description.family == family && description.card == cardNo)
            return &description;
    }
    return nullptr;
}

const ParameterSection* ParameterSet::section(BoardFamily family, int cardNo, int axis) const
{
    for (const ParameterSection& s : sections) {
        if (s.family == family && s.card == cardNo && s.axis == axis)
            return &s;
    }
    return nullptr;
}

int ParameterSet::axisCount(BoardFamily family, int cardNo) const
{
    int count = 0;
    for (const ParameterSection& s : sections)
        count += s.family == family && s.card == cardNo && s.axis >= 0 ? 1 : 0;
    return count;
}
