#include "FaultFile.h"

#include "IniFile.h"
#include "SimFamily.h"

#include <algorithm>

namespace nrxsim {

void FaultFile::reset()
{
    lastPollMs_ = INT64_MIN / 2;
    seen_ = false;
    forcedOps_.clear();
}

void FaultFile::poll(SimFamily& family, int64_t nowMs)
{
    if (nowMs - lastPollMs_ < PollMs)
        return;
    lastPollMs_ = nowMs;
    const std::string path = family.pathOf(FileName);
    std::error_code error;
    const bool exists = std::filesystem::is_regular_file(path, error);
    const auto stamp = exists ? std::filesystem::last_write_time(path, error) : stamp_;
    const auto size = exists ? std::filesystem::file_size(path, error) : 0;
    if (exists == seen_ && (!exists || (stamp == stamp_ && size == size_)))
        return;
    seen_ = exists;
    stamp_ = stamp;
    size_ = size;
    apply(family, path, exists);
}

void FaultFile::apply(SimFamily& family, const std::string& path, bool exists)
{
    const auto ini = exists ? IniFile::load(path) : std::nullopt;
    const IniFile empty;
    const IniFile& file = ini ? *ini : empty;
    const std::string name = BoardSetup::familyName(family.familyIndex());
    auto flag = [&file](const std::string& section, const char* key) {
        return file.integer(section, key).value_or(0);
    };
    using S = HomeSearch::Signal;
    for (int c = 0; c < family.cardCount(); ++c) {
        SimCard& card = *family.card(c);
        const std::string cardSection = name + ".Card" + std::to_string(c);
        card.setForcedEmergency(flag(cardSection, "Emergency") != 0);
        for (int a = 0; a < card.axisCount(); ++a) {
            SimAxis& axis = *card.axis(a);
            const std::string s = cardSection + ".Axis" + std::to_string(a);
            axis.forceSwitch(S::LimitPlus, flag(s, "LimitPlus") != 0);
            axis.forceSwitch(S::LimitMinus, flag(s, "LimitMinus") != 0);
            axis.forceSwitch(S::Org, flag(s, "Origin") != 0);
            axis.forceSwitch(S::Z, flag(s, "Z") != 0);
            axis.servo().setLatchedAlarm(flag(s, "Alarm") != 0);
            axis.setInposStuck(static_cast<int>(std::clamp<int64_t>(flag(s, "Inp"), 0, 2)));
            axis.setEncoderLost(flag(s, "EncoderLoss") != 0);
        }
    }
    for (const std::string& op : forcedOps_)
        family.setForcedResult(op, false, 0);
    forcedOps_.clear();
    for (int op = 0; op < kBoardOpCount; ++op) {
        const std::string opName(kBoardOps[op].name);
        if (const auto v = file.integer(name, "Fail." + opName)) {
            if (family.setForcedResult(opName, true, static_cast<int32_t>(*v)))
                forcedOps_.push_back(opName);
        }
    }
    family.note(SimLog::Always,
                std::string(FileName) + (exists ? " applied" : " gone: its faults are cleared"));
}

} // namespace nrxsim
