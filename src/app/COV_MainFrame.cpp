#include "COV_MainFrame.h"

#include "AllAxesStop.h"
#include "AppState.h"
#include "BoardApi.h"
#include "COV_AboutDlg.h"
#include "COV_LogLevDlg.h"
#include "COV_StBaseWnd.h"
#include "COV_SysCfgDlg.h"
#include "COV_UtMtnStWnd.h"
#include "COV_WsSysWnd.h"
#include "MenuMnemonics.h"
#include "OrvaneLog.h"
#include "OrvaneSettings.h"
#include "PaneViewMenu.h"
#include "PollInterval.h"
#include "PromptService.h"
#include "StopAllKey.h"
#include "ToolView.h"
#include "ToolWindowHost.h"
#include "ToolWindowKinds.h"
#include "UserSettings.h"
#include "UserUnitsActions.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPainter>
#include <QPixmap>
#include <QStandardPaths>
#include <QStatusBar>
#include <QToolBar>

#include <cmath>

namespace {
const QString kLayoutKey = QStringLiteral("CommandBars");
const char* const kMovingRefusal =
    QT_TRANSLATE_NOOP("COV_MainFrame", "Axes are moving !\nCan not change active controller !");

// Gives a combo these entries and this selection, touching it only where it differs.
void showEntries(QComboBox& combo, const QStringList& entries, int selection)
{
    QStringList shown;
    for (int i = 0; i < combo.count(); ++i)
        shown << combo.itemText(i);
    if (shown != entries) {
        combo.clear();
        combo.addItems(entries);
    }
    if (combo.currentIndex() != selection)
        combo.setCurrentIndex(selection);
}
// A red octagon with a white bar: the stop sign every operator knows.
QIcon stopSignIcon()
{
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QPolygonF octagon;
    for (int corner = 0; corner < 8; ++corner) {
        const double angle = (22.5 + 45.0 * corner) * 3.14159265358979 / 180.0;
        octagon << QPointF(16.0 + 15.0 * std::cos(angle), 16.0 + 15.0 * std::sin(angle));
    }
    painter.setPen(QPen(Qt::white, 1.5));
    painter.setBrush(QColor(200, 0, 0));
    painter.drawPolygon(octagon);
    painter.fillRect(QRectF(7, 13, 18, 6), Qt::white);
    return QIcon(picture);
}
} // namespace

COV_MainFrame::COV_MainFrame(AppState& state, BoardApi& board, PromptService& prompt,
                             const ToolWindowFactory& factory, QWidget* parent)
    : QMainWindow(parent), m_state(state), m_board(board), m_prompt(prompt), m_factory(factory),
      m_startup(board, state.registry, prompt), m_context{state, board, prompt, *this}
{
    setWindowTitle(QStringLiteral("Orvane"));
    m_monitorTimer.setObjectName(QStringLiteral("MonitorTick"));
    m_monitorTimer.setInterval(kPollIntervalMs);
    connect(&m_monitorTimer, &QTimer::timeout, this, [this] { MonitorTick(); });
}

COV_MainFrame::~COV_MainFrame()
{
    m_monitorTimer.stop();
    // Tool windows may still talk to the boards while they go; unload after them.
    if (m_tools)
        m_tools->destroyAll();
    m_startup.unloadDevices();
}

bool COV_MainFrame::create(const QStringList& libraryProblems)
{
    m_mdiArea = new QMdiArea(this);
    setCentralWidget(m_mdiArea);
    m_tools = new ToolWindowHost(*m_mdiArea, m_factory, m_context, this);
    createStatusBar();
    createStopAllAction();
    createMenus();
    createToolBar();
    readSettings();
    createDocks();
    applySkin();

    if (!m_startup.loadDevices(libraryProblems))
        return false;
    const QString boardsFileNote = BoardStartup::boardsFileNote(m_board.simulator());
    if (!boardsFileNote.isEmpty())
        statusBar()->showMessage(boardsFileNote);
    m_tree->handleUserMessage(UM_TREE_BUILD);
    // The pages draw their captions for the family the tree has just made active.
    m_statusView->handleUserMessage(UM_CONTROLLER_CHANGED, 0);
    updatePaneTitles();
    fillCombos();
    restoreLayout();
    m_monitorTimer.start();
    return true;
}

void COV_MainFrame::createStatusBar()
{
    statusBar()->showMessage(tr("Ready"));
    m_stopReport = new QLabel(statusBar());
    m_stopReport->setObjectName(QStringLiteral("StopAllReport"));
    m_stopReport->hide();
    statusBar()->addPermanentWidget(m_stopReport);
}

