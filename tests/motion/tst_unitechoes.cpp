#include "AppState.h"
#include "BoardApi.h"
#include "COV_SnMtnPtpWnd.h"
#include "ProfileFields.h"
#include "ScriptedPrompt.h"
#include "UnitEchoes.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

// The point-to-point page echoes its pulse fields in the axis' unit as the user types, and
// only while units are shown and the axis has a scale.
class TestUnitEchoes : public QObject
{
    Q_OBJECT

private slots:
    void typing_echoesInUnitsOfTheAxis()
    {
        AppState state;
        BoardApi board;
        ScriptedPrompt prompt;
        state.units.setScale(BoardFamily::RL, 0, 1, AxisUnitScale(QStringLiteral("mm"), 1000, 3));
        state.units.setShown(true);
        COV_SnMtnPtpWnd page(state, board, prompt);
        page.setCardAxis(0, 1);
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        auto* position2 = page.findChild<QLineEdit*>(QStringLiteral("position2"));
        auto* drive = page.findChild<QLineEdit*>(QStringLiteral("driveSpeed"));
        QVERIFY(position2 && drive);
        position2->setEnabled(true);
        position2->setFocus(Qt::TabFocusReason);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("-125"));
        QCOMPARE(page.unitEchoes()->echoOf(position2)->text(), QStringLiteral("= -0.125 mm"));
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("00"));
        QCOMPARE(page.unitEchoes()->echoOf(position2)->text(), QStringLiteral("= -12.500 mm"));
        drive->setText(QStringLiteral("5000"));
        QCOMPARE(page.unitEchoes()->echoOf(drive)->text(), QStringLiteral("= 5.000 mm/s"));

        page.setCardAxis(0, 0); // no scale: no echo
        QCOMPARE(page.unitEchoes()->echoOf(position2)->text(), QString());
        page.setCardAxis(0, 1);
        state.units.setShown(false);
        page.unitEchoes()->refresh();
        QCOMPARE(page.unitEchoes()->echoOf(drive)->text(), QString());
    }
};

QTEST_MAIN(TestUnitEchoes)
#include "tst_unitechoes.moc"
