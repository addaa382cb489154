#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace nrxsim {

// A read-only INI document with case-insensitive names; the last duplicate key wins.
class IniFile
{
public:
    IniFile() = default;
    static std::optional<IniFile> load(const std::string& path);
    static IniFile parse(const std::string& text);

    bool hasSection(const std::string& section) const;
    std::optional<std::string> value(const std::string& section, const std::string& key) const;
    // A decimal or 0x-hexadecimal integer; nullopt when absent or not a number.
    std::optional<int64_t> integer(const std::string& section, const std::string& key) const;

    static std::optional<int64_t> toInteger(const std::string& text);

    // Every section with its keys, names in lower case.
    const std::map<std::string, std::map<std::string, std::string>>& sections() const
    {
        return sections_;
    }

private:
    std::map<std::string, std::map<std::string, std::string>> sections_;
};

} // namespace nrxsim
