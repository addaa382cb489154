// The C exports of one family's simulated board library. This file is compiled once per
// family with NRXSIM_FAMILY (RL, RM, RN), NRXSIM_FAMILY_INDEX, NRXSIM_PREFIX (NRX520L_ ...)
// and NRXSIM_EXTRA_PREFIX (NRXSIM520L_ ...) defined by the build, so that every name comes
// from the one operation list of the contract.
#include "CallLock.h"
#include "CallShape.h"
#include "SimContract.h"
#include "nrx_contract.h"
#include "nrxsim_extras.h"

#include <mutex> // std::lock_guard
#include <string_view>
#include <type_traits>

#if !defined(NRXSIM_FAMILY) || !defined(NRXSIM_FAMILY_INDEX) || !defined(NRXSIM_PREFIX) ||         \
    !defined(NRXSIM_EXTRA_PREFIX)
#error "the build defines the family of this library"
#endif

#if defined(_WIN32)
#define NRXSIM_EXPORT extern "C" __declspec(dllexport)
#else
#define NRXSIM_EXPORT extern "C" __attribute__((visibility("default")))
#endif

#define NRXSIM_CAT_(a, b) a##b
#define NRXSIM_CAT(a, b) NRXSIM_CAT_(a, b)
#define NRXSIM_STR_(a) #a
#define NRXSIM_STR(a) NRXSIM_STR_(a)

// The prefixes given by the build must be the contract's for this family.
#define NRXSIM_CHECK_PREFIX_(index, family, prefix, stem, controller)                              \
    static_assert(index != NRXSIM_FAMILY_INDEX ||                                                  \
                      std::string_view(prefix) == NRXSIM_STR(NRXSIM_PREFIX),                       \
                  "export prefix differs from the contract's");
NRX_FOR_EACH_FAMILY(NRXSIM_CHECK_PREFIX_)
#define NRXSIM_CHECK_EXTRA_PREFIX_(index, prefix)                                                  \
    static_assert(index != NRXSIM_FAMILY_INDEX ||                                                  \
                      std::string_view(prefix) == NRXSIM_STR(NRXSIM_EXTRA_PREFIX),                 \
                  "extra prefix differs from the list");
NRXSIM_FOR_EACH_EXTRA_PREFIX(NRXSIM_CHECK_EXTRA_PREFIX_)

// Which families export an operation, by the contract's family masks as they reach the
// list fully expanded: 1 when this library exports it.
#define NRXSIM_HAS_0x7_RL 1
#define NRXSIM_HAS_0x7_RM 1
#define NRXSIM_HAS_0x7_RN 1
#define NRXSIM_HAS_0x3_RL 1
#define NRXSIM_HAS_0x3_RM 1
#define NRXSIM_HAS_0x3_RN 0
#define NRXSIM_HAS_0x4_RL 0
#define NRXSIM_HAS_0x4_RM 0
#define NRXSIM_HAS_0x4_RN 1
#define NRXSIM_WHEN_1(...) __VA_ARGS__
#define NRXSIM_WHEN_0(...)
#define NRXSIM_HAS(mask) NRXSIM_CAT(NRXSIM_CAT(NRXSIM_HAS_, mask), NRXSIM_CAT(_, NRXSIM_FAMILY))

namespace {
nrxsim::SimContract board(NRXSIM_FAMILY_INDEX);
// One caller at a time: every call, reads too, advances the motion shared by all threads.
nrxsim::CallLock calls;
} // namespace

// One level more, so that the family mask arrives as a number.
#define NRXSIM_EXPORT_OPERATION(ret, name, params, args, fam)                                      \
    NRXSIM_EXPORT_OPERATION_(ret, name, params, args, fam)
#define NRXSIM_EXPORT_OPERATION_(ret, name, params, args, fam)                                     \
    static_assert((((fam) >> NRXSIM_FAMILY_INDEX) & 1) == NRXSIM_HAS(fam),                         \
                  "family table out of step with the contract");                                   \
    NRXSIM_CAT(NRXSIM_WHEN_, NRXSIM_HAS(fam))                                                      \
    (NRXSIM_EXPORT ret NRXSIM_CAT(NRXSIM_PREFIX, name) params {                                    \
        static constexpr nrxsim::CallShape shape =                                                 \
            nrxsim::CallShape::of(#name, #params, std::is_same_v<ret, nrx_i32>);                   \
        const std::lock_guard<nrxsim::CallLock> lock(calls);                                       \
        if (const int32_t* forced = board.forcedResult(BoardOp::name))                             \
            return static_cast<ret>(*forced);                                                      \
        if (!shape.reaches(board.family(), nrxsim::CallShape::address args))                       \
            return static_cast<ret>(shape.status ? nrxsim::CallShape::Refused : 0);                \
        return board.name args;                                                                    \
    })

NRX_FOR_EACH_OPERATION(NRXSIM_EXPORT_OPERATION)

#define NRXSIM_EXPORT_EXTRA(ret, name, params, args)                                               \
    NRXSIM_EXPORT ret NRXSIM_CAT(NRXSIM_EXTRA_PREFIX, name) params                                 \
    {                                                                                              \
        const std::lock_guard<nrxsim::CallLock> lock(calls);                                       \
        return board.extras().name args;                                                           \
    }

NRXSIM_FOR_EACH_EXTRA(NRXSIM_EXPORT_EXTRA)
