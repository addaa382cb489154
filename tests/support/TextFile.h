#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

// Whole-file reads and writes for tests that prepare or inspect settings files.
namespace TextFile {
inline bool write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}
inline QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
} // namespace TextFile
