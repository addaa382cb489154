#pragma once

#include "LogFile.h"

#include <QStringList>
#include <QTextStream>

// What a command run from a shell does first, once its application exists: the program's
// name for its files, the window's log file (standard error keeps only the command's own
// messages), the arguments after the command word, and the usage for --help or for nothing.
class CommandLineStart
{
public:
    CommandLineStart();

    const QStringList& arguments() const { return m_arguments; }
    // True, with the exit code in `exit`, when the usage was printed: on standard output for
    // --help (0), on standard error when no argument was given (`badInput`).
    bool printedUsage(const QString& usage, int badInput, int* exit);

    QTextStream out;
    QTextStream err;

private:
    LogFile m_log;
    QStringList m_arguments;
};
