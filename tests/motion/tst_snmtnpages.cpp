#include "AppState.h"
#include "BoardApi.h"
#include "COV_SnMtnHomeWnd.h"
#include "COV_SnMtnPtpWnd.h"
#include "RecordingBoard.h"
#include "ScriptedPrompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

// The point-to-point and home pages: field states by motion type, the Drive Speed check, the
// values remembered per card and axis, and what each page reads from and writes to the board.
class TestSnMtnPages : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        RecordingBoard rl{BoardFamily::RL};
        BoardApi api;
        AppState state;
        ScriptedPrompt prompt;
        COV_SnMtnPtpWnd ptp{state, api, prompt};
        COV_SnMtnHomeWnd home{state, api};
        Rig()
        {
            rl.installInto(api);
            rl.setOutValues("GetPosSpeed", {200, 10000, 80, 90});
            rl.setOutValues("GetJogSpeed", {150, 3000, 40});
            ptp.setCardAxis(1, 2);
            home.setCardAxis(1, 2);
        }
        template <typename T> T* ptpField(const char* name) const
        {
            return ptp.findChild<T*>(QLatin1String(name));
        }
        QLineEdit* edit(const char* name) const { return ptpField<QLineEdit>(name); }
        QLineEdit* homeEdit(const char* name) const
        {
            return home.findChild<QLineEdit*>(QLatin1String(name));
        }
        QString labelFor(QWidget* field) const
        {
            for (QLabel* label : ptp.findChildren<QLabel*>())
                if (label->buddy() == field)
                    return label->text();
            return {};
        }
        void chooseType(MotionType type)
        {
            auto* combo = ptpField<QComboBox>("motionType");
            combo->setCurrentIndex(int(type));
            emit combo->activated(int(type));
        }
        void remember(TestValue which, int value)
        {
            state.registry.setTestValue(BoardFamily::RL, 1, 2, which, value);
        }
        int remembered(TestValue which) const
        {
            return state.registry.testValue(BoardFamily::RL, 1, 2, which);
        }
    };

