#pragma once

#include "BoardFailureNote.h"
#include "BoardStartup.h"
#include "FrameRelay.h"
#include "ToolContext.h"
#include "ToolWindowFactory.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

class BoardApi;
class COV_StBaseWnd;
class COV_UtMtnStWnd;
class COV_WsSysWnd;
class PromptService;
class QAction;
class QComboBox;
class QDockWidget;
class QLabel;
class QMdiArea;
class QMenu;
class ToolWindowHost;
enum class ToolMenu;
struct AppState;

// The main window: menus, the "Main" toolbar with the family and card combos, the three
// docked panes, the tool windows, the 10 ms monitor tick, and the one place that decides who
// hears each notification.
class COV_MainFrame : public QMainWindow, public FrameRelay
{
    Q_OBJECT

public:
    static constexpr int kStatusPaneWidth = 200;
    static constexpr int kMotionPaneHeight = 96;
    static constexpr int kFailureNoteMs = 5000;

    COV_MainFrame(AppState& state, BoardApi& board, PromptService& prompt,
                  const ToolWindowFactory& factory, QWidget* parent = nullptr);
    ~COV_MainFrame() override;

    // Builds the bars and panes, reads the settings, loads the boards and, if any board is
    // there, builds the tree and starts the monitor tick. False when the program must end.
    bool create(const QStringList& libraryProblems = {});

    // The relay: every notification a window sends the frame, and who hears it.
    void sendToFrame(UserMessage message, int wParam = 0) override;
    bool mayChangeController() override;
    void showNote(const QString& text) override;
    bool anyMotion() const override;
    // The 10 ms refresh of the motion-status pane and the status view, and the note of a board
    // call that was refused.
    void MonitorTick();

    // Commands of the menus and the tree.
    void openTool(ToolKind kind) { sendToFrame(UM_OPEN_TOOL, kind); }
    void setActiveControllerFromTree();
    void chooseFamily(int comboIndex);
    void chooseCard(int comboIndex);
    void closeAllTools();
    // Sudden_Stop on every axis of every loaded card, and every motion window's sequence ended.
    void stopAllAxes();
    void environmentSetup();
    void logLevelSetup();
    // What the log-level dialog's OK does: keeps the level and hands it to the active
    // family's library only.
    void applyLogLevel(int level);

    COV_WsSysWnd* tree() const { return m_tree; }
    COV_StBaseWnd* statusView() const { return m_statusView; }
    QDockWidget* statusDock() const { return m_statusDock; }
    QDockWidget* motionDock() const { return m_motionDock; }
    QComboBox* familyCombo() const { return m_familyCombo; }
    QComboBox* cardCombo() const { return m_cardCombo; }
    ToolWindowHost& toolWindows() const { return *m_tools; }
    QTimer& monitorTimer() { return m_monitorTimer; }
    QAction* stopAllAction() const { return m_stopAll; }
    QLabel* stopReport() const { return m_stopReport; }
    const ToolContext& context() const { return m_context; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void createMenus();
    QMenu* createSystemMenu();
    // A menu of the tool-window kinds that live in it, in kind order.
    QMenu* createToolMenu(const QString& title, ToolMenu tools);
    void addToolActions(QMenu& menu, ToolMenu tools);
    QMenu* createStatusMenu();
    QMenu* createWindowMenu();
    QMenu* createHelpMenu();
    void createStopAllAction();
    void createToolBar();
    void createStatusBar();
    QDockWidget* createDock(const QString& objectName, const QString& title, QWidget* content,
                            Qt::DockWidgetArea area);
    void createDocks();
    void readSettings();
    void applySkin();
    void restoreLayout();
    void saveLayout() const;

    // Whether any motion window has axes moving or a sequence running.
    void fillCombos();
    void fillCardCombo(BoardFamily family, int selection);
    void updatePaneTitles();
    void relayToToolViews(UserMessage message, int wParam);
    void runCommand(FrameCommand command);
    void noteRefusedBoardCall();

    AppState& m_state;
    BoardApi& m_board;
    PromptService& m_prompt;
    const ToolWindowFactory& m_factory;
    BoardStartup m_startup;
    ToolContext m_context;

    QMdiArea* m_mdiArea = nullptr;
    ToolWindowHost* m_tools = nullptr;
    COV_WsSysWnd* m_tree = nullptr;
    COV_StBaseWnd* m_statusView = nullptr;
    COV_UtMtnStWnd* m_motionPane = nullptr;
    QDockWidget* m_treeDock = nullptr;
    QDockWidget* m_statusDock = nullptr;
    QDockWidget* m_motionDock = nullptr;
    QComboBox* m_familyCombo = nullptr;
    QComboBox* m_cardCombo = nullptr;
    QAction* m_stopAll = nullptr;
    QLabel* m_stopReport = nullptr; // what the last Stop All did
    // the panes' own board handles, so that the trace tells their calls apart
    std::unique_ptr<BoardApi> m_statusBoard;
    std::unique_ptr<BoardApi> m_motionBoard;
    BoardFailureNote m_failureNote;
    QTimer m_monitorTimer;
    int m_showStatusWindow = 1;
    int m_statusFollowsOperation = 1;
};
