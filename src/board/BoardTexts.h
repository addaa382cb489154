#pragma once

#include "BoardFamily.h"

#include <cstdint>
#include <string>

// The texts the program derives from a board's information: model name, library version and
// firmware version, each exactly as the boards' users know them.
namespace BoardTexts {

// "NRX-RL402V" for 4 axes and 2 I/O points, "NRX-RL416V" for 4 axes and 16.
std::string modelName(BoardFamily family, std::int32_t axisCount, std::int32_t ioCount);

// "Dll Ver. : " and the decimal digits 0, 2 and 4 and the last one of the version number;
// digits 1 and 3 are skipped, as the boards' own tools show it.
std::string libraryVersionText(std::int32_t version);

// "Firmware Ver. : " with the first and last hex digit, or "0.0" for no firmware (0x50 on RL
// and RN, 0x51 on RM).
std::string firmwareText(BoardFamily family, std::int32_t firmware);

// "%d : %S" with the card number and its model name: the card's label in the tree.
std::string cardLabel(int card, const std::string& modelName);

} // namespace BoardTexts
