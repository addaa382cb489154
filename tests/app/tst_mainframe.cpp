#include "AppState.h"
#include "COV_MainFrame.h"
#include "COV_StBaseWnd.h"
#include "COV_WsSysWnd.h"
#include "CascadePlacement.h"
#include "RecordingBoardSet.h"
#include "ScriptedPrompt.h"
#include "TextFile.h"
#include "ToolView.h"
#include "ToolWindowHost.h"
#include "UserSettings.h"

#include <QAction>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

// A tool window that logs what it hears and agrees to close unless told otherwise.
class TestToolView : public ToolView
{
public:
    TestToolView(ToolKind kind, QStringList& log, QWidget* parent)
        : ToolView(parent), m_kind(kind), m_log(log)
    {}
    ToolKind kind() const override { return m_kind; }
    void handleUserMessage(UserMessage message, int wParam) override
    {
        m_log << QStringLiteral("%1:%2:%3").arg(m_kind).arg(message).arg(wParam);
        if (onMessage)
            onMessage(message, wParam);
    }
    void requestClose() override
    {
        ++closeRequests;
        if (agreeToClose)
            emit closeRequested();
    }
    void endMotion() override { m_log << QStringLiteral("%1:end").arg(m_kind); }
    bool settleBeforeExit() override { return agreeToExit; }
    bool agreeToExit = true;
    std::function<void(UserMessage, int)> onMessage;
    bool agreeToClose = true;
    int closeRequests = 0;

private:
    ToolKind m_kind;
    QStringList& m_log;
};

} // namespace

// The main frame on recorded boards: the tree it builds, the active controller and its
// refusal, the relay of notifications, the tool windows, the settings it reads and the exit.
class TestMainFrame : public QObject
{
    Q_OBJECT

private:
    struct Rig : RecordingBoardSet
    {
        AppState state;
        ScriptedPrompt prompt;
        ToolWindowFactory factory;
        QTemporaryDir dir;
        QStringList log;
        std::unique_ptr<COV_MainFrame> frame;

        Rig(int rlLoad, int rmLoad, int rnLoad)
        {
            for (RecordingBoard* board : all()) {
                board->setOutValues("BoardInfo", {0, 0x21, 4, 0, 16});
                board->setResult("GetDllVersion", 1020304);
            }
            rl.setResult("LoadDevice", rlLoad);
            rm.setResult("LoadDevice", rmLoad);
            rn.setResult("LoadDevice", rnLoad);
            state.moduleDirectory = dir.path() + QLatin1Char('/');
            for (ToolKind kind : {ToolDigitalIo, ToolParameter, ToolSingleAxis}) {
                factory.registerKind(kind, [this, kind](const ToolContext&, QWidget* parent) {
                    return new TestToolView(kind, log, parent);
                });
            }
        }
        bool create()
        {
            frame = std::make_unique<COV_MainFrame>(state, api, prompt, factory);
            const bool created = frame->create();
            frame->monitorTimer().stop();
            frame->resize(1200, 800);
            return created;
        }
        COV_WsSysWnd* tree() const { return frame->tree(); }
        TestToolView* view(ToolKind kind) const
        {
            return static_cast<TestToolView*>(frame->toolWindows().view(kind));
        }
        QStringList boldItems() const
        {
            QStringList bold;
            for (QTreeWidgetItemIterator item(tree()); *item; ++item) {
                if ((*item)->font(0).bold())
                    bold << (*item)->text(0);
            }
            return bold;
        }
        static QStringList children(const QTreeWidgetItem* item)
        {
            QStringList texts;
            for (int i = 0; i < item->childCount(); ++i)
                texts << item->child(i)->text(0);
            return texts;
        }
    };

private slots:
    void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
    // Every case starts as a first start would: no windows kept from an earlier exit.
    void init() { UserSettings().clear(); }

