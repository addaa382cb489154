#pragma once

#include "AxisUnitScale.h"
#include "ParameterCatalog.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

class AxisUnits;
class CardRegistry;

// A fault found in a parameter text, with the line it is on (0 for the file as a whole).
struct ParameterFault
{
    int line = 0;
    QString text;
};

// Which boards a set covers: every card, every card of a family, one card or one axis.
struct ParameterScope
{
    std::optional<BoardFamily> family;
    int card = -1; // -1: every card of the family
    int axis = -1; // -1: the whole card

    // "RL", "RL:0" or "RL:0:1"; nothing for any other text.
    static std::optional<ParameterScope> parse(const QString& text);
};

// One parameter value as a set holds it.
struct ParameterValue
{
    const ParameterInfo* info = nullptr;
    std::int32_t value = 0;
};

// The values of one card (axis -1: its card-wide parameters) or of one of its axes.
struct ParameterSection
{
    BoardFamily family = BoardFamily::RL;
    int card = 0;
    int axis = -1;
    int line = 0;                       // where a text gave it
    std::vector<ParameterValue> values; // in catalogue order

    const ParameterValue* find(const ParameterInfo* info) const;
    // "RL.Card0" or "RL.Card0.Axis1": the section's name in a text.
    std::string name() const;
};

// An axis' user-unit scale as a set holds it: not a board value, but kept with the axis'
// parameters so that a machine's files carry it ("[Units.RL.Card0.Axis1]").
struct UnitSection
{
    BoardFamily family = BoardFamily::RL;
    int card = 0;
    int axis = 0;
    int line = 0; // where a text gave it
    AxisUnitScale scale;

    // "Units.RL.Card0.Axis1"
    std::string name() const;
};

// Where a card's values came from: what its export knew of the board.
struct CardDescription
{
    BoardFamily family = BoardFamily::RL;
    int card = 0;
    std::string model;
    std::string firmware;
    std::string libraryVersion;
    int axes = 0;
};

// Stored parameters of some cards, as a board gives them or a text file holds them: what
// export writes, import reads and compare sets side by side.
class ParameterSet
{
public:
    std::vector<CardDescription> cards;
    // Per card its card section, then its axes in order.
    std::vector<ParameterSection> sections;
    // The scales of axes the set covers, in section order.
    std::vector<UnitSection> units;

    // Reads every catalogued parameter of the scope from the boards.
    static ParameterSet fromBoards(BoardApi& board, const CardRegistry& registry,
                                   const ParameterScope& scope = {});
    // The values of a card or axis as the board holds them, in catalogue order.
    static std::vector<ParameterValue> readSection(BoardApi& board, BoardFamily family, CardNo card,
                                                   int axis);

    // Adds the scale of every axis section that has one.
    void addUnits(const AxisUnits& from);
    const UnitSection* unitSection(BoardFamily family, int card, int axis) const;

    const CardDescription* card(BoardFamily family, int card) const;
    const ParameterSection* section(BoardFamily family, int card, int axis) const;
    // The number of axis sections a card has in this set.
    int axisCount(BoardFamily family, int card) const;
};
