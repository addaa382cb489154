#pragma once

#include "BoardFamily.h"

#include <QString>

#include <array>
#include <cstdint>

class BoardApi;

// What the digital I/O monitor shows of one card: the general inputs and outputs 32 points
// per page, each side's page word, and the card's input filter. It reads the board, writes
// the outputs and tells which positions changed since the last poll.
class DigitalIoModel
{
public:
    static constexpr int kPagePoints = 32;
    static constexpr int kFilterTimes = 16;

    enum class Pattern
    {
        Odd,  // on at points 0, 2, 4, ...: "odd" counts outputs from one
        Even, // on at points 1, 3, 5, ...
        AllOn,
        AllOff
    };

    explicit DigitalIoModel(BoardApi& board) : m_board(board) {}

    // Positions a page polls: all 32 on a 24-point card, else the points the page holds.
    static int rangeCount(int ioCount, int page);
    // Whether a position of a page is a point of the card (a 24-point card lacks 8..15).
    static bool isPresent(int ioCount, int page, int position);
    static int pageCountFor(int ioCount) { return ioCount < 33 ? 1 : 2; }
    // "0x" and eight upper-case hexadecimal digits.
    static QString formatWord(std::uint32_t word);
    // A typed output word, with or without "0x"; false for text the word edit refuses.
    static bool parseWord(const QString& text, std::uint32_t& word);

    // Shows another card (or the same again) from page 0 on both sides, everything off.
    void setCard(BoardFamily family, int card, int ioCount);
    BoardFamily family() const { return m_family; }
    int card() const { return m_card; }
    int ioCount() const { return m_ioCount; }
    int pageCount() const { return pageCountFor(m_ioCount); }

    // Shows another page on one side; its lamps or buttons count as off until the next poll.
    void setInputPage(int page);
    void setOutputPage(int page);
    int inputPage() const { return m_inputPage; }
    int outputPage() const { return m_outputPage; }

    // Reads the input page; returns the positions (bit mask) whose lamp changed.
    std::uint32_t pollInputs();
    // Reads the output page; returns the positions whose button changed.
    std::uint32_t pollOutputs();
    std::uint32_t inputWord() const { return m_inputWord; }
    std::uint32_t outputWord() const { return m_outputWord; }
    // Whether the last output poll found a word other than the one reported before.
    bool outputWordChanged() const { return m_outputWordChanged; }

    // A click on an output button of the page: the point switches over. Ignored while locked.
    void toggleOutput(int position);
    void writePattern(Pattern pattern);
    // Every point of the output page takes its bit of the word.
    void writeWord(std::uint32_t word);
    void setLocked(bool locked) { m_locked = locked; }
    bool locked() const { return m_locked; }

    int boardFilter() const;
    int boardFilterTime() const;
    void setFilter(int enable, int time);
    // Whether the given selections differ from what the board has.
    bool filterDiffers(int enable, int time) const;

private:
    int firstPoint(int page) const { return page == 1 ? kPagePoints : 0; }

    BoardApi& m_board;
    BoardFamily m_family = BoardFamily::RL;
    int m_card = 0;
    int m_ioCount = 0;
    int m_inputPage = 0;
    int m_outputPage = 0;
    bool m_locked = false;
    std::uint32_t m_inputWord = 0;
    std::uint32_t m_outputWord = 0;
    std::uint32_t m_reportedOutputWord = 0;
    bool m_outputWordChanged = false;
    std::array<std::uint16_t, kPagePoints> m_outputCache{};
};
