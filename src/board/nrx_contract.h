/* The C contract of the NRX board libraries (RL, RM, RN), written once.
 *
 * Every library exports the same operations under its family prefix
 * (NRX520L_, NRX540L_, NRX590L_). NRX_FOR_EACH_OPERATION lists them as
 *   X(return type, operation name, parameter list, argument list, families)
 * so that the loader, the dispatch layer, the simulated boards and the test
 * doubles are all generated from this one list. The argument list names the
 * parameters in order, so a caller can forward them unchanged.
 */
#ifndef NRX_CONTRACT_H
#define NRX_CONTRACT_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef uint16_t nrx_u16;
typedef int32_t nrx_i32;

/* Which families export an operation. */
#define NRX_FAMILIES_ALL 0x7
#define NRX_FAMILIES_RL_RM 0x3
#define NRX_FAMILIES_RN 0x4

#define NRX_CARD_AXIS nrx_u16 card, nrx_u16 axis

/* Parameter pairs: SetX(card, axis, code) / GetX(card, axis). The list takes a
 * mapper M that is called as M(X, name, families). */
#define NRX_FOR_EACH_PARAMETER_PAIR_(M, X)                                                         \
    M(X, PulseMode, NRX_FAMILIES_ALL)                                                              \
    M(X, EncoderMode, NRX_FAMILIES_ALL)                                                            \
    M(X, EncoderDir, NRX_FAMILIES_ALL)                                                             \
    M(X, EncoderZ, NRX_FAMILIES_ALL)                                                               \
    M(X, SpeedMode, NRX_FAMILIES_ALL)                                                              \
    M(X, RangeMode, NRX_FAMILIES_ALL)                                                              \
    M(X, FixedRange, NRX_FAMILIES_ALL)                                                             \
    M(X, CompCountMode, NRX_FAMILIES_ALL)                                                          \
    M(X, Org, NRX_FAMILIES_ALL)                                                                    \
    M(X, SvCClrTime, NRX_FAMILIES_ALL)                                                             \
    M(X, FilterTime, NRX_FAMILIES_ALL)                                                             \
    M(X, FilterSensor, NRX_FAMILIES_ALL)                                                           \
    M(X, FilterSvIF, NRX_FAMILIES_ALL)                                                             \
    M(X, FilterEncoderZ, NRX_FAMILIES_ALL)                                                         \
    M(X, FilterExt, NRX_FAMILIES_ALL)                                                              \
    M(X, FilterStop, NRX_FAMILIES_RN)

/* P(name, families) for each parameter pair. */
#define NRX_PAIR_PASS_(P, name, fam) P(name, fam)
#define NRX_FOR_EACH_PARAMETER_PAIR(P) NRX_FOR_EACH_PARAMETER_PAIR_(NRX_PAIR_PASS_, P)

