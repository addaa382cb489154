#include "StatusBitCaptions.h"

#include <QCoreApplication>

#include <array>

namespace {

// A bit as a user sees it: the caption in its lamp and, in its tooltip, what it means.
struct Bit
{
    const char* caption;
    const char* meaning;
};

using Word = std::array<Bit, StatusBitCaptions::kBits>;
using HalfWord = std::array<Bit, 8>;

const Word kCardBits{{
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ORG"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Origin sensor")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "EZ"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Encoder Z phase")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "EMG"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Emergency stop input")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "INP"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "In position")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ALM"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Servo alarm")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "LMT+"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Plus limit switch")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "LMT-"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Minus limit switch")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "RUN"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Axis running")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ERR"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Last motion ended in error")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "HOME"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Home search in progress")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "H-OK"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Home search completed")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "CCLR"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Counter-clear output")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "SON"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Servo-on output")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ARST"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Alarm-reset output")},
}};

const Word kDriveBits{{
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "CMP+"),
     QT_TRANSLATE_NOOP("StatusBitCaptions",
                       "Plus comparator: at or beyond the plus soft limit value")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "CMP-"),
     QT_TRANSLATE_NOOP("StatusBitCaptions",
                       "Minus comparator: at or beyond the minus soft limit value")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ASND"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Speed rising")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "CNST"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Constant speed")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "DSND"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Speed falling")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "AASND"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "S-curve: acceleration rising")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ACNST"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "S-curve: constant acceleration")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ADSND"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "S-curve: acceleration falling")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "S-ORG"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by the origin sensor")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "S-EZ"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by the encoder Z phase")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "S-LMT+"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by the plus limit switch")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "S-LMT-"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by the minus limit switch")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "S-ALM"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by a servo alarm")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "S-EMG"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by emergency stop")},
}};

// RN boards sum up the whole group in the main word's upper byte.
const HalfWord kRnMainGroupBits{{
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "EMG"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Emergency stop active on the card")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "I-RUN"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "A multi-axis move is running in the group")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "HOME"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "A home search is running in the group")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "H-OK"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "An axis of the group has completed its home search")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "SON"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "A servo-on output of the group is on")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ALM"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "A servo alarm is active in the group")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "LMT"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "A limit switch is active in the group")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "CMP"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "A comparator of the group is on")},
}};

const Word kErrorBits{{
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "SLMT+"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped at the plus soft limit")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "SLMT-"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped at the minus soft limit")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "LMT+"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by the plus limit switch")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "LMT-"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by the minus limit switch")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ALM"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by a servo alarm")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "EMG"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by emergency stop")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "EZ"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped on an encoder Z phase mark")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ETC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped for another reason")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "HOME"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "The stop ended a home search")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used")},
}};

// One axis's half of the input word; the pair's odd axis repeats it eight bits higher.
const HalfWord kInputBits{{
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "RDY"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Servo ready: servo on and no alarm")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ORG"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Origin sensor input")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "EZ"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Encoder Z phase input")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "EMG"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Emergency stop input")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "EX+"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Plus limit input")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "EX-"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Minus limit input")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "INP"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "In-position input")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ALM"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Servo alarm input")},
}};

// An axis's own signals in the main word, one per group of four bits; %1 is the axis.
const std::array<Bit, 3> kMainSignalBits{{
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "RUN"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Axis %1 running")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "ERR"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Axis %1 ended in error")},
    {QT_TRANSLATE_NOOP("StatusBitCaptions", "HOME"),
     QT_TRANSLATE_NOOP("StatusBitCaptions", "Axis %1 searching its home")},
}};

// What RN boards put where other families have something else.
const Bit kRnCardRun{
    QT_TRANSLATE_NOOP("StatusBitCaptions", "I-RUN"),
    QT_TRANSLATE_NOOP("StatusBitCaptions", "Running as part of a multi-axis move")};
const Bit kRnDriveStop{QT_TRANSLATE_NOOP("StatusBitCaptions", "S-STP"),
                       QT_TRANSLATE_NOOP("StatusBitCaptions", "Stopped by the stop input")};
const Bit kRnInputStop{QT_TRANSLATE_NOOP("StatusBitCaptions", "STOP"),
                       QT_TRANSLATE_NOOP("StatusBitCaptions", "Stop input")};
const Bit kOtherAxisMain{QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
                         QT_TRANSLATE_NOOP("StatusBitCaptions", "Not used for this axis")};
