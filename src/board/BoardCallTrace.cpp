#include "BoardCallTrace.h"

#include <QDateTime>

#include <algorithm>

BoardCallTrace::BoardCallTrace(std::size_t readCapacity)
    : m_reads(readCapacity > 0 ? readCapacity : 1),
      m_originUs(QDateTime::currentMSecsSinceEpoch() * 1000), m_start(Clock::now())
{
    addBlock(0);
}

namespace {
// The first index in [low, high) whose call is numbered `number` or later: numbers rise with
// the index in both stores.
template <typename At>
std::uint64_t firstFrom(std::uint64_t low, std::uint64_t high, std::uint64_t number, At at)
{
    while (low < high) {
        const std::uint64_t middle = low + (high - low) / 2;
        if (at(middle).number < number)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}
} // namespace

std::uint64_t BoardCallTrace::firstReadFrom(std::uint64_t number) const
{
    return firstFrom(readsHeldFrom(), m_readsEnd, number,
                     [this](std::uint64_t i) -> const BoardCall& { return readAt(i); });
}

std::uint64_t BoardCallTrace::firstKeptFrom(std::uint64_t number) const
{
    return firstFrom(m_keptBegin, m_keptEnd, number,
                     [this](std::uint64_t i) -> const BoardCall& { return keptAt(i); });
}

const BoardCall* BoardCallTrace::find(std::uint64_t number) const
{
    const std::uint64_t kept = firstKeptFrom(number);
    if (kept < m_keptEnd && keptAt(kept).number == number)
        return &keptAt(kept);
    const std::uint64_t read = firstReadFrom(number);
    if (read < m_readsEnd && readAt(read).number == number)
        return &readAt(read);
    return nullptr;
}

void BoardCallTrace::addBlock(std::size_t block)
{
    if (m_blocks.size() <= block)
        m_blocks.resize(block + 1);
    m_blocks[block] = std::make_unique<BoardCall[]>(kBlock);
}

void BoardCallTrace::dropOldestBlock()
{
    m_keptBegin = (m_keptBegin / kBlock + 1) * kBlock;
    m_keptGap = keptAt(m_keptBegin).number;
    releaseBlocks();
}

void BoardCallTrace::releaseBlocks()
{
    const auto first = static_cast<std::size_t>(m_keptBegin / kBlock);
    for (std::size_t block = 0; block < first && block < m_blocks.size(); ++block)
        m_blocks[block].reset();
}
