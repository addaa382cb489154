#pragma once

#include "ParameterSet.h"

#include <QCoreApplication>
#include <optional>

// One parameter of two sources side by side; a value is missing where a source lacks it.
struct ComparisonRow
{
    QString section; // "Card", "Axis 1" or "RL.Card0.Axis1"
    const ParameterInfo* info = nullptr;
    std::optional<std::int32_t> first;
    std::optional<std::int32_t> second;

    bool differs() const { return first != second; }
};

// One axis' user-unit scale in two sources; an unset scale is an axis in pulses.
struct UnitComparisonRow
{
    QString section;
    AxisUnitScale first;
    AxisUnitScale second;
    bool differs() const { return first != second; }
};

// Lines two parameter sets up row by row. Two single axes, or two single cards, are matched
// by their place on the card whatever their family and number; larger sets by section name.
// A card or axis against a file of many cards meets the file's part for that card or axis.
class ParameterComparison
{
    Q_DECLARE_TR_FUNCTIONS(ParameterComparison)

public:
    static std::vector<ComparisonRow> compare(const ParameterSet& first,
                                              const ParameterSet& second);
    // The axes' scales, matched as their axis sections are; axes without a scale on both
    // sides have no row.
    static std::vector<UnitComparisonRow> compareUnits(const ParameterSet& first,
                                                       const ParameterSet& second);
    static int differenceCount(const std::vector<ComparisonRow>& rows);
    // "2 (PLS POS/DIR Low)", "-5000", or an empty text for a missing value.
    static QString valueText(const ParameterInfo& info, std::optional<std::int32_t> value);
};
