#pragma once

#include "BoardFamily.h"

#include <vector>

class BoardApi;

// Copies one page's worth of an axis's parameters to axes of another card, also across
// board families: read from the source family's library, write with the target's.
class ParameterCopy
{
public:
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

    // page is a parameter setup window's page (ParameterPage::SystemIo .. Filter); any other
    // copies nothing.
    void copy(int page, const Source& source, const Target& target);

private:
    BoardApi& m_board;
};
