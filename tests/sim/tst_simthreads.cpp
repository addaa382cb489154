#include "SimLibrary.h"

#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

namespace {

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

// How long the threads run: NRXSIM_THREAD_SECONDS, 1 unless a sanitizer run asks for more.
std::chrono::milliseconds runTime()
{
    const int seconds = qEnvironmentVariableIntValue("NRXSIM_THREAD_SECONDS");
    return std::chrono::milliseconds(seconds > 0 ? seconds * 1000 : 1000);
}

} // namespace

// Two threads calling one simulated library at once on its running clock: one moves an axis
// to and fro, the other reads it and moves, switches and forces everything else.
class TestSimThreads : public QObject
{
    Q_OBJECT

private slots:
    void twoThreads_neitherCrashNorCorruptAMove()
    {
        QTemporaryDir dir;
        QVERIFY(SimExtras::writeBoards(dir.path(), Boards));
        SimLibrary lib(0);
        QVERIFY2(lib.isLoaded(), qPrintable(lib.errorString()));
        QCOMPARE(lib.loadIn(dir.path()), 0);
        lib.sim.SetManualClock(0);
        const NrxFunctionTable& rl = lib.nrx;
        rl.SetPosSpeed(0, 0, 1000, 200000, 5, 5);
        rl.SetPosSpeed(0, 1, 1000, 200000, 5, 5);

        const auto end = std::chrono::steady_clock::now() + runTime();
        std::atomic<bool> running{true};
        std::atomic<int> moves{0};
        std::thread mover([&] {
            // Pairs of moves there and back: the axis must come home after each pair.
            while (std::chrono::steady_clock::now() < end) {
                for (const int distance : {2000, -2000}) {
                    rl.Inc_Move(0, 0, distance);
                    while (rl.Done(0, 0) != 0)
                        std::this_thread::yield();
                    ++moves;
                }
            }
            running = false;
        });
        int round = 0;
        while (running) {
            ++round;
            rl.GetCardStatus(0, 0);
            rl.GetDrvStatus(0, 0);
            rl.GetActualPos(0, 0);
            rl.GetCommandSpeed(0, 0);
            if (rl.Done(0, 1) == 0)
                rl.Inc_Move(0, 1, round % 2 ? 700 : -700);
            if (round % 50 == 0)
                rl.Decel_Stop(0, 1);
            lib.sim.SetSignal(0, 2, NRXSIM_SIGNAL_ALARM, round % 2);
            lib.sim.SetSignal(0, 3, NRXSIM_SIGNAL_LIMIT_PLUS, round % 3 == 0);
            lib.sim.SetForcedResult("GetDIBit", round % 2, -1);
            rl.Jog_Move(0, 3, 0);
            if (round % 7 == 0)
                rl.Sudden_Stop(0, 3);
        }
        mover.join();
        QVERIFY(moves > 10);
        QCOMPARE(rl.GetCommandPos(0, 0), 0);
        QCOMPARE(rl.GetMotionErrCod(0, 0), 0);
    }
};

QTEST_GUILESS_MAIN(TestSimThreads)
#include "tst_simthreads.moc"
