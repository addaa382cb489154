#pragma once

#include "StatusBitCaptions.h"
#include "StatusColumnRules.h"

#include <QPixmap>
#include <QWidget>

#include <array>
#include <cstdint>

class BitLamp;
class BoardApi;
class QLineEdit;
struct AppState;

// A status page: one status word of four axes side by side as sixteen bit lamps each. It
// reads the active controller on every refresh and touches only lamps whose bit changed.
class StatusLampPage : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kColumns = StatusColumnRules::kColumns;
    static constexpr int kBits = StatusBitCaptions::kBits;

    StatusLampPage(StatusWordKind word, AppState& state, BoardApi& board,
                   QWidget* parent = nullptr);

    StatusWordKind word() const { return m_word; }
    int firstAxis() const { return m_firstAxis; }
    void setFirstAxis(int firstAxis) { m_firstAxis = firstAxis; }

    // Draws the lamp pictures for the active family's captions and marks every lamp stale.
    void loadImages();
    // Gives every lamp its dark picture.
    void resetLamps();
    // Reads the shown axes' words and redraws the lamps whose bit changed.
    void refresh();

    BitLamp* lamp(int column, int bit) const;
    QLineEdit* title(int column) const;

private:
    std::uint16_t readWord(BoardFamily family, int card, int axis);
    void createLayout();
    QWidget* createTitle(int column);
    void showColumns(const StatusColumnRules::Columns& columns);

    StatusWordKind m_word;
    AppState& m_state;
    BoardApi& m_board;
    int m_firstAxis = 0;
    std::array<std::array<BitLamp*, kBits>, kColumns> m_lamps{};
    std::array<QLineEdit*, kColumns> m_titles{};
    std::array<QPixmap, kBits> m_litImages;
    std::array<QPixmap, kBits> m_darkImages;
    // The bit value each lamp shows (0 or the bit's mask); 1 marks a lamp not yet drawn.
    std::array<std::array<std::uint32_t, kBits>, kColumns> m_shown{};
    StatusColumnRules::Columns m_columns;
    // The axis number each title shows, so a tick formats no text while it stays.
    std::array<int, kColumns> m_shownTitleAxis{-1, -1, -1, -1};
};

// The status view's card page (GetCardStatus) and drive page (GetDrvStatus): the same page,
// told which word to read.
using COV_StCardWnd = StatusLampPage;
using COV_StDrvWnd = StatusLampPage;
