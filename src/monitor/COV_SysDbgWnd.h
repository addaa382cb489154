#pragma once

#include "BoardFamily.h"
#include "ToolContext.h"
#include "ToolView.h"

#include <QTimer>

#include <array>
#include <cstdint>
#include <optional>
#include <tuple>

class DiagnosisGrid;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

// The "System Diagnosis" tool window: for one card of any family, every axis's positions,
// speed and five status words in two grids, and the card's digital inputs and outputs as
// hexadecimal words, polled every 10 ms. It only reads.
class COV_SysDbgWnd : public ToolView
{
    Q_OBJECT

public:
    enum PositionRow
    {
        CmdPos = 0,
        ActPos = 1,
        CmdVel = 2
    };
    enum Side
    {
        Inputs = 0,
        Outputs = 1
    };

    explicit COV_SysDbgWnd(const ToolContext& context, QWidget* parent = nullptr);

    ToolKind kind() const override { return ToolSystemDiagnosis; }
    QTimer* pollTimer() override { return &m_timer; }
    // The window keeps its own card; no notification changes it.
    void handleUserMessage(UserMessage, int) override {}

    // Timer 1: both grids, then the digital inputs and outputs.
    void tick();
    QTimer& timer() { return m_timer; }

    BoardFamily family() const { return m_family; }
    int card() const { return m_card; }
    DiagnosisGrid* positionGrid() const { return m_positions; }
    DiagnosisGrid* statusGrid() const { return m_statuses; }
    QLineEdit* ioWordField(Side side, int group) const;

private:
    QWidget* createSelectorRow();
    QGroupBox* createGridGroup(const QString& title, DiagnosisGrid* grid);
    QGroupBox* createIoGroup(const QString& title, Side side);
    void fillFamilyCombo();
    void fillCardCombo();
    void chooseFamily(int index);
    void chooseCard(int index);
    void takeCounts();
    void readPositions();
    // Hands the position grid the card's scales when the units or the card changed.
    void takeScales();
    void readStatusWords();
    void readIo(Side side);

    ToolContext m_context;
    BoardFamily m_family = BoardFamily::RL;
    int m_card = 0;
    int m_axisCount = 0;
    int m_ioCount = 0;
    QComboBox* m_familyCombo = nullptr;
    QComboBox* m_cardCombo = nullptr;
    QPushButton* m_close = nullptr;
    DiagnosisGrid* m_positions = nullptr;
    DiagnosisGrid* m_statuses = nullptr;
    // [side][group]: the box and the word it shows; no word is an empty box.
    std::array<std::array<QLineEdit*, 2>, 2> m_ioFields{};
    std::array<std::array<std::optional<std::uint32_t>, 2>, 2> m_ioShown{};
    std::array<std::array<bool, 2>, 2> m_ioEmpty{};
    QTimer m_timer;
    // the units' revision, family and card the position grid's scales belong to
    std::tuple<int, int, int> m_scalesOf{-1, -1, -1};
};