    void tree_rmAndRnOnlyMakesRmCardZeroActive()
    {
        Rig rig(-1, 0, 1);
        rig.rn.setOutValuesFor("BoardInfo", 1, 0, {0, 0x50, 8, 0, 64});
        QVERIFY(rig.create());
        COV_WsSysWnd* tree = rig.tree();
        QCOMPARE(tree->topLevelItemCount(), 2);
        QVERIFY(tree->familyItem(BoardFamily::RL) == nullptr);
        QCOMPARE(Rig::children(tree->familyItem(BoardFamily::RM)),
                 (QStringList{"Dll Ver. : 1.2.3.4", "0 : NRX-RM416V"}));
        QCOMPARE(Rig::children(tree->familyItem(BoardFamily::RN)),
                 (QStringList{"Dll Ver. : 1.2.3.4", "0 : NRX-RN416V", "1 : NRX-RN864V"}));
        QCOMPARE(Rig::children(tree->cardItem(BoardFamily::RN, 1)),
                 (QStringList{"Axis : 8", "IO : 64", "Firmware Ver. : 0.0"}));
        QVERIFY(tree->cardItem(BoardFamily::RN, 1)->isExpanded());
        QCOMPARE(rig.state.active.family, BoardFamily::RM);
        QCOMPARE(rig.state.active.previousFamily, BoardFamily::RM);
        QCOMPARE(rig.boldItems(), (QStringList{"NRX-RMxxxV", "0 : NRX-RM416V"}));
        QCOMPARE(rig.frame->familyCombo()->count(), 2);
        QCOMPARE(rig.frame->familyCombo()->currentText(), QStringLiteral("NRX-RMxxxV"));
        QCOMPARE(rig.frame->cardCombo()->count(), 1);
        QCOMPARE(rig.frame->statusDock()->windowTitle(),
                 QStringLiteral("Axis Status - NRX-RM416V(0)"));
        QCOMPARE(rig.frame->motionDock()->windowTitle(),
                 QStringLiteral("Motion Status - NRX-RM416V(0)"));
    }

    void activeController_refusedWhileAxesMoveThenSetFromTreeOrCombos()
    {
        Rig rig(-1, 0, 1);
        QVERIFY(rig.create());
        const QString refusal =
            QStringLiteral("Axes are moving !\nCan not change active controller !");
        for (MovingOwner owner : {MovingOwner::SingleAxis, MovingOwner::MultiAxis}) {
            rig.prompt.clear();
            rig.state.active.axesMoving = {};
            rig.state.active.setAxesMoving(owner, true);
            rig.frame->familyCombo()->setCurrentIndex(1);
            rig.frame->chooseFamily(1);
            QCOMPARE(rig.frame->familyCombo()->currentIndex(), 0);
            rig.tree()->setCurrentItem(rig.tree()->cardItem(BoardFamily::RN, 1));
            rig.frame->setActiveControllerFromTree();
            rig.frame->cardCombo()->setCurrentIndex(0);
            rig.frame->chooseCard(0);
            QCOMPARE(rig.prompt.messages(), (QStringList{refusal, refusal, refusal}));
            QCOMPARE(rig.state.active.family, BoardFamily::RM);
            QCOMPARE(rig.boldItems(), (QStringList{"NRX-RMxxxV", "0 : NRX-RM416V"}));
        }
        // Once they stop, the tree makes the change.
        rig.state.active.axesMoving = {};
        rig.prompt.clear();
        rig.tree()->setCurrentItem(rig.tree()->cardItem(BoardFamily::RN, 1));
        rig.frame->setActiveControllerFromTree();
        QCOMPARE(rig.state.active.family, BoardFamily::RN);
        QCOMPARE(rig.state.active.card, 1);
        QCOMPARE(rig.state.active.previousFamily, BoardFamily::RM);
        QCOMPARE(rig.boldItems(), (QStringList{"NRX-RNxxxV", "1 : NRX-RN416V"}));
        QCOMPARE(rig.frame->familyCombo()->currentText(), QStringLiteral("NRX-RNxxxV"));
        QCOMPARE(rig.frame->cardCombo()->currentText(), QStringLiteral("1"));
        QCOMPARE(rig.frame->statusDock()->windowTitle(),
                 QStringLiteral("Axis Status - NRX-RN416V(1)"));

        // A selected item that is no card changes nothing.
        rig.tree()->setCurrentItem(rig.tree()->cardItem(BoardFamily::RM, 0)->child(0));
        rig.frame->setActiveControllerFromTree();
        QCOMPARE(rig.state.active.family, BoardFamily::RN);

        // The combos: a family starts on its card 0, then the card combo picks within it.
        rig.frame->familyCombo()->setCurrentIndex(0);
        rig.frame->chooseFamily(0);
        QCOMPARE(rig.state.active.family, BoardFamily::RM);
        QCOMPARE(rig.state.active.card, 0);
        QCOMPARE(rig.frame->cardCombo()->count(), 1);
        rig.frame->familyCombo()->setCurrentIndex(1);
        rig.frame->chooseFamily(1);
        rig.frame->chooseCard(1);
        QCOMPARE(rig.boldItems(), (QStringList{"NRX-RNxxxV", "1 : NRX-RN416V"}));
        QVERIFY(rig.prompt.texts().isEmpty());
    }

