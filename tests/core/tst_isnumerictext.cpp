#include "IsNumericText.h"

#include <QTest>

// The typed-number check, looseness included.
class TestIsNumericText : public QObject
{
    Q_OBJECT

private slots:
    void check_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("hex");
        QTest::addColumn<bool>("accepted");
        QTest::newRow("empty") << "" << false << true;
        QTest::newRow("digits") << "12000" << false << true;
        QTest::newRow("decimal point") << "1.5" << false << true;
        QTest::newRow("leading blanks") << "  \t42" << false << true;
        QTest::newRow("trailing blank") << "42 " << false << false;
        QTest::newRow("letter") << "12a" << false << false;
        QTest::newRow("hex letter allowed") << "12aF" << true << true;
        QTest::newRow("non-hex letter with hex") << "12g" << true << false;
        QTest::newRow("plus sign") << "+5" << false << false;
        QTest::newRow("minus number") << "-15" << false << true;
        QTest::newRow("minus admits punctuation") << "-1 2" << false << true;
        QTest::newRow("minus admits more minus") << "-1-+/2" << false << true;
        QTest::newRow("minus still refuses letters") << "-1x" << false << false;
        QTest::newRow("minus after blanks is not first") << " -1" << false << false;
        QTest::newRow("non-ascii digit") << QString::fromUtf8("١٢") << false << false;
        QTest::newRow("non-ascii after minus") << QString::fromUtf8("-1é") << false << false;
        QTest::newRow("non-ascii blank") << QString::fromUtf8("\u30001") << false << false;
        QTest::newRow("blanks only") << " \t\n" << false << true;
        QTest::newRow("hex upper bound") << "fF" << true << true;
        QTest::newRow("x of 0x") << "0x1F" << true << false;
        QTest::newRow("comma") << "1,5" << false << false;
        QTest::newRow("minus with hex") << "-aB" << true << true;
    }
    void check()
    {
        QFETCH(QString, text);
        QFETCH(bool, hex);
        QFETCH(bool, accepted);
        QCOMPARE(IsNumericText(text, hex), accepted);
    }
};

QTEST_GUILESS_MAIN(TestIsNumericText)
#include "tst_isnumerictext.moc"
