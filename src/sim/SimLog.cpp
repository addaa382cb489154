#include "SimLog.h"

namespace nrxsim {

void SimLog::setPath(const std::string& path)
{
    if (path == path_)
        return;
    close();
    path_ = path;
}

void SimLog::write(int level, int64_t ms, const std::string& text)
{
    if (!wants(level) || path_.empty())
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
