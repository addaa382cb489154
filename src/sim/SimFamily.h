#pragma once

#include "BoardSetup.h"
#include "FaultFile.h"
#include "SimCard.h"
#include "SimClock.h"
#include "SimLog.h"

#include <cstdint>
#include <string>
#include <vector>

namespace nrxsim {

// The boards of one family as one library sees them: set-up, cards, files and time.
class SimFamily
{
public:
    explicit SimFamily(int familyIndex);

    int familyIndex() const { return familyIndex_; }
    SimClock& clock() { return clock_; }
    SimLog& log() { return log_; }

    // Reads the boards file and the parameter files; the contract's LoadDevice result.
    int32_t load();
    void unload();
    int cardCount() const { return static_cast<int>(cards_.size()); }
    SimCard* card(int index)
    {
        return index >= 0 && index < cardCount() ? &cards_[static_cast<std::size_t>(index)]
                                                 : nullptr;
    }
    int32_t version() const { return setup_.version; }
    const std::vector<std::string>& setupWarnings() const { return setup_.warnings; }
    // The result the boards file forces on an operation (not LoadDevice), or null.
    const int32_t* forcedResult(BoardOp op) const
    {
        const auto& forced = setup_.forcedResults[static_cast<std::size_t>(op)];
        return forced && op != BoardOp::LoadDevice ? &*forced : nullptr;
    }

    // Forces (or frees) the result of the operation named as its export without prefix;
    // false for an unknown name or LoadDevice.
    bool setForcedResult(const std::string& operation, bool use, int32_t result);
    // 1 with `result` set while the named operation's result is forced, 0 when it is not, -1
    // for an unknown name.
    int forcedResult(const std::string& operation, int32_t& result) const;

    // Catches motion up with the clock in whole milliseconds.
    void advance()
    {
        const int64_t now = clock_.nowMs();
        if (now > simulatedMs_)
            advanceTo(now);
    }
    int64_t nowMs() const { return simulatedMs_; }

    // Folder of the boards file, the parameter files and the log; empty: the library's own.
    void setDataFolder(const std::string& folder);
    std::string dataFolder() const;
    std::string pathOf(const std::string& fileName) const;

    bool saveCard(int index);
    void note(SimLog::Kind kind, const std::string& text) { log_.write(kind, simulatedMs_, text); }

private:
    void advanceTo(int64_t now);

    int familyIndex_;
    SimClock clock_;
    SimLog log_;
    int64_t simulatedMs_ = 0;
    BoardSetup setup_;
    std::vector<SimCard> cards_;
    std::string folder_;
    FaultFile faults_;
};

} // namespace nrxsim
