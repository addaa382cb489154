#pragma once

#include "BoardFamily.h"
#include "BoardSimulator.h"
#include "nrx_contract.h"

#include <QLibrary>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <memory>

// Loads the three board libraries from one folder by absolute path and resolves every
// export into one function table per family. The only code that knows shared libraries.
class BoardLoader
{
public:
    // Looks an export up by its full name; null when the library lacks it.
    using Resolver = std::function<void*(const char* exportName)>;

    explicit BoardLoader(QString directory);
    ~BoardLoader();
    BoardLoader(const BoardLoader&) = delete;
    BoardLoader& operator=(const BoardLoader&) = delete;

    // Loads RL, RM, RN in that order. A family whose library or any required export is
    // missing gets no table; problems() names the library and the export.
    void loadAll();

    // The family's table, or null when it could not be loaded.
    const NrxFunctionTable* table(BoardFamily family) const;
    QStringList problems() const { return m_problems; }
    // True when the family's library is one of the simulated boards.
    bool isSimulated(BoardFamily family) const;
    // The simulated library's own exports, or null for a real library (or none).
    const SimExtraTable* simExtras(BoardFamily family) const;

    // "libnrxMApiRlv_x64.so" on Linux, "nrxMApiRlv_x64.dll" on Windows.
    static QString libraryFileName(BoardFamily family);

    // Fills table with every export the family must have; returns the names of the missing
    // ones (the table is then not to be used).
    static QStringList resolveTable(BoardFamily family, const Resolver& resolve,
                                    NrxFunctionTable& table);

private:
    struct Family
    {
        std::unique_ptr<QLibrary> library;
        NrxFunctionTable table{};
        bool ready = false;
        bool simulated = false;
        SimExtraTable extras{};
    };

    void loadFamily(BoardFamily family);

    QString m_directory;
    std::array<Family, kFamilyCount> m_families;
    QStringList m_problems;
};