#define NRX_PAIR_AS_OPERATIONS_(X, name, fam)                                                      \
    X(nrx_i32, Set##name, (NRX_CARD_AXIS, nrx_u16 value), (card, axis, value), fam)                \
    X(nrx_u16, Get##name, (NRX_CARD_AXIS), (card, axis), fam)

/* clang-format off */
#define NRX_FOR_EACH_OPERATION(X) \
    /* Device life cycle and information */ \
    X(nrx_i32, LoadDevice, (void), (), NRX_FAMILIES_ALL) \
    X(nrx_i32, UnloadDevice, (void), (), NRX_FAMILIES_ALL) \
    X(nrx_i32, BoardInfo, (nrx_u16 card, nrx_i32* reserved, nrx_i32* firmware, nrx_i32* axisCount, nrx_i32* infoValue, nrx_i32* ioCount), (card, reserved, firmware, axisCount, infoValue, ioCount), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetDllVersion, (const char* libraryFileName), (libraryFileName), NRX_FAMILIES_ALL) \
    X(nrx_i32, LogCheck, (nrx_u16 level), (level), NRX_FAMILIES_ALL) \
    X(nrx_i32, SaveFile, (nrx_u16 card), (card), NRX_FAMILIES_ALL) \
    X(nrx_i32, Reset, (nrx_u16 card), (card), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetSystemDefault, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    /* Single-axis motion */ \
    X(nrx_i32, Abs_Move, (NRX_CARD_AXIS, nrx_i32 position), (card, axis, position), NRX_FAMILIES_ALL) \
    X(nrx_i32, Inc_Move, (NRX_CARD_AXIS, nrx_i32 distance), (card, axis, distance), NRX_FAMILIES_ALL) \
    X(nrx_i32, Jog_Move, (NRX_CARD_AXIS, nrx_u16 direction), (card, axis, direction), NRX_FAMILIES_ALL) \
    X(nrx_i32, Home_Move, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, Decel_Stop, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, Sudden_Stop, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_u16, Done, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetMotionErrCod, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    /* Multi-axis motion */ \
    X(nrx_i32, Multi_Abs_Move, (nrx_u16 card, nrx_u16 n, const nrx_u16* axes, const nrx_i32* positions), (card, n, axes, positions), NRX_FAMILIES_ALL) \
    X(nrx_i32, Multi_Inc_Move, (nrx_u16 card, nrx_u16 n, const nrx_u16* axes, const nrx_i32* distances), (card, n, axes, distances), NRX_FAMILIES_ALL) \
    X(nrx_i32, Multi_Jog_Move, (nrx_u16 card, nrx_u16 n, const nrx_u16* axes, const nrx_u16* directions), (card, n, axes, directions), NRX_FAMILIES_ALL) \
    X(nrx_u16, Multi_Done, (nrx_u16 card, nrx_u16 n, const nrx_u16* axes), (card, n, axes), NRX_FAMILIES_ALL) \
    X(nrx_i32, Multi_Decel_Stop, (nrx_u16 card, nrx_u16 n, const nrx_u16* axes), (card, n, axes), NRX_FAMILIES_ALL) \
    X(nrx_i32, Multi_Sudden_Stop, (nrx_u16 card, nrx_u16 n, const nrx_u16* axes), (card, n, axes), NRX_FAMILIES_ALL) \
    /* Positions and speeds */ \
    X(nrx_i32, GetCommandPos, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetCommandPos, (NRX_CARD_AXIS, nrx_i32 position), (card, axis, position), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetActualPos, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetActualPos, (NRX_CARD_AXIS, nrx_i32 position), (card, axis, position), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetCommandSpeed, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetPosSpeed, (NRX_CARD_AXIS, nrx_i32 initial, nrx_i32 drive, nrx_i32 accelMs, nrx_i32 decelMs), (card, axis, initial, drive, accelMs, decelMs), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetPosSpeed, (NRX_CARD_AXIS, nrx_i32* initial, nrx_i32* drive, nrx_i32* accelMs, nrx_i32* decelMs), (card, axis, initial, drive, accelMs, decelMs), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetJogSpeed, (NRX_CARD_AXIS, nrx_i32 initial, nrx_i32 drive, nrx_i32 accelMs), (card, axis, initial, drive, accelMs), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetJogSpeed, (NRX_CARD_AXIS, nrx_i32* initial, nrx_i32* drive, nrx_i32* accelMs), (card, axis, initial, drive, accelMs), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetHomeSpeed, (NRX_CARD_AXIS, nrx_i32 low, nrx_i32 high, nrx_i32 accDecMs), (card, axis, low, high, accDecMs), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetHomeSpeed, (NRX_CARD_AXIS, nrx_i32* low, nrx_i32* high, nrx_i32* accDecMs), (card, axis, low, high, accDecMs), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetHomeOffset, (NRX_CARD_AXIS, nrx_i32 offset), (card, axis, offset), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetHomeOffset, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetHomeMode, (NRX_CARD_AXIS, nrx_u16 mode), (card, axis, mode), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetHomeMode, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetHomeDir, (NRX_CARD_AXIS, nrx_u16 direction), (card, axis, direction), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetHomeDir, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    /* Axis parameter pairs */ \
    NRX_FOR_EACH_PARAMETER_PAIR_(NRX_PAIR_AS_OPERATIONS_, X) \
    /* Two- and three-value parameters */ \
    X(nrx_i32, SetHlmt, (NRX_CARD_AXIS, nrx_u16 stopMode, nrx_u16 level), (card, axis, stopMode, level), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetHlmt, (NRX_CARD_AXIS, nrx_u16* stopMode, nrx_u16* level), (card, axis, stopMode, level), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetSvAlm, (NRX_CARD_AXIS, nrx_u16 use, nrx_u16 level), (card, axis, use, level), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetSvAlm, (NRX_CARD_AXIS, nrx_u16* use, nrx_u16* level), (card, axis, use, level), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetSvInpos, (NRX_CARD_AXIS, nrx_u16 use, nrx_u16 level), (card, axis, use, level), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetSvInpos, (NRX_CARD_AXIS, nrx_u16* use, nrx_u16* level), (card, axis, use, level), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetSvCClr, (NRX_CARD_AXIS, nrx_u16 use, nrx_u16 level), (card, axis, use, level), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetSvCClr, (NRX_CARD_AXIS, nrx_u16* use, nrx_u16* level), (card, axis, use, level), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetSlmt, (NRX_CARD_AXIS, nrx_i32 plus, nrx_i32 minus, nrx_u16 use), (card, axis, plus, minus, use), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetSlmt, (NRX_CARD_AXIS, nrx_i32* plus, nrx_i32* minus, nrx_u16* use), (card, axis, plus, minus, use), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetCounterRing, (NRX_CARD_AXIS, nrx_i32 command, nrx_i32 actual, nrx_u16 use), (card, axis, command, actual, use), NRX_FAMILIES_ALL) \
    X(nrx_i32, GetCounterRing, (NRX_CARD_AXIS, nrx_i32* command, nrx_i32* actual, nrx_u16* use), (card, axis, command, actual, use), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetEmergency, (nrx_u16 card, nrx_u16 level), (card, level), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetEmergency, (nrx_u16 card), (card), NRX_FAMILIES_ALL) \
    /* Servo signals */ \
    X(nrx_i32, PutSvOn, (NRX_CARD_AXIS, nrx_u16 on), (card, axis, on), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetSvOn, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, PutSvRun, (NRX_CARD_AXIS, nrx_u16 on), (card, axis, on), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetSvRun, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, PutSvAlmRst, (NRX_CARD_AXIS, nrx_u16 on), (card, axis, on), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetSvAlmRst, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_i32, PutSvCClrCmd, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetSvCClrDO, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_RL_RM) \
    /* Digital I/O */ \
    X(nrx_u16, GetDIBit, (nrx_u16 card, nrx_u16 bit), (card, bit), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetDOBit, (nrx_u16 card, nrx_u16 bit), (card, bit), NRX_FAMILIES_ALL) \
    X(nrx_i32, PutDOBit, (nrx_u16 card, nrx_u16 bit, nrx_u16 on), (card, bit, on), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetDiFilter, (nrx_u16 card, nrx_u16 on), (card, on), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetDiFilter, (nrx_u16 card), (card), NRX_FAMILIES_ALL) \
    X(nrx_i32, SetDiFilterTime, (nrx_u16 card, nrx_u16 timeCode), (card, timeCode), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetDiFilterTime, (nrx_u16 card), (card), NRX_FAMILIES_ALL) \
    /* Status words */ \
    X(nrx_u16, GetCardStatus, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetMainStatus, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetDrvStatus, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetErrStatus, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL) \
    X(nrx_u16, GetInputStatus, (NRX_CARD_AXIS), (card, axis), NRX_FAMILIES_ALL)
/* clang-format on */

/* Function-pointer types, e.g. nrx_Inc_Move_fn. */
#define NRX_DECLARE_FN_TYPE_(ret, name, params, args, fam) typedef ret(*nrx_##name##_fn) params;
NRX_FOR_EACH_OPERATION(NRX_DECLARE_FN_TYPE_)
#undef NRX_DECLARE_FN_TYPE_

/* One family's resolved exports; a null entry is an operation the family lacks. */
typedef struct NrxFunctionTable
{
#define NRX_DECLARE_FN_FIELD_(ret, name, params, args, fam) nrx_##name##_fn name;
    NRX_FOR_EACH_OPERATION(NRX_DECLARE_FN_FIELD_)
#undef NRX_DECLARE_FN_FIELD_
} NrxFunctionTable;

/* Export prefixes and library file stems, indexed by family (RL, RM, RN). */
#define NRX_FOR_EACH_FAMILY(F)                                                                     \
    F(0, RL, "NRX520L_", "nrxMApiRlv_x64", RX520L)                                                 \
    F(1, RM, "NRX540L_", "nrxMApiRmv_x64", RX540L)                                                 \
    F(2, RN, "NRX590L_", "nrxMApiRnv_x64", RX590L)

#ifdef __cplusplus
}
#endif

#endif /* NRX_CONTRACT_H */
