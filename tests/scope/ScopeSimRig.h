#pragma once

#include "SimBoardsRig.h"

// One simulated RL card of 4 axes on the manual clock, with the registry filled as the
// program fills it, and the move settings a case needs.
struct ScopeSimRig
{
    static constexpr BoardFamily Rl = BoardFamily::RL;
    static constexpr AxisNo Axis = 1;

    BoardApi api;
    AppState state;
    SimBoardsRig sim{api, state};
    QTemporaryDir& folder = sim.folder;
    int nowMs = 0;

    bool start()
    {
        state.active.axis = Axis;
        return sim.start(true, "[RL]\nCards=1\n[RL.Card0]\nAxes=4\nIO=16\n[Axes]\nZPeriod=0\n");
    }
    // Drive, initial, accel and decel as typed; mode 0 trapezoid, 1 S-curve.
    void setSpeeds(int drive, int initial, int accel, int decel, int mode)
    {
        api.SetSpeedMode(Rl, 0, Axis, static_cast<nrx_u16>(mode));
        api.SetPosSpeed(Rl, 0, Axis, initial, drive, accel, decel);
    }
    void advance(int ms)
    {
        sim.advance(Rl, ms);
        nowMs += ms;
    }
};