private slots:
    void ptp_fieldStatesFollowMotionType_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("position1");
        QTest::addColumn<bool>("position2");
        QTest::addColumn<QString>("position2Label");
        QTest::addColumn<QString>("accelLabel");
        QTest::addColumn<bool>("decel");
        QTest::addColumn<bool>("repeatShown");
        QTest::addColumn<bool>("infiniteEnabled");
        QTest::newRow("Jog") << 0 << false << false << " Position 2"
                             << " Acc/Dec Time" << false << false << false;
        QTest::newRow("Relative") << 1 << false << true << " Distance"
                                  << " Accel Time" << true << true << true;
        QTest::newRow("Absolute") << 2 << true << true << " Position 2"
                                  << " Accel Time" << true << true << false;
    }
    void ptp_fieldStatesFollowMotionType()
    {
        QFETCH(int, type);
        QFETCH(bool, position1);
        QFETCH(bool, position2);
        QFETCH(QString, position2Label);
        QFETCH(QString, accelLabel);
        QFETCH(bool, decel);
        QFETCH(bool, repeatShown);
        QFETCH(bool, infiniteEnabled);
        Rig rig;
        auto* repeat = rig.ptpField<QCheckBox>("repeat");
        auto* infinite = rig.ptpField<QCheckBox>("infinite");
        QSignalSpy typeChanged(&rig.ptp, &COV_SnMtnPtpWnd::motionTypeChanged);
        // Come from Relative with Repeat and Infinite ticked, so every change shows.
        rig.chooseType(MotionType::Relative);
        repeat->click();
        infinite->click();
        QVERIFY(infinite->isChecked());
        rig.chooseType(MotionType(type));
        QCOMPARE(typeChanged.count(), 2);

        QCOMPARE(rig.edit("position1")->isEnabled(), position1);
        QCOMPARE(rig.edit("position2")->isEnabled(), position2);
        QCOMPARE(rig.labelFor(rig.edit("position2")), position2Label);
        QCOMPARE(rig.labelFor(rig.edit("accelTime")), accelLabel);
        QCOMPARE(rig.edit("decelTime")->isEnabled(), decel);
        QCOMPARE(rig.edit("count")->isEnabled(), type != 0);
        QCOMPARE(rig.edit("delayTime")->isEnabled(), type != 0);
        QCOMPARE(!repeat->isHidden(), repeatShown);
        QCOMPARE(repeat->isEnabled(), repeatShown);
        QCOMPARE(repeat->isChecked(), type != 0);
        QVERIFY(!infinite->isChecked());
        QCOMPARE(infinite->isEnabled(), infiniteEnabled);
        QCOMPARE(!infinite->isHidden(), type == int(MotionType::Relative));
    }

    void ptp_driveSpeedCheckRestoresLastValidText()
    {
        Rig rig;
        QLineEdit* drive = rig.edit("driveSpeed");
        drive->setText("12");
        drive->setText("12a");
        QCOMPARE(rig.prompt.messages(), QStringList{"Input value is incorrect!"});
        QCOMPARE(drive->text(), QStringLiteral("12"));
        drive->setText("-1 2");
        drive->setText(" 3.5");
        drive->setText("");
        QCOMPARE(rig.prompt.messages().size(), 1);
        drive->setText("-1x");
        drive->setText("7\u00e9");
        QCOMPARE(rig.prompt.messages().size(), 3);
        QCOMPARE(drive->text(), QString());
    }

    void ptp_loadShowsRememberedValuesAndTheBoardProfile()
    {
        Rig rig;
        rig.remember(TestValue::Count, 7);
        rig.remember(TestValue::DelayTime, 250);
        rig.remember(TestValue::Distance, 1500);
        rig.remember(TestValue::Position1, -40);
        rig.remember(TestValue::Position2, 9000);
        rig.remember(TestValue::SetCommand, 11);
        rig.remember(TestValue::SetActual, 22);
        rig.ptp.load();
        QCOMPARE(rig.rl.calls(), QStringList{"GetJogSpeed(1,2,&,&,&)"});
        const auto texts = [&](std::initializer_list<const char*> names) {
            QStringList out;
            for (const char* name : names)
                out << rig.edit(name)->text();
            return out;
        };
        // For Jog the Decel field repeats the accel time.
        QCOMPARE(texts({"driveSpeed", "initialSpeed", "accelTime", "decelTime", "count",
                        "delayTime", "setCommand", "setActual"}),
                 (QStringList{"3000", "150", "40", "40", "7", "250", "11", "22"}));
        rig.chooseType(MotionType::Relative);
        QCOMPARE(texts({"driveSpeed", "initialSpeed", "accelTime", "decelTime", "position2"}),
                 (QStringList{"10000", "200", "80", "90", "1500"}));
        rig.chooseType(MotionType::Absolute);
        QCOMPARE(texts({"position1", "position2"}), (QStringList{"-40", "9000"}));
    }

    void ptp_parametersChangedComparesTheProfileOfTheType()
    {
        Rig rig;
        rig.ptp.load();
        QVERIFY(!rig.ptp.parametersChanged(BoardFamily::RL));
        // The jog profile has no decel time of its own.
        rig.edit("decelTime")->setText("999");
        QVERIFY(!rig.ptp.parametersChanged(BoardFamily::RL));
        rig.edit("accelTime")->setText("41");
        QVERIFY(rig.ptp.parametersChanged(BoardFamily::RL));
        rig.ptp.setParameters(BoardFamily::RL);
        QCOMPARE(rig.rl.calls({"SetJogSpeed", "SetPosSpeed"}),
                 QStringList{"SetJogSpeed(1,2,150,3000,41)"});

        rig.chooseType(MotionType::Absolute);
        QVERIFY(!rig.ptp.parametersChanged(BoardFamily::RL));
        rig.edit("decelTime")->setText("91");
        QVERIFY(rig.ptp.parametersChanged(BoardFamily::RL));
        rig.ptp.setParameters(BoardFamily::RL);
        QCOMPARE(rig.rl.calls({"SetPosSpeed"}), QStringList{"SetPosSpeed(1,2,200,10000,80,91)"});
    }

    void ptp_motionTypeChangeAsksBeforeLeavingEdits()
    {
        Rig rig;
        rig.ptp.load();
        rig.chooseType(MotionType::Relative);
        QVERIFY(rig.prompt.questions().isEmpty());
        rig.edit("driveSpeed")->setText("12000");
        rig.prompt.queueAnswers({true, false});
        rig.chooseType(MotionType::Absolute);
        QCOMPARE(rig.rl.calls({"SetPosSpeed"}), QStringList{"SetPosSpeed(1,2,200,12000,80,90)"});
        rig.edit("driveSpeed")->setText("13000");
        rig.chooseType(MotionType::Jog);
        QCOMPARE(rig.prompt.questions(),
                 QStringList(2, "Parameters are changed. Do you want to set parameter?"));
        QCOMPARE(rig.rl.count("SetPosSpeed"), 1);
        QCOMPARE(rig.edit("driveSpeed")->text(), QStringLiteral("3000"));
    }

    void pages_commandAndActualSetAndRememberTheCounters()
    {
        Rig rig;
        rig.edit("setCommand")->setText("-1234");
        for (QPushButton* button : rig.ptp.findChildren<QPushButton*>())
            button->click();
        rig.homeEdit("setActual")->setText("77");
        for (QPushButton* button : rig.home.findChildren<QPushButton*>())
            if (button->text() == QStringLiteral("Actual"))
                button->click();
        QCOMPARE(rig.rl.calls(), (QStringList{"SetCommandPos(1,2,-1234)", "SetActualPos(1,2,0)",
                                              "SetActualPos(1,2,77)"}));
        QCOMPARE(rig.remembered(TestValue::SetCommand), -1234);
        QCOMPARE(rig.remembered(TestValue::SetActual), 77);
        rig.home.load();
        QCOMPARE(rig.homeEdit("setCommand")->text(), QStringLiteral("-1234"));
        QCOMPARE(rig.homeEdit("setActual")->text(), QStringLiteral("77"));
    }

    void home_loadsComparesAndWritesInOrder()
    {
        Rig rig;
        auto* direction = rig.home.findChild<QComboBox*>("homeDirection");
        rig.home.show();
        QVERIFY(!direction->isVisible());
        auto* mode = rig.home.findChild<QComboBox*>("homeMode");
        QCOMPARE(mode->count(), 10);
        QCOMPARE(mode->itemText(9), QStringLiteral("9 : CurPos (ORG)"));

        rig.rl.setResult("GetHomeMode", 6);
        rig.rl.setResult("GetHomeOffset", -25);
        rig.rl.setOutValues("GetHomeSpeed", {300, 6000, 70});
        rig.home.load();
        QCOMPARE(mode->currentText(), QStringLiteral("6 : HighHome (Limit)"));
        QCOMPARE(rig.homeEdit("highSpeed")->text(), QStringLiteral("6000"));
        QCOMPARE(rig.homeEdit("lowSpeed")->text(), QStringLiteral("300"));
        QCOMPARE(rig.homeEdit("accDecTime")->text(), QStringLiteral("70"));
        QCOMPARE(rig.homeEdit("offset")->text(), QStringLiteral("-25"));
        QVERIFY(!rig.home.parametersChanged(BoardFamily::RL));

        for (const char* name : {"highSpeed", "lowSpeed", "accDecTime", "offset"}) {
            const QString before = rig.homeEdit(name)->text();
            rig.homeEdit(name)->setText("1");
            QVERIFY2(rig.home.parametersChanged(BoardFamily::RL), name);
            rig.homeEdit(name)->setText(before);
        }
        mode->setCurrentIndex(8);
        QVERIFY(rig.home.parametersChanged(BoardFamily::RL));
        rig.rl.clearCalls();
        rig.home.setParameters(BoardFamily::RL);
        QCOMPARE(rig.rl.calls(), (QStringList{"SetHomeMode(1,2,8)", "SetHomeOffset(1,2,-25)",
                                              "SetHomeSpeed(1,2,300,6000,70)"}));
    }
};

QTEST_MAIN(TestSnMtnPages)
#include "tst_snmtnpages.moc"
