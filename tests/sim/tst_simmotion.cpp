#include "SimConstants.h"
#include "SimLibrary.h"

#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

using namespace nrxsim;

namespace {

// Limits far away unless a test brings them near; origin and Z out of the way.
const char* const Boards = R"(
[RL]
Cards=1
[RL.Card0]
Axes=4
IO=16
[RM]
Cards=1
[RM.Card0]
Axes=8
[RN]
Cards=1
[RN.Card0]
Axes=4
[Axes]
PlusLimit=10000000
MinusLimit=-10000000
Origin=-5000000
ZPeriod=0
[RL.Card0.Axis2]
PlusLimit=20000
MinusLimit=-20000
)";

} // namespace

// Motion of the simulated boards through the contract, on the manual clock.
class TestSimMotion : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir_;
    std::unique_ptr<SimLibrary> lib_[3];
    NrxFunctionTable* rl_ = nullptr;

    int runUntilDone(int family, int axis, int limitMs = 120000)
    {
        SimLibrary& l = *lib_[family];
        int ms = 0;
        while (l.nrx.Done(0, axis) != 0 && ms < limitMs) {
            l.sim.AdvanceClock(1);
            ++ms;
        }
        return ms;
    }
    void advance(int ms) { lib_[0]->sim.AdvanceClock(ms); }

