#pragma once

#include <QFile>
#include <QMutex>
#include <QString>
#include <QtGlobal>

class QDateTime;

// The program's log file: once installed, every Qt message becomes one line (time, level,
// category, text) in a file of the user's data folder, flushed at once since a fault may end
// the program, and still goes where it went before (standard error). At maxBytes the file
// moves to .1, .1 to .2 and so on; the oldest beyond `keep` is dropped.
class LogFile
{
public:
    static constexpr qint64 kDefaultMaxBytes = 2 * 1024 * 1024;
    static constexpr int kDefaultKeep = 4;

    explicit LogFile(const QString& path, qint64 maxBytes = kDefaultMaxBytes,
                     int keep = kDefaultKeep);
    // Uninstalls itself, giving the handler back.
    ~LogFile();
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;

    // $ORVANE_LOG_FILE if set, else <user data folder>/orvane.log; set the application's name
    // first.
    static QString defaultPath();

    // Makes this the Qt message handler; one log file at a time.
    void install();
    // Messages below this level are written to the file only; the window writes them all on,
    // the command line only warnings and worse, its standard error being its own output.
    void setEchoLevel(QtMsgType level) { m_echoLevel = level; }

    QString path() const { return m_path; }
    void write(QtMsgType type, const QMessageLogContext& context, const QString& text);

    // "2026-11-24T14:22:55.123 warning orvane.board: text", newlines in the text folded.
    static QString line(const QDateTime& time, QtMsgType type, const char* category,
                        const QString& text);

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text);
    static int severity(QtMsgType type);
    bool open();
    void rotate();

    QString m_path;
    qint64 m_maxBytes;
    int m_keep;
    QtMsgType m_echoLevel = QtDebugMsg;
    QMutex m_mutex;
    QFile m_file;
    QtMessageHandler m_previous = nullptr;
    bool m_installed = false;
};
