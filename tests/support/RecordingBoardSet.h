#pragma once

#include "BoardApi.h"
#include "RecordingBoard.h"

#include <array>

// The three families' recording boards, installed in one BoardApi.
struct RecordingBoardSet
{
    RecordingBoard rl{BoardFamily::RL};
    RecordingBoard rm{BoardFamily::RM};
    RecordingBoard rn{BoardFamily::RN};
    BoardApi api;

    RecordingBoardSet()
    {
        for (RecordingBoard* board : all())
            board->installInto(api);
    }
    std::array<RecordingBoard*, kFamilyCount> all() { return {&rl, &rm, &rn}; }
};
