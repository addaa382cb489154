#pragma once

#include "BoardFamily.h"

#include <QString>

// The 16-bit status words of an axis, in the order the axis status monitor reads them. The
// status pages show the first two.
enum class StatusWordKind
{
    Card,
    Drive,
    Main,
    Error,
    Input
};

// What each bit of the status words is called, as drawn in its lamp, and what it means, from
// one table of caption and meaning per bit.
class StatusBitCaptions
{
public:
    static constexpr int kBits = 16;

    // The caption of a bit's dark lamp; RN boards name the card word's bit 12 "I-RUN" and the
    // drive word's bit 11 "S-STP", other families leave them "NC".
    // The main and input words carry several axes' signals: a bit of another axis reads "NC".
    static QString caption(StatusWordKind word, int bit, BoardFamily family, int axis = 0);
    // The caption of a bit's lit lamp. The drive word's bit 12 has always lit up with bit 13's
    // picture ("S-LMT-"); users know the lamp that way, so it stays.
    static QString litCaption(StatusWordKind word, int bit, BoardFamily family, int axis = 0);
    // What the bit means, in words, for the lamp's tooltip.
    static QString meaning(StatusWordKind word, int bit, BoardFamily family, int axis = 0);
    // The lamp's tooltip: its caption and its meaning.
    static QString toolTip(StatusWordKind word, int bit, BoardFamily family, int axis = 0);
    // The word's name as the axis status monitor titles it: "Card", "Drive", "Main", ...
    static QString wordTitle(StatusWordKind word);
    // Which slot of its group an axis takes in the main word: RL boards group axes in pairs,
    // RM and RN boards in fours.
    static int mainWordSlot(BoardFamily family, int axis);
};
