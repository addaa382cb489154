#pragma once

#include "SystemIoModel.h"
#include "ToolContext.h"
#include "ToolView.h"

#include <QTimer>

#include <array>

class CardSelectorRow;
class CLedButton;
class OutputButton;
class QCheckBox;
class QGridLayout;
class QPushButton;

// The system I/O tool window: every axis' servo-side input signals of one card as lamps, and
// its alarm-reset, counter-clear and servo-on outputs (with the card's run LED) as buttons.
class COV_SysIoWnd : public ToolView
{
    Q_OBJECT

public:
    static constexpr int kAxes = SystemIoModel::kAxes;

    explicit COV_SysIoWnd(const ToolContext& context, QWidget* parent = nullptr);

    ToolKind kind() const override { return ToolSystemIo; }
    QTimer* pollTimer() override { return &m_timer; }
    void handleUserMessage(UserMessage message, int wParam) override;

    // The 10 ms poll: inputs, then outputs, redrawing only what changed. Returns how many
    // lamps and buttons changed.
    int tick();
    QTimer& timer() { return m_timer; }
    const SystemIoModel& model() const { return m_model; }

    CLedButton* inputLamp(int axis, int row) const;
    CLedButton* emergencyLamp() const { return m_emergency; }
    OutputButton* outputButton(int axis, int row) const;
    OutputButton* runLedButton() const { return m_runLed; }

private:
    QWidget* createInputGroup();
    QWidget* createOutputGroup();
    QWidget* createButtonRow();
    void addAxisTitles(QGridLayout* grid);
    void connectControls();

    void fillCardCombo();
    void setUpLamps();
    void onLockToggled(bool locked);

    ToolContext m_context;
    SystemIoModel m_model;
    QTimer m_timer;

    CardSelectorRow* m_cardRow = nullptr;
    CLedButton* m_emergency = nullptr;
    std::array<std::array<CLedButton*, SystemIoModel::kInputRows>, kAxes> m_inputs{};
    std::array<std::array<OutputButton*, SystemIoModel::kOutputRows>, kAxes> m_outputs{};
    OutputButton* m_runLed = nullptr;
    QCheckBox* m_outputDisable = nullptr;
    QPushButton* m_allAlarmResetOn = nullptr;
    QPushButton* m_allAlarmResetOff = nullptr;
    QPushButton* m_allServoOn = nullptr;
    QPushButton* m_allServoOff = nullptr;
    QPushButton* m_close = nullptr;
};
