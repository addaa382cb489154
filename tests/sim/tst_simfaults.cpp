#include "SimConstants.h"
#include "SimLibrary.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace nrxsim;

namespace {

// Nothing in reach of the axes: every switch a test sees is one it forced.
const char* const Boards = R"(
[RL]
Cards=1
[RL.Card0]
Axes=4
[Axes]
PlusLimit=10000000
MinusLimit=-10000000
Origin=-5000000
ZPeriod=0
)";

} // namespace

// Faults switched through the simulator's exports while the boards run.
class TestSimFaults : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir_;
    std::unique_ptr<SimLibrary> lib_;
    NrxFunctionTable* rl_ = nullptr;

    void advance(int ms) { lib_->sim.AdvanceClock(ms); }
    bool lamp(int axis, nrx_u16 bit) { return (rl_->GetCardStatus(0, axis) & bit) != 0; }

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

    void switches_lightTheirLampAndStopAsTheRealOnes()
    {
        rl_->Jog_Move(0, 0, 1);
        advance(100);
        lib_->sim.SetSignal(0, 0, NRXSIM_SIGNAL_LIMIT_PLUS, 1);
        QVERIFY(lamp(0, CardBit::LimitPlus)); // at once, before the clock moves
        advance(1);
        QCOMPARE(rl_->Done(0, 0), 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 0), -620);
        rl_->Jog_Move(0, 0, 1); // further into the switch: refused
        QCOMPARE(rl_->GetMotionErrCod(0, 0), -620);
        rl_->Jog_Move(0, 0, 0); // backing off is allowed
        advance(10);
        QCOMPARE(rl_->Done(0, 0), 1);
        rl_->Sudden_Stop(0, 0);
        lib_->sim.SetSignal(0, 0, NRXSIM_SIGNAL_LIMIT_PLUS, 0);
        QVERIFY(!lamp(0, CardBit::LimitPlus));

        // S-Stop ramps down from the switch.
        rl_->SetHlmt(0, 1, 1, 0);
        rl_->Jog_Move(0, 1, 0);
        advance(200);
        lib_->sim.SetSignal(0, 1, NRXSIM_SIGNAL_LIMIT_MINUS, 1);
        advance(5);
        QCOMPARE(rl_->Done(0, 1), 1);
        advance(200);
        QCOMPARE(rl_->Done(0, 1), 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 1), -630);

        // An origin search ends where the origin switch comes on.
        rl_->SetHomeMode(0, 2, 0);
        rl_->Home_Move(0, 2);
        advance(300);
        lib_->sim.SetSignal(0, 2, NRXSIM_SIGNAL_ORIGIN, 1);
        QVERIFY(lamp(2, CardBit::Org));
        advance(2);
        QCOMPARE(rl_->Done(0, 2), 0);
        QVERIFY(lamp(2, CardBit::HomeOk));
        QVERIFY(lib_->sim.GetMachinePos(0, 2) > -1000);

        lib_->sim.SetSignal(0, 3, NRXSIM_SIGNAL_Z, 1);
        QVERIFY(lamp(3, CardBit::Ez));
        lib_->sim.SetSignal(0, 3, NRXSIM_SIGNAL_Z, 0);
        QVERIFY(!lamp(3, CardBit::Ez));
    }

    void inPosition_stuckOnOrOff()
    {
        lib_->sim.SetSignal(0, 0, NRXSIM_SIGNAL_INP_ON, 1);
        rl_->Jog_Move(0, 0, 1);
        advance(10);
        QVERIFY(lamp(0, CardBit::Inp)); // lit although the axis runs
        rl_->Sudden_Stop(0, 0);
        lib_->sim.SetSignal(0, 0, NRXSIM_SIGNAL_INP_OFF, 1);
        QVERIFY(!lamp(0, CardBit::Inp));
        rl_->SetSvInpos(0, 0, 1, 0);
        rl_->Inc_Move(0, 0, 100);
        advance(2000);
        QCOMPARE(rl_->Done(0, 0), 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 0), -9999);
        lib_->sim.SetSignal(0, 0, NRXSIM_SIGNAL_INP_OFF, 0);
        QVERIFY(lamp(0, CardBit::Inp));
    }

    void encoderLoss_freezesTheActualPosition()
    {
        lib_->sim.SetSignal(0, 0, NRXSIM_SIGNAL_ENCODER_LOSS, 1);
        rl_->Inc_Move(0, 0, 1000);
        advance(2000);
        QCOMPARE(rl_->GetCommandPos(0, 0), 1000);
        QCOMPARE(rl_->GetActualPos(0, 0), 0);
        lib_->sim.SetSignal(0, 0, NRXSIM_SIGNAL_ENCODER_LOSS, 0);
        rl_->Inc_Move(0, 0, 500);
        advance(2000);
        QCOMPARE(rl_->GetActualPos(0, 0), 500);
    }

    void faultsFile_isTakenOverWhileRunning()
    {
        const QString file = QDir(dir_.path()).filePath("NrxSimFaults.ini");
        auto write = [&file](const QByteArray& text) {
            QFile f(file);
            QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
            f.write(text);
        };
        rl_->Jog_Move(0, 1, 1);
        advance(200);
        write("[RL.Card0.Axis1]\nLimitPlus=1\n[RL.Card0.Axis2]\nAlarm=1\nInp=2\n"
              "[RL]\nFail.SetPosSpeed=-7\n");
        advance(150);
        QCOMPARE(rl_->Done(0, 1), 0);
        QCOMPARE(rl_->GetMotionErrCod(0, 1), -620);
        QVERIFY(lamp(2, CardBit::Alm));
        QVERIFY(!lamp(2, CardBit::Inp));
        QCOMPARE(rl_->SetPosSpeed(0, 0, 100, 1000, 100, 100), -7);
        // What the file switched reads back, as a window showing the switches needs it.
        QCOMPARE(lib_->sim.GetSignal(0, 1, NRXSIM_SIGNAL_LIMIT_PLUS), 1);
        QCOMPARE(lib_->sim.GetSignal(0, 2, NRXSIM_SIGNAL_INP_OFF), 1);
        QCOMPARE(lib_->sim.GetSignal(0, 2, NRXSIM_SIGNAL_INP_ON), 0);
        nrx_i32 forced = 0;
        QCOMPARE(lib_->sim.GetForcedResult("SetPosSpeed", &forced), 1);
        QCOMPARE(forced, -7);
        write("[RL.Card0]\nEmergency=1\n");
        advance(150);
        QVERIFY(!lamp(1, CardBit::LimitPlus));
        QVERIFY(!lamp(2, CardBit::Alm));
        QVERIFY(lamp(3, CardBit::Emg));
        QCOMPARE(rl_->SetPosSpeed(0, 0, 100, 1000, 100, 100), 0);
        QCOMPARE(lib_->sim.GetSignal(0, 1, NRXSIM_SIGNAL_LIMIT_PLUS), 0);
        QCOMPARE(lib_->sim.GetSignal(0, 7, NRXSIM_SIGNAL_EMERGENCY), 1); // the card's, any axis
        QCOMPARE(lib_->sim.GetForcedResult("SetPosSpeed", &forced), 0);
        QVERIFY(QFile::remove(file));
        advance(150);
        QVERIFY(!lamp(3, CardBit::Emg));
        QCOMPARE(lib_->sim.GetSignal(0, 4, NRXSIM_SIGNAL_ALARM), -1);
        QCOMPARE(lib_->sim.GetForcedResult("SetPosSpd", &forced), -1);
    }

    void forcedResults_switchAtRunTime()
    {
        QCOMPARE(lib_->sim.SetForcedResult("Inc_Move", 1, -3), 0);
        QCOMPARE(rl_->Inc_Move(0, 0, 100), -3);
        QCOMPARE(rl_->Done(0, 0), 0);
        QCOMPARE(lib_->sim.SetForcedResult("Inc_Move", 0, 0), 0);
        QCOMPARE(rl_->Inc_Move(0, 0, 100), 0);
        QCOMPARE(lib_->sim.SetForcedResult("Inc_Mov", 1, -3), -1);
        QCOMPARE(lib_->sim.SetForcedResult("LoadDevice", 1, -3), -1);
    }
};

QTEST_GUILESS_MAIN(TestSimFaults)
#include "tst_simfaults.moc"
