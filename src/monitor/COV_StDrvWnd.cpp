#include "COV_StDrvWnd.h"

#include "BoardApi.h"

COV_StDrvWnd::COV_StDrvWnd(AppState& state, BoardApi& board, QWidget* parent)
    : StatusLampPage(StatusWordKind::Drive, state, board, parent)
{}

std::uint16_t COV_StDrvWnd::readWord(BoardFamily family, int card, int axis)
{
    return board().GetDrvStatus(family, static_cast<CardNo>(card), static_cast<AxisNo>(axis));
}
