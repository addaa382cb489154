#pragma once

#include "BoardSimulator.h"
#include "ToolContext.h"
#include "ToolView.h"

#include <QTimer>

#include <array>

class CardSelectorRow;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

// The simulator tool window: faults switched on the simulated boards while they run, per axis
// (limit, origin and Z switches, the drive's alarm and in-position line, encoder loss) and per
// card (EMG), and forced results of any operation of the family.
class COV_SimulatorWnd : public ToolView
{
    Q_OBJECT

public:
    static constexpr int kAxes = kMaxAxes;
    static constexpr int kRows = 8;
    // The switches follow the boards, which the faults file may change, at its own pace.
    static constexpr int kPollMs = 100;

    explicit COV_SimulatorWnd(const ToolContext& context, QWidget* parent = nullptr);

    ToolKind kind() const override { return ToolSimulator; }
    QTimer* pollTimer() override { return &m_timer; }
    void handleUserMessage(UserMessage message, int wParam) override;

    // Shows every switch and forced result as the boards hold them.
    void refresh();

    QCheckBox* faultBox(int axis, int row) const;
    QCheckBox* emergencyBox() const { return m_emergency; }

private:
    QWidget* createSwitchGroup();
    QWidget* createForcedGroup();
    void connectControls();
    void fillCard();
    void switchFault(int axis, int row, bool on);
    void force(bool use);
    void freeAll();

    ToolContext m_context;
    const BoardSimulator& m_simulator;
    QTimer m_timer;
    BoardFamily m_family = BoardFamily::RL;
    int m_card = 0;
    int m_axisCount = 0;

    CardSelectorRow* m_cardRow = nullptr;
    QLabel* m_notice = nullptr;
    std::array<std::array<QCheckBox*, kRows>, kAxes> m_faults{};
    QCheckBox* m_emergency = nullptr;
    QComboBox* m_operation = nullptr;
    QLineEdit* m_result = nullptr;
    QPushButton* m_force = nullptr;
    QPushButton* m_free = nullptr;
    QPushButton* m_freeAll = nullptr;
    QListWidget* m_forced = nullptr;
    QPushButton* m_close = nullptr;
};
