#include "StatusBitCaptions.h"

#include <array>

namespace {

using Table = std::array<const char*, StatusBitCaptions::kBits>;

const Table kCardCaptions{"ORG", "EZ",  "EMG",  "INP",  "ALM", "LMT+", "LMT-", "NC",
                          "RUN", "ERR", "HOME", "H-OK", "NC",  "CCLR", "SON",  "ARST"};

const Table kDriveCaptions{"CMP+", "CMP-",  "ASND", "CNST", "DSND",   "AASND",  "ACNST", "ADSND",
                           "NC",   "S-ORG", "S-EZ", "NC",   "S-LMT+", "S-LMT-", "S-ALM", "S-EMG"};

// RN boards sum up the whole group in the main word's upper byte.
const std::array<const char*, 8> kRnMainGroupCaptions{"EMG", "I-RUN", "HOME", "H-OK",
                                                      "SON", "ALM",   "LMT",  "CMP"};

const Table kErrorCaptions{"SLMT+", "SLMT-", "LMT+", "LMT-", "ALM", "EMG", "EZ", "ETC",
                           "HOME",  "NC",    "NC",   "NC",   "NC",  "NC",  "NC", "NC"};

// One axis's half of the input word; the pair's odd axis repeats it eight bits higher.
const std::array<const char*, 8> kInputCaptions{"RDY", "ORG", "EZ",  "EMG",
                                                "EX+", "EX-", "INP", "ALM"};

const Table kCardMeanings{"Origin sensor",
                          "Encoder Z phase",
                          "Emergency stop input",
                          "In position",
                          "Servo alarm",
                          "Plus limit switch",
                          "Minus limit switch",
                          "Not used",
                          "Axis running",
                          "Last motion ended in error",
                          "Home search in progress",
                          "Home search completed",
                          "Not used",
                          "Counter-clear output",
                          "Servo-on output",
                          "Alarm-reset output"};

const Table kDriveMeanings{"Plus comparator: at or beyond the plus soft limit value",
                           "Minus comparator: at or beyond the minus soft limit value",
                           "Speed rising",
                           "Constant speed",
                           "Speed falling",
                           "S-curve: acceleration rising",
                           "S-curve: constant acceleration",
                           "S-curve: acceleration falling",
                           "Not used",
                           "Stopped by the origin sensor",
                           "Stopped by the encoder Z phase",
                           "Not used",
                           "Stopped by the plus limit switch",
                           "Stopped by the minus limit switch",
                           "Stopped by a servo alarm",
                           "Stopped by emergency stop"};

const std::array<const char*, 8> kRnMainGroupMeanings{
    "Emergency stop active on the card",     "A multi-axis move is running in the group",
    "A home search is running in the group", "An axis of the group has completed its home search",
    "A servo-on output of the group is on",  "A servo alarm is active in the group",
    "A limit switch is active in the group", "A comparator of the group is on"};

const Table kErrorMeanings{"Stopped at the plus soft limit",
                           "Stopped at the minus soft limit",
                           "Stopped by the plus limit switch",
                           "Stopped by the minus limit switch",
                           "Stopped by a servo alarm",
                           "Stopped by emergency stop",
                           "Stopped on an encoder Z phase mark",
                           "Stopped for another reason",
                           "The stop ended a home search",
                           "Not used",
                           "Not used",
                           "Not used",
                           "Not used",
                           "Not used",
                           "Not used",
                           "Not used"};

const std::array<const char*, 8> kInputMeanings{"Servo ready: servo on and no alarm",
                                                "Origin sensor input",
                                                "Encoder Z phase input",
                                                "Emergency stop input",
                                                "Plus limit input",
                                                "Minus limit input",
                                                "In-position input",
                                                "Servo alarm input"};

constexpr int kCardRunBit = 12;
constexpr int kDriveStopBit = 11;
constexpr int kDriveLimitPlusBit = 12;
constexpr int kDriveLimitMinusBit = 13;
constexpr int kMainGroupFirstBit = 8;
constexpr int kMainSignalBits = 12;
constexpr int kInputEmergencyBit = 3;
constexpr int kHalfWord = 8;

const char* const kNotConnected = "NC";

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace

int StatusBitCaptions::mainWordSlot(BoardFamily family, int axis)
{
    return family == BoardFamily::RL ? axis % 2 : axis % 4;
}

QString StatusBitCaptions::mainCaption(int bit, BoardFamily family, int axis)
{
    if (family == BoardFamily::RN && bit >= kMainGroupFirstBit)
        return latin(kRnMainGroupCaptions[static_cast<std::size_t>(bit - kMainGroupFirstBit)]);
    if (bit >= kMainSignalBits || bit % 4 != mainWordSlot(family, axis))
        return latin(kNotConnected);
    static const std::array<const char*, 3> kSignals{"RUN", "ERR", "HOME"};
    return latin(kSignals[static_cast<std::size_t>(bit / 4)]);
}

QString StatusBitCaptions::inputCaption(int bit, BoardFamily family, int axis)
{
    if (bit / kHalfWord != axis % 2)
        return latin(kNotConnected);
    const int signal = bit % kHalfWord;
    if (signal == kInputEmergencyBit && family == BoardFamily::RN)
        return QStringLiteral("STOP");
    return latin(kInputCaptions[static_cast<std::size_t>(signal)]);
}

QString StatusBitCaptions::caption(StatusWordKind word, int bit, BoardFamily family, int axis)
{
    if (bit < 0 || bit >= kBits)
        return QString();
    const auto index = static_cast<std::size_t>(bit);
    switch (word) {
    case StatusWordKind::Card:
        if (bit == kCardRunBit && family == BoardFamily::RN)
            return QStringLiteral("I-RUN");
        return latin(kCardCaptions[index]);
    case StatusWordKind::Drive:
        if (bit == kDriveStopBit && family == BoardFamily::RN)
            return QStringLiteral("S-STP");
        return latin(kDriveCaptions[index]);
    case StatusWordKind::Main:
        return mainCaption(bit, family, axis);
    case StatusWordKind::Error:
        return latin(kErrorCaptions[index]);
    case StatusWordKind::Input:
        return inputCaption(bit, family, axis);
    }
    return QString();
}

QString StatusBitCaptions::litCaption(StatusWordKind word, int bit, BoardFamily family, int axis)
{
    if (word == StatusWordKind::Drive && bit == kDriveLimitPlusBit)
        return caption(word, kDriveLimitMinusBit, family, axis);
    return caption(word, bit, family, axis);
}

QString StatusBitCaptions::meaning(StatusWordKind word, int bit, BoardFamily family, int axis)
{
    if (bit < 0 || bit >= kBits)
        return QString();
    const auto index = static_cast<std::size_t>(bit);
    switch (word) {
    case StatusWordKind::Card:
        if (bit == kCardRunBit && family == BoardFamily::RN)
            return QStringLiteral("Running as part of a multi-axis move");
        return latin(kCardMeanings[index]);
    case StatusWordKind::Drive:
        if (bit == kDriveStopBit && family == BoardFamily::RN)
            return QStringLiteral("Stopped by the stop input");
        return latin(kDriveMeanings[index]);
    case StatusWordKind::Main: {
        if (family == BoardFamily::RN && bit >= kMainGroupFirstBit)
            return latin(kRnMainGroupMeanings[static_cast<std::size_t>(bit - kMainGroupFirstBit)]);
        if (bit >= kMainSignalBits || bit % 4 != mainWordSlot(family, axis))
            return QStringLiteral("Not used for this axis");
        static const std::array<const char*, 3> kSignals{"running", "ended in error",
                                                         "searching its home"};
        return QStringLiteral("Axis %1 %2").arg(axis).arg(latin(kSignals[index / 4]));
    }
    case StatusWordKind::Error:
        return latin(kErrorMeanings[index]);
    case StatusWordKind::Input:
        if (bit / kHalfWord != axis % 2)
            return QStringLiteral("Input of the other axis of the pair");
        if (bit % kHalfWord == kInputEmergencyBit && family == BoardFamily::RN)
            return QStringLiteral("Stop input");
        return latin(kInputMeanings[static_cast<std::size_t>(bit % kHalfWord)]);
    }
    return QString();
}

QString StatusBitCaptions::toolTip(StatusWordKind word, int bit, BoardFamily family, int axis)
{
    return QStringLiteral("%1 (bit %2): %3")
        .arg(caption(word, bit, family, axis))
        .arg(bit)
        .arg(meaning(word, bit, family, axis));
}

QString StatusBitCaptions::wordTitle(StatusWordKind word)
{
    static const std::array<const char*, 5> kTitles{"Card", "Drive", "Main", "Error", "Input"};
    return latin(kTitles[static_cast<std::size_t>(word)]);
}
