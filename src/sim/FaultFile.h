#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace nrxsim {

class SimFamily;

// The faults file `NrxSimFaults.ini` next to the boards file: a rehearsal edits it while the
// program runs, and the boards take its switches over within a tenth of a second.
class FaultFile
{
public:
    static constexpr const char* FileName = "NrxSimFaults.ini";
    static constexpr int64_t PollMs = 100;

    // Looks at the file when PollMs have passed since the last look; applies it when it
    // changed (a removed file frees every fault it set).
    void poll(SimFamily& family, int64_t nowMs);
    // Forget the last look: the next poll applies the file as it stands.
    void reset();

private:
    void apply(SimFamily& family, const std::string& path, bool exists);

    int64_t lastPollMs_ = INT64_MIN / 2;
    bool seen_ = false;
    std::filesystem::file_time_type stamp_{};
    std::uintmax_t size_ = 0;
    std::vector<std::string> forcedOps_; // Fail.<op> keys the file set, to free them again
};

} // namespace nrxsim
