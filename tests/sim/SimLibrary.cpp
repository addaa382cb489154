#include "SimLibrary.h"

#include "BoardSetup.h"

#include <QDir>
#include <QFile>

SimLibrary::SimLibrary(int family) : library_(path(family))
{
    if (!library_.load())
        return;
    const QByteArray pre = prefix(family);
#define SIMLIBRARY_RESOLVE_(ret, name, params, args, fam)                                          \
    nrx.name = reinterpret_cast<nrx_##name##_fn>(library_.resolve(pre + #name));
    NRX_FOR_EACH_OPERATION(SIMLIBRARY_RESOLVE_)
#undef SIMLIBRARY_RESOLVE_
    const QByteArray extra = QByteArray("NRXSIM") + pre.mid(3);
#define SIMLIBRARY_RESOLVE_EXTRA_(ret, name, params, args)                                         \
    sim.name = reinterpret_cast<ret(*) params>(library_.resolve(extra + #name));
    NRXSIM_FOR_EACH_EXTRA(SIMLIBRARY_RESOLVE_EXTRA_)
#undef SIMLIBRARY_RESOLVE_EXTRA_
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

bool SimLibrary::writeBoards(const QString& folder, const QByteArray& text)
{
    QFile f(QDir(folder).filePath(QString::fromLatin1(nrxsim::BoardSetup::FileName)));
    return f.open(QIODevice::WriteOnly | QIODevice::Truncate) && f.write(text) == text.size();
}