    void stopAllAxes_everyAxisOfEveryFamilyAndEverySequence()
    {
        Rig rig(-1, 0, 1);
        QVERIFY(rig.create());
        rig.frame->openTool(ToolSingleAxis);
        rig.state.active.setAxesMoving(MovingOwner::MultiAxis, true);
        for (RecordingBoard* board : rig.all())
            board->clearCalls();
        rig.log.clear();
        QAction* stop = rig.frame->stopAllAction();
        // One press from anywhere in the program: toolbar, menu and an application-wide key.
        QCOMPARE(stop->shortcutContext(), Qt::ApplicationShortcut);
        QVERIFY(!stop->shortcut().isEmpty() && !stop->icon().isNull());
        stop->trigger();
        const QStringList four{"Sudden_Stop(0,0)", "Sudden_Stop(0,1)", "Sudden_Stop(0,2)",
                               "Sudden_Stop(0,3)"};
        QCOMPARE(rig.rm.calls({"Sudden_Stop"}), four);
        QCOMPARE(rig.rn.calls({"Sudden_Stop"}).mid(0, 4), four);
        QCOMPARE(rig.rn.count("Sudden_Stop"), 8);
        QCOMPARE(rig.log, QStringList{"103:end"});
        QVERIFY(!rig.state.active.anyAxesMoving());
        QCOMPARE(rig.frame->stopReport()->text(), QStringLiteral("All axes stopped (12)"));
    }

    void tree_contextMenuOnCardsDoubleClickUnderTheActiveCard()
    {
        Rig rig(1, -1, -1);
        QVERIFY(rig.create());
        QTreeWidgetItem* inactive = rig.tree()->cardItem(BoardFamily::RL, 1);
        QCOMPARE(inactive->text(0), QStringLiteral("1 : NRX-RL416V"));
        std::unique_ptr<QMenu> menu(rig.tree()->createContextMenu(inactive));
        QCOMPARE(menu->actions().first()->text(), QStringLiteral("Set Active Controller"));
        QVERIFY(!rig.tree()->createContextMenu(inactive->child(0)));
        QVERIFY(!rig.tree()->createContextMenu(rig.tree()->familyItem(BoardFamily::RL)));

        // A right click counts on the label, not in the empty rest of the row.
        rig.frame->resize(1366, 768);
        const QRect row = rig.tree()->visualItemRect(inactive);
        const auto menusAfterClickAt = [&](QPoint at) {
            QContextMenuEvent click(QContextMenuEvent::Mouse, at,
                                    rig.tree()->viewport()->mapToGlobal(at));
            QCoreApplication::sendEvent(rig.tree()->viewport(), &click);
            const auto menus = rig.tree()->findChildren<QMenu*>();
            const auto shown = std::count_if(menus.begin(), menus.end(),
                                             [](QMenu* each) { return each->isVisible(); });
            for (QMenu* each : menus)
                each->close();
            return shown;
        };
        QCOMPARE(menusAfterClickAt(QPoint(row.left() + 30, row.center().y())), 1);
        QCOMPARE(menusAfterClickAt(QPoint(row.right() - 2, row.center().y())), 0);

        rig.tree()->activateItem(inactive->child(0));
        rig.tree()->activateItem(rig.tree()->cardItem(BoardFamily::RL, 0));
        QCOMPARE(rig.frame->toolWindows().createdCount(), 0);
        QTreeWidgetItem* active = rig.tree()->cardItem(BoardFamily::RL, 0);
        rig.tree()->activateItem(active->child(1));
        QVERIFY(rig.view(ToolDigitalIo));
        rig.tree()->setCurrentItem(active->child(0));
        QTest::keyClick(rig.tree(), Qt::Key_Return);
        QVERIFY(rig.view(ToolSingleAxis));
    }

