#pragma once

#include <QString>

#include <cstdint>
#include <functional>

// The digital inputs or outputs of a card as two 32-bit words, group 0 (bits 0..31) and
// group 1 (bits 32..63), the way the system diagnosis reads them.
class DigitalIoWords
{
public:
    static constexpr int kGroupBits = 32;

    // How many bits of a group are read for a card with ioCount points. A 24-point card reads
    // all 32 bits of group 0; a card with 32 points or fewer reads no group 1.
    static int bitsToRead(int ioCount, int group);
    // The group's word from its bits, bit i from readBit(first bit of the group + i).
    static std::uint32_t read(int ioCount, int group, const std::function<bool(int bit)>& readBit);
    // "0x" and eight upper-case hexadecimal digits.
    static QString text(std::uint32_t word);
};
