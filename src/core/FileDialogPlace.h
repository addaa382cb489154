#pragma once

#include <QString>

// Where each file dialog starts: in the folder last chosen in it, else in the user's documents
// folder (never the program's own, which an installed copy cannot write), with a name to
// suggest. Each dialog keeps its own folder between runs under a key of its own.
class FileDialogPlace
{
public:
    // The folder, and the suggested name inside it when there is one.
    static QString start(const QString& dialog, const QString& suggestedName = {});
    // Keeps the folder of what the user chose; an empty choice (Cancel) keeps the old one.
    static void remember(const QString& dialog, const QString& chosen);
    // "stem_2026-11-24.suffix": today's date after the stem, characters a file name cannot
    // hold replaced.
    static QString datedName(const QString& stem, const QString& suffix);
};
