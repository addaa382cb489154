#include "SimLibrary.h"

SimLibrary::SimLibrary(int family) : library_(path(family))
{
    if (!library_.load())
        return;
    const QByteArray pre = prefix(family);
#define SIMLIBRARY_RESOLVE_(ret, name, params, args, fam)                                          \
    nrx.name = reinterpret_cast<nrx_##name##_fn>(library_.resolve(pre + #name));
    NRX_FOR_EACH_OPERATION(SIMLIBRARY_RESOLVE_)
#undef SIMLIBRARY_RESOLVE_
    sim = SimExtras::resolve(library_, family);
}

SimLibrary::~SimLibrary()
{
    if (nrx.UnloadDevice)
        nrx.UnloadDevice();
    if (sim.SetManualClock)
        sim.SetManualClock(0);
    library_.unload();
}

QString SimLibrary::path(int family)
{
    static const char* const paths[] = {NRXSIM_LIBRARY_RL, NRXSIM_LIBRARY_RM, NRXSIM_LIBRARY_RN};
    return QString::fromUtf8(paths[family]);
}

const char* SimLibrary::prefix(int family)
{
    static const char* const prefixes[] = {
#define SIMLIBRARY_PREFIX_(index, fam, prefix, stem, controller) prefix,
        NRX_FOR_EACH_FAMILY(SIMLIBRARY_PREFIX_)
#undef SIMLIBRARY_PREFIX_
    };
    return prefixes[family];
}

int SimLibrary::loadIn(const QString& folder)
{
    sim.SetManualClock(1);
    sim.SetDataFolder(folder.toLocal8Bit().constData());
    return nrx.LoadDevice();
}
