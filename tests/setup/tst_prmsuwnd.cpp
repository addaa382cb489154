#include "COV_PrmSuWnd.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QStandardPaths>
#include <QTabBar>
#include <QTest>

#include <memory>

namespace {
const QString kChanged = QStringLiteral("Parameters are changed. Do you want to set parameter?");
// The question names where the edits are, above its own words.
const QString kChangedHere = QStringLiteral("NRX-RL416V(0), axis 0, \"System IO\":\n") + kChanged;
} // namespace

// The parameter setup window on the simulated boards: edits reach the board and survive a
// power cycle, and every way out of an edited page asks first.
class TestPrmSuWnd : public QObject
{
    Q_OBJECT

private:
    struct Rig : SimBoardsRig
    {
        ScriptedPrompt prompt;
        RecordingFrame frame;
        ToolContext context{state, api, prompt, frame};
        std::unique_ptr<COV_PrmSuWnd> window;

        COV_PrmSuWnd& open()
        {
            window = std::make_unique<COV_PrmSuWnd>(context);
            return *window;
        }
        template <typename T> T* find(const char* name) const
        {
            T* widget = window->findChild<T*>(QLatin1String(name));
            Q_ASSERT(widget);
            return widget;
        }
        QComboBox* list(const char* name) const { return find<QComboBox>(name); }
        void choose(const char* name, int index) const
        {
            list(name)->setCurrentIndex(index);
            emit list(name)->activated(index);
        }
        void tab(int index) const { find<QTabBar>("tabBar")->setCurrentIndex(index); }
        void click(const char* name) const { find<QPushButton>(name)->click(); }
        bool paramChangedSent(int card) const
        {
            return frame.sent.contains(qMakePair(int(UM_PARAM_CHANGED), card));
        }
        std::uint16_t limitLevel(BoardFamily family, int card, int axis)
        {
            std::uint16_t stop = 0, level = 0;
            api.GetHlmt(family, CardNo(card), AxisNo(axis), &stop, &level);
            return level;
        }
    };

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }

    void pages_setCloseReopen_boardHoldsEdits_data()
    {
        QTest::addColumn<BoardFamily>("family");
        QTest::newRow("RL") << BoardFamily::RL;
        QTest::newRow("RN") << BoardFamily::RN;
    }
    void pages_setCloseReopen_boardHoldsEdits()
    {
        QFETCH(BoardFamily, family);
        Rig rig;
        QVERIFY(rig.start());
        rig.state.active.family = family;
        rig.state.active.axis = 1;
        rig.open();
        QVERIFY(rig.find<QWidget>("stopRow")->isHidden() == (family != BoardFamily::RN));
        rig.choose("LimitLevel", 1);
        rig.choose("EmergencyLevel", 1);
        rig.click("setPrmButton");
        rig.tab(1);
        rig.choose("PulseMode", 3);
        rig.choose("EncoderDirection", 1);
        rig.find<QCheckBox>("softLimitUse")->click();
        rig.find<QLineEdit>("softLimitPlus")->setText("12345");
        rig.click("setPrmButton");
        rig.tab(2);
        rig.choose("FilterTime", 5);
        rig.find<QCheckBox>(family == BoardFamily::RN ? "FilterStop" : "FilterExternal")->click();
        rig.click("setPrmButton");
        QCOMPARE(rig.frame.sent.count(qMakePair(int(UM_PARAM_CHANGED), 0)), 3);
        rig.click("closeButton");
        QVERIFY(rig.prompt.texts().isEmpty());
        rig.window.reset();

        QVERIFY(rig.saveAndReload());
        rig.state.active.axis = 1;
        rig.open();
        QCOMPARE(rig.list("LimitLevel")->currentIndex(), 1);
        QCOMPARE(rig.list("PulseMode")->currentIndex(), 3);
        QCOMPARE(rig.find<QLineEdit>("softLimitPlus")->text(), QStringLiteral("12345"));
        QVERIFY(rig.find<QCheckBox>("softLimitUse")->isChecked());
        QCOMPARE(rig.list("FilterTime")->currentIndex(), 5);
        QVERIFY(rig.find<QCheckBox>(family == BoardFamily::RN ? "FilterStop" : "FilterExternal")
                    ->isChecked());
        // The EMG level is the card's: another axis shows it too.
        rig.choose("axisCombo", 0);
        QCOMPARE(rig.list("EmergencyLevel")->currentIndex(), 1);
    }

    void pages_changeWhatTheSimulatedAxisDoes()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.state.active.axis = 2;
        rig.open();
        rig.tab(1);
        rig.choose("EncoderDirection", 1);
        rig.find<QCheckBox>("softLimitUse")->click();
        rig.find<QLineEdit>("softLimitPlus")->setText("500");
        QVERIFY(rig.find<QLineEdit>("softLimitPlus")->font().bold());
        rig.click("setPrmButton");
        QVERIFY(!rig.find<QLineEdit>("softLimitPlus")->font().bold());
        QCOMPARE(rig.frame.notes, QStringList{"Wrote \"Motion Parameter\" of NRX-RL416V(0) axis 2 "
                                              "to the board (not saved yet)"});
        rig.api.Inc_Move(BoardFamily::RL, 0, 2, 2000);
        rig.advance(BoardFamily::RL, 5000);
        QCOMPARE(rig.api.Done(BoardFamily::RL, 0, 2), 0);
        QVERIFY(rig.api.GetCommandPos(BoardFamily::RL, 0, 2) <= 500);
        QVERIFY(rig.api.GetMotionErrCod(BoardFamily::RL, 0, 2) < 0);
        QVERIFY(rig.api.GetActualPos(BoardFamily::RL, 0, 2) < 0);
    }

    void leaveCheck_asksOnEveryWayOut_data()
    {
        QTest::addColumn<QString>("way");
        QTest::addColumn<bool>("yes");
        for (const char* way :
             {"tab", "card", "axis", "copy", "controller", "axisMessage", "import", "close"}) {
            QTest::addRow("%s yes", way) << QString::fromLatin1(way) << true;
            QTest::addRow("%s no", way) << QString::fromLatin1(way) << false;
        }
    }
    void leaveCheck_asksOnEveryWayOut()
    {
        QFETCH(QString, way);
        QFETCH(bool, yes);
        Rig rig;
        QVERIFY(rig.start());
        rig.open();
        rig.choose("LimitLevel", 1);
        QVERIFY(rig.list("LimitLevel")->font().bold());
        QVERIFY(!rig.list("AlarmLevel")->font().bold());
        rig.prompt.queueAnswers({yes});
        if (way == "tab") {
            rig.tab(2);
        } else if (way == "card") {
            rig.choose("cardCombo", 1);
        } else if (way == "axis") {
            rig.choose("axisCombo", 1);
        } else if (way == "copy") {
            rig.click("copyPrmButton");
        } else if (way == "controller") {
            rig.state.active.previousFamily = BoardFamily::RL;
            rig.state.active.family = BoardFamily::RN;
            rig.window->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        } else if (way == "axisMessage") {
            rig.window->handleUserMessage(UM_AXIS_CHANGED, 2);
        } else if (way == "import") {
            rig.window->handleUserMessage(UM_PARAM_LEAVE_CHECK, 0);
        } else {
            rig.click("closeButton");
        }
        QCOMPARE(rig.prompt.questions(), QStringList{kChangedHere});
        QCOMPARE(rig.limitLevel(BoardFamily::RL, 0, 0), yes ? 1 : 0);
        // Written or dropped, the field is no longer marked; kept, it still is.
        const bool kept = !yes && (way == "copy" || way == "import" || way == "close");
        QCOMPARE(rig.list("LimitLevel")->font().bold(), kept);
        QCOMPARE(rig.frame.notes.size(), yes ? 1 : 0);
        // After a controller change the written card is the previous family's.
        const bool controller = way == "controller";
        QCOMPARE(rig.paramChangedSent(0), yes && !controller);
        QCOMPARE(rig.state.registry.parametersChanged(BoardFamily::RL, 0), yes && controller);
        QVERIFY(!rig.state.registry.parametersChanged(BoardFamily::RN, 0));
        // A No on a tab change drops the edit; before a copy the page keeps it.
        if (way == "tab" || way == "copy") {
            rig.tab(0);
            QCOMPARE(rig.list("LimitLevel")->currentIndex(), yes || way == "copy" ? 1 : 0);
        }
    }

    void exit_asksAboutUnwrittenEdits()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.open();
        QVERIFY(rig.window->settleBeforeExit());
        rig.choose("LimitLevel", 1);
        rig.prompt.queueCancel();
        QVERIFY(!rig.window->settleBeforeExit());
        QCOMPARE(rig.list("LimitLevel")->currentIndex(), 1);
        rig.prompt.queueAnswers({false});
        QVERIFY(rig.window->settleBeforeExit());
        QCOMPARE(rig.list("LimitLevel")->currentIndex(), 0);
        rig.choose("LimitLevel", 1);
        rig.prompt.queueAnswers({true});
        QVERIFY(rig.window->settleBeforeExit());
        QCOMPARE(rig.limitLevel(BoardFamily::RL, 0, 0), 1);
        QVERIFY(rig.paramChangedSent(0));
        QCOMPARE(rig.prompt.questions(), QStringList(3, kChangedHere));
        // Nothing is left to ask when the window then closes.
        rig.window->requestClose();
        QCOMPARE(rig.prompt.questions().size(), 3);
    }

    void defaultPrm_andRefresh_resetAxisAndSelectors()
    {
        Rig rig;
        QVERIFY(rig.start());
        rig.state.active.axis = 3;
        rig.api.SetPulseMode(BoardFamily::RL, 0, 3, 4);
        rig.open();
        QCOMPARE(rig.window->windowTitle(), QStringLiteral("Parameter Setup - NRX-RL416V(0)"));
        QCOMPARE(rig.list("PulseMode")->currentIndex(), 4);
        rig.prompt.queueAnswers({false, true});
        rig.click("defaultPrmButton");
        QCOMPARE(rig.api.GetPulseMode(BoardFamily::RL, 0, 3), 4);
        rig.click("defaultPrmButton");
        QCOMPARE(rig.prompt.questions(),
                 QStringList(2, QStringLiteral("3 axis parameter set to default value?")));
        QCOMPARE(rig.api.GetPulseMode(BoardFamily::RL, 0, 3), 0);
        QCOMPARE(rig.list("PulseMode")->currentIndex(), 0);
        QVERIFY(!rig.paramChangedSent(0));
        // The motion and I/O windows reload the defaults.
        QCOMPARE(rig.frame.sent, (QList<QPair<int, int>>{{UM_VIEW_COMMAND, ToolSingleAxis},
                                                         {UM_VIEW_COMMAND, ToolMultiAxis},
                                                         {UM_VIEW_COMMAND, ToolDigitalIo}}));

        // Card 1 has two axes: axis 3 falls back to 0, in the active controller too.
        rig.choose("cardCombo", 1);
        QCOMPARE(rig.window->windowTitle(), QStringLiteral("Parameter Setup - NRX-RL224V(1)"));
        QCOMPARE(rig.list("axisCombo")->count(), 2);
        QCOMPARE(rig.state.active.axis, 0);
        // RM has one card: its selector shows "0" and cannot be changed.
        rig.state.active = {BoardFamily::RM, BoardFamily::RL, 0, 0, {}};
        rig.window->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
        QVERIFY(!rig.list("cardCombo")->isEnabled());
        QCOMPARE(rig.list("cardCombo")->currentText(), QStringLiteral("0"));
    }
};

QTEST_MAIN(TestPrmSuWnd)
#include "tst_prmsuwnd.moc"
