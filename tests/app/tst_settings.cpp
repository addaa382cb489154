#include "AppState.h"
#include "BoardApi.h"
#include "COV_LogLevDlg.h"
#include "COV_SysCfgDlg.h"
#include "OrvaneSettings.h"
#include "TextFile.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

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

    void systemDialog_opensOnDefaultsOrTheFileValues()
    {
        const OrvaneSettings::System values = OrvaneSettings::readSystem(settingsFile());
        QCOMPARE(values.showStatusWindow, 1);
        QCOMPARE(values.statusFollowsOperation, 1);
        COV_SysCfgDlg defaults(settingsFile());
        QVERIFY(defaults.showStatusBox()->isChecked());
        QVERIFY(defaults.followOperationBox()->isChecked());
        QCOMPARE(defaults.showStatusBox()->text(), " Default Show Axis Status Window ");
        QCOMPARE(defaults.followOperationBox()->text(),
                 " Change Status Window Axis Depeng On Operation Window");

        QVERIFY(TextFile::write(settingsFile(),
                                "[System]\nChange_Status_Axis_Depend_On_Operation=0\n"));
        COV_SysCfgDlg fromFile(settingsFile());
        QVERIFY(fromFile.showStatusBox()->isChecked());
        QVERIFY(!fromFile.followOperationBox()->isChecked());
    }

    void systemDialog_okWritesBothKeysCancelWritesNothing()
    {
        QVERIFY(TextFile::write(settingsFile(),
                                "; kept\r\n[System]\r\nDefault_Show_Status_Window=1\r\n"));
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
        QCOMPARE(TextFile::read(settingsFile()),
                 QByteArray("; kept\r\n[System]\r\nDefault_Show_Status_Window=0\r\n"
                            "Change_Status_Axis_Depend_On_Operation=1\r\n"));
    }

    void logLevel_readByTheActiveFamily()
    {
        QVERIFY(TextFile::write(folder() + OrvaneSettings::debugLevelFileName(),
                                "[DEBUG_RM]\nLOG_LEVEL=3\n"));
        COV_LogLevDlg rm(OrvaneSettings::readLogLevel(folder(), BoardFamily::RM));
        QCOMPARE(rm.levelList()->currentText(), QStringLiteral("3 : Level 3(All Functions)"));
        COV_LogLevDlg rl(OrvaneSettings::readLogLevel(folder(), BoardFamily::RL));
        QCOMPARE(rl.levelList()->currentText(), QStringLiteral("2 : Level 2(Only Errors)"));
        QCOMPARE(rl.levelList()->count(), 4);
        QCOMPARE(rl.levelList()->itemText(1),
                 QStringLiteral("1 : Level 1(Only Command Functions)"));

        // A level outside the list is shown as no choice and handed on unchanged.
        COV_LogLevDlg outside(7);
        QCOMPARE(outside.levelList()->currentIndex(), -1);
        QCOMPARE(outside.level(), 7);
        outside.levelList()->setCurrentIndex(1);
        QCOMPARE(outside.level(), 1);
    }
};

QTEST_MAIN(TestSettings)
#include "tst_settings.moc"