    void tree_marksUnsavedCardsUntilSaved()
    {
        Rig rig(1, -1, -1);
        QVERIFY(rig.create());
        QTreeWidgetItem* card = rig.tree()->cardItem(BoardFamily::RL, 1);
        rig.frame->sendToFrame(UM_PARAM_CHANGED, 1); // what every Set Prm sends
        QCOMPARE(card->text(0), QStringLiteral("1 : NRX-RL416V*"));
        QCOMPARE(rig.tree()->cardItem(BoardFamily::RL, 0)->text(0),
                 QStringLiteral("0 : NRX-RL416V"));
        // A marked card is still a card: its menu is there and choosing it works.
        std::unique_ptr<QMenu> menu(rig.tree()->createContextMenu(card));
        QVERIFY(menu);
        rig.tree()->setCurrentItem(card);
        rig.tree()->handleUserMessage(UM_CONTROLLER_CHANGED);
        QCOMPARE(rig.state.active.card, 1);
        // Save Parameter clears the flag; a rebuilt tree keeps a mark that is still due.
        rig.state.registry.setParametersChanged(BoardFamily::RL, 1, false);
        QCOMPARE(card->text(0), QStringLiteral("1 : NRX-RL416V"));
        rig.state.registry.setParametersChanged(BoardFamily::RL, 0, true);
        rig.tree()->handleUserMessage(UM_TREE_BUILD);
        QCOMPARE(rig.tree()->cardItem(BoardFamily::RL, 0)->text(0),
                 QStringLiteral("0 : NRX-RL416V*"));
    }

    void relay_orderAndRecipients()
    {
        Rig rig(1, -1, -1);
        QVERIFY(rig.create());
        rig.frame->openTool(ToolParameter);
        rig.frame->openTool(ToolDigitalIo);
        rig.log.clear();
        QStringList seen;
        rig.view(ToolParameter)->onMessage = [&](UserMessage, int) {
            seen << QStringLiteral("status first axis %1, card combo %2")
                        .arg(rig.frame->statusView()->firstAxis())
                        .arg(rig.frame->cardCombo()->currentText());
        };

        // A tool window changes the card: the tree makes the change, then everyone hears 1127.
        rig.frame->sendToFrame(UM_CARD_CHANGED, 1);
        QCOMPARE(rig.state.active.card, 1);
        QCOMPARE(rig.log, (QStringList{"101:1127:0", "102:1127:0"}));
        QCOMPARE(seen, QStringList{"status first axis 0, card combo 1"});

        // The status view hears the axis before the tool windows do.
        rig.log.clear();
        seen.clear();
        rig.frame->sendToFrame(UM_AXIS_CHANGED, 5);
        QCOMPARE(rig.log, (QStringList{"101:1135:5", "102:1135:5"}));
        QCOMPARE(seen, QStringList{"status first axis 4, card combo 1"});

        rig.log.clear();
        for (UserMessage message : {UM_STATUS_CARD_CHANGED, UM_STATUS_AXIS_CHANGED,
                                    UM_HOME_LIMIT_USE, UM_VIEW_COMMAND, UM_PARAM_LEAVE_CHECK})
            rig.frame->sendToFrame(message, 3);
        QCOMPARE(rig.log, (QStringList{"101:1144:3", "102:1144:3", "101:1145:3", "102:1145:3",
                                       "101:1138:3", "102:1138:3", "101:1154:3", "102:1154:3",
                                       "101:1155:3", "102:1155:3"}));

        // Opening the single-axis window announces the active axis.
        rig.log.clear();
        rig.state.active.axis = 2;
        rig.frame->openTool(ToolSingleAxis);
        QCOMPARE(rig.log, (QStringList{"101:1135:2", "102:1135:2", "103:1135:2"}));
        QCOMPARE(rig.frame->statusView()->firstAxis(), 0);
    }

