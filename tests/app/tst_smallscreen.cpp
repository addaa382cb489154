#include "COV_MainFrame.h"
#include "COV_WsSysWnd.h"
#include "ScriptedPrompt.h"
#include "SimBoardsRig.h"
#include "ToolView.h"
#include "ToolWindowHost.h"
#include "ToolWindowKinds.h"
#include "UserSettings.h"

#include <QDockWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTest>
#include <QToolBar>

#include <memory>

namespace {

// A maximised frame on a 1366x768 screen, less a task bar and the title bar.
const QSize kSmallScreen(1366, 698);

// The part of `widget` that shows inside the frame's tool area, in global coordinates.
QRect shownPart(const QWidget& widget, const QWidget& area)
{
    QRect shown(widget.mapToGlobal(QPoint(0, 0)), widget.size());
    for (const QWidget* parent = widget.parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        shown &= QRect(parent->mapToGlobal(QPoint(0, 0)), parent->size());
        if (parent == &area)
            break;
    }
    return shown;
}

bool wholeInSight(const QWidget& widget, const QWidget& area)
{
    return shownPart(widget, area) == QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size());
}

// Scrolls every scroll area around `widget` to it, innermost first, as the Tab key would.
void scrollTo(QWidget& widget, const QWidget& window)
{
    for (QWidget* parent = widget.parentWidget(); parent != &window && parent != nullptr;
         parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent))
            area->ensureWidgetVisible(&widget, 0, 0);
    }
}

} // namespace

// Every tool window on a small screen beside the three panes: the motion windows' stops in
// sight however their parts scroll, every button reachable; the panes closed and brought back.
class TestSmallScreen : public QObject
{
    Q_OBJECT

private:
    struct Rig
    {
        SimBoardsRig sim;
        ScriptedPrompt prompt;
        ToolWindowFactory factory;
        std::unique_ptr<COV_MainFrame> frame;

        bool start()
        {
            if (!sim.start(false))
                return false;
            sim.state.moduleDirectory = sim.folder.path() + QLatin1Char('/');
            registerToolWindows(factory);
            frame = std::make_unique<COV_MainFrame>(sim.state, sim.api, prompt, factory);
            if (!frame->create())
                return false;
            frame->monitorTimer().stop();
            frame->resize(kSmallScreen);
            frame->show();
            return QTest::qWaitForWindowExposed(frame.get());
        }
        QWidget& toolArea() const { return *frame->findChild<QMdiArea*>()->viewport(); }
    };

private slots:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        UserSettings().clear(); // the panes as a first start shows them
    }

    void everyKind_buttonsReachableAndStopsInSight_data()
    {
        QTest::addColumn<int>("kind");
        for (const ToolWindowKind& entry : toolWindowKinds())
            QTest::newRow(entry.caption) << int(entry.kind);
    }
    void everyKind_buttonsReachableAndStopsInSight()
    {
        QFETCH(int, kind);
        Rig rig;
        QVERIFY(rig.start());
        QVERIFY(!rig.frame->tree()->parentWidget()->isHidden() &&
                !rig.frame->statusDock()->isHidden() && !rig.frame->motionDock()->isHidden());
        // Two windows before it, so that the cascade steps it down and right.
        rig.frame->openTool(kind == ToolSystemIo ? ToolDigitalIo : ToolSystemIo);
        rig.frame->openTool(kind == ToolBoardCalls ? ToolAxisStatus : ToolBoardCalls);
        rig.frame->openTool(ToolKind(kind));
        QMdiSubWindow* window = rig.frame->toolWindows().window(ToolKind(kind));
        QVERIFY(window);
        QApplication::processEvents();
        QVERIFY2(wholeInSight(*window, rig.toolArea()), "the window leaves the tool area");

        const QList<QPushButton*> stops{window->findChild<QPushButton*>("eStopButton"),
                                        window->findChild<QPushButton*>("sStopButton")};
        const bool motion = kind == ToolSingleAxis || kind == ToolMultiAxis;
        QCOMPARE(stops.count(nullptr), motion ? 0 : 2);
        // However far each part scrolls, down and right, the stops stay in sight.
        for (int end = 0; motion && end < 2; ++end) {
            for (QScrollArea* area : window->findChildren<QScrollArea*>()) {
                for (QScrollBar* bar : {area->verticalScrollBar(), area->horizontalScrollBar()})
                    bar->setValue(end == 0 ? bar->maximum() : bar->minimum());
            }
            for (QPushButton* stop : stops)
                QVERIFY2(wholeInSight(*stop, rig.toolArea()), qPrintable(stop->text()));
        }

        int checked = 0;
        for (QPushButton* button : window->findChildren<QPushButton*>()) {
            if (!button->isVisibleTo(window))
                continue;
            scrollTo(*button, *window);
            const QString name = button->text() + QLatin1Char(' ') + button->objectName();
            QVERIFY2(wholeInSight(*button, rig.toolArea()), qPrintable(name + " out of reach"));
            // Lamps and outputs draw themselves at their own size; a captioned button must
            // not lose part of its caption.
            if (button->metaObject() == &QPushButton::staticMetaObject)
                QVERIFY2(button->width() >= button->minimumSizeHint().width() &&
                             button->height() >= button->minimumSizeHint().height(),
                         qPrintable(name + " squeezed"));
            ++checked;
        }
        QVERIFY(checked > 0 || kind == ToolAxisStatus || kind == ToolSystemDiagnosis);
    }

    void viewMenu_closesFloatsAndBringsBackThePanes()
    {
        Rig rig;
        QVERIFY(rig.start());
        QMenu* view = rig.frame->findChild<QMenu*>("ViewMenu");
        QVERIFY(view);
        QList<QAction*> ticks = view->actions();
        ticks.removeIf([](const QAction* tick) { return tick->isSeparator(); });
        QCOMPARE(ticks.size(), 4);
        QDockWidget* motion = rig.frame->motionDock();
        QVERIFY(motion->features().testFlags(QDockWidget::DockWidgetClosable |
                                             QDockWidget::DockWidgetFloatable |
                                             QDockWidget::DockWidgetMovable));
        QMetaObject::invokeMethod(view, "aboutToShow");
        QVERIFY(ticks[2]->isChecked());
        ticks[2]->trigger();
        QVERIFY(motion->isHidden());
        QMetaObject::invokeMethod(view, "aboutToShow");
        QVERIFY(!ticks[2]->isChecked());
        ticks[2]->trigger();
        QVERIFY(!motion->isHidden());
        auto* toolBar = rig.frame->findChild<QToolBar*>("Main");
        ticks[3]->trigger();
        QVERIFY(toolBar->isHidden());
        motion->setFloating(true);
        rig.frame->statusDock()->hide();
        QVERIFY(rig.frame->close());

        // The next start finds the panes as they were left.
        rig.frame.reset();
        COV_MainFrame again(rig.sim.state, rig.sim.api, rig.prompt, rig.factory);
        QVERIFY(again.create());
        again.show();
        QVERIFY(again.motionDock()->isFloating());
        QVERIFY(again.statusDock()->isHidden());
        QVERIFY(again.findChild<QToolBar*>("Main")->isHidden());
        QVERIFY(!again.tree()->parentWidget()->isHidden());
    }
};

QTEST_MAIN(TestSmallScreen)
#include "tst_smallscreen.moc"
