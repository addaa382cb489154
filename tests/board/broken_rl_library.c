/* An RL library that exports only its life-cycle operations. */
#include "../../src/board/nrx_contract.h"

#if defined(_WIN32)
#define EXPORT __declspec(dllexport)
#else
#define EXPORT __attribute__((visibility("default")))
#endif

EXPORT nrx_i32 NRX520L_LoadDevice(void) { return 0; }
EXPORT nrx_i32 NRX520L_UnloadDevice(void) { return 0; }