    void tools_oneWindowPerKindAndCloseAllStopsAtARefusal()
    {
        Rig rig(0, -1, -1);
        QVERIFY(rig.create());
        rig.frame->show();
        // Without a settings file the status pane shows and follows the operated axis.
        QVERIFY(!rig.frame->statusDock()->isHidden());
        QCOMPARE(rig.state.statusFollowsOperation, 1);
        rig.frame->openTool(ToolSingleAxis);
        QMdiSubWindow* first = rig.frame->toolWindows().window(ToolSingleAxis);
        QVERIFY(first);
        QCOMPARE(first->pos(), QPoint(0, 0));
        rig.frame->openTool(ToolParameter);
        QCOMPARE(rig.frame->toolWindows().window(ToolParameter)->pos(), QPoint(23, 29));
        first->showMaximized();
        rig.frame->openTool(ToolSingleAxis);
        QCOMPARE(rig.frame->toolWindows().window(ToolSingleAxis), first);
        QCOMPARE(first->mdiArea()->activeSubWindow(), first);
        QVERIFY(first->isMaximized());
        QCOMPARE(first->mdiArea()->subWindowList().size(), 2);
        // Kinds whose windows are not registered open nothing.
        rig.frame->openTool(ToolSystemIo);
        rig.frame->openTool(ToolSystemDiagnosis);
        QCOMPARE(first->mdiArea()->subWindowList().size(), 2);

        // Closing asks the view.
        rig.frame->openTool(ToolDigitalIo);
        rig.frame->openTool(ToolSingleAxis);
        rig.view(ToolDigitalIo)->agreeToClose = false;
        rig.frame->toolWindows().window(ToolDigitalIo)->close();
        QCOMPARE(rig.view(ToolDigitalIo)->closeRequests, 1);
        QVERIFY(rig.frame->toolWindows().window(ToolDigitalIo));

        // The active window goes first; the refusing one stops the round.
        rig.frame->closeAllTools();
        QVERIFY(!rig.frame->toolWindows().window(ToolSingleAxis));
        QVERIFY(rig.frame->toolWindows().window(ToolDigitalIo));
        QCOMPARE(rig.view(ToolDigitalIo)->closeRequests, 2);

        rig.view(ToolDigitalIo)->agreeToClose = true;
        rig.frame->closeAllTools();
        QVERIFY(rig.frame->toolWindows().openViews().empty());
        QCOMPARE(rig.frame->toolWindows().cascade().liveWindows(), 0);
        // Closed kinds open again.
        rig.frame->openTool(ToolParameter);
        QVERIFY(rig.view(ToolParameter));

        // Every menu and entry can be reached with Alt and a letter of its own.
        const auto uniqueMnemonics = [](const QList<QAction*>& actions) {
            QSet<QChar> letters;
            for (const QAction* action : actions) {
                if (action->isSeparator())
                    continue;
                const int at = action->text().indexOf(QLatin1Char('&'));
                if (at < 0 || letters.contains(action->text()[at + 1].toLower()))
                    return false;
                letters.insert(action->text()[at + 1].toLower());
            }
            return true;
        };
        const QList<QAction*> menus = rig.frame->menuBar()->actions();
        QVERIFY(uniqueMnemonics(menus));
        for (const QAction* menu : menus)
            QVERIFY2(uniqueMnemonics(menu->menu()->actions()), qPrintable(menu->text()));
    }

