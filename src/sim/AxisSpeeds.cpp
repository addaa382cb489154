#include "AxisSpeeds.h"

namespace nrxsim {

using Id = AxisParameters::Id;

SpeedProfile AxisSpeeds::of(const AxisParameters& p, int32_t initial, int32_t drive, int32_t accel,
                            int32_t decel)
{
    SpeedProfile::Request r;
    r.initial = initial;
    r.drive = drive;
    r.accelMs = accel;
    r.decelMs = decel;
    r.shape = p[Id::SpeedMode] == 1 ? SpeedProfile::Shape::SCurve : SpeedProfile::Shape::Trapezoid;
    // A magnification of 0 is read as 100, like a fresh board.
    r.range = p[Id::RangeMode] == 0 ? 100 : p[Id::RangeMode];
    r.fixedRange = p[Id::FixedRange] != 0;
    return SpeedProfile(r);
}

SpeedProfile AxisSpeeds::position(const AxisParameters& p)
{
    return of(p, p[Id::PosInitial], p[Id::PosDrive], p[Id::PosAccel], p[Id::PosDecel]);
}

SpeedProfile AxisSpeeds::jog(const AxisParameters& p)
{
    return of(p, p[Id::JogInitial], p[Id::JogDrive], p[Id::JogAccel], p[Id::JogAccel]);
}

SpeedProfile AxisSpeeds::home(const AxisParameters& p, bool fast)
{
    const int32_t low = p[Id::HomeLow];
    return of(p, low, fast ? p[Id::HomeHigh] : low, p[Id::HomeAccDec], p[Id::HomeAccDec]);
}

} // namespace nrxsim
