#include "SimConstants.h"
#include "SimLibrary.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace nrxsim;

namespace {

// RL card 0: axis 0 as built in, axis 1 needs its servo on to turn, axis 2 has a brisk
// second-order drive that settles for 20 ms, axis 3 a sluggish one with a following-error
// limit that needs its servo on (with it off, INP never comes), axis 4 the stiffest and most
// damped drive the settings allow.
const char* const Boards = R"(
[RL]
Cards=1
[RL.Card0]
Axes=5
[Axes]
PlusLimit=10000000
MinusLimit=-10000000
Origin=-5000000
ZPeriod=0
[RL.Card0.Axis1]
NeedsServoOn=1
[RL.Card0.Axis2]
ServoBandwidth=40
InposWindow=5
InposSettle=20
[RL.Card0.Axis3]
ServoBandwidth=5
FollowingLimit=500
NeedsServoOn=1
InposTimeout=200
[RL.Card0.Axis4]
ServoBandwidth=1000
ServoDamping=1000
)";

} // namespace

// The simulated servo drives behind the RL library's axes, on the manual clock.
class TestSimServo : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir_;
    std::unique_ptr<SimLibrary> lib_;
    NrxFunctionTable* rl_ = nullptr;

    int runUntilDone(int axis, int limitMs = 120000)
    {
        int ms = 0;
        while (rl_->Done(0, axis) != 0 && ms < limitMs) {
            lib_->sim.AdvanceClock(1);
            ++ms;
        }
        return ms;
    }

private slots:
    void initTestCase()
    {
        QVERIFY(dir_.isValid());
        QVERIFY(SimExtras::writeBoards(dir_.path(), Boards));
        lib_ = std::make_unique<SimLibrary>(0);
        QVERIFY2(lib_->isLoaded(), qPrintable(lib_->errorString()));
        rl_ = &lib_->nrx;
    }

    void init() { QCOMPARE(lib_->loadIn(dir_.path()), 0); }

    void servoOff_pulsesCountActualStays()
    {
        rl_->Inc_Move(0, 1, 3000);
        runUntilDone(1);
        QCOMPARE(rl_->GetCommandPos(0, 1), 3000);
        QCOMPARE(rl_->GetActualPos(0, 1), 0);
        QCOMPARE(lib_->sim.GetMachinePos(0, 1), 3000);
        // Servo on: the motor turns from where it stood, the gap stays.
        rl_->PutSvOn(0, 1, 1);
        rl_->Inc_Move(0, 1, 1000);
        runUntilDone(1);
        QCOMPARE(rl_->GetCommandPos(0, 1), 4000);
        QCOMPARE(rl_->GetActualPos(0, 1), 1000);
        rl_->PutSvOn(0, 1, 0);
        rl_->Inc_Move(0, 1, -500);
        runUntilDone(1);
        QCOMPARE(rl_->GetActualPos(0, 1), 1000);
        // Without the setting the actual position follows whatever the servo output.
        rl_->Inc_Move(0, 0, 2000);
        runUntilDone(0);
        QCOMPARE(rl_->GetActualPos(0, 0), 2000);
    }

    void actualPosition_neverStepsBackInASlowMove()
    {
        for (const int axis : {0, 2, 4}) {
            rl_->SetPosSpeed(0, axis, 100, 300, 100, 100);
            rl_->Inc_Move(0, axis, 1500);
            int last = rl_->GetActualPos(0, axis);
            int ms = 0;
            while ((rl_->Done(0, axis) || rl_->GetActualPos(0, axis) != 1500) && ms < 10000) {
                lib_->sim.AdvanceClock(1);
                ++ms;
                const int now = rl_->GetActualPos(0, axis);
                QVERIFY2(now >= last,
                         qPrintable(QStringLiteral("axis %1 at %2 ms").arg(axis).arg(ms)));
                last = now;
            }
            QCOMPARE(last, 1500);
        }
    }

    void inPosition_afterTheSettleTimeEndsTheMove()
    {
        rl_->SetSvInpos(0, 2, 1, 0);
        rl_->SetPosSpeed(0, 2, 100, 10000, 100, 100);
        rl_->Inc_Move(0, 2, 10000);
        int pulsesEnd = -1;
        int ms = 0;
        for (; rl_->Done(0, 2) && ms < 5000; ++ms) {
            QVERIFY(!(rl_->GetCardStatus(0, 2) & CardBit::Inp));
            lib_->sim.AdvanceClock(1);
            if (pulsesEnd < 0 && rl_->GetCommandPos(0, 2) == 10000)
                pulsesEnd = ms;
        }
        QVERIFY(rl_->GetCardStatus(0, 2) & CardBit::Inp);
        QCOMPARE(rl_->GetMotionErrCod(0, 2), 0);
        QVERIFY2(ms - pulsesEnd >= 20 && ms - pulsesEnd < 200,
                 qPrintable(QString::number(ms - pulsesEnd)));
        QVERIFY(qAbs(rl_->GetActualPos(0, 2) - 10000) <= 5);
        // Without in-position use the move ends with its pulses.
        rl_->SetSvInpos(0, 2, 0, 0);
        rl_->Inc_Move(0, 2, 100);
        lib_->sim.AdvanceClock(200);
        QCOMPARE(rl_->Done(0, 2), 0);
    }

    void inPosition_neverComingEndsTheMoveWithMinus9999()
    {
        rl_->SetSvInpos(0, 3, 1, 0);
        rl_->SetPosSpeed(0, 3, 100, 1000, 100, 100);
        rl_->Inc_Move(0, 3, 1000);
        int ms = 0;
        while (rl_->GetCommandPos(0, 3) != 1000)
            lib_->sim.AdvanceClock(1);
        for (; rl_->Done(0, 3) && ms < 1000; ++ms)
            lib_->sim.AdvanceClock(1);
        QVERIFY2(ms >= 200 && ms <= 215, qPrintable(QString::number(ms)));
        QCOMPARE(rl_->GetMotionErrCod(0, 3), -9999);
        QVERIFY(rl_->GetErrStatus(0, 3) & ErrorBit::Other);
    }

    void followingError_beyondItsLimitRaisesTheAlarm()
    {
        rl_->PutSvOn(0, 3, 1);
        rl_->SetJogSpeed(0, 3, 100, 1000, 100);
        rl_->Jog_Move(0, 3, 1);
        lib_->sim.AdvanceClock(500); // 1000 pps: the sluggish drive keeps up within 500
        QVERIFY(rl_->Done(0, 3));
        rl_->Decel_Stop(0, 3);
        lib_->sim.AdvanceClock(1000);
        rl_->SetJogSpeed(0, 3, 100, 20000, 100);
        rl_->Jog_Move(0, 3, 1);
        lib_->sim.AdvanceClock(1000);
        QCOMPARE(rl_->Done(0, 3), 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 3), -640);
        QVERIFY(rl_->GetCardStatus(0, 3) & CardBit::Alm);
        rl_->PutSvAlmRst(0, 3, 1); // the drive's alarm is latched until reset
        QVERIFY(!(rl_->GetCardStatus(0, 3) & CardBit::Alm));
    }
};

QTEST_GUILESS_MAIN(TestSimServo)
#include "tst_simservo.moc"
