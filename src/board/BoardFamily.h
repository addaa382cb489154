#pragma once

#include <array>
#include <cstdint>

// The three board families, their numbers and the names the program shows for them.
enum class BoardFamily : int
{
    RL = 0,
    RM = 1,
    RN = 2
};

using CardNo = std::uint16_t;
using AxisNo = std::uint16_t;

constexpr int kFamilyCount = 3;
constexpr int kMaxCards = 8;
constexpr int kMaxAxes = 8;

constexpr std::array<BoardFamily, kFamilyCount> kAllFamilies{BoardFamily::RL, BoardFamily::RM,
                                                             BoardFamily::RN};

constexpr int familyIndex(BoardFamily family)
{
    return static_cast<int>(family);
}
constexpr bool isKnownFamily(BoardFamily family)
{
    return familyIndex(family) >= 0 && familyIndex(family) < kFamilyCount;
}

// "NRX-RLxxxV" and its siblings: the family's name in the tree, the combos and prompts.
const char* familyDisplayName(BoardFamily family);
// "RX520L" and its siblings: the controller's name in load-failure messages.
const char* familyControllerName(BoardFamily family);
// "RL", "RM", "RN".
const char* familyShortName(BoardFamily family);
// "NRX520L_" and its siblings: the export prefix of the family's library.
const char* familyExportPrefix(BoardFamily family);
// "nrxMApiRlv_x64" and its siblings: the library's file stem.
const char* familyLibraryStem(BoardFamily family);