private slots:
    void initTestCase()
    {
        QVERIFY(dir_.isValid());
        QVERIFY(SimExtras::writeBoards(dir_.path(), Boards));
        for (int family = 0; family < 3; ++family) {
            lib_[family] = std::make_unique<SimLibrary>(family);
            QVERIFY2(lib_[family]->isLoaded(), qPrintable(lib_[family]->errorString()));
        }
        rl_ = &lib_[0]->nrx;
    }

    void init()
    {
        for (int family = 0; family < 3; ++family)
            QCOMPARE(lib_[family]->loadIn(dir_.path()), 0);
    }

    void jog_runsUntilStopped()
    {
        rl_->SetJogSpeed(0, 0, 100, 10000, 100);
        rl_->Jog_Move(0, 0, 1);
        advance(5000);
        QVERIFY(rl_->Done(0, 0));
        QCOMPARE(rl_->GetCommandSpeed(0, 0), 10000);
        const int before = rl_->GetCommandPos(0, 0);
        QVERIFY(qAbs(before - (50000 - 505)) <= 10); // 5 s at 10000 pps less the ramp
        // The servo trails the command by its following error: 2 ms at the drive speed.
        QVERIFY(qAbs(before - rl_->GetActualPos(0, 0) - 20) <= 2);
        QVERIFY(rl_->GetCardStatus(0, 0) & CardBit::Run);
        QVERIFY(rl_->GetDrvStatus(0, 0) & DriveBit::Constant);
        rl_->Decel_Stop(0, 0);
        advance(50);
        QVERIFY(rl_->Done(0, 0)); // still ramping down
        QVERIFY(rl_->GetCommandSpeed(0, 0) < 10000);
        QVERIFY(rl_->GetDrvStatus(0, 0) & DriveBit::Descend);
        advance(60);
        QCOMPARE(rl_->Done(0, 0), 0);
        QVERIFY(qAbs(rl_->GetCommandPos(0, 0) - before - 505) <= 10);
        QCOMPARE(rl_->GetMotionErrCod(0, 0), 0);
    }

    // The + limit with E-Stop is met end to end by the single-axis window and the monitors.
    void decelStop_inAnSCurvesDecelerationEndsByItsTarget()
    {
        // 200 kpps, 500 ms S-curves: each ramp covers about 50000 pulses.
        rl_->SetSpeedMode(0, 0, 1);
        rl_->SetPosSpeed(0, 0, 100, 200000, 500, 500);
        for (const int intoRamp : {1, 100, 250, 400}) {
            rl_->SetCommandPos(0, 0, 0);
            rl_->Inc_Move(0, 0, 150000);
            while (!(rl_->GetDrvStatus(0, 0) & DriveBit::Descend))
                advance(1);
            advance(intoRamp);
            rl_->Decel_Stop(0, 0);
            runUntilDone(0, 0);
            QVERIFY2(rl_->GetCommandPos(0, 0) <= 150000, qPrintable(QString::number(intoRamp)));
            QVERIFY(rl_->GetCommandPos(0, 0) > 100000);
            QCOMPARE(rl_->GetMotionErrCod(0, 0), 0);
        }
    }

    void threads_twoCallersNeitherCrashNorCorruptAJog()
    {
        auto jogFor = [this](int ms, const std::function<void()>& meanwhile) {
            rl_->SetCommandPos(0, 0, 0);
            rl_->SetJogSpeed(0, 0, 100, 10000, 100);
            rl_->Jog_Move(0, 0, 1);
            std::atomic<bool> running{true};
            std::thread clock([&] {
                for (int i = 0; i < ms; ++i)
                    lib_[0]->sim.AdvanceClock(1);
                running = false;
            });
            while (running)
                meanwhile();
            clock.join();
            rl_->Sudden_Stop(0, 0);
            return rl_->GetCommandPos(0, 0);
        };
        const int alone = jogFor(20000, [] {});
        // The other thread reads the jogging axis and moves another one all the while.
        const int shared = jogFor(20000, [this] {
            rl_->GetCardStatus(0, 0);
            rl_->GetDrvStatus(0, 0);
            rl_->GetActualPos(0, 0);
            rl_->GetCommandSpeed(0, 0);
            if (rl_->Done(0, 1) == 0)
                rl_->Inc_Move(0, 1, 3);
        });
        QCOMPARE(shared, alone);
        QVERIFY(alone > 190000);
    }

    void limits_stopWithTheirCodes_data()
    {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("stopMode");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("edge");
        QTest::addColumn<int>("statusBit");
        QTest::newRow("- E-Stop") << 0 << 0 << -630 << -20000 << int(CardBit::LimitMinus);
        QTest::newRow("+ S-Stop") << 1 << 1 << -620 << 20000 << int(CardBit::LimitPlus);
        QTest::newRow("- S-Stop") << 0 << 1 << -630 << -20000 << int(CardBit::LimitMinus);
    }
    void limits_stopWithTheirCodes()
    {
        QFETCH(int, direction);
        QFETCH(int, stopMode);
        QFETCH(int, code);
        QFETCH(int, edge);
        QFETCH(int, statusBit);
        rl_->SetHlmt(0, 2, stopMode, 0);
        rl_->SetJogSpeed(0, 2, 100, 20000, 100);
        rl_->Jog_Move(0, 2, direction);
        runUntilDone(0, 2, 5000);
        QCOMPARE(rl_->GetMotionErrCod(0, 2), code);
        const int at = rl_->GetCommandPos(0, 2);
        if (stopMode == 0)
            QCOMPARE(at, edge); // stopped on the switch
        else
            QVERIFY(qAbs(at) > qAbs(edge) && qAbs(at) < qAbs(edge) + 2000); // ramped past it
        QVERIFY(rl_->GetCardStatus(0, 2) & statusBit);
        QVERIFY(rl_->GetCardStatus(0, 2) & CardBit::Err);
        const int stopBit = direction ? DriveBit::StopLimitPlus : DriveBit::StopLimitMinus;
        QVERIFY(rl_->GetDrvStatus(0, 2) & stopBit);

        // Further on is refused at once; back off is allowed and clears the code.
        rl_->Inc_Move(0, 2, direction ? 100 : -100);
        QCOMPARE(rl_->Done(0, 2), 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 2), code);
        QCOMPARE(rl_->GetCommandPos(0, 2), at);
        rl_->Inc_Move(0, 2, direction ? -5000 : 5000);
        QCOMPARE(rl_->GetMotionErrCod(0, 2), 0);
        runUntilDone(0, 2);
        QVERIFY(!(rl_->GetCardStatus(0, 2) & statusBit));
    }

    void limits_stopAnAxisThatIsRampingDown()
    {
        // A long Decel_Stop ramp that would run through the switch ends on it.
        rl_->SetJogSpeed(0, 2, 100, 20000, 1000);
        rl_->Jog_Move(0, 2, 1);
        while (rl_->GetCommandPos(0, 2) < 15000)
            advance(1);
        rl_->Decel_Stop(0, 2);
        runUntilDone(0, 2);
        QCOMPARE(rl_->GetMotionErrCod(0, 2), -620);
        QVERIFY(rl_->GetCommandPos(0, 2) < 30000);
        // ... and one that would run through a soft limit ends on the limit.
        rl_->SetSlmt(0, 2, 5000, -5000, 1);
        rl_->Jog_Move(0, 2, 0);
        while (rl_->GetCommandPos(0, 2) > 3000)
            advance(1);
        rl_->Decel_Stop(0, 2);
        runUntilDone(0, 2);
        QCOMPARE(rl_->GetMotionErrCod(0, 2), -610);
        QCOMPARE(rl_->GetCommandPos(0, 2), -5000);
    }

    void softLimits_stopOnTheLimit()
    {
        rl_->SetSlmt(0, 0, 5000, -3000, 1);
        rl_->Inc_Move(0, 0, 20000);
        runUntilDone(0, 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 0), -600);
        QCOMPARE(rl_->GetCommandPos(0, 0), 5000);
        QVERIFY(rl_->GetDrvStatus(0, 0) & DriveBit::ComparePlus);
        QVERIFY(rl_->GetErrStatus(0, 0) & ErrorBit::PlusSoftLimit);
        rl_->Inc_Move(0, 0, -1000); // a new motion clears the code
        QCOMPARE(rl_->GetMotionErrCod(0, 0), 0);
        QCOMPARE(rl_->GetErrStatus(0, 0), 0);
        runUntilDone(0, 0);
        // Without use the limits do not stop the axis.
        rl_->SetSlmt(0, 0, 5000, -3000, 0);
        rl_->Abs_Move(0, 0, 8000);
        runUntilDone(0, 0);
        QCOMPARE(rl_->GetCommandPos(0, 0), 8000);
    }

    void alarm_stopsWhenUsed()
    {
        auto& sim = lib_[0]->sim;
        rl_->Jog_Move(0, 1, 1);
        advance(200);
        sim.SetSignal(0, 1, NRXSIM_SIGNAL_ALARM, 1);
        advance(1);
        QCOMPARE(rl_->Done(0, 1), 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 1), -640);
        QVERIFY(rl_->GetCardStatus(0, 1) & CardBit::Alm);
        QVERIFY(rl_->GetDrvStatus(0, 1) & DriveBit::StopAlarm);
        rl_->Jog_Move(0, 1, 1); // refused while the alarm stands
        QCOMPARE(rl_->GetMotionErrCod(0, 1), -640);
        rl_->PutSvAlmRst(0, 1, 1);
        QVERIFY(rl_->GetCardStatus(0, 1) & CardBit::AlarmReset);
        QVERIFY(!(rl_->GetCardStatus(0, 1) & CardBit::Alm));
        rl_->PutSvAlmRst(0, 1, 0);
        // Not used: the lamp shows the alarm, the axis ignores it.
        sim.SetSignal(0, 1, NRXSIM_SIGNAL_ALARM, 1);
        rl_->SetSvAlm(0, 1, 0, 0);
        rl_->Inc_Move(0, 1, 1000);
        runUntilDone(0, 1);
        QCOMPARE(rl_->GetMotionErrCod(0, 1), 0);
        QVERIFY(rl_->GetCardStatus(0, 1) & CardBit::Alm);
    }

    void emergency_stopsEveryAxisOfTheCard()
    {
        auto& sim = lib_[0]->sim;
        const nrx_u16 axes[] = {0, 3};
        const nrx_u16 dirs[] = {1, 0};
        rl_->Multi_Jog_Move(0, 2, axes, dirs);
        advance(100);
        QVERIFY(rl_->Multi_Done(0, 2, axes));
        sim.SetSignal(0, 0, NRXSIM_SIGNAL_EMERGENCY, 1);
        advance(1);
        QCOMPARE(rl_->Multi_Done(0, 2, axes), 0);
        for (const int a : axes) {
            QCOMPARE(rl_->GetMotionErrCod(0, a), -650);
            QVERIFY(rl_->GetCardStatus(0, a) & CardBit::Emg);
            QVERIFY(rl_->GetDrvStatus(0, a) & DriveBit::StopEmergency);
        }
        sim.SetSignal(0, 0, NRXSIM_SIGNAL_EMERGENCY, 0);
        QVERIFY(!(rl_->GetCardStatus(0, 0) & CardBit::Emg));
        // A board set to the other level reads the released switch as pressed.
        rl_->SetEmergency(0, 1);
        QVERIFY(rl_->GetCardStatus(0, 2) & CardBit::Emg);
    }

    void multiMove_anAxisMeetingItsLimitStopsAlone()
    {
        const nrx_u16 axes[] = {0, 1, 2};
        const nrx_i32 distances[] = {30000, -15000, 30000};
        rl_->Multi_Inc_Move(0, 3, axes, distances);
        for (int ms = 0; rl_->Multi_Done(0, 3, axes) && ms < 20000; ++ms)
            advance(1);
        // Axis 2 meets its + limit and stops with its own code; the others run on to target.
        QCOMPARE(rl_->GetCommandPos(0, 0), 30000);
        QCOMPARE(rl_->GetCommandPos(0, 1), -15000);
        QVERIFY(rl_->GetMotionErrCod(0, 0) == 0 && rl_->GetMotionErrCod(0, 1) == 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 2), -620);
        QVERIFY(rl_->GetCommandPos(0, 2) < 30000);
        // At rest command and actual agree again.
        QCOMPARE(rl_->GetActualPos(0, 0), 30000);
    }

    void multiStop_stopsEachListedAxisOnly()
    {
        const nrx_u16 axes[] = {0, 1};
        const nrx_i32 distances[] = {1000000, 500000};
        rl_->Multi_Inc_Move(0, 2, axes, distances);
        advance(500);
        // A sudden stop ends one axis at once, where it was.
        const int running = rl_->GetCommandPos(0, 1);
        rl_->Sudden_Stop(0, 1);
        QCOMPARE(rl_->Done(0, 1), 0);
        QVERIFY(rl_->Done(0, 0));
        advance(100);
        QCOMPARE(rl_->GetCommandPos(0, 1), running);
        QCOMPARE(rl_->GetMotionErrCod(0, 1), 0);
        rl_->Multi_Decel_Stop(0, 2, axes);
        QVERIFY(rl_->Multi_Done(0, 2, axes));
        advance(200);
        QCOMPARE(rl_->Multi_Done(0, 2, axes), 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 0), 0);
    }

    void counters_ringAndEncoder()
    {
        rl_->SetCounterRing(0, 0, 1000, 400, 1);
        rl_->Inc_Move(0, 0, 2500);
        runUntilDone(0, 0);
        QCOMPARE(rl_->GetCommandPos(0, 0), 500);
        QCOMPARE(rl_->GetActualPos(0, 0), 100);
        rl_->Inc_Move(0, 0, -800);
        runUntilDone(0, 0);
        QCOMPARE(rl_->GetCommandPos(0, 0), 700); // wrapped below zero
        rl_->SetCounterRing(0, 0, 1000, 400, 0);

        rl_->SetActualPos(0, 1, 0);
        rl_->SetEncoderDir(0, 1, 1);  // counts the other way
        rl_->SetEncoderMode(0, 1, 2); // x1: one count per four pulses
        rl_->Inc_Move(0, 1, 4000);
        runUntilDone(0, 1);
        QCOMPARE(rl_->GetCommandPos(0, 1), 4000);
        QCOMPARE(rl_->GetActualPos(0, 1), -1000);
        rl_->SetEncoderMode(0, 1, 0); // the count is kept when the mode changes
        QCOMPARE(rl_->GetActualPos(0, 1), -1000);
    }

    void statusWords_mainWordSlots()
    {
        // RM groups four: axis 5 is slot 1 of axes 4..7 (RL's pairs: tst_monitorsim).
        NrxFunctionTable& rm = lib_[1]->nrx;
        lib_[1]->sim.SetSignal(0, 5, NRXSIM_SIGNAL_ALARM, 1);
        rm.Inc_Move(0, 5, 100);
        rm.SetHomeMode(0, 6, 8); // a Z search: slot 2 runs and homes
        rm.Home_Move(0, 6);
        rm.Jog_Move(0, 7, 1);
        QCOMPARE(rm.GetMainStatus(0, 5), nrx_u16((1u << 5) | (1u << 2) | (1u << 10) | (1u << 3)));
        QCOMPARE(rm.GetMainStatus(0, 1), nrx_u16(0));
        // RN: bits 8..15 describe the group.
        NrxFunctionTable& rn = lib_[2]->nrx;
        rn.PutSvOn(0, 2, 1);
        const nrx_u16 axes[] = {0, 1};
        const nrx_i32 distances[] = {5000, 5000};
        rn.Multi_Inc_Move(0, 2, axes, distances);
        const nrx_u16 w = rn.GetMainStatus(0, 3);
        QCOMPARE(w & 0xFF, 0x03);
        QVERIFY(w & MainBit::RnServoOn);
        // I-RUN: the group and each axis of a running multi-axis move, not a single move.
        QVERIFY(w & MainBit::RnInterpolationRun);
        QVERIFY(rn.GetCardStatus(0, 1) & CardBit::InterpolationRun);
        rn.Inc_Move(0, 2, 100);
        QVERIFY(!(rn.GetCardStatus(0, 2) & CardBit::InterpolationRun));
        rn.Sudden_Stop(0, 0);
        rn.Sudden_Stop(0, 1);
        QVERIFY(!(rn.GetMainStatus(0, 3) & MainBit::RnInterpolationRun));
    }

    void statusWords_servoOutputsAndCounterClearPulse()
    {
        rl_->PutSvOn(0, 3, 1);
        QVERIFY(rl_->GetCardStatus(0, 3) & CardBit::ServoOn);
        // A counter-clear pulse lasts its time code: code 6 is 10 ms.
        rl_->SetSvCClrTime(0, 3, 6);
        rl_->PutSvCClrCmd(0, 3);
        QCOMPARE(rl_->GetSvCClrDO(0, 3), 1);
        QVERIFY(rl_->GetCardStatus(0, 3) & CardBit::CounterClear);
        advance(9);
        QCOMPARE(rl_->GetSvCClrDO(0, 3), 1);
        advance(1);
        QCOMPARE(rl_->GetSvCClrDO(0, 3), 0);
    }
};

QTEST_GUILESS_MAIN(TestSimMotion)
#include "tst_simmotion.moc"
