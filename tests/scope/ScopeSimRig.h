#pragma once

#include "AppState.h"
#include "BoardApi.h"
#include "SimLibrary.h"

#include <QTemporaryDir>

// One simulated RL card of 4 axes on the manual clock, with the registry filled as the
// program fills it, and the move settings a case needs.
struct ScopeSimRig
{
    static constexpr BoardFamily Rl = BoardFamily::RL;
    static constexpr AxisNo Axis = 1;

    QTemporaryDir folder;
    SimLibrary rl{0};
    BoardApi api;
    AppState state;
    int nowMs = 0;

    bool start()
    {
        if (!SimLibrary::writeBoards(folder.path(), "[RL]\nCards=1\n[RL.Card0]\nAxes=4\nIO=16\n"
                                                    "[Axes]\nZPeriod=0\n") ||
            rl.loadIn(folder.path()) != 0)
            return false;
        api.setTable(Rl, &rl.nrx);
        state.registry.setLoadResult(Rl, 0);
        state.registry.setCardInfo(Rl, 0, 4, 0, 16);
        state.active.axis = Axis;
        return true;
    }
    // Drive, initial, accel and decel as typed; mode 0 trapezoid, 1 S-curve.
    void setSpeeds(int drive, int initial, int accel, int decel, int mode)
    {
        api.SetSpeedMode(Rl, 0, Axis, static_cast<nrx_u16>(mode));
        api.SetPosSpeed(Rl, 0, Axis, initial, drive, accel, decel);
    }
    void advance(int ms)
    {
        rl.sim.AdvanceClock(ms);
        nowMs += ms;
    }
};
