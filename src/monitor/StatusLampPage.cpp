#include "StatusLampPage.h"

#include "AppState.h"
#include "BitLamp.h"
#include "BitLampPainter.h"
#include "BoardApi.h"

#include <QGridLayout>
#include <QLineEdit>

namespace {
const QColor kPageGrey(210, 210, 210);
const QColor kTitleBlue(0, 0, 255);
} // namespace

StatusLampPage::StatusLampPage(StatusWordKind word, AppState& state, BoardApi& board,
                               QWidget* parent)
    : QWidget(parent), m_word(word), m_state(state), m_board(board)
{
    QPalette grey = palette();
    grey.setColor(QPalette::Window, kPageGrey);
    setPalette(grey);
    setAutoFillBackground(true);
    createLayout();
    loadImages();
    resetLamps();
}

void StatusLampPage::createLayout()
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(4, 4, 4, 4);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(2);
    for (int column = 0; column < kColumns; ++column) {
        grid->addWidget(createTitle(column), 0, column);
        for (int bit = 0; bit < kBits; ++bit) {
            auto* lamp = new BitLamp(this);
            m_lamps[static_cast<std::size_t>(column)][static_cast<std::size_t>(bit)] = lamp;
            grid->addWidget(lamp, bit + 1, column);
        }
    }
    grid->setRowStretch(kBits + 1, 1);
    grid->setColumnStretch(kColumns, 1);
}

QWidget* StatusLampPage::createTitle(int column)
{
    auto* title = new QLineEdit(tr("%1 Axis").arg(column), this);
    title->setReadOnly(true);
    title->setFrame(false);
    title->setFocusPolicy(Qt::NoFocus);
    title->setAlignment(Qt::AlignCenter);
    title->setFixedWidth(BitLampPainter::kWidth);
    QPalette colours = title->palette();
    colours.setColor(QPalette::Text, kTitleBlue);
    colours.setColor(QPalette::Base, kPageGrey);
    title->setPalette(colours);
    m_titles[static_cast<std::size_t>(column)] = title;
    return title;
}

BitLamp* StatusLampPage::lamp(int column, int bit) const
{
    return m_lamps[static_cast<std::size_t>(column)][static_cast<std::size_t>(bit)];
}

QLineEdit* StatusLampPage::title(int column) const
{
    return m_titles[static_cast<std::size_t>(column)];
}

void StatusLampPage::loadImages()
{
    for (auto& column : m_shown)
        column.fill(1);
    const BoardFamily family = m_state.active.family;
    for (int bit = 0; bit < kBits; ++bit) {
        const auto index = static_cast<std::size_t>(bit);
        m_darkImages[index] =
            BitLampPainter::draw(StatusBitCaptions::caption(m_word, bit, family), false);
        m_litImages[index] =
            BitLampPainter::draw(StatusBitCaptions::litCaption(m_word, bit, family), true);
        const QString tip = StatusBitCaptions::toolTip(m_word, bit, family);
        for (int column = 0; column < kColumns; ++column)
            lamp(column, bit)->setToolTip(tip);
    }
}

void StatusLampPage::resetLamps()
{
    for (int column = 0; column < kColumns; ++column) {
        for (int bit = 0; bit < kBits; ++bit) {
            lamp(column, bit)->setImage(m_darkImages[static_cast<std::size_t>(bit)]);
            m_shown[static_cast<std::size_t>(column)][static_cast<std::size_t>(bit)] = 0;
        }
    }
}

void StatusLampPage::showColumns(const StatusColumnRules::Columns& columns)
{
    for (int column = 0; column < kColumns; ++column) {
        const auto index = static_cast<std::size_t>(column);
        const bool lampsShown = columns.lampsShown[index];
        if (lamp(column, 0)->isHidden() == lampsShown) {
            for (int bit = 0; bit < kBits; ++bit)
                lamp(column, bit)->setVisible(lampsShown);
        }
        QLineEdit* edit = title(column);
        if (edit->isHidden() == columns.titlesShown[index])
            edit->setVisible(columns.titlesShown[index]);
        if (m_shownTitleAxis[index] != columns.titleAxis[index]) {
            m_shownTitleAxis[index] = columns.titleAxis[index];
            edit->setText(tr("%1 Axis").arg(columns.titleAxis[index]));
        }
    }
}

std::uint16_t StatusLampPage::readWord(BoardFamily family, int card, int axis)
{
    const auto c = static_cast<CardNo>(card);
    const auto a = static_cast<AxisNo>(axis);
    return m_word == StatusWordKind::Card ? m_board.GetCardStatus(family, c, a)
                                          : m_board.GetDrvStatus(family, c, a);
}

void StatusLampPage::refresh()
{
    const BoardFamily family = m_state.active.family;
    const int card = m_state.active.card;
    const int axisCount = m_state.registry.axisCount(family, card);

    StatusColumnRules::apply(m_columns, m_firstAxis, axisCount);
    showColumns(m_columns);

    const int columnsToRead = StatusColumnRules::columnsToRead(m_firstAxis, axisCount);
    for (int column = 0; column < columnsToRead; ++column) {
        const std::uint16_t word = readWord(family, card, m_firstAxis + column);
        auto& shown = m_shown[static_cast<std::size_t>(column)];
        for (int bit = 0; bit < kBits; ++bit) {
            const auto index = static_cast<std::size_t>(bit);
            const std::uint32_t value = word & (1u << bit);
            if (value == shown[index])
                continue;
            lamp(column, bit)->setImage(value != 0 ? m_litImages[index] : m_darkImages[index]);
            shown[index] = value;
        }
    }
}
