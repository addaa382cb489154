#include "ParameterComparison.h"

#include <algorithm>
#include <map>

namespace {

bool singleCard(const ParameterSet& set)
{
    for (const ParameterSection& s : set.sections) {
        if (s.family != set.sections.front().family || s.card != set.sections.front().card)
            return false;
    }
    return !set.sections.empty();
}

QString sectionKey(const ParameterSet& set, const ParameterSection& section, bool relative)
{
    if (!relative)
        return QString::fromStdString(section.name());
    if (section.axis < 0)
        return ParameterComparison::tr("Card");
    return set.sections.size() == 1 ? ParameterComparison::tr("Axis")
                                    : ParameterComparison::tr("Axis %1").arg(section.axis);
}

// A card or an axis set against a larger set meets only its own part of it, when there: an
// axis within a single card the axis of the same number, within many cards its own.
ParameterSet narrowed(const ParameterSet& set, const ParameterSet& other)
{
    if (!singleCard(other) || set.sections.size() <= other.sections.size())
        return set;
    const ParameterSection& o = other.sections.front();
    const bool oneAxis = other.sections.size() == 1 && o.axis >= 0;
    const bool samePlace = singleCard(set);
    ParameterSet part;
    for (const ParameterSection& s : set.sections) {
        const bool card = samePlace || (s.family == o.family && s.card == o.card);
        if (card && (!oneAxis || s.axis == o.axis))
            part.sections.push_back(s);
    }
    return part.sections.empty() ? set : part;
}

} // namespace

std::vector<ComparisonRow> ParameterComparison::compare(const ParameterSet& wholeFirst,
                                                        const ParameterSet& wholeSecond)
{
    const ParameterSet first = narrowed(wholeFirst, wholeSecond);
    const ParameterSet second = narrowed(wholeSecond, wholeFirst);
    const bool relative = singleCard(first) && singleCard(second);
    std::vector<ComparisonRow> rows;
    std::map<std::pair<QString, const ParameterInfo*>, std::size_t> index;
    for (const ParameterSection& section : first.sections) {
        const QString key = sectionKey(first, section, relative);
        for (const ParameterValue& v : section.values) {
            index[{key, v.info}] = rows.size();
            rows.push_back({key, v.info, v.value, std::nullopt});
        }
    }
    for (const ParameterSection& section : second.sections) {
        const QString key = sectionKey(second, section, relative);
        for (const ParameterValue& v : section.values) {
            const auto found = index.find({key, v.info});
            if (found != index.end())
                rows[found->second].second = v.value;
            else
                rows.push_back({key, v.info, std::nullopt, v.value});
        }
    }
    return rows;
}

std::vector<UnitComparisonRow> ParameterComparison::compareUnits(const ParameterSet& wholeFirst,
                                                                 const ParameterSet& wholeSecond)
{
    const ParameterSet first = narrowed(wholeFirst, wholeSecond);
    const ParameterSet second = narrowed(wholeSecond, wholeFirst);
    const bool relative = singleCard(first) && singleCard(second);
    std::vector<UnitComparisonRow> rows;
    std::map<QString, std::size_t> index;
    auto take = [&](const ParameterSet& whole, const ParameterSet& part, bool isFirst) {
        for (const ParameterSection& section : part.sections) {
            if (section.axis < 0)
                continue;
            const QString key = sectionKey(part, section, relative);
            const UnitSection* units =
                whole.unitSection(section.family, section.card, section.axis);
            const auto found = index.find(key);
            if (found == index.end()) {
                index[key] = rows.size();
                rows.push_back({key, {}, {}});
            }
            UnitComparisonRow& row = rows[index[key]];
            (isFirst ? row.first : row.second) = units ? units->scale : AxisUnitScale();
        }
    };
    take(wholeFirst, first, true);
    take(wholeSecond, second, false);
    rows.erase(std::remove_if(rows.begin(), rows.end(),
                              [](const UnitComparisonRow& row) {
                                  return !row.first.isSet() && !row.second.isSet();
                              }),
               rows.end());
    return rows;
}

int ParameterComparison::differenceCount(const std::vector<ComparisonRow>& rows)
{
    int count = 0;
    for (const ComparisonRow& row : rows)
        count += row.differs() ? 1 : 0;
    return count;
}

QString ParameterComparison::valueText(const ParameterInfo& info, std::optional<std::int32_t> value)
{
    if (!value)
        return QString();
    if (const char* meaning = info.meaning(*value))
        return QStringLiteral("%1 (%2)").arg(*value).arg(QString::fromUtf8(meaning));
    return QString::number(*value);
}
