#include "ParameterFile.h"

#include "AxisParameters.h"
#include "BoardSetup.h"
#include "IniFile.h"
#include "SimCard.h"

#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#endif

namespace nrxsim {

namespace {

constexpr const char* FormatLine = "Format=NrxSimParameters 1";
constexpr const char* ChecksumKey = "Checksum=";

uint32_t checksum(const std::string& text)
{
    uint32_t h = 2166136261u; // FNV-1a
    for (const unsigned char c : text) {
        h ^= c;
        h *= 16777619u;
    }
    return h;
}

std::string hex(uint32_t v)
{
    char buf[16];
    std::snprintf(buf, sizeof buf, "%08X", v);
    return buf;
}

bool replaceFile(const std::string& from, const std::string& to)
{
#ifdef _WIN32
    return MoveFileExA(from.c_str(), to.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
#else
    return std::rename(from.c_str(), to.c_str()) == 0;
#endif
}

} // namespace

std::string ParameterFile::fileName(int familyIndex, int card)
{
    return std::string("NrxSim") + BoardSetup::familyName(familyIndex) + "_Card" +
           std::to_string(card) + ".prm";
}

bool ParameterFile::save(const std::string& path, int familyIndex, int cardIndex,
                         const SimCard& card)
{
    std::ostringstream body;
    body << FormatLine << '\n';
    body << "Family=" << BoardSetup::familyName(familyIndex) << '\n';
    body << "Card=" << cardIndex << '\n';
    body << "Axes=" << card.axisCount() << '\n';
    body << "EmergencyLevel=" << card.emergencyLevel << '\n';
    body << "DiFilter=" << card.diFilter << '\n';
    body << "DiFilterTime=" << card.diFilterTime << '\n';
    for (int a = 0; a < card.axisCount(); ++a) {
        const AxisParameters& params = card.axis(a)->parameters();
        for (int i = 0; i < AxisParameters::Count; ++i) {
            const auto id = static_cast<AxisParameters::Id>(i);
            body << "Axis" << a << '.' << AxisParameters::name(id) << '=' << params[id] << '\n';
        }
    }
    const std::string text = body.str();
    const std::string temp = path + ".new";
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        out << text << ChecksumKey << hex(checksum(text)) << '\n';
        out.flush();
        if (!out) {
            out.close();
            std::remove(temp.c_str());
            return false;
        }
    }
    if (!replaceFile(temp, path)) {
        std::remove(temp.c_str());
        return false;
    }
    return true;
}

ParameterFile::Result ParameterFile::load(const std::string& path, int familyIndex, int cardIndex,
                                          SimCard& card)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return Result::Missing;
    std::ostringstream all;
    all << in.rdbuf();
    const std::string text = all.str();

    // The checksum line closes the file and covers everything before it.
    const auto mark = text.rfind(ChecksumKey);
    if (mark == std::string::npos || (mark != 0 && text[mark - 1] != '\n'))
        return Result::Damaged;
    std::string stored = text.substr(mark + std::string(ChecksumKey).size());
    while (!stored.empty() && (stored.back() == '\n' || stored.back() == '\r'))
        stored.pop_back();
    const std::string body = text.substr(0, mark);
    if (stored != hex(checksum(body)))
        return Result::Damaged;

    const IniFile ini = IniFile::parse(body);
    auto number = [&](const std::string& key) { return ini.integer("", key); };
    if (ini.value("", "Format") != std::string(FormatLine).substr(7) ||
        ini.value("", "Family") != std::string(BoardSetup::familyName(familyIndex)) ||
        number("Card") != cardIndex || number("Axes") != card.axisCount())
        return Result::Damaged;

    const auto emergency = number("EmergencyLevel");
    const auto filter = number("DiFilter");
    const auto filterTime = number("DiFilterTime");
    if (!emergency || !filter || !filterTime)
        return Result::Damaged;
    std::vector<AxisParameters> axes(static_cast<std::size_t>(card.axisCount()));
    for (int a = 0; a < card.axisCount(); ++a) {
        for (int i = 0; i < AxisParameters::Count; ++i) {
            const auto id = static_cast<AxisParameters::Id>(i);
            const auto v = number("Axis" + std::to_string(a) + "." + AxisParameters::name(id));
            if (!v || *v < INT32_MIN || *v > INT32_MAX)
                return Result::Damaged;
            axes[static_cast<std::size_t>(a)].set(id, static_cast<int32_t>(*v));
        }
    }

    card.emergencyLevel = static_cast<uint16_t>(*emergency);
    card.diFilter = static_cast<uint16_t>(*filter);
    card.diFilterTime = static_cast<uint16_t>(*filterTime);
    for (int a = 0; a < card.axisCount(); ++a) {
        for (int i = 0; i < AxisParameters::Count; ++i) {
            const auto id = static_cast<AxisParameters::Id>(i);
            card.axis(a)->setParameter(id, axes[static_cast<std::size_t>(a)][id]);
        }
    }
    return Result::Loaded;
}

} // namespace nrxsim
