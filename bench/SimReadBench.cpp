// Cost of the reads the monitor windows make every 10 ms, on the simulated boards as
// Orvane loads them: by absolute path, on the real clock, idle and with axes moving.
#include "nrx_contract.h"
#include "nrxsim_extras.h"

#include <QDir>
#include <QLibrary>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr double BudgetNs = 2000.0;
constexpr int Calls = 1000000;

volatile unsigned sink = 0; // keeps the reads from being optimised away

double nsPerCall(const std::function<unsigned(int)>& read)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < Calls; ++i)
        sink = sink + read(i);
    const auto elapsed = std::chrono::steady_clock::now() - start;
    return std::chrono::duration<double, std::nano>(elapsed).count() / Calls;
}

template <typename T> T resolve(QLibrary& lib, const char* name)
{
    return reinterpret_cast<T>(lib.resolve(name));
}

} // namespace

int main()
{
    QLibrary lib(QStringLiteral(NRXSIM_LIBRARY_RM));
    if (!lib.load()) {
        std::fprintf(stderr, "cannot load %s\n", qPrintable(lib.errorString()));
        return 2;
    }
    QTemporaryDir empty; // no boards file: the built-in set (RM: one card of 8 axes)
    resolve<nrx_i32 (*)(const char*)>(lib, "NRXSIM540L_SetDataFolder")(
        empty.path().toLocal8Bit().constData());
    const auto load = resolve<nrx_LoadDevice_fn>(lib, "NRX540L_LoadDevice");
    const auto card = resolve<nrx_GetCardStatus_fn>(lib, "NRX540L_GetCardStatus");
    const auto drive = resolve<nrx_GetDrvStatus_fn>(lib, "NRX540L_GetDrvStatus");
    const auto mainWord = resolve<nrx_GetMainStatus_fn>(lib, "NRX540L_GetMainStatus");
    const auto input = resolve<nrx_GetInputStatus_fn>(lib, "NRX540L_GetInputStatus");
    const auto command = resolve<nrx_GetCommandPos_fn>(lib, "NRX540L_GetCommandPos");
    const auto actual = resolve<nrx_GetActualPos_fn>(lib, "NRX540L_GetActualPos");
    const auto speed = resolve<nrx_GetCommandSpeed_fn>(lib, "NRX540L_GetCommandSpeed");
    const auto done = resolve<nrx_Done_fn>(lib, "NRX540L_Done");
    const auto di = resolve<nrx_GetDIBit_fn>(lib, "NRX540L_GetDIBit");
    const auto jog = resolve<nrx_Jog_Move_fn>(lib, "NRX540L_Jog_Move");
    const auto stop = resolve<nrx_Sudden_Stop_fn>(lib, "NRX540L_Sudden_Stop");
    if (!load || load() != 0) {
        std::fprintf(stderr, "LoadDevice failed\n");
        return 2;
    }

    struct Read
    {
        const char* name;
        std::function<unsigned(int)> call;
    };
    const std::vector<Read> reads = {
        {"GetCardStatus", [&](int i) { return unsigned(card(0, nrx_u16(i & 7))); }},
        {"GetDrvStatus", [&](int i) { return unsigned(drive(0, nrx_u16(i & 7))); }},
        {"GetMainStatus", [&](int i) { return unsigned(mainWord(0, nrx_u16(i & 7))); }},
        {"GetInputStatus", [&](int i) { return unsigned(input(0, nrx_u16(i & 7))); }},
        {"GetCommandPos", [&](int i) { return unsigned(command(0, nrx_u16(i & 7))); }},
        {"GetActualPos", [&](int i) { return unsigned(actual(0, nrx_u16(i & 7))); }},
        {"GetCommandSpeed", [&](int i) { return unsigned(speed(0, nrx_u16(i & 7))); }},
        {"Done", [&](int i) { return unsigned(done(0, nrx_u16(i & 7))); }},
        {"GetDIBit", [&](int i) { return unsigned(di(0, nrx_u16(i & 63))); }},
    };

    double worst = 0.0;
    for (const bool moving : {false, true}) {
        for (nrx_u16 axis = 0; axis < 8; ++axis) {
            if (moving)
                jog(0, axis, axis & 1);
            else
                stop(0, axis);
        }
        std::printf("%s axes:\n", moving ? "eight moving" : "idle");
        for (const Read& r : reads) {
            const double ns = nsPerCall(r.call);
            worst = std::max(worst, ns);
            std::printf("  %-16s %8.1f ns per call\n", r.name, ns);
        }
    }
    std::printf("worst: %.1f ns per read (budget %.0f ns): %s\n", worst, BudgetNs,
                worst < BudgetNs ? "OK" : "TOO SLOW");
    return worst < BudgetNs ? 0 : 1;
}
