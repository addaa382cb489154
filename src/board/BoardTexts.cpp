#include "BoardTexts.h"

#include <cstdio>

namespace BoardTexts {

namespace {

std::string format(const char* pattern, long long a, long long b)
{
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, pattern, a, b);
    return buffer;
}

// The character at position i, or nothing where the text is too short.
std::string at(const std::string& text, std::size_t i)
{
    return i < text.size() ? std::string(1, text[i]) : std::string();
}

std::string last(const std::string& text)
{
    return text.empty() ? std::string() : std::string(1, text.back());
}

} // namespace

std::string modelName(BoardFamily family, std::int32_t axisCount, std::int32_t ioCount)
{
    const std::string head = std::string("NRX-") + familyShortName(family);
    const char* pattern = ioCount < 10 ? "%lld0%lldV" : "%lld%2lldV";
    return head + format(pattern, axisCount, ioCount);
}

std::string libraryVersionText(std::int32_t version)
{
    const std::string digits = std::to_string(version);
    return "Dll Ver. : " + at(digits, 0) + "." + at(digits, 2) + "." + at(digits, 4) + "." +
           last(digits);
}

std::string firmwareText(BoardFamily family, std::int32_t firmware)
{
    const std::int32_t noFirmware = family == BoardFamily::RM ? 0x51 : 0x50;
    if (firmware == 0 || firmware == noFirmware)
        return "Firmware Ver. : 0.0";
    char hex[16];
    std::snprintf(hex, sizeof hex, "%x", static_cast<unsigned>(firmware));
    const std::string digits(hex);
    return "Firmware Ver. : " + at(digits, 0) + "." + last(digits);
}

std::string cardLabel(int card, const std::string& modelName)
{
    return std::to_string(card) + " : " + modelName;
}

} // namespace BoardTexts
