#pragma once

#include "AxisUnits.h"
#include "BoardFamily.h"

#include <QStringList>

#include <vector>

class BoardApi;
class CardRegistry;
class QTextStream;
class ParameterSet;

// "orvane params ...": export, import and compare parameters from a shell, with no window.
// Results go to out, messages to err; the exit code says how it went.
class ParameterCommandLine
{
public:
    enum Exit
    {
        Success = 0,
        Differences = 1, // diff found some
        BadInput = 2,
        Incomplete = 3, // export: a family's boards failed to load, the rest was written
        Refused = 4,    // import: a board refused a write or a save
    };

    ParameterCommandLine(BoardApi& board, const CardRegistry& registry, QTextStream& out,
                         QTextStream& err);

    // The arguments after "params".
    int run(const QStringList& arguments);
    // The families whose boards are simulated: their values live only as long as the process.
    void setSimulated(std::vector<BoardFamily> families) { m_simulated = std::move(families); }
    // The program's settings file: its axis scales go into exports and diffs, and import
    // keeps a file's scales there.
    void setSettingsFile(const QString& path);
    // Where the program keeps that file: beside it, or in the user's data folder when the
    // program's folder is not writable.
    static QString settingsFilePath();

    // True when the program was started as "orvane params ...".
    static bool isCommand(int argc, char** argv);
    // True when the first argument is a word that is no command ("orvane param ...").
    static bool isStray(int argc, char** argv);
    // The whole run without a display: loads the boards from the program's folder as the
    // program does, runs, unloads. Call instead of creating a QApplication.
    static int main(int argc, char** argv);
    static QString usage();

private:
    int exportFile(const QStringList& arguments);
    int importFile(const QStringList& arguments);
    int diff(const QStringList& arguments);
    // A file, or RL:0[:axis] on the boards; false (with a message) when neither.
    bool source(const QString& text, ParameterSet& set);

    BoardApi& m_board;
    const CardRegistry& m_registry;
    QTextStream& m_out;
    QTextStream& m_err;
    std::vector<BoardFamily> m_simulated;
    QString m_settingsFile;
    AxisUnits m_units;
};
