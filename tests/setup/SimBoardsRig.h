#pragma once

#include "AppState.h"
#include "BoardApi.h"
#include "BoardLoader.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QTemporaryDir>

#include <array>

// The three simulated board libraries with their built-in boards, loaded from the build's
// library folder as the program loads them, keeping their files in a folder of their own,
// and registered in an application state.
struct SimBoardsRig
{
    QTemporaryDir folder;
    BoardLoader loader{QStringLiteral(ORVANE_SIM_DIR)};
    BoardApi api;
    AppState state;
    std::array<nrx_i32 (*)(nrx_i32), kFamilyCount> advanceClock{};

    // With loadBoards false the boards are left for a main frame to load.
    bool start(bool loadBoards = true)
    {
        loader.loadAll();
        for (BoardFamily family : kAllFamilies) {
            QLibrary extras(QDir(QStringLiteral(ORVANE_SIM_DIR))
                                .filePath(BoardLoader::libraryFileName(family)));
            const QByteArray prefix = QByteArray("NRXSIM5") + "249"[familyIndex(family)] + "0L_";
            auto setManualClock =
                reinterpret_cast<nrx_i32 (*)(nrx_i32)>(extras.resolve(prefix + "SetManualClock"));
            auto setDataFolder = reinterpret_cast<nrx_i32 (*)(const char*)>(
                extras.resolve(prefix + "SetDataFolder"));
            advanceClock[familyIndex(family)] =
                reinterpret_cast<nrx_i32 (*)(nrx_i32)>(extras.resolve(prefix + "AdvanceClock"));
            if (!setManualClock || !setDataFolder || !loader.table(family) ||
                !advanceClock[familyIndex(family)])
                return false;
            setManualClock(1);
            setDataFolder(QFile::encodeName(folder.path()).constData());
            api.setTable(family, loader.table(family));
        }
        return !loadBoards || load();
    }
    // LoadDevice and BoardInfo of every family, as start-up does.
    bool load()
    {
        for (BoardFamily family : kAllFamilies) {
            const nrx_i32 result = api.LoadDevice(family);
            if (result < 0)
                return false;
            state.registry.setLoadResult(family, result);
            for (int card = 0; card <= result; ++card) {
                nrx_i32 reserved = 0, firmware = 0, axes = 0, info = 0, io = 0;
                api.BoardInfo(family, static_cast<CardNo>(card), &reserved, &firmware, &axes, &info,
                              &io);
                state.registry.setCardInfo(family, static_cast<CardNo>(card), axes, info, io);
            }
        }
        return true;
    }
    // What a power cycle after "Save Parameter" does: save, unload and load every family.
    bool saveAndReload()
    {
        for (BoardFamily family : kAllFamilies) {
            for (int card = 0; card < state.registry.cardCount(family); ++card)
                api.SaveFile(family, static_cast<CardNo>(card));
            api.UnloadDevice(family);
        }
        return load();
    }
    // Lets the family's boards run on for a while.
    void advance(BoardFamily family, int ms) { advanceClock[familyIndex(family)](ms); }
    ~SimBoardsRig()
    {
        for (BoardFamily family : kAllFamilies)
            api.UnloadDevice(family);
    }
};
