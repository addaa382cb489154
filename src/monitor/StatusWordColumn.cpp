#include "StatusWordColumn.h"

#include "BitLamp.h"
#include "BitLampPainter.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

StatusWordColumn::StatusWordColumn(StatusWordKind word, QWidget& parent, QGridLayout& grid,
                                   int gridColumn)
    : m_word(word)
{
    m_title = new QLabel(StatusBitCaptions::wordTitle(word), &parent);
    m_title->setAlignment(Qt::AlignCenter);
    grid.addWidget(m_title, kTitleRow, gridColumn, Qt::AlignHCenter);
    for (int bit = 0; bit < kBits; ++bit) {
        auto* lamp = new BitLamp(&parent);
        m_lamps[static_cast<std::size_t>(bit)] = lamp;
        grid.addWidget(lamp, kFirstLampRow + bit, gridColumn, Qt::AlignHCenter);
    }
    m_value = new QLineEdit(&parent);
    m_value->setReadOnly(true);
    m_value->setFocusPolicy(Qt::NoFocus);
    m_value->setAlignment(Qt::AlignCenter);
    m_value->setToolTip(tr("%1 status word in hexadecimal, bit 0 on the right")
                            .arg(StatusBitCaptions::wordTitle(word)));
    // "0x0000" and a little air, in the program's font.
    m_value->setFixedWidth(m_value->fontMetrics().horizontalAdvance(QStringLiteral("0xDDDDD")) + 8);
    grid.addWidget(m_value, kValueRow, gridColumn, Qt::AlignHCenter);
}

void StatusWordColumn::loadImages(BoardFamily family, int axis)
{
    for (int bit = 0; bit < kBits; ++bit) {
        const auto index = static_cast<std::size_t>(bit);
        m_darkImages[index] =
            BitLampPainter::draw(StatusBitCaptions::caption(m_word, bit, family, axis), false);
        m_litImages[index] =
            BitLampPainter::draw(StatusBitCaptions::litCaption(m_word, bit, family, axis), true);
        m_lamps[index]->setToolTip(StatusBitCaptions::toolTip(m_word, bit, family, axis));
    }
}

void StatusWordColumn::resetLamps()
{
    for (int bit = 0; bit < kBits; ++bit)
        lamp(bit)->setImage(m_darkImages[static_cast<std::size_t>(bit)]);
    m_shownBits = 0;
}

void StatusWordColumn::showWord(std::uint16_t value)
{
    const auto changed = static_cast<std::uint16_t>(value ^ m_shownBits);
    for (int bit = 0; changed != 0 && bit < kBits; ++bit) {
        const std::uint16_t mask = static_cast<std::uint16_t>(1u << bit);
        if ((changed & mask) == 0)
            continue;
        const auto index = static_cast<std::size_t>(bit);
        lamp(bit)->setImage((value & mask) != 0 ? m_litImages[index] : m_darkImages[index]);
    }
    m_shownBits = value;
    if (m_shownValue != value) {
        m_shownValue = value;
        m_value->setText(valueText(value));
    }
}

QString StatusWordColumn::valueText(std::uint16_t value)
{
    return QStringLiteral("0x") + QString::number(value, 16).toUpper().rightJustified(4, u'0');
}
