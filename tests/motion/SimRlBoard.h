#pragma once

#include "AppState.h"
#include "BoardApi.h"
#include "BoardLoader.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QTemporaryDir>

// The simulated RL library, loaded from the build's library folder as the program loads it,
// on its manual clock, with a boards file of the test's own; its cards entered in the state.
struct SimRlBoard
{
    QTemporaryDir folder;
    BoardLoader loader{QStringLiteral(ORVANE_SIM_DIR)};
    QLibrary extras{QDir(QStringLiteral(ORVANE_SIM_DIR))
                        .filePath(BoardLoader::libraryFileName(BoardFamily::RL))};
    nrx_i32 (*advanceClock)(nrx_i32) = nullptr;

    bool load(BoardApi& api, AppState& state, const QByteArray& boards)
    {
        QFile file(folder.filePath(QStringLiteral("NrxSimBoards.ini")));
        if (!file.open(QIODevice::WriteOnly) || file.write(boards) != boards.size())
            return false;
        file.close();
        loader.loadAll();
        api.setTable(BoardFamily::RL, loader.table(BoardFamily::RL));
        using Switch = nrx_i32 (*)(nrx_i32);
        auto setManualClock = reinterpret_cast<Switch>(extras.resolve("NRXSIM520L_SetManualClock"));
        auto setDataFolder =
            reinterpret_cast<nrx_i32 (*)(const char*)>(extras.resolve("NRXSIM520L_SetDataFolder"));
        advanceClock = reinterpret_cast<Switch>(extras.resolve("NRXSIM520L_AdvanceClock"));
        if (!api.hasLibrary(BoardFamily::RL) || !setManualClock || !setDataFolder || !advanceClock)
            return false;
        setManualClock(1);
        setDataFolder(QFile::encodeName(folder.path()).constData());
        const nrx_i32 result = api.LoadDevice(BoardFamily::RL);
        state.registry.setLoadResult(BoardFamily::RL, result);
        for (int card = 0; card <= result; ++card) {
            nrx_i32 reserved = 0, firmware = 0, axes = 0, info = 0, io = 0;
            api.BoardInfo(BoardFamily::RL, static_cast<CardNo>(card), &reserved, &firmware, &axes,
                          &info, &io);
            state.registry.setCardInfo(BoardFamily::RL, card, axes, info, io);
        }
        return result >= 0;
    }
};
