#pragma once

#include "UserMessage.h"

#include <QWidget>

class BoardApi;
class QPushButton;
class QStackedWidget;
class QTabBar;
class StatusLampPage;
struct AppState;

// The docked status view: the "Card" and "Drive" status pages of the active controller, four
// axes at a time, with the paging buttons. Only the page on show is polled.
class COV_StBaseWnd : public QWidget
{
    Q_OBJECT

public:
    enum Page
    {
        CardPage = 0,
        DrivePage = 1
    };

    COV_StBaseWnd(AppState& state, BoardApi& board, QWidget* parent = nullptr);

    int firstAxis() const { return m_firstAxis; }
    int currentPage() const;
    void showPage(int page);
    StatusLampPage* page(int page) const;

    // Called by the frame on every monitor tick.
    void refresh();
    // UM_CONTROLLER_CHANGED and UM_AXIS_CHANGED as relayed by the frame.
    void handleUserMessage(UserMessage message, int wParam);

    void pageFirst();
    void pagePrevious();
    void pageNext();
    void pageLast();

private:
    QWidget* createTabs();
    QWidget* createPages();
    QWidget* createPagingButtons();
    QPushButton* createPagingButton(const QString& caption, void (COV_StBaseWnd::*action)());
    void setFirstAxis(int firstAxis);

    AppState& m_state;
    BoardApi& m_board;
    int m_firstAxis = 0;
    QTabBar* m_tabs = nullptr;
    QStackedWidget* m_stack = nullptr;
    StatusLampPage* m_cardPage = nullptr;
    StatusLampPage* m_drivePage = nullptr;
};
