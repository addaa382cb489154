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
 *                             or released (0); axis is ignored;
 *                             LIMIT_PLUS, LIMIT_MINUS, ORIGIN, Z: the switch is held
 *                             actuated (1) wherever the axis is, or follows it again (0);
 *                             INP_ON, INP_OFF: the in-position line is stuck actuated or
 *                             released (1), or free again (0);
 *                             ENCODER_LOSS: the actual position stands still (1) or counts
 *                             again from there (0)
 *   SetForcedResult(operation, use, result)
 *                             use 1: the operation (its export name without prefix) does
 *                             nothing and returns result, as the boards file's Fail.<op>;
 *                             use 0: it works again; -1 for an unknown name or LoadDevice
 *   GetSignal(card, axis, signal)
 *                             1 while SetSignal (or the faults file) holds the signal on,
 *                             0 when it is free; -1 for no such card, axis or signal
 *   GetForcedResult(operation, result)
 *                             1 with *result set while the operation's result is forced, 0
 *                             when it works; -1 for an unknown name
 *   GetSetupWarnings(buffer, size)
 *                             the number of problems the last LoadDevice found in the boards
 *                             file (unknown sections and keys, bad values); their lines, each
 *                             ended by a newline, go into buffer, cut to size - 1 characters
 *   GetMachinePos(card, axis) the axis's place in machine pulses, the frame of the sensor
 *                             positions in the boards file
 */
#ifndef NRXSIM_EXTRAS_H
#define NRXSIM_EXTRAS_H

#include "nrx_contract.h"

#define NRXSIM_SIGNAL_ALARM 0
#define NRXSIM_SIGNAL_EMERGENCY 1
#define NRXSIM_SIGNAL_LIMIT_PLUS 2
#define NRXSIM_SIGNAL_LIMIT_MINUS 3
#define NRXSIM_SIGNAL_ORIGIN 4
#define NRXSIM_SIGNAL_Z 5
#define NRXSIM_SIGNAL_INP_ON 6
#define NRXSIM_SIGNAL_INP_OFF 7
#define NRXSIM_SIGNAL_ENCODER_LOSS 8

/* X(return type, name, parameter list, argument list) */
#define NRXSIM_FOR_EACH_EXTRA(X)                                                                   \
    X(nrx_i32, SetManualClock, (nrx_i32 on), (on))                                                 \
    X(nrx_i32, AdvanceClock, (nrx_i32 ms), (ms))                                                   \
    X(nrx_i32, SetDataFolder, (const char* folder), (folder))                                      \
    X(nrx_i32, SetSignal, (nrx_u16 card, nrx_u16 axis, nrx_u16 signal, nrx_u16 on),                \
      (card, axis, signal, on))                                                                    \
    X(nrx_i32, GetMachinePos, (nrx_u16 card, nrx_u16 axis), (card, axis))                          \
    X(nrx_i32, SetForcedResult, (const char* operation, nrx_i32 use, nrx_i32 result),              \
      (operation, use, result))                                                                    \
    X(nrx_i32, GetSignal, (nrx_u16 card, nrx_u16 axis, nrx_u16 signal), (card, axis, signal))      \
    X(nrx_i32, GetForcedResult, (const char* operation, nrx_i32* result), (operation, result))     \
    X(nrx_i32, GetSetupWarnings, (char* buffer, nrx_i32 size), (buffer, size))

/* Export prefixes of the extras, indexed by family (RL, RM, RN). */
#define NRXSIM_FOR_EACH_EXTRA_PREFIX(F)                                                            \
    F(0, "NRXSIM520L_")                                                                            \
    F(1, "NRXSIM540L_")                                                                            \
    F(2, "NRXSIM590L_")

#endif /* NRXSIM_EXTRAS_H */
