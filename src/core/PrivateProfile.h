#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

// Reads and writes keys of a narrow INI file the way the boards' tools always have: sections
// and keys match without regard to case, values are plain text (commas and backslashes
// included, nothing escaped), and a write changes one line and keeps every other line,
// comment and blank as it was.
class PrivateProfile
{
public:
    explicit PrivateProfile(QString path) : m_path(std::move(path)) {}

    const QString& path() const { return m_path; }

    // The key's value without surrounding blanks or quotes; fallback when there is no such
    // key. present tells whether the key exists.
    QByteArray readString(const QByteArray& section, const QByteArray& key,
                          const QByteArray& fallback = QByteArray(), bool* present = nullptr) const;
    // The value's leading decimal number (0 when there is none); fallback when the key is
    // absent or its value empty.
    int readInt(const QByteArray& section, const QByteArray& key, int fallback) const;
    // The names of the file's sections, in file order.
    QList<QByteArray> sectionNames() const;

    // Sets the key, adding it to its section (and the section to the file) when new. The
    // file is replaced in one step, never left half written: the new content reaches the disk
    // before the rename, and the folder holding the rename after it.
    bool writeString(const QByteArray& section, const QByteArray& key, const QByteArray& value);
    bool writeInt(const QByteArray& section, const QByteArray& key, int value);

    // A decimal conversion that reads leading digits and stops at the first other character.
    static int toInt(const QByteArray& text);

private:
    QString m_path;
};
