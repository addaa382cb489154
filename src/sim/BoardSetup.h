#pragma once

#include "BoardOperationTable.h"
#include "SimConstants.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace nrxsim {

class IniFile;

// The simulated hardware of one family, from the boards file or the built-in set.
class BoardSetup
{
public:
    static constexpr const char* FileName = "NrxSimBoards.ini";

    // Where an input line gets its level: a constant, or an output of the same card.
    struct Signal
    {
        bool fromOutput = false;
        int value = 0; // 0/1, or the output bit
    };

    // Sensor geometry in machine pulses, and how each switch is wired.
    // A level is the wiring: 0 normally open (low active), 1 normally closed (high active).
    struct Axis
    {
        int64_t start = 0;
        int64_t plusLimit = 60000;   // active at and above
        int64_t minusLimit = -60000; // active at and below
        int limitLevel = 0;
        int64_t origin = -5000; // centre of the origin dog
        int64_t originWidth = 1000;
        int originLevel = 0;
        int64_t zPeriod = 4000; // one Z mark every zPeriod pulses
        int64_t zOffset = 2000; // off the start, so no axis begins on a mark
        int zLevel = 0;
        Signal alarm;
        int alarmLevel = 0;
        int inposLevel = 0;
        int servoLag = 2;          // ms the actual position trails the command while moving
        int slip = 0;              // pulses the axis loses per 1000 commanded
        int needsServoOn = 0;      // 1: the motor turns only while the servo-on output is on
        int servoBandwidth = 0;    // Hz of a second-order position loop; 0: the plain lag
        int servoDamping = 100;    // percent of critical damping of that loop
        int inposWindow = 10;      // pulses of following error that count as in position
        int inposSettle = 0;       // ms the error stays in the window before INP
        int inposTimeout = 1000;   // ms a move waits for INP (in-position use on), then -9999
        int followingLimit = 0;    // pulses of following error that raise the alarm; 0: none
        int64_t backlash = 0;      // pulses lost between command and actual at each reversal
        int64_t positionNoise = 0; // the actual position at rest scatters within +- this
        int64_t homeJitter = 0;    // the origin switch trips within +- this many pulses
    };

    struct Card
    {
        int axes = 4;
        int io = 16;
        int32_t firmware = 0x21;
        int32_t info = 0;
        Signal emergency;
        int emergencyLevel = 0;
        std::array<Signal, MaxIoPoints> inputs{};
        std::array<Axis, MaxAxes> axis{};
    };

    // familyIndex 0 RL, 1 RM, 2 RN. Without a file, the built-in set.
    static BoardSetup read(int familyIndex, const IniFile* file);

    static const char* familyName(int familyIndex);

    int familyIndex = 0;
    bool fromFile = false;
    std::vector<Card> cards;
    std::optional<int32_t> forcedLoadResult;
    // "Fail.<operation>=<result>": the operation does nothing and returns the result.
    std::array<std::optional<int32_t>, kBoardOpCount> forcedResults{};
    int32_t version = 1020304;
    std::vector<std::string> warnings; // values the file got wrong, for the log

private:
    static BoardSetup builtIn(int familyIndex);
    static Card card(int axes, int io, int32_t firmware, int32_t info);
};

} // namespace nrxsim
