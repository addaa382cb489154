#include "PtpSpeeds.h"

#include "BoardApi.h"

PtpSpeeds PtpSpeeds::readPositioning(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis)
{
    PtpSpeeds speeds;
    board.GetPosSpeed(family, card, axis, &speeds.initial, &speeds.drive, &speeds.accelMs,
                      &speeds.decelMs);
    return speeds;
}

PtpSpeeds PtpSpeeds::readJog(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis)
{
    PtpSpeeds speeds;
    board.GetJogSpeed(family, card, axis, &speeds.initial, &speeds.drive, &speeds.accelMs);
    speeds.decelMs = speeds.accelMs;
    return speeds;
}

void PtpSpeeds::writePositioning(BoardApi& board, BoardFamily family, CardNo card,
                                 AxisNo axis) const
{
    board.SetPosSpeed(family, card, axis, initial, drive, accelMs, decelMs);
}

void PtpSpeeds::writeJog(BoardApi& board, BoardFamily family, CardNo card, AxisNo axis) const
{
    board.SetJogSpeed(family, card, axis, initial, drive, accelMs);
}
