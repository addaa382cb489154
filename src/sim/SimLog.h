#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace nrxsim {

// The library's plain-text log. Level 0 writes nothing, 1 load results and abnormal stops,
// 2 also motion commands and saves, 3 also every parameter write.
class SimLog
{
public:
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
