#include "AppState.h"
#include "BoardApi.h"
#include "COV_LogLevDlg.h"
#include "COV_SysCfgDlg.h"
#include "OrvaneSettings.h"
#include "RecordingBoard.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

// The two settings files and their dialogs.
class TestSettings : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    QString folder() const { return m_dir.path() + QLatin1Char('/'); }
    QString settingsFile() const { return folder() + OrvaneSettings::settingsFileName(); }

private slots:
    void init()
    {
        QFile::remove(settingsFile());
        QFile::remove(folder() + OrvaneSettings::debugLevelFileName());
    }

    void system_defaultsWithoutFile()
    {
        const OrvaneSettings::System values = OrvaneSettings::readSystem(settingsFile());
        QCOMPARE(values.showStatusWindow, 1);
        QCOMPARE(values.statusFollowsOperation, 1);
        COV_SysCfgDlg dialog(settingsFile());
        QVERIFY(dialog.showStatusBox()->isChecked());
        QVERIFY(dialog.followOperationBox()->isChecked());
        QCOMPARE(dialog.showStatusBox()->text(),
                 QStringLiteral(" Default Show Axis Status Window "));
        QCOMPARE(dialog.followOperationBox()->text(),
                 QStringLiteral(" Change Status Window Axis Depeng On Operation Window"));
    }

    void systemDialog_okWritesBothKeysCancelWritesNothing()
    {
        writeFile(settingsFile(), "; kept\r\n[System]\r\nDefault_Show_Status_Window=1\r\n");
        {
            COV_SysCfgDlg dialog(settingsFile());
            dialog.followOperationBox()->setChecked(false);
            dialog.reject();
        }
        QCOMPARE(OrvaneSettings::readSystem(settingsFile()).statusFollowsOperation, 1);
        COV_SysCfgDlg dialog(settingsFile());
        dialog.showStatusBox()->setChecked(false);
        dialog.accept();
        QCOMPARE(dialog.values().showStatusWindow, 0);
        QFile file(settingsFile());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("; kept\r\n[System]\r\nDefault_Show_Status_Window=0\r\n"
                                            "Change_Status_Axis_Depend_On_Operation=1\r\n"));
    }

    void systemDialog_opensOnTheFileValues()
    {
        writeFile(settingsFile(), "[System]\nChange_Status_Axis_Depend_On_Operation=0\n");
        COV_SysCfgDlg dialog(settingsFile());
        QVERIFY(dialog.showStatusBox()->isChecked());
        QVERIFY(!dialog.followOperationBox()->isChecked());
    }

    void logLevel_readByTheActiveFamily()
    {
        writeFile(folder() + OrvaneSettings::debugLevelFileName(), "[DEBUG_RM]\nLOG_LEVEL=3\n");
        QCOMPARE(OrvaneSettings::readLogLevel(folder(), BoardFamily::RM), 3);
        QCOMPARE(OrvaneSettings::readLogLevel(folder(), BoardFamily::RL), 2);
        COV_LogLevDlg rm(OrvaneSettings::readLogLevel(folder(), BoardFamily::RM));
        QCOMPARE(rm.levelList()->currentText(), QStringLiteral("3 : Level 3(All Functions)"));
        COV_LogLevDlg rl(OrvaneSettings::readLogLevel(folder(), BoardFamily::RL));
        QCOMPARE(rl.levelList()->currentText(), QStringLiteral("2 : Level 2(Only Errors)"));
        QCOMPARE(rl.levelList()->count(), 4);
        QCOMPARE(rl.levelList()->itemText(1),
                 QStringLiteral("1 : Level 1(Only Command Functions)"));
    }
};

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
