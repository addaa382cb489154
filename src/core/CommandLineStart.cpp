#include "CommandLineStart.h"

#include <QCoreApplication>

#include <cstdio>

namespace {
// The log file's path depends on the program's name, so the name comes first.
QString namedLogPath()
{
    QCoreApplication::setApplicationName(QStringLiteral("Orvane"));
    return LogFile::defaultPath();
}
} // namespace

CommandLineStart::CommandLineStart()
    : out(stdout), err(stderr), m_log(namedLogPath()),
      m_arguments(QCoreApplication::arguments().mid(2))
{
    m_log.setEchoLevel(QtWarningMsg);
    m_log.install();
}

bool CommandLineStart::printedUsage(const QString& usage, int badInput, int* exit)
{
    const bool help =
        m_arguments.contains(QLatin1String("--help")) || m_arguments.contains(QLatin1String("-h"));
    if (!m_arguments.isEmpty() && !help)
        return false;
    (help ? out : err) << usage;
    *exit = help ? 0 : badInput;
    return true;
}
