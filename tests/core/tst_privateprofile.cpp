#include "PrivateProfile.h"
#include "TextFile.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <climits>

namespace {
// A file's lines as the settings reader sees them: endings of either kind dropped.
QList<QByteArray> linesOf(const QByteArray& content)
{
    QList<QByteArray> lines = content.split('\n');
    if (!lines.isEmpty() && lines.back().isEmpty())
        lines.removeLast();
    for (QByteArray& line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
    }
    return lines;
}

QByteArray randomText(QRandomGenerator& random, const QByteArray& alphabet, int maxLength)
{
    QByteArray text;
    for (int n = 1 + int(random.bounded(maxLength)); n > 0; --n)
        text += alphabet[random.bounded(int(alphabet.size()))];
    return text;
}
} // namespace

// The settings files' reader and writer: plain values, matching without case, and writes that
// change one line and keep the rest of the file.
class TestPrivateProfile : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString path(const char* name) const { return m_dir.filePath(QString::fromLatin1(name)); }

private slots:
    void read_valuesArePlainText()
    {
        const QString file = path("plain.ini");
        QVERIFY(TextFile::write(file,
                                "; comment=ignored\r\n[Paths]\r\n  Folder = C:\\Boards\\RL , 2 \r\n"
                                "Quoted=\" spaced \"\r\n[other]\r\nFolder=wrong\r\n"));
        const PrivateProfile profile(file);
        QCOMPARE(profile.readString("paths", "FOLDER"), QByteArray("C:\\Boards\\RL , 2"));
        QCOMPARE(profile.readString("Paths", "Quoted"), QByteArray(" spaced "));
        bool present = true;
        QCOMPARE(profile.readString("Paths", "Missing", "fallback", &present),
                 QByteArray("fallback"));
        QVERIFY(!present);
        QCOMPARE(profile.readString("comment", "x", "none"), QByteArray("none"));
    }

    void readInt_emptyOrAbsentKeepsFallbackTextReadsZero()
    {
        const QString file = path("numbers.ini");
        QVERIFY(TextFile::write(file, "[S]\nEmpty=\nText=abc\nLeading=12abc\nNegative= -7\n"));
        const PrivateProfile profile(file);
        QCOMPARE(profile.readInt("S", "Empty", 1), 1);
        QCOMPARE(profile.readInt("S", "Absent", 1), 1);
        QCOMPARE(profile.readInt("S", "Text", 1), 0);
        QCOMPARE(profile.readInt("S", "Leading", 1), 12);
        QCOMPARE(profile.readInt("S", "Negative", 1), -7);
        QCOMPARE(PrivateProfile(path("no-such.ini")).readInt("S", "Any", 2), 2);
    }

    void write_replacesOneLineKeepsEverythingElse()
    {
        const QString file = path("keep.ini");
        const QByteArray before =
            "; Orvane settings\r\n[System]\r\nDefault_Show_Status_Window=1\r\n"
            "Other=a,b\\c\r\n\r\n[Next]\r\nKey=1\r\n";
        QVERIFY(TextFile::write(file, before));
        PrivateProfile profile(file);
        QVERIFY(profile.writeInt("system", "default_show_status_window", 0));
        QByteArray expected = before;
        expected.replace("Default_Show_Status_Window=1", "default_show_status_window=0");
        QCOMPARE(TextFile::read(file), expected);
    }

    void write_newKeyJoinsItsSectionNewSectionAndFileAreCreated()
    {
        const QString file = path("grow.ini");
        QVERIFY(TextFile::write(file, "[System]\nA=1\n\n[Next]\nB=2\n"));
        PrivateProfile profile(file);
        QVERIFY(profile.writeString("System", "C", "x,y"));
        QVERIFY(profile.writeString("DEBUG_RM", "LOG_LEVEL", "3"));
        QCOMPARE(TextFile::read(file),
                 QByteArray("[System]\nA=1\nC=x,y\n\n[Next]\nB=2\n[DEBUG_RM]\nLOG_LEVEL=3\n"));
        QCOMPARE(profile.readString("System", "C"), QByteArray("x,y"));

        // A missing file is created, its lines ending in CR LF.
        PrivateProfile fresh(path("new.ini"));
        QVERIFY(fresh.writeInt("System", "Change_Status_Axis_Depend_On_Operation", 0));
        QCOMPARE(TextFile::read(fresh.path()),
                 QByteArray("[System]\r\nChange_Status_Axis_Depend_On_Operation=0\r\n"));
    }

    // Damaged files: whatever they hold, a written key reads back and every other line stays.
    void randomFiles_writeReadsBackAndKeepsTheRest()
    {
        const QByteArray base = "; Orvane settings\r\n[System]\r\nDefault_Show_Status_Window=1\r\n"
                                "Other = a,b\\c ;x\r\n\r\n[DEBUG_RL]\r\nLOG_LEVEL=3\r\n[x]]\r\n";
        const QByteArray junk = QByteArray("[]=;# \t\r\n\"'\\,.-09aZ\x7f\x80\xff") + '\0';
        const QByteArray names = "SystemDEBUG_RLlog_level_.09";
        const QByteArray values = "0123456789-+,.;=[]\\ abcXYZ\xe9\x80";
        const QString file = path("fuzz.ini");
        QRandomGenerator random(15032);
        for (int round = 0; round < 100; ++round) {
            QByteArray text = base;
            for (int edits = int(random.bounded(6)); edits > 0; --edits) {
                const int at = int(random.bounded(int(text.size()) + 1));
                switch (random.bounded(3)) {
                case 0:
                    text.insert(at, randomText(random, junk, 8));
                    break;
                case 1:
                    text.remove(at, int(random.bounded(12)));
                    break;
                default:
                    text.insert(at, text.mid(int(random.bounded(int(text.size()) + 1)), 30));
                }
            }
            QVERIFY(TextFile::write(file, text));
            PrivateProfile profile(file);
            const QByteArray section = randomText(random, names, 10);
            const QByteArray key = randomText(random, names, 10);
            QByteArray value = randomText(random, values, 12).trimmed();
            if (value.isEmpty())
                value = "0";
            const QByteArray entry = key + '=' + value;
            profile.readString(section, key);
            QVERIFY(profile.writeString(section, key, value));
            QCOMPARE(profile.readString(section, key), value);

            // Exactly one line changed, or the entry (after its new section) was added.
            const QList<QByteArray> before = linesOf(text);
            const QByteArray written = TextFile::read(file);
            const QList<QByteArray> after = linesOf(written);
            qsizetype i = 0;
            while (i < before.size() && i < after.size() && before[i] == after[i])
                ++i;
            const bool replaced = after.value(i) == entry && after.size() == before.size() &&
                                  before.mid(i + 1) == after.mid(i + 1);
            const bool inserted = after.value(i) == entry && before.mid(i) == after.mid(i + 1);
            const bool appended =
                i == before.size() && after.mid(i) == QList<QByteArray>{'[' + section + ']', entry};
            QVERIFY2(before == after || replaced || inserted || appended, written.constData());

            // Writing it again changes nothing; a number reads back whatever its size.
            QVERIFY(profile.writeString(section, key, value));
            QCOMPARE(TextFile::read(file), written);
            const int number = random.bounded(4) == 0 ? (random.bounded(2) ? INT_MIN : INT_MAX)
                                                      : int(random.generate());
            QVERIFY(profile.writeInt(section, key, number));
            QCOMPARE(profile.readInt(section, key, 7), number);
        }
    }
};

QTEST_GUILESS_MAIN(TestPrivateProfile)
#include "tst_privateprofile.moc"
