#pragma once

#include <cstdint>
#include <fstream>
#include <string>

namespace nrxsim {

// The library's plain-text log, written at the level LogCheck sets.
class SimLog
{
public:
    // What a line is. LogCheck's levels: 0 nothing, 1 commands only, 2 errors only, 3 all;
    // mistakes in the boards file are written at every level.
    enum Kind
    {
        Commands,
        Errors,
        Parameters,
        Always
    };
    static constexpr int MaxLevel = 3;

    void setPath(const std::string& path);
    void setLevel(int level) { level_ = level; }
    int level() const { return level_; }
    bool wants(Kind kind) const;
    void write(Kind kind, int64_t ms, const std::string& text);
    void close();

private:
    std::string path_;
    std::ofstream out_;
    int level_ = 0;
};

} // namespace nrxsim
