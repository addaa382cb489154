#pragma once

#include "AppState.h"
#include "BoardApi.h"
#include "BoardLoader.h"
#include "SimExtras.h"

#include <QDir>
#include <QFile>
#include <QLibrary>
#include <QTemporaryDir>

#include <array>

// The three simulated board libraries, loaded from the build's library folder as the program
// loads them, on their manual clocks, keeping their files (and the test's boards file, if it
// brings one) in a folder of their own; their cards registered in an application state. The
// board interface and the state are the rig's own or the test's.
struct SimBoardsRig
{

    QTemporaryDir folder;
    BoardLoader loader{QStringLiteral(ORVANE_SIM_DIR)};
    BoardApi ownApi;
    AppState ownState;
    BoardApi& api;
    AppState& state;
    std::array<SimExtras, kFamilyCount> extras{}; // by familyIndex()

    SimBoardsRig() : api(ownApi), state(ownState) {}
    SimBoardsRig(BoardApi& boards, AppState& into) : api(boards), state(into) {}
    SimBoardsRig(const SimBoardsRig&) = delete;
    SimBoardsRig& operator=(const SimBoardsRig&) = delete;

    // A non-empty `boards` replaces the built-in boards; with loadBoards false the boards are
    // left for a main frame to load.
    bool start(bool loadBoards = true, const QByteArray& boards = {})
    {
        if (!boards.isEmpty() && !SimExtras::writeBoards(folder.path(), boards))
            return false;
        loader.loadAll();
        for (BoardFamily family : kAllFamilies) {
            const auto index = std::size_t(familyIndex(family));
            QLibrary library(QDir(QStringLiteral(ORVANE_SIM_DIR))
                                 .filePath(BoardLoader::libraryFileName(family)));
            SimExtras& sim = extras[index];
            sim = SimExtras::resolve(library, int(index));
            if (!sim.complete() || !loader.table(family))
                return false;
            sim.SetManualClock(1);
            sim.SetDataFolder(QFile::encodeName(folder.path()).constData());
            api.setTable(family, loader.table(family));
            api.setSimExtras(family, loader.simExtras(family));
        }
        return !loadBoards || load();
    }
    // LoadDevice and BoardInfo of every family, as start-up does; false when a family fails
    // for another reason than having no boards, or no family has any.
    bool load()
    {
        bool any = false;
        for (BoardFamily family : kAllFamilies) {
            const nrx_i32 result = api.LoadDevice(family);
            if (result < -1)
                return false;
            if (result < 0)
                continue;
            any = true;
            state.registry.setLoadResult(family, result);
            for (int card = 0; card <= result; ++card) {
                nrx_i32 reserved = 0, firmware = 0, axes = 0, info = 0, io = 0;
                api.BoardInfo(family, static_cast<CardNo>(card), &reserved, &firmware, &axes, &info,
                              &io);
                state.registry.setCardInfo(family, static_cast<CardNo>(card), axes, info, io);
            }
        }
        return any;
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
    void advance(BoardFamily family, int ms)
    {
        extras[std::size_t(familyIndex(family))].AdvanceClock(ms);
    }
    ~SimBoardsRig()
    {
        for (BoardFamily family : kAllFamilies)
            api.UnloadDevice(family);
    }
};
