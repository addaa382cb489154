#include "BoardLoader.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

BoardLoader::BoardLoader(QString directory) : m_directory(std::move(directory)) {}

BoardLoader::~BoardLoader()
{
    for (Family& family : m_families) {
        if (family.library && family.library->isLoaded())
            family.library->unload();
    }
}

QString BoardLoader::libraryFileName(BoardFamily family)
{
    const QString stem = QString::fromLatin1(familyLibraryStem(family));
#if defined(Q_OS_WIN)
    return stem + QStringLiteral(".dll");
#elif defined(Q_OS_MACOS)
    return QStringLiteral("lib") + stem + QStringLiteral(".dylib");
#else
    return QStringLiteral("lib") + stem + QStringLiteral(".so");
#endif
}

QStringList BoardLoader::resolveTable(BoardFamily family, const Resolver& resolve,
                                      NrxFunctionTable& table)
{
    QStringList missing;
    const int familyBit = 1 << familyIndex(family);
    const QByteArray prefix(familyExportPrefix(family));
    table = NrxFunctionTable{};
#define ORVANE_RESOLVE_(ret, name, params, args, families)                                         \
    if ((families)&familyBit) {                                                                    \
        const QByteArray exportName = prefix + #name;                                              \
        table.name = reinterpret_cast<nrx_##name##_fn>(resolve(exportName.constData()));           \
        if (table.name == nullptr)                                                                 \
            missing << QString::fromLatin1(exportName);                                            \
    }
    NRX_FOR_EACH_OPERATION(ORVANE_RESOLVE_)
#undef ORVANE_RESOLVE_
    return missing;
}

void BoardLoader::loadAll()
{
#ifdef Q_OS_WIN
    // Dependents of the board libraries are looked up in system folders and the libraries'
    // own folder only, never in the working directory or along PATH.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
#endif
    for (BoardFamily family : kAllFamilies)
        loadFamily(family);
}

void BoardLoader::loadFamily(BoardFamily family)
{
    Family& slot = m_families[static_cast<std::size_t>(familyIndex(family))];
    const QString fileName = libraryFileName(family);
    // An absolute path: the loader never searches PATH, LD_LIBRARY_PATH or the working
    // directory for a board library.
    const QString path = QDir(QFileInfo(m_directory).absoluteFilePath()).absoluteFilePath(fileName);
    if (!QFileInfo::exists(path)) {
        m_problems << QStringLiteral("Board library %1 not found in %2")
                          .arg(fileName, QDir::toNativeSeparators(m_directory));
        return;
    }
    slot.library = std::make_unique<QLibrary>(path);
    if (!slot.library->load()) {
        m_problems << QStringLiteral("Board library %1 could not be loaded: %2")
                          .arg(fileName, slot.library->errorString());
        slot.library.reset();
        return;
    }
    QLibrary& library = *slot.library;
    const QStringList missing = resolveTable(
        family,
        [&library](const char* name) { return reinterpret_cast<void*>(library.resolve(name)); },
        slot.table);
    if (!missing.isEmpty()) {
        m_problems << QStringLiteral("Board library %1 lacks the export(s) %2")
                          .arg(fileName, missing.join(QStringLiteral(", ")));
        slot.library->unload();
        slot.library.reset();
        slot.table = NrxFunctionTable{};
        return;
    }
    slot.ready = true;
    // The simulated boards export extras of their own under a prefix no real library uses.
    const QByteArray simulatorPrefix = QByteArray("NRXSIM5") + "249"[familyIndex(family)] + "0L_";
#define ORVANE_RESOLVE_EXTRA_(ret, name, params, args)                                             \
    slot.extras.name = reinterpret_cast<ret(*) params>(library.resolve(simulatorPrefix + #name));
    NRXSIM_FOR_EACH_EXTRA(ORVANE_RESOLVE_EXTRA_)
#undef ORVANE_RESOLVE_EXTRA_
    slot.simulated = slot.extras.SetManualClock != nullptr;
}

const SimExtraTable* BoardLoader::simExtras(BoardFamily family) const
{
    return isSimulated(family) ? &m_families[std::size_t(familyIndex(family))].extras : nullptr;
}

bool BoardLoader::isSimulated(BoardFamily family) const
{
    return isKnownFamily(family) && m_families[std::size_t(familyIndex(family))].simulated;
}

const NrxFunctionTable* BoardLoader::table(BoardFamily family) const
{
    if (!isKnownFamily(family))
        return nullptr;
    const Family& slot = m_families[static_cast<std::size_t>(familyIndex(family))];
    return slot.ready ? &slot.table : nullptr;
}