void COV_MainFrame::createMenus()
{
    QMenuBar* bar = menuBar();
    bar->setObjectName(QStringLiteral("Menu Bar"));
    bar->addMenu(createSystemMenu());
    bar->addMenu(createToolMenu(tr("IO Monitoring"), ToolMenu::IoMonitoring));
    QMenu* setup = createToolMenu(tr("Setup"), ToolMenu::Setup);
    setup->addAction(tr("Actual Speed Calculator"), this,
                     [this] { runCommand(FrameCommand::ActualSpeedCalculator); });
    UserUnitsActions::addTo(*setup, m_state, m_prompt, this);
    bar->addMenu(setup);
    QMenu* motion = createToolMenu(tr("Motion"), ToolMenu::Motion);
    motion->addSeparator();
    motion->addAction(m_stopAll);
    bar->addMenu(motion);
    bar->addMenu(createStatusMenu());
    bar->addMenu(createWindowMenu());
    bar->addMenu(createHelpMenu());
    MenuMnemonics::apply(*bar);
}

QMenu* COV_MainFrame::createSystemMenu()
{
    auto* menu = new QMenu(tr("System"), this);
    menu->addAction(tr("Save Parameter"), this,
                    [this] { runCommand(FrameCommand::SaveParameter); });
    menu->addAction(tr("System Reset"), this, [this] { runCommand(FrameCommand::SystemReset); });
    menu->addSeparator();
    menu->addAction(tr("Export Parameters..."), this,
                    [this] { runCommand(FrameCommand::ExportParameters); });
    menu->addAction(tr("Import Parameters..."), this,
                    [this] { runCommand(FrameCommand::ImportParameters); });
    menu->addAction(tr("Compare Parameters..."), this,
                    [this] { runCommand(FrameCommand::CompareParameters); });
    menu->addSeparator();
    menu->addAction(tr("Environment Setup"), this, [this] { environmentSetup(); });
    menu->addAction(tr("Log Level"), this, [this] { logLevelSetup(); });
    menu->addSeparator();
    menu->addAction(tr("E&xit"), this, [this] { close(); });
    return menu;
}

QMenu* COV_MainFrame::createToolMenu(const QString& title, ToolMenu tools)
{
    auto* menu = new QMenu(title, this);
    addToolActions(*menu, tools);
    return menu;
}

void COV_MainFrame::addToolActions(QMenu& menu, ToolMenu tools)
{
    for (const ToolWindowKind& entry : toolWindowKinds()) {
        if (entry.menu != tools || (entry.simulatedOnly && !m_board.simulator().anySimulated()))
            continue;
        const ToolKind chosen = entry.kind;
        menu.addAction(toolWindowCaption(chosen), this, [this, chosen] { openTool(chosen); });
    }
}

QMenu* COV_MainFrame::createStatusMenu()
{
    QMenu* menu = createToolMenu(tr("Status"), ToolMenu::Status);
    menu->addSeparator();
    menu->addAction(tr("Card"), this, [this] { m_statusView->showPage(COV_StBaseWnd::CardPage); });
    // "Main", "Error" and "Input" are the axis status monitor's words; the docked view has
    // no page for them, so they bring up the monitor.
    menu->addAction(tr("Main"), this, [this] { openTool(ToolAxisStatus); });
    menu->addAction(tr("Drv"), this, [this] { m_statusView->showPage(COV_StBaseWnd::DrivePage); });
    menu->addAction(tr("Error"), this, [this] { openTool(ToolAxisStatus); });
    menu->addAction(tr("Input"), this, [this] { openTool(ToolAxisStatus); });
    return menu;
}

QMenu* COV_MainFrame::createWindowMenu()
{
    auto* menu = new QMenu(tr("&Window"), this);
    menu->addAction(tr("&Cascade"), this, [this] { m_mdiArea->cascadeSubWindows(); });
    menu->addAction(tr("&Tile"), this, [this] { m_mdiArea->tileSubWindows(); });
    menu->addAction(tr("&Arrange Icons"), this, [this] {
        int x = 0;
        for (QMdiSubWindow* window : m_mdiArea->subWindowList()) {
            if (!window->isMinimized())
                continue;
            window->move(x, m_mdiArea->viewport()->height() - window->height());
            x += window->width();
        }
    });
    menu->addAction(tr("Close All"), this, [this] { closeAllTools(); });
    QMenu* list = menu->addMenu(tr("Window List"));
    connect(list, &QMenu::aboutToShow, this, [this, list] {
        list->clear();
        for (QMdiSubWindow* window : m_mdiArea->subWindowList()) {
            QAction* entry = list->addAction(window->windowTitle(), this, [this, window] {
                m_mdiArea->setActiveSubWindow(window);
            });
            entry->setCheckable(true);
            entry->setChecked(window == m_mdiArea->activeSubWindow());
        }
    });
    menu->addSeparator();
    addToolActions(*menu, ToolMenu::Window);
    return menu;
}

