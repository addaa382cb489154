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
        template <typename T = QLineEdit> T* field(const char* name, QWidget* page = nullptr)
        {
            return (page ? page : &ptp)->findChild<T*>(QLatin1String(name));
        }
        QStringList texts(std::initializer_list<const char*> names, QWidget* page = nullptr)
        {
            QStringList out;
            for (const char* name : names)
                out << field(name, page)->text();
            return out;
        }
        void chooseType(MotionType type)
        {
            field<QComboBox>("motionType")->setCurrentIndex(int(type));
            emit field<QComboBox>("motionType")->activated(int(type));
        }
    };

private slots:
    void ptp_fieldStatesFollowMotionType_data()
    {
        QTest::addColumn<MotionType>("type");
        QTest::addColumn<QStringList>("enabled");
        QTest::addColumn<QStringList>("labels");
        const QStringList fields{"position1", "position2", "decelTime", "count", "delayTime"};
        QTest::newRow("Jog") << MotionType::Jog << QStringList{}
                             << QStringList{" Position 2", " Acc/Dec Time"};
        QTest::newRow("Relative") << MotionType::Relative << fields.mid(1) + QStringList{"infinite"}
                                  << QStringList{" Distance", " Accel Time"};
        QTest::newRow("Absolute") << MotionType::Absolute << fields
                                  << QStringList{" Position 2", " Accel Time"};
    }
    void ptp_fieldStatesFollowMotionType()
    {
        QFETCH(MotionType, type);
        QFETCH(QStringList, enabled);
        QFETCH(QStringList, labels);
        Rig rig;
        auto* repeat = rig.field<QCheckBox>("repeat");
        auto* infinite = rig.field<QCheckBox>("infinite");
        // Come from Relative with Repeat and Infinite ticked, so every change shows.
        rig.chooseType(MotionType::Relative);
        repeat->click();
        infinite->click();
        rig.chooseType(type);

        QStringList nowEnabled;
        for (const char* name : {"position1", "position2", "decelTime", "count", "delayTime"})
            if (rig.field(name)->isEnabled())
                nowEnabled << name;
        if (infinite->isEnabled())
            nowEnabled << "infinite";
        QCOMPARE(nowEnabled, enabled);
        QStringList nowLabels;
        for (const char* name : {"position2", "accelTime"})
            for (QLabel* label : rig.ptp.findChildren<QLabel*>())
                if (label->buddy() == rig.field(name))
                    nowLabels << label->text();
        QCOMPARE(nowLabels, labels);
        const bool jog = type == MotionType::Jog;
        QVERIFY(repeat->isEnabled() != jog && repeat->isHidden() == jog);
        QVERIFY(repeat->isChecked() != jog && !infinite->isChecked());
        QCOMPARE(infinite->isHidden(), type != MotionType::Relative);
    }

    void ptp_driveSpeedCheckRestoresLastValidText()
    {
        Rig rig;
        QLineEdit* drive = rig.field("driveSpeed");
        drive->setText("12");
        drive->setText("12a");
        QCOMPARE(rig.prompt.messages(), QStringList{"Input value is incorrect!"});
        QCOMPARE(drive->text(), QStringLiteral("12"));
        for (const char* valid : {"-1 2", " 3.5", ""})
            drive->setText(valid);
        QCOMPARE(rig.prompt.messages().size(), 1);
        drive->setText("-1x");
        drive->setText("7\u00e9");
        QCOMPARE(rig.prompt.messages().size(), 3);
        QCOMPARE(drive->text(), QString());
    }

    void ptp_loadComparesAndWritesTheProfileOfTheType()
    {
        Rig rig;
        const int remembered[] = {7, 250, 1500, -40, 9000, 11, 22};
        for (int which = 0; which < kTestValueCount; ++which)
            rig.state.registry.setTestValue(BoardFamily::RL, 1, 2, TestValue(which),
                                            remembered[which]);
        rig.ptp.load();
        QCOMPARE(rig.rl.calls(), QStringList{"GetJogSpeed(1,2,&,&,&)"});
        // For Jog the Decel field repeats the accel time, and has no say in a change.
        QCOMPARE(rig.texts({"driveSpeed", "initialSpeed", "accelTime", "decelTime", "count",
                            "delayTime", "setCommand", "setActual"}),
                 (QStringList{"3000", "150", "40", "40", "7", "250", "11", "22"}));
        rig.field("decelTime")->setText("999");
        QVERIFY(!rig.ptp.parametersChanged(BoardFamily::RL));
        rig.field("accelTime")->setText("41");
        QVERIFY(rig.ptp.parametersChanged(BoardFamily::RL));
        rig.ptp.setParameters(BoardFamily::RL);
        QCOMPARE(rig.rl.calls({"SetJogSpeed"}), QStringList{"SetJogSpeed(1,2,150,3000,41)"});

        rig.chooseType(MotionType::Relative);
        QCOMPARE(rig.texts({"driveSpeed", "initialSpeed", "accelTime", "decelTime", "position2"}),
                 (QStringList{"10000", "200", "80", "90", "1500"}));
        rig.chooseType(MotionType::Absolute);
        QCOMPARE(rig.texts({"position1", "position2"}), (QStringList{"-40", "9000"}));
        QVERIFY(!rig.ptp.parametersChanged(BoardFamily::RL));
        rig.field("decelTime")->setText("91");
        QVERIFY(rig.ptp.parametersChanged(BoardFamily::RL));
        rig.ptp.setParameters(BoardFamily::RL);
        QCOMPARE(rig.rl.calls({"SetPosSpeed"}), QStringList{"SetPosSpeed(1,2,200,10000,80,91)"});
    }

    void pages_commandAndActualSetAndRememberTheCounters()
    {
        Rig rig;
        rig.field("setCommand")->setText("-1234");
        rig.field<QPushButton>("commandButton")->click();
        rig.field("setActual", &rig.home)->setText("77");
        rig.field<QPushButton>("actualButton", &rig.home)->click();
        QCOMPARE(rig.rl.calls(), (QStringList{"SetCommandPos(1,2,-1234)", "SetActualPos(1,2,77)"}));
        rig.home.load();
        QCOMPARE(rig.texts({"setCommand", "setActual"}, &rig.home), (QStringList{"-1234", "77"}));
    }

    void home_loadsComparesAndWritesInOrder()
    {
        Rig rig;
        rig.home.show();
        QVERIFY(!rig.field<QComboBox>("homeDirection", &rig.home)->isVisible());
        auto* mode = rig.field<QComboBox>("homeMode", &rig.home);

        rig.rl.setResult("GetHomeMode", 6);
        rig.rl.setResult("GetHomeOffset", -25);
        rig.rl.setOutValues("GetHomeSpeed", {300, 6000, 70});
        rig.home.load();
        QCOMPARE(mode->currentText(), QStringLiteral("6 : HighHome (Limit)"));
        const std::initializer_list<const char*> fields{"highSpeed", "lowSpeed", "accDecTime",
                                                        "offset"};
        QCOMPARE(rig.texts(fields, &rig.home), (QStringList{"6000", "300", "70", "-25"}));
        QVERIFY(!rig.home.parametersChanged(BoardFamily::RL));
        for (const char* name : fields) {
            const QString before = rig.field(name, &rig.home)->text();
            rig.field(name, &rig.home)->setText("1");
            QVERIFY2(rig.home.parametersChanged(BoardFamily::RL), name);
            rig.field(name, &rig.home)->setText(before);
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
