#pragma once

#include "ToolContext.h"
#include "ToolView.h"

#include <QTimer>

class BoardCallModel;
class BoardCallTrace;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QTableView;

// The "Board Calls" window: every call the program made to the board libraries, with its
// arguments, result and caller, newest at the bottom, filtered, paused, copied or exported.
class COV_BoardCallWnd : public ToolView
{
    Q_OBJECT

public:
    // The table takes in new calls on every tenth tick: a list scrolling faster than ten
    // times a second can't be read, and every scroll repaints each visible cell.
    static constexpr int kTicksPerUpdate = 10;

    COV_BoardCallWnd(const ToolContext& context, QWidget* parent = nullptr);
    ~COV_BoardCallWnd() override;

    ToolKind kind() const override { return ToolBoardCalls; }
    QTimer* pollTimer() override { return &m_timer; }
    void handleUserMessage(UserMessage message, int wParam) override;
    QSize sizeHint() const override;

    // The 10 ms tick: refreshes the table on every kTicksPerUpdate-th call.
    void tick();
    // Takes in the new calls and follows the end unless the user scrolled up.
    void refresh();
    void setPaused(bool paused);
    void clear();
    // The selected rows, tab-separated, to the clipboard.
    void copySelection();
    bool exportCsv(const QString& path);

    BoardCallModel* model() const { return m_model; }
    QTableView* table() const { return m_table; }

private:
    QWidget* createFilters();
    QWidget* createActions();
    void createTable();
    void applyFilters();
    void updateCallers();

    ToolContext m_context;
    BoardCallTrace* m_trace = nullptr;
    BoardCallModel* m_model = nullptr;
    QTableView* m_table = nullptr;
    QComboBox* m_family = nullptr;
    QComboBox* m_card = nullptr;
    QComboBox* m_axis = nullptr;
    QLineEdit* m_operation = nullptr;
    QComboBox* m_caller = nullptr;
    QCheckBox* m_hidePolling = nullptr;
    QCheckBox* m_failuresOnly = nullptr;
    QPushButton* m_pause = nullptr;
    QTimer m_timer;
    int m_ticks = 0;
};
