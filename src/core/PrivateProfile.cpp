#include "PrivateProfile.h"

#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QSaveFile>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

bool sectionName(const QByteArray& line, QByteArray& name)
{
    const QByteArray trimmed = line.trimmed();
    if (!trimmed.startsWith('[') || !trimmed.contains(']'))
        return false;
    name = trimmed.mid(1, trimmed.indexOf(']') - 1).trimmed();
    return true;
}

bool keyOf(const QByteArray& line, QByteArray& key, QByteArray& value)
{
    const QByteArray trimmed = line.trimmed();
    if (trimmed.startsWith(';') || trimmed.startsWith('['))
        return false;
    const int equals = line.indexOf('=');
    if (equals < 0)
        return false;
    key = line.left(equals).trimmed();
    value = line.mid(equals + 1).trimmed();
    return !key.isEmpty();
}

bool sameName(const QByteArray& a, const QByteArray& b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

QByteArray unquoted(const QByteArray& value)
{
    if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') &&
        value.back() == value.front())
        return value.mid(1, value.size() - 2);
    return value;
}

// The file's lines without their endings, and the ending the file uses.
QList<QByteArray> readLines(const QString& path, QByteArray& ending)
{
    QFile file(path);
    ending = "\r\n";
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.readAll();
    if (content.contains('\n') && !content.contains("\r\n"))
        ending = "\n";
    QList<QByteArray> lines = content.split('\n');
    if (!lines.isEmpty() && lines.back().isEmpty())
        lines.removeLast();
    for (QByteArray& line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
    }
    return lines;
}

// The rename that replaced the file is an entry of its folder: only the folder's flush keeps
// it through a power cut (the file's own content is flushed by the commit, before the rename).
void flushFolderOf(const QString& path)
{
#ifndef Q_OS_WIN
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int fd = ::open(folder.constData(), O_RDONLY);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
#else
    Q_UNUSED(path);
#endif
}

} // namespace

QByteArray PrivateProfile::readString(const QByteArray& section, const QByteArray& key,
                                      const QByteArray& fallback, bool* present) const
{
    QByteArray ending;
    const QList<QByteArray> lines = readLines(m_path, ending);
    bool inSection = false;
    for (const QByteArray& line : lines) {
        QByteArray name;
        if (sectionName(line, name)) {
            inSection = sameName(name, section);
            continue;
        }
        QByteArray lineKey;
        QByteArray value;
        if (inSection && keyOf(line, lineKey, value) && sameName(lineKey, key)) {
            if (present)
                *present = true;
            return unquoted(value);
        }
    }
    if (present)
        *present = false;
    return fallback;
}

QList<QByteArray> PrivateProfile::sectionNames() const
{
    QByteArray ending;
    QList<QByteArray> names;
    for (const QByteArray& line : readLines(m_path, ending)) {
        QByteArray name;
        if (sectionName(line, name))
            names.append(name);
    }
    return names;
}

int PrivateProfile::readInt(const QByteArray& section, const QByteArray& key, int fallback) const
{
    const QByteArray value = readString(section, key);
    return value.isEmpty() ? fallback : toInt(value);
}

int PrivateProfile::toInt(const QByteArray& text)
{
    qsizetype i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
        negative = text[i] == '-';
        ++i;
    }
    long long number = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
        number = number * 10 + (text[i] - '0');
        if (number > 0x7fffffffLL)
            break;
    }
    return static_cast<int>(negative ? -number : number);
}

bool PrivateProfile::writeString(const QByteArray& section, const QByteArray& key,
                                 const QByteArray& value)
{
    QByteArray ending;
    QList<QByteArray> lines = readLines(m_path, ending);
    const QByteArray entry = key + '=' + value;

    qsizetype sectionLine = -1;
    qsizetype lastEntryLine = -1;
    bool done = false;
    for (qsizetype i = 0; i < lines.size() && !done; ++i) {
        QByteArray name;
        if (sectionName(lines[i], name)) {
            if (sectionLine >= 0)
                break; // the next section begins: the key is new
            if (sameName(name, section)) {
                sectionLine = i;
                lastEntryLine = i;
            }
            continue;
        }
        if (sectionLine < 0)
            continue;
        QByteArray lineKey;
        QByteArray lineValue;
        if (keyOf(lines[i], lineKey, lineValue)) {
            if (sameName(lineKey, key)) {
                lines[i] = entry;
                done = true;
            }
            lastEntryLine = i;
        } else if (!lines[i].trimmed().isEmpty()) {
            lastEntryLine = i;
        }
    }
    if (!done) {
        if (sectionLine >= 0) {
            lines.insert(lastEntryLine + 1, entry);
        } else {
            lines.append('[' + section + ']');
            lines.append(entry);
        }
    }

    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (const QByteArray& line : lines)
        file.write(line + ending);
    if (!file.commit())
        return false;
    flushFolderOf(m_path);
    return true;
}

bool PrivateProfile::writeInt(const QByteArray& section, const QByteArray& key, int value)
{
    return writeString(section, key, QByteArray::number(value));
}
