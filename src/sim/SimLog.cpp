#include "SimLog.h"

namespace nrxsim {

void SimLog::setPath(const std::string& path)
{
    if (path == path_)
        return;
    close();
    path_ = path;
}

bool SimLog::wants(Kind kind) const
{
    switch (level_) {
    case 1:
        return kind == Commands || kind == Always;
    case 2:
        return kind == Errors || kind == Always;
    case MaxLevel:
        return true;
    default:
        return kind == Always;
    }
}

void SimLog::write(Kind kind, int64_t ms, const std::string& text)
{
    if (!wants(kind) || path_.empty())
        return;
    if (!out_.is_open())
        out_.open(path_, std::ios::app);
    if (!out_)
        return;
    out_ << '[' << ms << " ms] " << text << '\n';
    out_.flush();
}

void SimLog::close()
{
    if (out_.is_open())
        out_.close();
    out_.clear();
}

} // namespace nrxsim