QMenu* COV_MainFrame::createHelpMenu()
{
    auto* menu = new QMenu(tr("&Help"), this);
    menu->addAction(tr("&About Orvane..."), this, [this] {
        COV_AboutDlg about(this);
        about.exec();
    });
    return menu;
}

void COV_MainFrame::createStopAllAction()
{
    m_stopAll = new QAction(stopSignIcon(), tr("Stop All Axes"), this);
    m_stopAll->setObjectName(QStringLiteral("StopAllAxes"));
    m_stopAll->setShortcut(QKeySequence(Qt::Key_F12));
    // Reachable whatever window of the program has the focus.
    m_stopAll->setShortcutContext(Qt::ApplicationShortcut);
    m_stopAll->setToolTip(tr("Stop All Axes (F12): stops every axis of every board "
                             "at once and ends every running motion sequence"));
    connect(m_stopAll, &QAction::triggered, this, [this] { stopAllAxes(); });
    addAction(m_stopAll);
    new StopAllKey(*m_stopAll, this);
}

void COV_MainFrame::createToolBar()
{
    QToolBar* bar = addToolBar(tr("Main"));
    bar->setObjectName(QStringLiteral("Main"));
    bar->addAction(m_stopAll);
    bar->addSeparator();
    m_familyCombo = new QComboBox(bar);
    m_familyCombo->setObjectName(QStringLiteral("FamilyCombo"));
    m_familyCombo->setMinimumContentsLength(10);
    m_familyCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_cardCombo = new QComboBox(bar);
    m_cardCombo->setObjectName(QStringLiteral("CardCombo"));
    m_cardCombo->setMinimumContentsLength(3);
    m_cardCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    bar->addWidget(m_familyCombo);
    bar->addWidget(m_cardCombo);
    // Only the user's choices count; the frame's own refills must not echo back.
    connect(m_familyCombo, &QComboBox::activated, this, [this](int index) { chooseFamily(index); });
    connect(m_cardCombo, &QComboBox::activated, this, [this](int index) { chooseCard(index); });
}

QDockWidget* COV_MainFrame::createDock(const QString& objectName, const QString& title,
                                       QWidget* content, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(title, this);
    dock->setObjectName(objectName);
    PaneViewMenu::freePane(*dock);
    content->setParent(dock);
    dock->setWidget(content);
    addDockWidget(area, dock);
    return dock;
}

void COV_MainFrame::createDocks()
{
    m_tree = new COV_WsSysWnd(m_state, m_startup, *this, this);
    connect(m_tree, &COV_WsSysWnd::setActiveControllerRequested, this,
            [this] { setActiveControllerFromTree(); });
    m_treeDock = createDock(QStringLiteral("WorkspacePane"), tr("Workspace"), m_tree,
                            Qt::LeftDockWidgetArea);
    m_tree->setMinimumSize(200, 120);

    m_statusBoard = std::make_unique<BoardApi>(m_board, QStringLiteral("Axis Status pane"));
    m_motionBoard = std::make_unique<BoardApi>(m_board, QStringLiteral("Motion Status pane"));
    m_statusView = new COV_StBaseWnd(m_state, *m_statusBoard, this);
    m_statusView->setFixedWidth(kStatusPaneWidth);
    m_statusDock = createDock(QStringLiteral("AxisStatusPane"), QString(), m_statusView,
                              Qt::RightDockWidgetArea);

    m_motionPane = new COV_UtMtnStWnd(m_state, *m_motionBoard, *this, this);
    m_motionPane->setFixedHeight(kMotionPaneHeight);
    m_motionDock = createDock(QStringLiteral("MotionStatusPane"), QString(), m_motionPane,
                              Qt::BottomDockWidgetArea);
    // The bottom pane runs under the side panes' full height only between them.
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    // A small screen gives the tool windows room by closing or floating the bars.
    QMenu* view =
        PaneViewMenu::create({{m_treeDock, tr("Workspace")},
                              {m_statusDock, tr("Axis Status")},
                              {m_motionDock, tr("Motion Status")},
                              {findChild<QToolBar*>(QStringLiteral("Main")), tr("Toolbar")}},
                             this);
    MenuMnemonics::apply(*view);
    menuBar()->insertMenu(menuBar()->actions().at(menuBar()->actions().size() - 2), view);
}

