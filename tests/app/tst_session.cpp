#include "COV_MainFrame.h"
#include "COV_ScopeWnd.h"
#include "FileDialogPlace.h"
#include "ScopeChannelTable.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "ToolWindowHost.h"
#include "ToolWindowKinds.h"
#include "UserSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// What a restart brings back: the open tool windows where they were, the scope's setup, and
// each file dialog's folder.
class TestSession : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        SimBoardsRig sim;
        ScriptedPrompt prompt;
        ToolWindowFactory factory;

        bool start()
        {
            if (!sim.start(false))
                return false;
            sim.state.moduleDirectory = sim.folder.path() + QLatin1Char('/');
            prompt.setDefaultAnswer(false);
            registerToolWindows(factory);
            return true;
        }
        std::unique_ptr<COV_MainFrame> frame()
        {
            auto made = std::make_unique<COV_MainFrame>(sim.state, sim.api, prompt, factory);
            if (!made->create())
                return nullptr;
            made->monitorTimer().stop();
            made->resize(1366, 768);
            made->show();
            return made;
        }
    };

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        UserSettings().clear();
    }

    void restart_restoresTheOpenWindowsAndTheScopeSetup()
    {
        Rig rig;
        QVERIFY(rig.start());
        ScopeChannel channel;
        channel.enabled = true;
        channel.family = BoardFamily::RM;
        channel.axis = 3;
        channel.signal = ScopeChannel::ActualPosition;
        QRect scopePlace(30, 20, 640, 420);
        {
            std::unique_ptr<COV_MainFrame> frame = rig.frame();
            QVERIFY(frame);
            frame->openTool(ToolScope);
            auto* scope = static_cast<COV_ScopeWnd*>(frame->toolWindows().view(ToolScope));
            QVERIFY(scope->channels().setChannel(2, channel));
            scope->findChild<QComboBox*>("period")->setCurrentIndex(2);
            scope->findChild<QComboBox*>("length")->setCurrentIndex(4);
            scope->findChild<QComboBox*>("trigger")->setCurrentIndex(2); // Level
            scope->findChild<QComboBox*>("triggerChannel")->setCurrentIndex(2);
            scope->findChild<QComboBox*>("triggerEdge")->setCurrentIndex(1);
            scope->findChild<QLineEdit*>("triggerLevel")->setText("1500");
            scope->findChild<QCheckBox*>("repeat")->setChecked(true);
            frame->toolWindows().window(ToolScope)->setGeometry(scopePlace);
            frame->openTool(ToolSingleAxis);
            frame->toolWindows().window(ToolSingleAxis)->setGeometry(900, 500, 700, 600);
            frame->openTool(ToolDigitalIo);
            // Closed before the exit: not reopened.
            QVERIFY(frame->toolWindows().window(ToolDigitalIo)->close());
            frame->findChild<QMdiArea*>()->setActiveSubWindow(
                frame->toolWindows().window(ToolSingleAxis));
            QVERIFY(frame->close());
        }

        std::unique_ptr<COV_MainFrame> again = rig.frame();
        QVERIFY(again);
        ToolWindowHost& tools = again->toolWindows();
        QVERIFY(tools.window(ToolScope) && tools.window(ToolSingleAxis));
        QVERIFY(!tools.window(ToolDigitalIo));
        QCOMPARE(tools.window(ToolScope)->geometry(), scopePlace);
        // A place past the workspace's edge (a larger screen's) comes back inside it.
        QTest::qWait(1);
        QCOMPARE(tools.window(ToolScope)->geometry(), scopePlace);
        const QRect room(QPoint(), again->findChild<QMdiArea*>()->viewport()->size());
        QVERIFY(room.contains(tools.window(ToolSingleAxis)->geometry()));
        // The window opened last is on top again.
        QCOMPARE(again->findChild<QMdiArea*>()->subWindowList(QMdiArea::StackingOrder).last(),
                 tools.window(ToolSingleAxis));
        auto* scope = static_cast<COV_ScopeWnd*>(tools.view(ToolScope));
        const ScopeChannel restored = scope->channels().channel(2);
        QVERIFY(restored.enabled);
        QCOMPARE(restored.family, BoardFamily::RM);
        QCOMPARE(restored.axis, 3);
        QCOMPARE(restored.signal, ScopeChannel::ActualPosition);
        const ScopeRecorder::Settings settings = scope->recorder().settings();
        QCOMPARE(settings.periodMs, 5);
        QCOMPARE(settings.lengthMs, 30000);
        QCOMPARE(settings.trigger, ScopeRecorder::Trigger::Level);
        QCOMPARE(settings.triggerChannel, 2);
        QCOMPARE(settings.edge, ScopeRecorder::Edge::Falling);
        QCOMPARE(settings.level, 1500.0);
        QVERIFY(settings.repeat);

        // Closed and opened again in the same run, the scope keeps its setup too.
        QVERIFY(tools.window(ToolScope)->close());
        again->openTool(ToolScope);
        QCOMPARE(static_cast<COV_ScopeWnd*>(tools.view(ToolScope))->recorder().settings().periodMs,
                 5);
    }

    void fileDialogs_startInDocumentsThenInTheLastFolderWithADatedName()
    {
        const QString documents =
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        const QString name =
            FileDialogPlace::datedName(QStringLiteral("NRX-RL416V_Card0"), QStringLiteral("ini"));
        QCOMPARE(name, QStringLiteral("NRX-RL416V_Card0_%1.ini")
                           .arg(QDate::currentDate().toString(Qt::ISODate)));
        QCOMPARE(FileDialogPlace::start(QStringLiteral("Test"), name),
                 QDir(documents).filePath(name));
        QTemporaryDir chosen;
        FileDialogPlace::remember(QStringLiteral("Test"), chosen.filePath("old.ini"));
        FileDialogPlace::remember(QStringLiteral("Test"), QString()); // a cancelled dialog
        QCOMPARE(FileDialogPlace::start(QStringLiteral("Test"), name),
                 QDir(chosen.path()).filePath(name));
        QCOMPARE(FileDialogPlace::start(QStringLiteral("Other")), documents);
    }
};

QTEST_MAIN(TestSession)
#include "tst_session.moc"
