#include "IniFile.h"

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace nrxsim {

namespace {

std::string lower(std::string s)
{
    for (char& c : s)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

std::string trim(const std::string& s)
{
    const auto first = s.find_first_not_of(" \t\r\n");
    if (first == std::string::npos)
        return {};
    const auto last = s.find_last_not_of(" \t\r\n");
    return s.substr(first, last - first + 1);
}

} // namespace

std::optional<IniFile> IniFile::load(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    std::ostringstream text;
    text << in.rdbuf();
    return parse(text.str());
}

IniFile IniFile::parse(const std::string& text)
{
    IniFile ini;
    std::istringstream in(text);
    std::string line;
    std::string section;
    while (std::getline(in, line)) {
        const auto comment = line.find_first_of(";#");
        line = trim(line.substr(0, comment));
        if (line.empty())
            continue;
        if (line.front() == '[') {
            const auto close = line.find(']');
            section = lower(trim(line.substr(1, close == std::string::npos ? close : close - 1)));
            ini.sections_[section];
            continue;
        }
        const auto eq = line.find('=');
        if (eq == std::string::npos)
            continue;
        ini.sections_[section][lower(trim(line.substr(0, eq)))] = trim(line.substr(eq + 1));
    }
    return ini;
}

bool IniFile::hasSection(const std::string& section) const
{
    return sections_.count(lower(section)) != 0;
}

std::optional<std::string> IniFile::value(const std::string& section, const std::string& key) const
{
    const auto s = sections_.find(lower(section));
    if (s == sections_.end())
        return std::nullopt;
    const auto k = s->second.find(lower(key));
    if (k == s->second.end())
        return std::nullopt;
    return k->second;
}

std::optional<int64_t> IniFile::integer(const std::string& section, const std::string& key) const
{
    const auto text = value(section, key);
    return text ? toInteger(*text) : std::nullopt;
}

std::optional<int64_t> IniFile::toInteger(const std::string& text)
{
    if (text.empty())
        return std::nullopt;
    const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X');
    const char* begin = text.c_str() + (hex ? 2 : 0);
    char* end = nullptr;
    errno = 0;
    const long long v = std::strtoll(begin, &end, hex ? 16 : 10);
    if (errno != 0 || end == begin || *end != '\0')
        return std::nullopt;
    return static_cast<int64_t>(v);
}

} // namespace nrxsim
