#pragma once

#include "StatusWordColumn.h"
#include "ToolContext.h"
#include "ToolView.h"

#include <QTimer>

#include <array>
#include <memory>

class QComboBox;
class QPushButton;

// The "Axis Status" tool window: the card, drive, main, error and input words of one axis of
// the active family, each as sixteen bit lamps and a hexadecimal value, polled every 10 ms.
class COV_AxStMonWnd : public ToolView
{
    Q_OBJECT

public:
    static constexpr int kWords = 5;

    explicit COV_AxStMonWnd(const ToolContext& context, QWidget* parent = nullptr);
    ~COV_AxStMonWnd() override;

    ToolKind kind() const override { return ToolAxisStatus; }
    QTimer* pollTimer() override { return &m_timer; }
    void handleUserMessage(UserMessage message, int wParam) override;

    // Timer 1: reads the five words of the chosen axis, in the order card, drive, main,
    // error, input.
    void tick();
    QTimer& timer() { return m_timer; }

    int card() const { return m_card; }
    int axis() const { return m_axis; }
    StatusWordColumn& column(StatusWordKind word) const
    {
        return *m_columns[static_cast<std::size_t>(word)];
    }

private:
    QWidget* createSelectorRow();
    QWidget* createWordGrid();
    void fillCardCombo(int card);
    void rebuild();
    void loadAxisImages();
    void resetLamps();
    void chooseCard(int card);
    void chooseAxis(int axis);
    void followAxis(int axis);

    ToolContext m_context;
    int m_card = 0;
    int m_axis = 0;
    QComboBox* m_cardCombo = nullptr;
    QComboBox* m_axisCombo = nullptr;
    QPushButton* m_close = nullptr;
    std::array<std::unique_ptr<StatusWordColumn>, kWords> m_columns;
    QTimer m_timer;
};
