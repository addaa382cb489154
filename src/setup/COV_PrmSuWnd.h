#pragma once

#include "ToolContext.h"
#include "ToolView.h"

#include "BoardFamily.h"

#include <array>

class COV_SysIOSetWnd;
class ParameterSetupPage;
class QComboBox;
class QPushButton;
class QStackedWidget;
class QTabBar;

// The parameter setup tool window: picks a card and axis of the active controller and hosts
// the "System IO", "Motion Parameter" and "Filter" pages, asking before edits are left behind.
class COV_PrmSuWnd : public ToolView
{
    Q_OBJECT

public:
    explicit COV_PrmSuWnd(const ToolContext& context, QWidget* parent = nullptr);

    ToolKind kind() const override { return ToolParameter; }
    void handleUserMessage(UserMessage message, int wParam) override;
    bool settleBeforeExit() override;

protected:
    void askBeforeClose() override;

private:
    QWidget* createSelectorRow();
    QWidget* createButtonColumn();

    void fillCardCombo();
    void refresh();
    void handPagesAxis();
    // Asks about unwritten edits of the shown page; true when the answer was No.
    bool leaveCheck(BoardFamily family);
    // The leave-check question, naming the card, axis and page of the edits.
    QString leaveQuestion(BoardFamily family) const;
    // The status bar's word after a write of the shown page.
    void noteWritten(BoardFamily family);
    void openCopyDialog();

    void onTabChanged(int index);
    void onCardActivated(int index);
    void onAxisActivated(int index);
    void onControllerChanged();
    void onAxisChanged(int axis);
    void onDefaultClicked();
    void onCopyClicked();

    ToolContext m_context;
    CardNo m_card = 0;
    AxisNo m_axis = 0;
    int m_page = 0;

    QComboBox* m_cardCombo = nullptr;
    QComboBox* m_axisCombo = nullptr;
    QTabBar* m_tabBar = nullptr;
    QStackedWidget* m_stack = nullptr;
    COV_SysIOSetWnd* m_systemIo = nullptr;
    std::array<ParameterSetupPage*, 3> m_pages{};
};
