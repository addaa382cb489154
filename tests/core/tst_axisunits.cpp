#include "AxisUnits.h"
#include "TextFile.h"

#include <QTemporaryDir>
#include <QTest>

#include <cstdint>
#include <limits>

// Axis scales: pulses read as units with the chosen decimals, and the scales and the switch
// kept in the settings file beside its other sections.
class TestAxisUnits : public QObject
{
    Q_OBJECT

private slots:
    void format_data()
    {
        QTest::addColumn<double>("pulsesPerUnit");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<double>("pulses");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole scale") << 1000.0 << 3 << 5000.0 << "5.000";
        QTest::newRow("negative") << 1000.0 << 3 << -12500.0 << "-12.500";
        QTest::newRow("no decimals rounds") << 1000.0 << 0 << 2500.0 << "3";
        QTest::newRow("six decimals") << 1000.0 << 6 << -1.0 << "-0.001000";
        QTest::newRow("rounds to zero, no minus") << 1000.0 << 3 << -0.4 << "0.000";
        QTest::newRow("non-whole scale") << 2777.777 << 3 << 5000.0 << "1.800";
        QTest::newRow("non-whole, six") << 2777.777 << 6 << 2777778.0 << "1000.000360";
        QTest::newRow("32-bit max")
            << 1000.0 << 3 << double(std::numeric_limits<std::int32_t>::max()) << "2147483.647";
        QTest::newRow("32-bit min")
            << 1000.0 << 3 << double(std::numeric_limits<std::int32_t>::min()) << "-2147483.648";
        QTest::newRow("fraction of a pulse per unit")
            << 0.5 << 0 << double(std::numeric_limits<std::int32_t>::min()) << "-4294967296";
        QTest::newRow("32-bit min, six decimals")
            << 2777.777 << 6 << double(std::numeric_limits<std::int32_t>::min())
            << "-773094.329746";
    }
    void format()
    {
        QFETCH(double, pulsesPerUnit);
        QFETCH(int, decimals);
        QFETCH(double, pulses);
        QFETCH(QString, text);
        const AxisUnitScale scale(QStringLiteral("mm"), pulsesPerUnit, decimals);
        QCOMPARE(scale.format(pulses), text);
        QCOMPARE(scale.formatWithUnit(pulses), text + QStringLiteral(" mm"));
        QCOMPARE(scale.formatSpeedWithUnit(pulses), text + QStringLiteral(" mm/s"));
    }

    void scale_withoutPulsesPerUnit_staysInPulses()
    {
        for (double bad : {0.0, -1000.0, std::numeric_limits<double>::quiet_NaN()}) {
            const AxisUnitScale scale(QStringLiteral("mm"), bad, 3);
            QVERIFY(!scale.isSet());
            QCOMPARE(scale.formatWithUnit(-2147483648.0), QStringLiteral("-2147483648"));
        }
        QCOMPARE(AxisUnitScale(QStringLiteral("mm"), 1000, 9).decimals(), 6);
        QCOMPARE(AxisUnitScale(QStringLiteral("mm"), 1000, -1).decimals(), 0);
    }

    void parsePulsesPerUnit_onlyPositiveNumbers()
    {
        QCOMPARE(AxisUnitScale::parsePulsesPerUnit(QStringLiteral(" 2777.777 ")), 2777.777);
        for (const char* bad : {"", "0", "-5", "abc", "12mm", "inf", "nan"})
            QVERIFY2(!AxisUnitScale::parsePulsesPerUnit(QString::fromLatin1(bad)), bad);
        QCOMPARE(AxisUnitScale::pulsesPerUnitText(2777.777), QStringLiteral("2777.777"));
        QCOMPARE(AxisUnitScale::pulsesPerUnitText(1000), QStringLiteral("1000"));
    }

    void settings_roundTripBesideSystemSection()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("ZelbrinOrvane.ini"));
        const QByteArray system = "[System]\r\nDefault_Show_Status_Window=0\r\n";
        TextFile::write(path, system);
        QVERIFY(!AxisUnits::read(path).shown());

        AxisUnits units;
        units.setScale(BoardFamily::RL, 0, 1, AxisUnitScale(QStringLiteral("mm"), 2777.777, 4));
        units.setScale(BoardFamily::RN, 2, 7, AxisUnitScale(QStringLiteral("deg"), 100, 0));
        units.setShown(true);
        QVERIFY(units.writeCard(path, BoardFamily::RL, 0, 4));
        QVERIFY(units.writeCard(path, BoardFamily::RN, 2, 8));
        QVERIFY(units.writeShown(path));
        const QByteArray written = TextFile::read(path);
        QVERIFY(written.startsWith(system));
        QVERIFY(written.contains("[Units.RL.0.1]\r\nUnit=mm\r\nPulsesPerUnit=2777.777\r\n"
                                 "Decimals=4\r\n"));
        QVERIFY(!written.contains("[Units.RL.0.0]")); // an axis without a scale adds nothing
        QVERIFY(written.contains("[Units]\r\nShow=1\r\n"));

        const AxisUnits back = AxisUnits::read(path);
        QVERIFY(back.shown());
        QVERIFY(back.scale(BoardFamily::RL, 0, 1) == units.scale(BoardFamily::RL, 0, 1));
        QCOMPARE(back.scale(BoardFamily::RN, 2, 7).unit(), QStringLiteral("deg"));
        QVERIFY(!back.scale(BoardFamily::RL, 0, 0).isSet());
        QVERIFY(!back.shownScale(BoardFamily::RM, 0, 1).isSet());

        // A removed scale empties its section and reads back as none.
        units.setScale(BoardFamily::RL, 0, 1, AxisUnitScale());
        QVERIFY(units.writeCard(path, BoardFamily::RL, 0, 4));
        QVERIFY(!AxisUnits::read(path).scale(BoardFamily::RL, 0, 1).isSet());
    }

    void read_damagedSections_areNoScale()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("ZelbrinOrvane.ini"));
        TextFile::write(path,
                        "[Units.RL.0.0]\nPulsesPerUnit=-3\n[Units.XX.0.1]\nPulsesPerUnit=5\n"
                        "[Units.RL.zero.2]\nPulsesPerUnit=5\n[units.rl.0.3]\nPulsesPerUnit=5\n");
        const AxisUnits units = AxisUnits::read(path);
        QVERIFY(!units.scale(BoardFamily::RL, 0, 0).isSet());
        QVERIFY(!units.scale(BoardFamily::RL, 0, 2).isSet());
        QCOMPARE(units.scale(BoardFamily::RL, 0, 3).decimals(), 3);
        QVERIFY(!units.shownScale(BoardFamily::RL, 0, 3).isSet()); // the switch is off
    }

    void revision_changesOnlyOnChange()
    {
        AxisUnits units;
        const AxisUnitScale mm(QStringLiteral("mm"), 1000, 3);
        units.setScale(BoardFamily::RL, 0, 0, mm);
        const int after = units.revision();
        units.setScale(BoardFamily::RL, 0, 0, mm);
        units.setShown(false);
        QCOMPARE(units.revision(), after);
        units.setShown(true);
        QVERIFY(units.revision() != after);
    }
};

QTEST_GUILESS_MAIN(TestAxisUnits)
#include "tst_axisunits.moc"