void COV_MainFrame::readSettings()
{
    if (m_state.moduleDirectory.isEmpty())
        m_state.moduleDirectory =
            QDir(QCoreApplication::applicationDirPath()).absolutePath() + QLatin1Char('/');
    // An installed copy's folder is not the user's to write: settings go to the user's data
    // folder there, where the simulated boards keep their files too.
    QString folder = m_state.moduleDirectory;
    if (!QFileInfo(folder).isWritable()) {
        folder =
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QLatin1Char('/');
        QDir().mkpath(folder);
    }
    m_state.settingsFilePath = folder + OrvaneSettings::settingsFileName();
    const OrvaneSettings::System values = OrvaneSettings::readSystem(m_state.settingsFilePath);
    m_showStatusWindow = values.showStatusWindow;
    m_statusFollowsOperation = values.statusFollowsOperation;
    m_state.statusFollowsOperation = values.statusFollowsOperation;
    m_state.units = AxisUnits::read(m_state.settingsFilePath);
}

void COV_MainFrame::applySkin()
{
    QFile skin(m_state.moduleDirectory + QStringLiteral("Skin/NORMALBLUE.qss"));
    if (skin.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(skin.readAll()));
}

void COV_MainFrame::restoreLayout()
{
    const UserSettings settings;
    restoreState(settings.value(kLayoutKey).toByteArray());
    // The switch hides the pane at start whatever the saved layout says; shown, the pane
    // stays where the user left it, closed included.
    if (m_showStatusWindow == 0)
        m_statusDock->hide();
    m_tools->restoreSession(settings, [this](ToolKind kind) { openTool(kind); });
}

void COV_MainFrame::saveLayout() const
{
    UserSettings settings;
    settings.setValue(kLayoutKey, saveState());
    m_tools->saveSession(settings);
}

void COV_MainFrame::closeEvent(QCloseEvent* event)
{
    // Unwritten edits first, so what they write is offered for saving next. Cancel keeps the
    // program running, so a slip of the Escape key loses nothing.
    for (ToolView* view : m_tools->openViews()) {
        if (!view->settleBeforeExit()) {
            event->ignore();
            return;
        }
    }
    if (!m_startup.offerSave()) {
        event->ignore();
        return;
    }
    saveLayout();
    m_monitorTimer.stop();
    event->accept();
}

void COV_MainFrame::MonitorTick()
{
    m_motionPane->refresh();
    m_statusView->refresh();
    noteRefusedBoardCall();
    if (!m_stopReport->text().isEmpty() && anyMotion()) {
        m_stopReport->clear();
        m_stopReport->hide();
    }
}

void COV_MainFrame::noteRefusedBoardCall()
{
    const BoardCallTrace* trace = m_board.trace();
    if (trace == nullptr)
        return;
    const QString note = m_failureNote.take(*trace, m_state.registry, trace->nowUs());
    if (!note.isEmpty())
        statusBar()->showMessage(note, kFailureNoteMs);
}

void COV_MainFrame::sendToFrame(UserMessage message, int wParam)
{
    switch (message) {
    case UM_OPEN_TOOL:
        m_tools->open(static_cast<ToolKind>(wParam));
        // Opening the single-axis window announces the active axis to everyone.
        if (wParam == ToolSingleAxis)
            sendToFrame(UM_AXIS_CHANGED, m_state.active.axis);
        break;
    case UM_TREE_BUILD:
        fillCombos();
        updatePaneTitles();
        break;
    case UM_PARAM_CHANGED:
        m_state.registry.setParametersChanged(m_state.active.family, wParam, true);
        break;
    case UM_CARD_CHANGED:
        m_tree->handleUserMessage(UM_CARD_CHANGED, wParam);
        break;
    case UM_CONTROLLER_CHANGED:
        updatePaneTitles();
        wParam = 0;
        [[fallthrough]];
    case UM_AXIS_CHANGED:
    case UM_STATUS_CARD_CHANGED:
    case UM_STATUS_AXIS_CHANGED:
        fillCombos();
        m_statusView->handleUserMessage(message, wParam);
        relayToToolViews(message, wParam);
        break;
    case UM_HOME_LIMIT_USE:
    case UM_VIEW_COMMAND:
    case UM_PARAM_LEAVE_CHECK:
        relayToToolViews(message, wParam);
        break;
    default:
        // The rest pass between a page and its own window, not through the frame.
        break;
    }
}

