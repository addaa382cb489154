#pragma once

#include "StatusLampPage.h"

// The drive status page: GetDrvStatus of four axes as bit lamps.
class COV_StDrvWnd : public StatusLampPage
{
    Q_OBJECT

public:
    COV_StDrvWnd(AppState& state, BoardApi& board, QWidget* parent = nullptr);

protected:
    std::uint16_t readWord(BoardFamily family, int card, int axis) override;
};
