#include "CLedButton.h"
#include "LedFaces.h"
#include "PaintCounter.h"

#include <QApplication>
#include <QTest>

// The LED control: state changes, repaint economy, icon placement and drawing, colours.
class TestLedButton : public QObject
{
    Q_OBJECT

private:
    struct ShownLamp
    {
        CLedButton button{QStringLiteral("LMT+")};
        PaintCounter counter;
        ShownLamp()
        {
            button.resize(80, 20);
            button.SetStateIconHandle(0, LedFaces::face(LedLamp::Grey, LedGround::Grey));
            button.SetStateIconHandle(1, LedFaces::face(LedLamp::Green, LedGround::Grey));
            button.show();
            QVERIFY(QTest::qWaitForWindowExposed(&button));
            QApplication::processEvents();
            button.installEventFilter(&counter);
        }
        int paintsAfterEvents()
        {
            QApplication::processEvents();
            return counter.paints;
        }
    };

private slots:
    void setState_repaintsOnlyOnAChangeOrAStateOutOfRange()
    {
        ShownLamp lamp;
        lamp.button.SetState(0);
        QCOMPARE(lamp.paintsAfterEvents(), 0);
        lamp.button.SetState(1);
        QCOMPARE(lamp.button.state(), 1u);
        QVERIFY(lamp.paintsAfterEvents() > 0);
        lamp.counter.paints = 0;
        for (int poll = 0; poll < 10; ++poll)
            lamp.button.SetState(1);
        QCOMPARE(lamp.paintsAfterEvents(), 0);
        // A state the lamp does not have keeps the shown one but still repaints.
        lamp.button.SetState(5);
        QCOMPARE(lamp.button.state(), 1u);
        QVERIFY(lamp.paintsAfterEvents() > 0);
    }

    void setState_filterAndReturnTimerDecideTheShownState()
    {
        CLedButton button;
        button.SetStateCount(3, false);
        button.setStateFilter([](unsigned requested, unsigned current, bool) {
            return requested == 2 ? current : requested;
        });
        button.setStateReturn(true, 0);
        button.SetState(1);
        button.SetState(2);
        QCOMPARE(button.state(), 1u);
        button.returnToState();
        QCOMPARE(button.state(), 0u);
    }

    void stateCount_resetsColoursAndBoundsEveryOperation()
    {
        CLedButton button;
        QVERIFY(button.SetStateColors(1, Qt::red, Qt::blue));
        button.SetState(1, false);
        QCOMPARE(button.backgroundColor(), QColor(Qt::blue));
        button.SetStateCount(4, false);
        QCOMPARE(button.stateBackgroundColor(1), button.palette().color(QPalette::Button));
        QVERIFY(button.SetStateIconHandle(3, LedFaces::face(LedLamp::Red, LedGround::White)));
        QVERIFY(!button.SetStateIconHandle(4, LedFaces::face(LedLamp::Red, LedGround::White)));
        QVERIFY(!button.SetStateColors(4, Qt::red, Qt::blue));
        // With no state left the background is the button face.
        button.SetStateCount(0, false);
        QCOMPARE(button.backgroundColor(), button.palette().color(QPalette::Button));
    }

    void systemColourChange_givesEveryStateTheNewDefaults()
    {
        CLedButton button;
        button.SetStateColors(1, Qt::red, Qt::blue);
        QPalette changed = button.palette();
        changed.setColor(QPalette::Button, QColor(10, 20, 30));
        changed.setColor(QPalette::ButtonText, QColor(200, 100, 0));
        button.setPalette(changed);
        for (unsigned state = 0; state < 2; ++state) {
            QCOMPARE(button.stateBackgroundColor(state), QColor(10, 20, 30));
            QCOMPARE(button.stateTextColor(state), QColor(200, 100, 0));
        }
    }

    void drawing_iconSideFollowsLeftTextDisabledIsGreyedAndEngraved()
    {
        ShownLamp lamp;
        lamp.button.SetState(1);
        auto greenAt = [&](int x) {
            const QColor c = lamp.button.grab().toImage().pixelColor(x, 10);
            return c.green() > 150 && c.red() < 120 && c.blue() < 120;
        };
        QVERIFY(greenAt(8) && !greenAt(80 - 8));
        lamp.button.setLeftText(true);
        QVERIFY(greenAt(80 - 8) && !greenAt(8));

        lamp.button.setEnabled(false);
        QVERIFY(!greenAt(80 - 8));
        // The engraved caption leaves highlight-coloured pixels in the text area.
        const QImage image = lamp.button.grab().toImage();
        const QColor light = lamp.button.palette().color(QPalette::Light);
        bool highlight = false;
        for (int x = 0; x < 60 && !highlight; ++x)
            for (int y = 0; y < 20 && !highlight; ++y)
                highlight = image.pixelColor(x, y) == light;
        QVERIFY(highlight);
    }

    void faces_haveTheirSizeAndColours()
    {
        for (LedGround ground : {LedGround::Grey, LedGround::White}) {
            const QImage green = LedFaces::face(LedLamp::Green, ground).toImage();
            const QImage red = LedFaces::face(LedLamp::Red, ground).toImage();
            QCOMPARE(green.size(), QSize(16, 16));
            QVERIFY(green.pixelColor(8, 8).green() > 200);
            QVERIFY(red.pixelColor(8, 8).red() > 200);
            QCOMPARE(green.pixelColor(0, 0), LedFaces::groundColor(ground));
            // An absent signal looks the same on both grounds and shows no lamp.
            const QImage flat = LedFaces::face(LedLamp::Flat, ground).toImage();
            QCOMPARE(flat.pixelColor(8, 8), flat.pixelColor(0, 0));
        }
    }
};

QTEST_MAIN(TestLedButton)
#include "tst_ledbutton.moc"
