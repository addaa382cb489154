#pragma once

#include "AxisTestSettings.h"

#include <QString>
#include <QStringList>

#include <optional>

class BoardApi;
class CardRegistry;
class QTextStream;

// "orvane test home|positioning|runin ...": an axis test from a shell, with no display. Prints
// progress, writes samples.csv, report.html and summary.json, and says by its exit code
// whether the axis passed.
class AxisTestCommandLine
{
public:
    enum Exit
    {
        Passed = 0,
        Failed = 1,  // outside the tolerance, a fault, or stopped
        BadInput = 2 // a wrong argument, an axis the PC lacks, or a refused start
    };

    AxisTestCommandLine(BoardApi& board, const CardRegistry& registry, QTextStream& out,
                        QTextStream& err);

    // The arguments after "test".
    int run(const QStringList& arguments);

    // The settings the arguments ask for, the output folder in `folder` and whether the
    // report gives the figures in user units too (`--units`); nothing (with a message in
    // `error`) for arguments that make no test.
    static std::optional<AxisTestSettings> parse(const QStringList& arguments, QString* folder,
                                                 QString* error, bool* units = nullptr);
    // The program's settings file, where `--units` finds the axes' unit scales.
    void setSettingsFile(const QString& path) { m_settingsFile = path; }

    static bool isCommand(int argc, char** argv);
    // The whole run: loads the boards from the program's folder, tests, unloads. Call
    // instead of creating an application.
    static int main(int argc, char** argv);
    static QString usage();

private:
    bool axisExists(const AxisTestSettings& settings) const;

    BoardApi& m_board;
    const CardRegistry& m_registry;
    QTextStream& m_out;
    QTextStream& m_err;
    QString m_settingsFile;
};