const Bit kOtherAxisInput{
    QT_TRANSLATE_NOOP("StatusBitCaptions", "NC"),
    QT_TRANSLATE_NOOP("StatusBitCaptions", "Input of the other axis of the pair")};

constexpr int kCardRunBit = 12;
constexpr int kDriveStopBit = 11;
constexpr int kDriveLimitPlusBit = 12;
constexpr int kDriveLimitMinusBit = 13;
constexpr int kMainGroupFirstBit = 8;
constexpr int kMainSignalCount = 12;
constexpr int kInputEmergencyBit = 3;
constexpr int kHalfWord = 8;

QString translated(const char* text)
{
    return QCoreApplication::translate("StatusBitCaptions", text);
}

std::size_t indexOf(int bit)
{
    return static_cast<std::size_t>(bit);
}

// The bit's entry; null for a bit outside the word.
const Bit* bitOf(StatusWordKind word, int bit, BoardFamily family, int axis)
{
    if (bit < 0 || bit >= StatusBitCaptions::kBits)
        return nullptr;
    switch (word) {
    case StatusWordKind::Card:
        if (bit == kCardRunBit && family == BoardFamily::RN)
            return &kRnCardRun;
        return &kCardBits[indexOf(bit)];
    case StatusWordKind::Drive:
        if (bit == kDriveStopBit && family == BoardFamily::RN)
            return &kRnDriveStop;
        return &kDriveBits[indexOf(bit)];
    case StatusWordKind::Main:
        if (family == BoardFamily::RN && bit >= kMainGroupFirstBit)
            return &kRnMainGroupBits[indexOf(bit - kMainGroupFirstBit)];
        if (bit >= kMainSignalCount || bit % 4 != StatusBitCaptions::mainWordSlot(family, axis))
            return &kOtherAxisMain;
        return &kMainSignalBits[indexOf(bit / 4)];
    case StatusWordKind::Error:
        return &kErrorBits[indexOf(bit)];
    case StatusWordKind::Input:
        if (bit / kHalfWord != axis % 2)
            return &kOtherAxisInput;
        if (bit % kHalfWord == kInputEmergencyBit && family == BoardFamily::RN)
            return &kRnInputStop;
        return &kInputBits[indexOf(bit % kHalfWord)];
    }
    return nullptr;
}

} // namespace

int StatusBitCaptions::mainWordSlot(BoardFamily family, int axis)
{
    return family == BoardFamily::RL ? axis % 2 : axis % 4;
}

QString StatusBitCaptions::caption(StatusWordKind word, int bit, BoardFamily family, int axis)
{
    const Bit* entry = bitOf(word, bit, family, axis);
    return entry ? translated(entry->caption) : QString();
}

QString StatusBitCaptions::litCaption(StatusWordKind word, int bit, BoardFamily family, int axis)
{
    if (word == StatusWordKind::Drive && bit == kDriveLimitPlusBit)
        return caption(word, kDriveLimitMinusBit, family, axis);
    return caption(word, bit, family, axis);
}

QString StatusBitCaptions::meaning(StatusWordKind word, int bit, BoardFamily family, int axis)
{
    const Bit* entry = bitOf(word, bit, family, axis);
    if (!entry)
        return QString();
    const QString text = translated(entry->meaning);
    // Only the main word's own signals name their axis.
    return text.contains(QLatin1String("%1")) ? text.arg(axis) : text;
}

QString StatusBitCaptions::toolTip(StatusWordKind word, int bit, BoardFamily family, int axis)
{
    return translated(QT_TRANSLATE_NOOP("StatusBitCaptions", "%1 (bit %2): %3"))
        .arg(caption(word, bit, family, axis))
        .arg(bit)
        .arg(meaning(word, bit, family, axis));
}

QString StatusBitCaptions::wordTitle(StatusWordKind word)
{
    static const std::array<const char*, 5> kTitles{
        QT_TRANSLATE_NOOP("StatusBitCaptions", "Card"),
        QT_TRANSLATE_NOOP("StatusBitCaptions", "Drive"),
        QT_TRANSLATE_NOOP("StatusBitCaptions", "Main"),
        QT_TRANSLATE_NOOP("StatusBitCaptions", "Error"),
        QT_TRANSLATE_NOOP("StatusBitCaptions", "Input")};
    return translated(kTitles[static_cast<std::size_t>(word)]);
}
