#include "PrivateProfile.h"
#include "TextFile.h"

#include <QTemporaryDir>
#include <QTest>

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
};

QTEST_GUILESS_MAIN(TestPrivateProfile)
#include "tst_privateprofile.moc"
