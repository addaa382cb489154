#include "PositioningStatistics.h"

#include <QTest>

#include <cmath>
#include <utility>

// Checked against figures worked out by hand from the standard's definitions.
class TestPositioningStatistics : public QObject
{
    Q_OBJECT

private slots:
    void figures_workedExample();
    void figures_pureBacklash();
    void targets_spreadIrregularlyOverTheTravel();
};

void TestPositioningStatistics::figures_workedExample()
{
    // Target 0: up 1,2,3 (x̄ 2, s 1), down -1,0,1 (x̄ 0, s 1): B 2, R 2+2+2 = 6.
    // Target 100: up 4,4,4 (x̄ 4, s 0), down 2,4,6 (x̄ 4, s 2): B 0, R max(0+4+0, 0, 8) = 8.
    const PositioningStatistics stats({{0, {1, 2, 3}, {-1, 0, 1}}, {100, {4, 4, 4}, {2, 4, 6}}});

    const auto& first = stats.atTargets().at(0);
    QCOMPARE(first.meanUp, 2.0);
    QCOMPARE(first.meanDown, 0.0);
    QCOMPARE(first.sUp, 1.0);
    QCOMPARE(first.reversal, 2.0);
    QCOMPARE(first.r, 6.0);
    const auto& second = stats.atTargets().at(1);
    QCOMPARE(second.sDown, 2.0);
    QCOMPARE(second.rDown, 8.0);
    QCOMPARE(second.r, 8.0);

    const auto& axis = stats.axis();
    QCOMPARE(axis.aUp, 4.0);    // max(2+2, 4+0) - min(2-2, 4-0)
    QCOMPARE(axis.aDown, 10.0); // max(0+2, 4+4) - min(0-2, 4-4)
    QCOMPARE(axis.a, 10.0);
    QCOMPARE(axis.b, 2.0);
    QCOMPARE(axis.bMean, 1.0);
    QCOMPARE(axis.eUp, 2.0);
    QCOMPARE(axis.eDown, 4.0);
    QCOMPARE(axis.e, 4.0);
    QCOMPARE(axis.m, 3.0); // bidirectional means 1 and 4
    QCOMPARE(axis.rUp, 4.0);
    QCOMPARE(axis.rDown, 8.0);
    QCOMPARE(axis.r, 8.0);
}

void TestPositioningStatistics::figures_pureBacklash()
{
    // A reversal of -20 at one target and +5 at the other: B is the larger magnitude.
    const PositioningStatistics stats(
        {{0, {-10, -10}, {10, 10}}, {500, {5, 5}, {0, 0}}, {900, {0, 0, 0}, {0, 0, 0}}});
    const auto& axis = stats.axis();
    QCOMPARE(axis.b, 20.0);
    QCOMPARE(axis.bMean, -5.0);
    QCOMPARE(axis.rUp, 0.0);
    QCOMPARE(axis.r, 20.0); // 2*0 + 2*0 + |-20|
    QCOMPARE(axis.e, 20.0);
    QCOMPARE(axis.m, 2.5); // means 0, 2.5, 0

    const PositioningStatistics none({{0, {0, 0}, {0, 0}}, {10, {0, 0}, {0, 0}}});
    QCOMPARE(none.axis().a, 0.0);
    QCOMPARE(none.axis().r, 0.0);
}

void TestPositioningStatistics::targets_spreadIrregularlyOverTheTravel()
{
    for (const auto& [from, to] : {std::pair{0, 100000}, std::pair{50000, -50000}}) {
        const auto targets = PositioningStatistics::targetsOver(from, to, 9);
        QCOMPARE(targets.size(), size_t(9));
        QCOMPARE(targets.front(), from);
        QCOMPARE(targets.back(), to);
        const double spacing = (double(to) - from) / 8;
        bool uneven = false;
        for (size_t i = 1; i < targets.size(); ++i) {
            const double step = targets[i] - targets[i - 1];
            QVERIFY(step * spacing > 0); // in order, never on top of each other
            uneven = uneven || std::abs(targets[i] - (from + spacing * double(i))) > 1;
        }
        QVERIFY(uneven);
        QCOMPARE(PositioningStatistics::targetsOver(from, to, 9), targets);
    }
}

QTEST_APPLESS_MAIN(TestPositioningStatistics)
#include "tst_positioningstatistics.moc"
