#pragma once

#include "BoardFamily.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdint>
#include <string>

class BoardApi;
class BoardSimulator;
class CardRegistry;
class PromptService;

// The life of the boards within one run: the load at start with its messages, the reading
// of each card's information, the save prompt at exit and the unload.
class BoardStartup
{
    Q_DECLARE_TR_FUNCTIONS(BoardStartup)

public:
    BoardStartup(BoardApi& board, CardRegistry& registry, PromptService& prompt);

    // Loads every family (RL, RM, RN, all before any result is looked at), shows the message
    // of each faulty family and stores the counts. Returns false, after "FAIL! LOAD DEVICE
    // DRIVER ....", when no family has a board; the program must then end.
    // libraryProblems (a missing library or export) are shown first, in one message.
    bool loadDevices(const QStringList& libraryProblems = {});

    // Reads BoardInfo for a card into the registry; returns the firmware value.
    std::int32_t readCardInfo(BoardFamily family, CardNo card);
    // "Dll Ver. : ..." for the family's library.
    std::string libraryVersionText(BoardFamily family);

    // For each changed card (families, then cards 0..7) asks whether to save; Yes calls
    // SaveFile. False when the user cancelled: the program stays open.
    bool offerSave();
    // UnloadDevice for each family that has boards.
    void unloadDevices();

    // What the simulated boards found wrong in their boards file at the load, for the status
    // bar, or an empty text when nothing (or the boards are real).
    static QString boardsFileNote(const BoardSimulator& simulator);

    // The message a LoadDevice result gives, or an empty text for none.
    static QString loadFailureText(BoardFamily family, std::int32_t result);

private:
    BoardApi& m_board;
    CardRegistry& m_registry;
    PromptService& m_prompt;
};
