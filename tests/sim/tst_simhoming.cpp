#include "SimConstants.h"
#include "SimLibrary.h"

#include <QTemporaryDir>
#include <QtTest>

#include <memory>

using namespace nrxsim;

namespace {

// Origin dog -10500 .. -9500, Z marks at 300 + k * 4000 (..., -11700, -7700, -3700, 300, ...),
// limits at +-50000. Axis 1 starts below the dog, axis 2 on a Z mark, axis 3 has its
// origin outside the limits.
const char* const Boards = R"(
[RL]
Cards=1
[RL.Card0]
Axes=4
[Axes]
PlusLimit=50000
MinusLimit=-50000
Origin=-10000
OriginWidth=1000
ZPeriod=4000
ZOffset=300
[RL.Card0.Axis1]
Start=-20000
[RL.Card0.Axis2]
Start=300
[RL.Card0.Axis3]
Origin=90000
)";

constexpr int Minus = 1; // SetHomeDir: 0 CW (plus), 1 CCW (minus)
constexpr int Plus = 0;

} // namespace

// Home searches of every mode on the simulated boards.
class TestSimHoming : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dir_;
    std::unique_ptr<SimLibrary> lib_;
    NrxFunctionTable* nrx_ = nullptr;

    int home(int axis, int mode, int direction, int offset = 0)
    {
        nrx_->SetHomeMode(0, axis, mode);
        nrx_->SetHomeDir(0, axis, direction);
        nrx_->SetHomeOffset(0, axis, offset);
        nrx_->SetHomeSpeed(0, axis, 2000, 20000, 100);
        nrx_->Home_Move(0, axis);
        int ms = 0;
        while (nrx_->Done(0, axis) && ms < 300000) {
            if (ms == 5)
                [&] { QVERIFY(nrx_->GetCardStatus(0, axis) & CardBit::Home); }();
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
        nrx_ = &lib_->nrx;
    }

    void init() { QCOMPARE(lib_->loadIn(dir_.path()), 0); }

    void mode_endsOnItsSensor_data()
    {
        QTest::addColumn<int>("axis");
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("expected"); // machine position
        QTest::addColumn<int>("stopBit");
        // Searching minus from 0, the dog is met at its upper edge -9500. The high-speed modes
        // 2, 3, 6 and 7 end where their low-speed twins do.
        QTest::newRow("0 LowHome ORG") << 0 << 0 << Minus << 0 << -9500 << int(DriveBit::StopOrg);
        // ... and the next Z mark below it is -11700.
        QTest::newRow("1 LowHome ORG+EZ")
            << 0 << 1 << Minus << 0 << -11700 << int(DriveBit::StopEz);
        QTest::newRow("4 LowHome Limit")
            << 0 << 4 << Minus << 0 << -50000 << int(DriveBit::StopLimitMinus);
        // Off the limit, back up to the first Z mark: -47700.
        QTest::newRow("5 LowHome Limit+EZ")
            << 0 << 5 << Minus << 0 << -47700 << int(DriveBit::StopEz);
        QTest::newRow("8 LowHome EZ") << 0 << 8 << Minus << 0 << -3700 << int(DriveBit::StopEz);
        QTest::newRow("9 CurPos ORG") << 0 << 9 << Minus << 0 << 0 << 0;
        QTest::newRow("4 plus") << 0 << 4 << Plus << 0 << 50000 << int(DriveBit::StopLimitPlus);
        // From below the dog the minus limit turns the search round: same edge.
        QTest::newRow("0 via limit") << 1 << 0 << Minus << 0 << -9500 << int(DriveBit::StopOrg);
        // Searching plus from 0 meets the plus limit, comes back through the dog and then
        // approaches it from below: -10500.
        QTest::newRow("0 plus via limit")
            << 0 << 0 << Plus << 0 << -10500 << int(DriveBit::StopOrg);
        QTest::newRow("0 offset") << 0 << 0 << Minus << 2500 << -7000 << int(DriveBit::StopOrg);
        QTest::newRow("1 offset") << 0 << 1 << Minus << -300 << -12000 << int(DriveBit::StopEz);
        QTest::newRow("9 offset") << 0 << 9 << Minus << 1234 << 1234 << 0;
    }
    void mode_endsOnItsSensor()
    {
        QFETCH(int, axis);
        QFETCH(int, mode);
        QFETCH(int, direction);
        QFETCH(int, offset);
        QFETCH(int, expected);
        QFETCH(int, stopBit);
        nrx_->SetCommandPos(0, axis, 123456);
        nrx_->SetActualPos(0, axis, -654);
        home(axis, mode, direction, offset);
        QCOMPARE(nrx_->Done(0, axis), 0);
        QCOMPARE(nrx_->GetMotionErrCod(0, axis), 0);
        QCOMPARE(lib_->sim.GetMachinePos(0, axis), expected);
        const nrx_u16 card = nrx_->GetCardStatus(0, axis);
        QVERIFY(card & CardBit::HomeOk);
        QVERIFY(!(card & (CardBit::Home | CardBit::Err)));
        QCOMPARE(nrx_->GetCommandPos(0, axis), 0);
        QCOMPARE(nrx_->GetActualPos(0, axis), 0);
        QCOMPARE(nrx_->GetDrvStatus(0, axis) & 0xFE00, stopBit);
    }

    void builtInBoards_homeInEveryMode()
    {
        QTemporaryDir empty; // no boards file: the built-in set
        for (int mode = 0; mode < 10; ++mode) {
            QCOMPARE(lib_->loadIn(empty.path()), 1); // two RL cards
            QVERIFY(!(nrx_->GetCardStatus(0, 1) & CardBit::Ez));
            home(1, mode, Minus);
            QVERIFY2(nrx_->GetMotionErrCod(0, 1) == 0, qPrintable(QString::number(mode)));
            QVERIFY(nrx_->GetCardStatus(0, 1) & CardBit::HomeOk);
        }
    }

    void highSpeedModes_endWhereTheirTwinsDoButSooner()
    {
        for (const int mode : {0, 1, 4, 5}) {
            init();
            const int low = home(0, mode, Minus);
            const int at = lib_->sim.GetMachinePos(0, 0);
            init();
            const int high = home(0, mode + 2, Minus);
            QCOMPARE(lib_->sim.GetMachinePos(0, 0), at);
            QVERIFY2(high < low, qPrintable(QString::number(mode)));
            // 9500 pulses at 2000 pps take 4.75 s; at 20000 pps a fraction of that.
            QVERIFY(mode != 0 || (low >= 4700 && high < low / 2));
        }
    }

    void highSpeedLimitModes_stopAsTheLimitStopModeSays()
    {
        for (const int slowDown : {0, 1}) {
            for (const int mode : {6, 7}) {
                init();
                nrx_->SetHlmt(0, 0, slowDown, 0);
                nrx_->SetHomeMode(0, 0, mode);
                nrx_->SetHomeDir(0, 0, Minus);
                nrx_->SetHomeSpeed(0, 0, 2000, 200000, 100);
                nrx_->Home_Move(0, 0);
                int lowest = 0;
                for (int ms = 0; nrx_->Done(0, 0) && ms < 100000; ++ms) {
                    lib_->sim.AdvanceClock(1);
                    lowest = std::min(lowest, lib_->sim.GetMachinePos(0, 0));
                }
                const QString row = QStringLiteral("stop %1 mode %2").arg(slowDown).arg(mode);
                QVERIFY2(nrx_->GetMotionErrCod(0, 0) == 0, qPrintable(row));
                QCOMPARE(lib_->sim.GetMachinePos(0, 0), mode == 6 ? -50000 : -47700);
                // E-Stop: not one pulse past the switch; S-Stop ramps down beyond it.
                QVERIFY2(slowDown ? lowest < -51000 : lowest == -50000, qPrintable(row));
            }
        }
    }

    void zMarkUnderTheAxis_isRefused()
    {
        home(2, 8, Minus);
        QCOMPARE(nrx_->GetMotionErrCod(0, 2), -660);
        QVERIFY(!(nrx_->GetCardStatus(0, 2) & CardBit::HomeOk));
        QVERIFY(nrx_->GetErrStatus(0, 2) & ErrorBit::DuringHome);
    }

    void impossibleSearches_fail()
    {
        home(3, 0, Minus); // the origin lies beyond the limits
        QCOMPARE(nrx_->GetMotionErrCod(0, 3), -9999);
        QVERIFY(!(nrx_->GetCardStatus(0, 3) & CardBit::HomeOk));
        home(0, 10, Minus); // no such mode
        QCOMPARE(nrx_->GetMotionErrCod(0, 0), -9999);
        QCOMPARE(lib_->sim.GetMachinePos(0, 0), 0);
    }

    void homeOk_clearedByTheNextSearchAndByReset()
    {
        home(0, 9, Minus);
        QVERIFY(nrx_->GetCardStatus(0, 0) & CardBit::HomeOk);
        nrx_->SetHomeMode(0, 0, 0);
        nrx_->Home_Move(0, 0);
        QVERIFY(!(nrx_->GetCardStatus(0, 0) & CardBit::HomeOk));
        lib_->sim.AdvanceClock(100);
        nrx_->Decel_Stop(0, 0); // stopped by hand: no error, not homed
        lib_->sim.AdvanceClock(100);
        QCOMPARE(nrx_->Done(0, 0), 0);
        QCOMPARE(nrx_->GetMotionErrCod(0, 0), 0);
        QVERIFY(!(nrx_->GetCardStatus(0, 0) & CardBit::HomeOk));
        home(0, 9, Minus);
        nrx_->Reset(0);
        QVERIFY(!(nrx_->GetCardStatus(0, 0) & CardBit::HomeOk));
    }
};

QTEST_GUILESS_MAIN(TestSimHoming)
#include "tst_simhoming.moc"
