#include "DigitalIoWords.h"

#include <algorithm>

namespace {
constexpr int kFullGroupCard = 24;
}

int DigitalIoWords::bitsToRead(int ioCount, int group)
{
    if (group == 0)
        return ioCount == kFullGroupCard ? kGroupBits : std::clamp(ioCount, 0, kGroupBits);
    return std::clamp(ioCount - kGroupBits, 0, kGroupBits);
}

std::uint32_t DigitalIoWords::read(int ioCount, int group,
                                   const std::function<bool(int bit)>& readBit)
{
    std::uint32_t word = 0;
    const int bits = bitsToRead(ioCount, group);
    for (int i = 0; i < bits; ++i) {
        if (readBit(group * kGroupBits + i))
            word |= 1u << i;
    }
    return word;
}

QString DigitalIoWords::text(std::uint32_t word)
{
    return QStringLiteral("0x") + QString::number(word, 16).toUpper().rightJustified(8, u'0');
}
