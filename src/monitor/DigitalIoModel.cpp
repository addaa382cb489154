#include "DigitalIoModel.h"

#include "BoardApi.h"
#include "IsNumericText.h"

#include <cstdlib>

namespace {
constexpr int kTwentyFourPoints = 24;

std::uint16_t u16(int value)
{
    return static_cast<std::uint16_t>(value);
}
} // namespace

int DigitalIoModel::rangeCount(int ioCount, int page)
{
    if (ioCount == kTwentyFourPoints)
        return page == 0 ? kPagePoints : 0;
    const int left = ioCount - (page == 1 ? kPagePoints : 0);
    return left < 0 ? 0 : (left > kPagePoints ? kPagePoints : left);
}

bool DigitalIoModel::isPresent(int ioCount, int page, int position)
{
    // The 24-point card wires its points to 0..7 and 16..31.
    if (ioCount == kTwentyFourPoints && position >= 8 && position < 16)
        return false;
    return position >= 0 && position < rangeCount(ioCount, page);
}

QString DigitalIoModel::formatWord(std::uint32_t word)
{
    return QStringLiteral("0x") + QString::number(word, 16).toUpper().rightJustified(8, u'0');
}

bool DigitalIoModel::parseWord(const QString& text, std::uint32_t& word)
{
    const bool prefixed = text.startsWith(QLatin1String("0x"));
    // After "0x" the check starts one character late, so the first digit goes unchecked.
    if (!IsNumericText(prefixed ? text.mid(3) : text, true))
        return false;
    const QByteArray digits = (prefixed ? text.mid(2) : text).toLatin1();
    const unsigned long long value = std::strtoull(digits.constData(), nullptr, 16);
    const bool negative = digits.trimmed().startsWith('-');
    word = !negative && value > 0xFFFFFFFFULL ? 0xFFFFFFFFU : static_cast<std::uint32_t>(value);
    return true;
}

void DigitalIoModel::setCard(BoardFamily family, int card, int ioCount)
{
    m_family = family;
    m_card = card;
    m_ioCount = ioCount;
    setInputPage(0);
    setOutputPage(0);
}

void DigitalIoModel::setInputPage(int page)
{
    m_inputPage = page;
    m_inputWord = 0;
}

void DigitalIoModel::setOutputPage(int page)
{
    m_outputPage = page;
    m_outputWord = 0;
    // The host shows this page's word from scratch, so the next report starts from 0 too.
    m_reportedOutputWord = 0;
    m_outputCache.fill(0);
}

std::uint32_t DigitalIoModel::pollInputs()
{
    std::uint32_t word = 0;
    const int first = firstPoint(m_inputPage);
    const int count = rangeCount(m_ioCount, m_inputPage);
    for (int position = 0; position < count; ++position) {
        if (m_board.GetDIBit(m_family, u16(m_card), u16(first + position)) != 0)
            word |= 1U << position;
    }
    const std::uint32_t changed = word ^ m_inputWord;
    m_inputWord = word;
    return changed;
}

std::uint32_t DigitalIoModel::pollOutputs()
{
    std::uint32_t word = 0;
    std::uint32_t changed = 0;
    const int first = firstPoint(m_outputPage);
    const int count = rangeCount(m_ioCount, m_outputPage);
    for (int position = 0; position < count; ++position) {
        const std::uint16_t value = m_board.GetDOBit(m_family, u16(m_card), u16(first + position));
        std::uint16_t& cache = m_outputCache[static_cast<std::size_t>(position)];
        if ((value != 0) != (cache != 0))
            changed |= 1U << position;
        cache = value;
        if (value != 0)
            word |= 1U << position;
    }
    m_outputWord = word;
    m_outputWordChanged = word != m_reportedOutputWord;
    m_reportedOutputWord = word;
    return changed;
}

void DigitalIoModel::toggleOutput(int position)
{
    if (m_locked)
        return;
    const int point =
        (m_outputPage == 0 || m_outputPage == 1) ? firstPoint(m_outputPage) + position : 0;
    const bool on = m_board.GetDOBit(m_family, u16(m_card), u16(point)) != 0;
    m_board.PutDOBit(m_family, u16(m_card), u16(point), on ? 0 : 1);
}

void DigitalIoModel::writePattern(Pattern pattern)
{
    const int first = firstPoint(m_outputPage);
    const int count = rangeCount(m_ioCount, m_outputPage);
    for (int point = first; point < first + count; ++point) {
        bool on = pattern == Pattern::AllOn;
        if (pattern == Pattern::Odd)
            on = point % 2 == 0;
        else if (pattern == Pattern::Even)
            on = point % 2 == 1;
        m_board.PutDOBit(m_family, u16(m_card), u16(point), on ? 1 : 0);
    }
}

void DigitalIoModel::writeWord(std::uint32_t word)
{
    const int first = firstPoint(m_outputPage);
    const int count = rangeCount(m_ioCount, m_outputPage);
    for (int point = first; point < first + count; ++point) {
        const bool on = (word >> (point % kPagePoints) & 1U) != 0;
        m_board.PutDOBit(m_family, u16(m_card), u16(point), on ? 1 : 0);
    }
}

int DigitalIoModel::boardFilter() const
{
    return m_board.GetDiFilter(m_family, u16(m_card));
}

int DigitalIoModel::boardFilterTime() const
{
    return m_board.GetDiFilterTime(m_family, u16(m_card));
}

void DigitalIoModel::setFilter(int enable, int time)
{
    m_board.SetDiFilter(m_family, u16(m_card), u16(enable));
    m_board.SetDiFilterTime(m_family, u16(m_card), u16(time));
}

bool DigitalIoModel::filterDiffers(int enable, int time) const
{
    return enable != boardFilter() || time != boardFilterTime();
}
