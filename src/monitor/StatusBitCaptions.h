#pragma once

#include "BoardFamily.h"

#include <QString>

// The two 16-bit status words the status pages show bit by bit.
enum class StatusWordKind
{
    Card,
    Drive
};

// What each bit of the card and drive status words is called, as drawn in its lamp.
class StatusBitCaptions
{
public:
    static constexpr int kBits = 16;

    // The caption of a bit's dark lamp; RN boards name the card word's bit 12 "I-RUN" and the
    // drive word's bit 11 "S-STP", other families leave them "NC".
    static QString caption(StatusWordKind word, int bit, BoardFamily family);
    // The caption of a bit's lit lamp. The drive word's bit 12 has always lit up with bit 13's
    // picture ("S-LMT-"); users know the lamp that way, so it stays.
    static QString litCaption(StatusWordKind word, int bit, BoardFamily family);
};
