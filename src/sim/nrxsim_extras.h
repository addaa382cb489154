/* Exports of the simulated boards beyond the board contract, for tests and rehearsals.
 * Each library exports them with its own prefix (NRXSIM520L_, NRXSIM540L_, NRXSIM590L_),
 * which no real board library uses.
 *
 *   SetManualClock(on)        1: time moves only by AdvanceClock; 0: monotonic time again
 *   AdvanceClock(ms)          moves a manual clock and runs the motion up to it; -1 when
 *                             the clock is not manual or ms is negative
 *   SetDataFolder(folder)     folder of the boards file, parameter files and log from the
 *                             next LoadDevice on; null or "" for the library's own folder
 *   SetSignal(card, axis, signal, on)
 *                             NRXSIM_SIGNAL_ALARM: the axis's servo raises (1) an alarm that
 *                             stays until PutSvAlmRst(1) or SetSignal(.., 0);
 *                             NRXSIM_SIGNAL_EMERGENCY: the card's EMG switch is pressed (1)
 *                             or released (0); axis is ignored
 *   GetMachinePos(card, axis) the axis's place in machine pulses, the frame of the sensor
 *                             positions in the boards file
 */
#ifndef NRXSIM_EXTRAS_H
#define NRXSIM_EXTRAS_H

#include "nrx_contract.h"

#define NRXSIM_SIGNAL_ALARM 0
#define NRXSIM_SIGNAL_EMERGENCY 1

/* X(return type, name, parameter list, argument list) */
#define NRXSIM_FOR_EACH_EXTRA(X)                                                                   \
    X(nrx_i32, SetManualClock, (nrx_i32 on), (on))                                                 \
    X(nrx_i32, AdvanceClock, (nrx_i32 ms), (ms))                                                   \
    X(nrx_i32, SetDataFolder, (const char* folder), (folder))                                      \
    X(nrx_i32, SetSignal, (nrx_u16 card, nrx_u16 axis, nrx_u16 signal, nrx_u16 on),                \
      (card, axis, signal, on))                                                                    \
    X(nrx_i32, GetMachinePos, (nrx_u16 card, nrx_u16 axis), (card, axis))

/* Export prefixes of the extras, indexed by family (RL, RM, RN). */
#define NRXSIM_FOR_EACH_EXTRA_PREFIX(F)                                                            \
    F(0, "NRXSIM520L_")                                                                            \
    F(1, "NRXSIM540L_")                                                                            \
    F(2, "NRXSIM590L_")

#endif /* NRXSIM_EXTRAS_H */
