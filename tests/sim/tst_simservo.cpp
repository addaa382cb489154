#include "SimConstants.h"
#include "SimLibrary.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace nrxsim;

namespace {

// RL card 0: axis 0 as built in, axis 1 needs its servo on to turn.
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
[RL.Card0.Axis1]
NeedsServoOn=1
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
};

QTEST_GUILESS_MAIN(TestSimServo)
#include "tst_simservo.moc"
