#include "IsNumericText.h"

#include <QRandomGenerator>
#include <QTest>

#include <cctype>

namespace {
// The rule as users are told it, written apart from the check it guards.
bool byTheRule(const QString& text, bool hex)
{
    qsizetype i = 0;
    while (i < text.size() && text[i].unicode() < 0x80 && std::isspace(text[i].unicode()))
        ++i;
    for (; i < text.size(); ++i) {
        const int c = text[i].unicode();
        if (c >= 0x80)
            return false;
        if (std::isdigit(c) || c == '.')
            continue;
        if (std::isalpha(c)) {
            if (!(hex && std::isxdigit(c)))
                return false;
        } else if (!text.startsWith(QLatin1Char('-'))) {
            return false;
        }
    }
    return true;
}
} // namespace

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
    }
    void check()
    {
        QFETCH(QString, text);
        QFETCH(bool, hex);
        QFETCH(bool, accepted);
        QCOMPARE(IsNumericText(text, hex), accepted);
        QCOMPARE(byTheRule(text, hex), accepted);
    }

    void randomTexts_agreeWithTheRule()
    {
        // Mostly characters near the rule's edges, now and then any 16-bit one.
        const QString alphabet = QStringLiteral(" \t\n\r\v-+.,0123456789aAfFgGxXzZ/:@`[{~_\"'") +
                                 QChar(0x7f) + QChar(0x80) + QChar(0xa0) + QChar(0x3000) +
                                 QChar(0x0661) + QChar(0xff10) + QChar(0xd800);
        QRandomGenerator random(15031);
        for (int round = 0; round < 20000; ++round) {
            QString text;
            for (int n = int(random.bounded(12)); n > 0; --n) {
                text += random.bounded(8) == 0 ? QChar(char16_t(random.bounded(0x10000)))
                                               : alphabet[random.bounded(int(alphabet.size()))];
            }
            const bool hex = random.bounded(2) == 1;
            QVERIFY2(IsNumericText(text, hex) == byTheRule(text, hex),
                     qPrintable(QStringLiteral("%1 hex=%2").arg(text).arg(hex)));
        }
    }
};

QTEST_GUILESS_MAIN(TestIsNumericText)
#include "tst_isnumerictext.moc"
