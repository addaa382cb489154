#include "AppState.h"
#include "COV_AxisUnitsDlg.h"
#include "ScriptedPrompt.h"
#include "TextFile.h"

#include <QApplication>
#include <QLineEdit>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

// "Axis Units" for a 4-axis card: a row an axis, a refusal for a scale that is no positive
// number, and nothing written until every row is sound.
class TestAxisUnitsDlg : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    AppState m_state;
    ScriptedPrompt m_prompt;

    static void typeInto(QWidget* field, const QString& text)
    {
        field->setFocus(Qt::TabFocusReason);
        QWidget* focused = QApplication::focusWidget();
        QVERIFY(focused);
        QTest::keyClick(focused, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(focused, text);
    }

private slots:
    void init()
    {
        m_state = AppState();
        m_state.registry.setLoadResult(BoardFamily::RL, 0);
        m_state.registry.setCardInfo(BoardFamily::RL, 0, 4, 0, 16);
        m_state.settingsFilePath = m_dir.filePath(QStringLiteral("ZelbrinOrvane.ini"));
        QFile::remove(m_state.settingsFilePath);
        m_prompt.clear();
    }

    void accept_unsoundRow_refusesAndWritesNothing()
    {
        COV_AxisUnitsDlg dialog(m_state, m_prompt);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(dialog.rowCount(), 4);
        typeInto(dialog.pulsesField(0), QStringLiteral("1000"));
        for (const QString& bad :
             {QStringLiteral("-5"), QStringLiteral("0"), QStringLiteral("1,5mm")}) {
            m_prompt.clear();
            typeInto(dialog.pulsesField(2), bad);
            dialog.accept();
            QCOMPARE(
                m_prompt.messages(),
                QStringList(QStringLiteral("2 Axis : Pulses/Unit \"%1\" is not a positive number.")
                                .arg(bad)));
            QVERIFY(dialog.isVisible());
            QCOMPARE(QApplication::focusWidget(), dialog.pulsesField(2));
            QVERIFY(!QFile::exists(m_state.settingsFilePath));
            QVERIFY(!m_state.units.scale(BoardFamily::RL, 0, 0).isSet());
        }

        m_prompt.clear();
        typeInto(dialog.pulsesField(2), QStringLiteral("2777.777"));
        dialog.decimalsField(2)->setValue(6);
        dialog.accept();
        QVERIFY(m_prompt.messages().isEmpty());
        QVERIFY(!dialog.isVisible());
        QCOMPARE(m_state.units.scale(BoardFamily::RL, 0, 2).pulsesPerUnit(), 2777.777);
        const AxisUnits stored = AxisUnits::read(m_state.settingsFilePath);
        QVERIFY(stored.scale(BoardFamily::RL, 0, 0) ==
                AxisUnitScale(QStringLiteral("mm"), 1000, 3));
        QCOMPARE(stored.scale(BoardFamily::RL, 0, 2).decimals(), 6);
        QVERIFY(!stored.scale(BoardFamily::RL, 0, 1).isSet());
    }

    void open_showsStoredScalesAndClearingRemovesOne()
    {
        m_state.units.setScale(BoardFamily::RL, 0, 3, AxisUnitScale(QStringLiteral("deg"), 100, 1));
        COV_AxisUnitsDlg dialog(m_state, m_prompt);
        QCOMPARE(dialog.pulsesField(3)->text(), QStringLiteral("100"));
        QCOMPARE(dialog.decimalsField(3)->value(), 1);
        dialog.pulsesField(3)->clear();
        dialog.accept();
        QVERIFY(!m_state.units.scale(BoardFamily::RL, 0, 3).isSet());
    }
};

QTEST_MAIN(TestAxisUnitsDlg)
#include "tst_axisunitsdlg.moc"
