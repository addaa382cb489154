#include "SpeedProfile.h"

#include <QtTest>

using nrxsim::SpeedProfile;

namespace {

SpeedProfile profile(int drive, int initial, int accel, int decel, bool sCurve = false,
                     int range = 100, bool fixed = false)
{
    SpeedProfile::Request r;
    r.drive = drive;
    r.initial = initial;
    r.accelMs = accel;
    r.decelMs = decel;
    r.shape = sCurve ? SpeedProfile::Shape::SCurve : SpeedProfile::Shape::Trapezoid;
    r.range = range;
    r.fixedRange = fixed;
    return SpeedProfile(r);
}

} // namespace

// The register rules the actual-speed calculator shows.
class TestSimProfiles : public QObject
{
    Q_OBJECT

private slots:
    void magnification_followsRangeRules_data()
    {
        QTest::addColumn<int>("drive");
        QTest::addColumn<int>("range");
        QTest::addColumn<bool>("fixed");
        QTest::addColumn<int>("magnification");
        QTest::addColumn<int>("driveSpeed");
        QTest::newRow("auto 800000 under 500") << 800000 << 500 << false << 100 << 800000;
        QTest::newRow("auto 8001 is two") << 8001 << 100 << false << 2 << 8002;
        QTest::newRow("auto capped by R") << 800000 << 10 << false << 10 << 80000;
        QTest::newRow("fixed R 0 is 1") << 10000 << 0 << true << 1 << 8000;
        QTest::newRow("fixed R 600 is 500") << 10000 << 600 << true << 500 << 10000;
    }
    void magnification_followsRangeRules()
    {
        QFETCH(int, drive);
        QFETCH(int, range);
        QFETCH(bool, fixed);
        QFETCH(int, magnification);
        QFETCH(int, driveSpeed);
        const SpeedProfile p = profile(drive, 100, 100, 100, false, range, fixed);
        QCOMPARE(p.magnification(), magnification);
        QCOMPARE(p.driveSpeed(), driveSpeed);
        QCOMPARE(p.driveSpeed() % p.magnification(), 0);
    }

    void initialSpeed_isLimited()
    {
        // Above the drive speed it is lowered to it.
        const SpeedProfile high = profile(5000, 9000, 100, 100);
        QCOMPARE(high.initialSpeed(), high.driveSpeed());
        // An S-curve starts at 100 register steps at least: 300 pps at magnification 3.
        const SpeedProfile s = profile(20000, 50, 100, 100, true);
        QCOMPARE(s.magnification(), 3);
        QCOMPARE(s.initialSpeed(), 300);
    }

    void trapezoid_rateRegisterRounds()
    {
        // 9900 pps in 130 ms at R 2: 76153.8 pps/s = register 304.6 -> 305, 76250 pps/s.
        const SpeedProfile p = profile(10000, 100, 130, 200);
        QCOMPARE(p.magnification(), 2);
        QCOMPARE(p.accelRegister(), 305);
        QCOMPARE(p.accelRate(), 76250.0);
        QVERIFY(qAbs(p.accelTimeMs() - 9900.0 / 76250.0 * 1000.0) < 1e-9);
        QCOMPARE(p.decelRegister(), 198);
        QVERIFY(qAbs(p.decelTimeMs() - 200.0) < 1e-9);
        // No speed change still gives the smallest register, not zero.
        QCOMPARE(profile(5000, 5000, 100, 100).accelRegister(), 1);
    }

    void sCurve_jerkRegisterAndTimes()
    {
        // J = 4 * 9900 / 0.1^2 = 3.96e6; k = round(62.5e6 / J * 2) = 32; J' = 3.90625e6;
        // ramp from 200 to 10000 pps: sqrt(4 * 9800 / J') = 0.1002 s -> 100 ms.
        const SpeedProfile p = profile(10000, 100, 100, 900, true);
        QCOMPARE(p.jerkRegister(), 32);
        QCOMPARE(p.jerk(), 3.90625e6);
        QCOMPARE(p.accelTimeMs(), 100.0);
        QCOMPARE(p.decelTimeMs(), p.accelTimeMs()); // the decel input is not used
    }
};

QTEST_APPLESS_MAIN(TestSimProfiles)
#include "tst_simprofiles.moc"
