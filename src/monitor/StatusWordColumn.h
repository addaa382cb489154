#pragma once

#include "StatusBitCaptions.h"

#include <QCoreApplication>
#include <QPixmap>

#include <array>
#include <cstdint>
#include <optional>

class BitLamp;
class QGridLayout;
class QLabel;
class QLineEdit;
class QWidget;

// One status word of one axis laid into a column of its window's grid: the word's title,
// sixteen bit lamps and the hexadecimal value. A lamp is touched only when its bit changed, the
// value field only when its text did.
class StatusWordColumn
{
    Q_DECLARE_TR_FUNCTIONS(StatusWordColumn)

public:
    static constexpr int kBits = StatusBitCaptions::kBits;
    static constexpr int kTitleRow = 0;
    static constexpr int kFirstLampRow = 1;
    static constexpr int kValueRow = kFirstLampRow + kBits;

    StatusWordColumn(StatusWordKind word, QWidget& parent, QGridLayout& grid, int gridColumn);

    StatusWordKind word() const { return m_word; }
    // Draws the lamp pictures and tooltips for the family's and axis's captions.
    void loadImages(BoardFamily family, int axis);
    // Gives every lamp its dark picture and forgets the shown bits.
    void resetLamps();
    // Shows a word read from the board.
    void showWord(std::uint16_t value);

    BitLamp* lamp(int bit) const { return m_lamps[static_cast<std::size_t>(bit)]; }
    QLineEdit* valueField() const { return m_value; }
    // "0x" and four upper-case hexadecimal digits.
    static QString valueText(std::uint16_t value);

private:
    StatusWordKind m_word;
    QLabel* m_title = nullptr;
    QLineEdit* m_value = nullptr;
    std::array<BitLamp*, kBits> m_lamps{};
    std::array<QPixmap, kBits> m_litImages;
    std::array<QPixmap, kBits> m_darkImages;
    std::uint16_t m_shownBits = 0;
    std::optional<std::uint16_t> m_shownValue;
};
