#pragma once

#include "BoardFamily.h"

#include <vector>

class BoardApi;

// Copies one page's worth of an axis's parameters to axes of another card, also across
// board families: read from the source family's library, write with the target's.
class ParameterCopy
{
public:
    // The pages of the parameter setup window, by their index there.
    enum Page
    {
        SystemIoPage = 0,
        MotionPage = 1,
        FilterPage = 2
    };

    struct Source
    {
        BoardFamily family = BoardFamily::RL;
        CardNo card = 0;
        AxisNo axis = 0;
    };
    struct Target
    {
        BoardFamily family = BoardFamily::RL;
        CardNo card = 0;
        std::vector<AxisNo> axes; // ticked axes, in row order
    };

    explicit ParameterCopy(BoardApi& board) : m_board(board) {}

    void copy(int page, const Source& source, const Target& target);

private:
    void copySystemIo(const Source& source, const Target& target);
    void copyMotion(const Source& source, const Target& target);
    void copyFilter(const Source& source, const Target& target);

    BoardApi& m_board;
};
