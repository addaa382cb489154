#include "LogFile.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>
#include <QStandardPaths>

#include <atomic>
#include <cstdio>

namespace {
std::atomic<LogFile*> g_installed{nullptr};

const char* levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
        return "critical";
    case QtFatalMsg:
        return "fatal";
    }
    return "?";
}
} // namespace

LogFile::LogFile(const QString& path, qint64 maxBytes, int keep)
    : m_path(path), m_maxBytes(maxBytes), m_keep(keep < 1 ? 1 : keep), m_file(path)
{}

LogFile::~LogFile()
{
    if (!m_installed)
        return;
    LogFile* self = this;
    if (g_installed.compare_exchange_strong(self, nullptr))
        qInstallMessageHandler(m_previous);
}

QString LogFile::defaultPath()
{
    const QString chosen = qEnvironmentVariable("ORVANE_LOG_FILE");
    if (!chosen.isEmpty())
        return chosen;
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/orvane.log");
}

void LogFile::install()
{
    LogFile* none = nullptr;
    if (!g_installed.compare_exchange_strong(none, this))
        return;
    m_installed = true;
    m_previous = qInstallMessageHandler(&LogFile::handle);
}

int LogFile::severity(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return 0;
    case QtInfoMsg:
        return 1;
    case QtWarningMsg:
        return 2;
    case QtCriticalMsg:
        return 3;
    case QtFatalMsg:
        return 4;
    }
    return 4;
}

QString LogFile::line(const QDateTime& time, QtMsgType type, const char* category,
                      const QString& text)
{
    QString folded = text;
    folded.replace(QLatin1String("\r\n"), QLatin1String(" | "));
    folded.replace(QLatin1Char('\n'), QLatin1String(" | "));
    return QStringLiteral("%1 %2 %3: %4\n")
        .arg(time.toString(Qt::ISODateWithMs), QLatin1String(levelName(type)),
             QLatin1String(category && *category ? category : "default"), folded);
}

void LogFile::handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // A message raised while writing one (a file error) must not come round again.
    thread_local bool writing = false;
    LogFile* log = g_installed.load();
    if (log == nullptr || writing)
        return;
    writing = true;
    log->write(type, context, text);
    writing = false;
    if (severity(type) < severity(log->m_echoLevel))
        return;
    if (log->m_previous != nullptr)
        log->m_previous(type, context, text);
    else
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

void LogFile::write(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    const QByteArray bytes =
        line(QDateTime::currentDateTime(), type, context.category, text).toUtf8();
    const QMutexLocker lock(&m_mutex);
    if (!m_file.isOpen() && !open())
        return;
    if (m_file.size() > 0 && m_file.size() + bytes.size() > m_maxBytes)
        rotate();
    m_file.write(bytes);
    m_file.flush();
}

bool LogFile::open()
{
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    return m_file.open(QIODevice::WriteOnly | QIODevice::Append);
}

void LogFile::rotate()
{
    m_file.close();
    QFile::remove(m_path + QStringLiteral(".%1").arg(m_keep));
    for (int n = m_keep - 1; n >= 1; --n)
        QFile::rename(m_path + QStringLiteral(".%1").arg(n),
                      m_path + QStringLiteral(".%1").arg(n + 1));
    QFile::rename(m_path, m_path + QStringLiteral(".1"));
    open();
}
