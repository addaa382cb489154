#include "AppState.h"
#include "COV_SavePrmDlg.h"
#include "COV_SysRstDlg.h"
#include "CardTypeSelector.h"
#include "RecordingBoardSet.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTest>

// Saving parameter files and resetting cards on recording boards: which files, in which
// order, the parameters-changed flags, the selectors and the reload messages.
class TestSaveReset : public QObject
{
    Q_OBJECT

private:
    // RL with two cards, no RM, RN with one card; every card's flag set.
    struct Rig : RecordingBoardSet
    {
        AppState state;
        ScriptedPrompt prompt;
        RecordingFrame frame;
        ToolContext context{state, api, prompt, frame};
        Rig(int rlCards = 2, int rnCards = 1)
        {
            state.registry.setLoadResult(BoardFamily::RL, rlCards - 1);
            state.registry.setLoadResult(BoardFamily::RM, -1);
            state.registry.setLoadResult(BoardFamily::RN, rnCards - 1);
            for (BoardFamily family : kAllFamilies)
                for (int card = 0; card < kMaxCards; ++card)
                    state.registry.setParametersChanged(family, card, true);
            state.active.family = BoardFamily::RN;
            for (int card = 0; card < rlCards; ++card)
                state.registry.setCardInfo(BoardFamily::RL, static_cast<CardNo>(card), 4, 0x21, 16);
            for (int card = 0; card < rnCards; ++card)
                state.registry.setCardInfo(BoardFamily::RN, static_cast<CardNo>(card), 4, 0x21, 16);
        }
        QString flags(BoardFamily family)
        {
            QString text;
            for (int card = 0; card < 3; ++card)
                text += state.registry.parametersChanged(family, card) ? '1' : '0';
            return text;
        }
    };

private slots:
    void save_writesTheFilesAndClearsTheirFlags_data()
    {
        QTest::addColumn<bool>("allCards");
        QTest::addColumn<bool>("answer");
        QTest::addColumn<int>("card");
        QTest::addColumn<QStringList>("rlCalls");
        QTest::addColumn<QStringList>("rnCalls");
        QTest::addColumn<QString>("rlFlags");
        QTest::addColumn<QString>("rnFlags");
        QTest::addColumn<QStringList>("notes");
        QTest::newRow("one card") << false << false << 1 << QStringList{"SaveFile(1)"}
                                  << QStringList{} << "101"
                                  << "111" << QStringList{"Saved NRX-RL416V(1) to its parameter file"};
        QTest::newRow("all cards, yes")
            << true << true << 0 << QStringList{"SaveFile(0)", "SaveFile(1)"}
            << QStringList{"SaveFile(0)"} << "001"
            << "011" << QStringList{"Saved NRX-RL416V(0), NRX-RL416V(1), NRX-RN416V(0) to their parameter files"};
        QTest::newRow("all cards, no")
            << true << false << 0 << QStringList{} << QStringList{} << "111"
            << "111" << QStringList{};
    }
    void save_writesTheFilesAndClearsTheirFlags()
    {
        QFETCH(bool, allCards);
        QFETCH(bool, answer);
        QFETCH(int, card);
        Rig rig;
        rig.prompt.queueAnswers({answer});
        COV_SavePrmDlg dialog(rig.context);
        QCOMPARE(dialog.selector()->family(), BoardFamily::RN);
        dialog.selector()->typeList()->setCurrentIndex(0);
        dialog.selector()->fillCards(card);
        dialog.allCardsBox()->setChecked(allCards);
        dialog.save();
        QCOMPARE(rig.prompt.questions(),
                 allCards ? QStringList{"Are you sure you want to save the parameter files of "
                                        "all the cards?"}
                          : QStringList{});
        QTEST(rig.rl.calls(), "rlCalls");
        QTEST(rig.rn.calls(), "rnCalls");
        QVERIFY(rig.rm.calls().isEmpty());
        QTEST(rig.flags(BoardFamily::RL), "rlFlags");
        QTEST(rig.flags(BoardFamily::RN), "rnFlags");
        QTEST(rig.frame.notes, "notes");
        QVERIFY(rig.prompt.messages().isEmpty());
    }

    void save_refusedIsReportedAndTheCardStaysMarked()
    {
        Rig rig;
        rig.rl.setResult("SaveFile", -1);
        COV_SavePrmDlg dialog(rig.context);
        dialog.selector()->typeList()->setCurrentIndex(0);
        dialog.selector()->fillCards(1);
        dialog.save();
        QCOMPARE(rig.prompt.messages().size(), 1);
        QVERIFY2(rig.prompt.messages().front().endsWith(QLatin1String("(1): SaveFile returned -1")),
                 qPrintable(rig.prompt.messages().front()));
        QCOMPARE(rig.flags(BoardFamily::RL), QStringLiteral("111"));
        QVERIFY(rig.frame.notes.isEmpty());
    }

    void selectors_offerOnlyRealChoices()
    {
        Rig one(1, 0);
        COV_SavePrmDlg single(one.context);
        QCOMPARE(single.selector()->typeList()->count(), 1);
        QCOMPARE(single.selector()->typeList()->itemText(0), QStringLiteral("NRX-RLxxxV"));
        QVERIFY(!single.selector()->typeList()->isEnabled());
        QVERIFY(!single.selector()->cardList()->isEnabled());

        Rig two;
        COV_SavePrmDlg dialog(two.context);
        QComboBox* types = dialog.selector()->typeList();
        QComboBox* cards = dialog.selector()->cardList();
        QCOMPARE(types->itemText(1), QStringLiteral("NRX-RNxxxV"));
        QVERIFY(types->isEnabled());
        QVERIFY(!cards->isEnabled()); // RN has one card
        types->setCurrentIndex(0);
        emit types->activated(0);
        QCOMPARE(cards->count(), 2);
        QVERIFY(cards->isEnabled());
        dialog.allCardsBox()->setChecked(true);
        QVERIFY(!types->isEnabled() && !cards->isEnabled());
        dialog.allCardsBox()->setChecked(false);
        QVERIFY(types->isEnabled() && cards->isEnabled());
    }

    void reset_afterYesReloadsEveryToolWindow_data()
    {
        QTest::addColumn<bool>("answer");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }
    void reset_afterYesReloadsEveryToolWindow()
    {
        QFETCH(bool, answer);
        Rig rig;
        rig.prompt.queueAnswers({answer});
        COV_SysRstDlg dialog(rig.context);
        dialog.selector()->fillCards(0);
        dialog.reset();
        QCOMPARE(rig.prompt.questions(), QStringList{"Do you want system reset?"});
        QCOMPARE(rig.rn.calls(), answer ? QStringList{"Reset(0)"} : QStringList{});
        QVERIFY(rig.rl.calls().isEmpty());
        const QList<QPair<int, int>> reloads = {{UM_VIEW_COMMAND, 102},
                                                {UM_VIEW_COMMAND, 103},
                                                {UM_VIEW_COMMAND, 104},
                                                {UM_VIEW_COMMAND, 101}};
        QCOMPARE(rig.frame.sent, answer ? reloads : decltype(reloads)());
    }
};

QTEST_MAIN(TestSaveReset)
#include "tst_savereset.moc"
