#include "StatusBitCaptions.h"

#include <array>

namespace {

const std::array<const char*, StatusBitCaptions::kBits> kCardCaptions{
    "ORG", "EZ",  "EMG",  "INP",  "ALM", "LMT+", "LMT-", "NC",
    "RUN", "ERR", "HOME", "H-OK", "NC",  "CCLR", "SON",  "ARST"};

const std::array<const char*, StatusBitCaptions::kBits> kDriveCaptions{
    "CMP+", "CMP-",  "ASND", "CNST", "DSND",   "AASND",  "ACNST", "ADSND",
    "NC",   "S-ORG", "S-EZ", "NC",   "S-LMT+", "S-LMT-", "S-ALM", "S-EMG"};

constexpr int kCardRunBit = 12;
constexpr int kDriveStopBit = 11;
constexpr int kDriveLimitPlusBit = 12;
constexpr int kDriveLimitMinusBit = 13;

} // namespace

QString StatusBitCaptions::caption(StatusWordKind word, int bit, BoardFamily family)
{
    if (bit < 0 || bit >= kBits)
        return QString();
    const auto index = static_cast<std::size_t>(bit);
    if (word == StatusWordKind::Card) {
        if (bit == kCardRunBit && family == BoardFamily::RN)
            return QStringLiteral("I-RUN");
        return QString::fromLatin1(kCardCaptions[index]);
    }
    if (bit == kDriveStopBit && family == BoardFamily::RN)
        return QStringLiteral("S-STP");
    return QString::fromLatin1(kDriveCaptions[index]);
}

QString StatusBitCaptions::litCaption(StatusWordKind word, int bit, BoardFamily family)
{
    if (word == StatusWordKind::Drive && bit == kDriveLimitPlusBit)
        return caption(word, kDriveLimitMinusBit, family);
    return caption(word, bit, family);
}
