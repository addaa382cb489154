#include "COV_StCardWnd.h"

#include "BoardApi.h"

COV_StCardWnd::COV_StCardWnd(AppState& state, BoardApi& board, QWidget* parent)
    : StatusLampPage(StatusWordKind::Card, state, board, parent)
{}

std::uint16_t COV_StCardWnd::readWord(BoardFamily family, int card, int axis)
{
    return board().GetCardStatus(family, static_cast<CardNo>(card), static_cast<AxisNo>(axis));
}