    void cascade_stepsWrapsAndStepsBack()
    {
        CascadePlacement cascade;
        const QSize area(50, 100);
        QCOMPARE(cascade.placeNew(area), QPoint(0, 0));
        QCOMPARE(cascade.placeNew(area), QPoint(23, 29));
        QCOMPARE(cascade.placeNew(area), QPoint(46, 58));
        QCOMPARE(cascade.placeNew(area), QPoint(0, 0)); // 69 is outside the width
        cascade.windowDestroyed();
        cascade.windowDestroyed();
        QCOMPARE(cascade.offset(), QPoint(-46, -58));
        QCOMPARE(cascade.placeNew(area), QPoint(-23, -29));
        for (int i = 0; i < 3; ++i)
            cascade.windowDestroyed();
        QCOMPARE(cascade.placeNew(area), QPoint(0, 0));
    }

    void settings_readAtStartAndDefaultToShowingTheStatusPane()
    {
        Rig rig(0, -1, -1);
        const QString path = rig.state.moduleDirectory + QStringLiteral("ZelbrinOrvane.ini");
        QVERIFY(TextFile::write(path, "[System]\r\nDefault_Show_Status_Window=0\r\n"
                                      "Change_Status_Axis_Depend_On_Operation=0\r\n"));
        rig.frame = std::make_unique<COV_MainFrame>(rig.state, rig.api, rig.prompt, rig.factory);
        QVERIFY(rig.frame->create());
        QVERIFY(rig.frame->monitorTimer().isActive());
        QCOMPARE(rig.frame->monitorTimer().interval(), 10);
        rig.frame->show();
        QVERIFY(rig.frame->statusDock()->isHidden());
        QVERIFY(!rig.frame->motionDock()->isHidden());
        QCOMPARE(rig.state.statusFollowsOperation, 0);
        QCOMPARE(rig.state.settingsFilePath, path);
    }

    void activeFamilyOnly_monitorTickAndLogLevel_thenExitOffersSaveAndUnloads()
    {
        Rig rig(-1, 0, 1);
        QVERIFY(rig.create());
        rig.frame->show();
        rig.rm.clearCalls();
        rig.rn.clearCalls();
        rig.frame->MonitorTick();
        QCOMPARE(rig.rm.calls().filter(QStringLiteral("GetCardStatus")).size(), 4);
        QVERIFY(rig.rm.calls().contains(QStringLiteral("GetCommandPos(0,3)")));
        rig.frame->applyLogLevel(3);
        QCOMPARE(rig.rm.calls(QStringList{"LogCheck"}), QStringList{"LogCheck(3)"});
        QCOMPARE(rig.state.logLevel, 3);
        QCOMPARE(rig.rn.calls(), QStringList());
        QCOMPARE(rig.rl.count(QStringLiteral("LogCheck")), 0);

        // The exit offers to save each edited card, then unloads the families with boards.
        rig.frame->sendToFrame(UM_PARAM_CHANGED, 0);
        rig.frame->chooseFamily(1);
        rig.frame->sendToFrame(UM_PARAM_CHANGED, 1);
        // A window that cancels the exit keeps the program running, and nothing is asked.
        rig.frame->openTool(ToolParameter);
        rig.view(ToolParameter)->agreeToExit = false;
        QVERIFY(!rig.frame->close());
        QVERIFY(rig.prompt.questions().isEmpty());
        rig.view(ToolParameter)->agreeToExit = true;
        rig.prompt.queueAnswers({false, true});
        rig.frame->close();
        QCOMPARE(rig.prompt.questions(),
                 (QStringList{"NRX-RMxxxV(0) board parameters are changed.\nDo you want to save "
                              "parameter to file?",
                              "NRX-RNxxxV(1) board parameters are changed.\nDo you want to save "
                              "parameter to file?"}));
        QCOMPARE(rig.rm.count(QStringLiteral("SaveFile")), 0);
        QCOMPARE(rig.rn.calls(QStringList{"SaveFile"}), QStringList{"SaveFile(1)"});
        rig.frame.reset();
        QCOMPARE(rig.rl.count(QStringLiteral("UnloadDevice")), 0);
        QCOMPARE(rig.rm.count(QStringLiteral("UnloadDevice")), 1);
        QCOMPARE(rig.rn.count(QStringLiteral("UnloadDevice")), 1);
    }
};

QTEST_MAIN(TestMainFrame)
#include "tst_mainframe.moc"