void COV_MainFrame::relayToToolViews(UserMessage message, int wParam)
{
    for (ToolView* view : m_tools->openViews())
        view->handleUserMessage(message, wParam);
}

void COV_MainFrame::showNote(const QString& text)
{
    statusBar()->showMessage(text);
}

bool COV_MainFrame::anyMotion() const
{
    bool moving = m_state.active.anyAxesMoving();
    for (ToolView* view : m_tools->openViews())
        moving = moving || view->movesAxes();
    return moving;
}

bool COV_MainFrame::mayChangeController()
{
    if (!anyMotion())
        return true;
    qCInfo(lcUi).noquote() << "Change of the active controller refused:" << kMovingRefusal;
    // A report, not a modal box: the stop sign must stay within reach of the moving axes.
    m_prompt.report(tr(kMovingRefusal));
    fillCombos();
    return false;
}

// The tree makes every change of the active controller, and asks the gate first.
void COV_MainFrame::setActiveControllerFromTree()
{
    m_tree->handleUserMessage(UM_CONTROLLER_CHANGED);
}

void COV_MainFrame::chooseFamily(int comboIndex)
{
    if (!mayChangeController())
        return;
    const QString text = m_familyCombo->itemText(comboIndex);
    for (BoardFamily family : kAllFamilies) {
        if (!text.contains(QLatin1String(familyShortName(family))))
            continue;
        fillCardCombo(family, 0);
        m_tree->handleUserMessage(UM_SELECT_BOARD, familyIndex(family),
                                  m_cardCombo->currentIndex());
        return;
    }
}

void COV_MainFrame::chooseCard(int comboIndex)
{
    m_tree->handleUserMessage(UM_SELECT_CARD, comboIndex);
}

void COV_MainFrame::fillCardCombo(BoardFamily family, int selection)
{
    QStringList cards;
    for (int card = 0; card < m_state.registry.cardCount(family); ++card)
        cards << QString::number(card);
    showEntries(*m_cardCombo, cards, selection);
}

void COV_MainFrame::fillCombos()
{
    QStringList families;
    int selection = -1;
    for (BoardFamily family : kAllFamilies) {
        if (!m_state.registry.hasBoards(family))
            continue;
        if (family == m_state.active.family)
            selection = static_cast<int>(families.size());
        families << QString::fromLatin1(familyDisplayName(family));
    }
    showEntries(*m_familyCombo, families, selection);
    fillCardCombo(m_state.active.family, m_state.active.card);
}

void COV_MainFrame::updatePaneTitles()
{
    const QString model = m_state.modelName(m_state.active.card);
    const int card = m_state.active.card;
    m_statusDock->setWindowTitle(tr("Axis Status - %1(%2)").arg(model).arg(card));
    m_motionDock->setWindowTitle(tr("Motion Status - %1(%2)").arg(model).arg(card));
}

void COV_MainFrame::closeAllTools()
{
    m_tools->closeAll();
}

void COV_MainFrame::stopAllAxes()
{
    const AllAxesStop stop(m_board, m_state.registry);
    for (ToolView* view : m_tools->openViews())
        view->endMotion();
    m_state.active.axesMoving = {};
    // The words stay until the next Stop All or motion: an axis left running must not be
    // hidden by a passing note.
    m_stopReport->setText(stop.report());
    m_stopReport->setStyleSheet(stop.refused().isEmpty()
                                    ? QString()
                                    : QStringLiteral("color: #c00000; font-weight: bold;"));
    m_stopReport->show();
}

void COV_MainFrame::runCommand(FrameCommand command)
{
    m_factory.run(command, m_context, this);
}

void COV_MainFrame::environmentSetup()
{
    COV_SysCfgDlg dialog(m_state.settingsFilePath, this);
    dialog.exec();
    // The show-status switch waits for the next start; following the operation applies now.
    m_statusFollowsOperation = dialog.values().statusFollowsOperation;
    m_state.statusFollowsOperation = m_statusFollowsOperation;
}

void COV_MainFrame::logLevelSetup()
{
    COV_LogLevDlg dialog(
        OrvaneSettings::readLogLevel(m_state.moduleDirectory, m_state.active.family), this);
    if (dialog.exec() == QDialog::Accepted)
        applyLogLevel(dialog.level());
}

void COV_MainFrame::applyLogLevel(int level)
{
    m_state.logLevel = level;
    m_board.LogCheck(m_state.active.family, static_cast<nrx_u16>(level));
}
