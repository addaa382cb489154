#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace nrxsim {

// The library's plain-text log, written at the level LogCheck sets.
class SimLog
{
public:
    // Each level adds to the one below: load results and abnormal stops, then motion
    // commands and saves, then every parameter write.
    enum Level
    {
        Off = 0,
        Errors = 1,
        Commands = 2,
        Parameters = 3
    };

    void setPath(const std::string& path);
    void setLevel(int level) { level_ = level; }
    int level() const { return level_; }
    bool wants(int level) const { return level_ >= level && level > Off; }
    void write(int level, int64_t ms, const std::string& text);
    void close();

private:
    std::string path_;
    std::ofstream out_;
    int level_ = Off;
};

} // namespace nrxsim
