#pragma once

#include "StatusLampPage.h"

// The card status page: GetCardStatus of four axes as bit lamps.
class COV_StCardWnd : public StatusLampPage
{
    Q_OBJECT

public:
    COV_StCardWnd(AppState& state, BoardApi& board, QWidget* parent = nullptr);

protected:
    std::uint16_t readWord(BoardFamily family, int card, int axis) override;
};
