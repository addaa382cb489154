#include "HomeSettings.h"

#include "BoardApi.h"

HomeSettings HomeSettings::read(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis)
{
    HomeSettings settings;
    settings.mode = board.GetHomeMode(family, card, axis);
    settings.offset = board.GetHomeOffset(family, card, axis);
    board.GetHomeSpeed(family, card, axis, &settings.lowSpeed, &settings.highSpeed,
                       &settings.accDecMs);
    return settings;
}

void HomeSettings::write(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis) const
{
    board.SetHomeMode(family, card, axis, mode);
    board.SetHomeOffset(family, card, axis, offset);
    board.SetHomeSpeed(family, card, axis, lowSpeed, highSpeed, accDecMs);
}
