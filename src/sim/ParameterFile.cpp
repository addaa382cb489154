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
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
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

// Writes `text` and waits until the disk has it.
bool writeDurably(const std::string& path, const std::string& text)
{
    std::FILE* f = std::fopen(path.c_str(), "wb");
    if (!f)
        return false;
    bool ok = std::fwrite(text.data(), 1, text.size(), f) == text.size() && std::fflush(f) == 0;
#ifdef _WIN32
    ok = ok && _commit(_fileno(f)) == 0;
#else
    ok = ok && fsync(fileno(f)) == 0;
#endif
    return std::fclose(f) == 0 && ok;
}

bool replaceFile(const std::string& from, const std::string& to)
{
#ifdef _WIN32
    return MoveFileExA(from.c_str(), to.c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
#else
    if (std::rename(from.c_str(), to.c_str()) != 0)
        return false;
    // The rename itself lives in the folder: flush the folder too.
    const auto slash = to.find_last_of('/');
    const std::string folder = slash == std::string::npos ? "." : to.substr(0, slash + 1);
    const int fd = open(folder.c_str(), O_RDONLY);
    if (fd >= 0) {
        fsync(fd);
        close(fd);
    }
    return true;
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
    if (!writeDurably(temp, text + ChecksumKey + hex(checksum(text)) + '\n') ||
        !replaceFile(temp, path)) {
        std::remove(temp.c_str());
        return false;
    }
    return true;
}

ParameterFile::Result ParameterFile::load(const std::string& path, int familyIndex, int cardIndex,
                                          SimCard& card, std::string& problem)
{
    std::remove((path + ".new").c_str()); // an interrupted save; the old file still stands
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return Result::Missing;
    std::ostringstream all;
    all << in.rdbuf();
    const std::string text = all.str();

    // The checksum line closes the file and covers everything before it.
    const auto mark = text.rfind(ChecksumKey);
    if (mark == std::string::npos || (mark != 0 && text[mark - 1] != '\n')) {
        problem = "no checksum line: cut short or not a parameter file";
        return Result::Damaged;
    }
    std::string stored = text.substr(mark + std::string(ChecksumKey).size());
    while (!stored.empty() && (stored.back() == '\n' || stored.back() == '\r'))
        stored.pop_back();
    const std::string body = text.substr(0, mark);
    if (stored != hex(checksum(body))) {
        problem = "checksum does not match: edited by hand or damaged";
        return Result::Damaged;
    }

    const IniFile ini = IniFile::parse(body);
    auto number = [&](const std::string& key) { return ini.integer("", key); };
    if (ini.value("", "Format") != std::string(FormatLine).substr(7) ||
        ini.value("", "Family") != std::string(BoardSetup::familyName(familyIndex)) ||
        number("Card") != cardIndex || number("Axes") != card.axisCount()) {
        problem = "made for " + ini.value("", "Family").value_or("?") + " card " +
                  ini.value("", "Card").value_or("?") + " with " +
                  ini.value("", "Axes").value_or("?") + " axes, not this card of " +
                  std::to_string(card.axisCount());
        return Result::Damaged;
    }

    const auto emergency = number("EmergencyLevel");
    const auto filter = number("DiFilter");
    const auto filterTime = number("DiFilterTime");
    if (!emergency || !filter || !filterTime) {
        problem = "a card setting is missing";
        return Result::Damaged;
    }
    std::vector<AxisParameters> axes(static_cast<std::size_t>(card.axisCount()));
    for (int a = 0; a < card.axisCount(); ++a) {
        for (int i = 0; i < AxisParameters::Count; ++i) {
            const auto id = static_cast<AxisParameters::Id>(i);
            const auto v = number("Axis" + std::to_string(a) + "." + AxisParameters::name(id));
            if (!v || *v < INT32_MIN || *v > INT32_MAX) {
                problem = "Axis" + std::to_string(a) + "." + AxisParameters::name(id) +
                          " is missing or no number";
                return Result::Damaged;
            }
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
