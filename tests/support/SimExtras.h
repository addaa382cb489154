#pragma once

#include "BoardSetup.h"
#include "nrxsim_extras.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QLibrary>

// The simulated boards' own exports of one family's library (manual clock, data folder,
// signals), which only tests and benchmarks call; a missing export stays null.
struct SimExtras
{
#define SIMEXTRAS_FIELD_(ret, name, params, args) ret(*name) params = nullptr;
    NRXSIM_FOR_EACH_EXTRA(SIMEXTRAS_FIELD_)
#undef SIMEXTRAS_FIELD_

    // Resolves the extras of `family` (0 RL, 1 RM, 2 RN) from its loaded library.
    static SimExtras resolve(QLibrary& library, int family)
    {
        static const char* const prefixes[] = {
#define SIMEXTRAS_PREFIX_(index, prefix) prefix,
            NRXSIM_FOR_EACH_EXTRA_PREFIX(SIMEXTRAS_PREFIX_)
#undef SIMEXTRAS_PREFIX_
        };
        const QByteArray prefix(prefixes[family]);
        SimExtras extras;
#define SIMEXTRAS_RESOLVE_(ret, name, params, args)                                                \
    extras.name = reinterpret_cast<ret(*) params>(library.resolve(prefix + #name));
        NRXSIM_FOR_EACH_EXTRA(SIMEXTRAS_RESOLVE_)
#undef SIMEXTRAS_RESOLVE_
        return extras;
    }

    bool complete() const
    {
        bool all = true;
#define SIMEXTRAS_PRESENT_(ret, name, params, args) all = all && name != nullptr;
        NRXSIM_FOR_EACH_EXTRA(SIMEXTRAS_PRESENT_)
#undef SIMEXTRAS_PRESENT_
        return all;
    }

    // Puts a boards file into `folder`, where the libraries look for it at LoadDevice; false
    // when it cannot be written.
    static bool writeBoards(const QString& folder, const QByteArray& text)
    {
        QFile file(QDir(folder).filePath(QString::fromLatin1(nrxsim::BoardSetup::FileName)));
        return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
               file.write(text) == text.size();
    }
};
