#include "RecordingBoard.h"

#include <array>

namespace {

std::array<RecordingBoard*, kFamilyCount> g_instances{};

// Fills a table whose entries forward to the recording board of family F.
template <int F> void fillTable(NrxFunctionTable& table)
{
#define ORVANE_RECORDING_ENTRY_(ret, name, params, args, families)                                 \
    table.name = [] params -> ret {                                                                \
        return RecordingBoard::Call<ret>{RecordingBoard::instance(F), #name} args;                 \
    };
    NRX_FOR_EACH_OPERATION(ORVANE_RECORDING_ENTRY_)
#undef ORVANE_RECORDING_ENTRY_
}

} // namespace

RecordingBoard::RecordingBoard(BoardFamily family) : m_family(family)
{
    switch (family) {
    case BoardFamily::RL:
        fillTable<0>(m_table);
        break;
    case BoardFamily::RM:
        fillTable<1>(m_table);
        break;
    case BoardFamily::RN:
        fillTable<2>(m_table);
        break;
    }
    // The table mirrors a real library: a family lacks the operations it does not export.
    const int familyBit = 1 << familyIndex(family);
#define ORVANE_DROP_FOREIGN_(ret, name, params, args, families)                                    \
    if (!((families)&familyBit))                                                                   \
        m_table.name = nullptr;
    NRX_FOR_EACH_OPERATION(ORVANE_DROP_FOREIGN_)
#undef ORVANE_DROP_FOREIGN_
    g_instances[static_cast<std::size_t>(familyIndex(family))] = this;
}

RecordingBoard::~RecordingBoard()
{
    g_instances[static_cast<std::size_t>(familyIndex(m_family))] = nullptr;
}

RecordingBoard* RecordingBoard::instance(int family)
{
    return family >= 0 && family < kFamilyCount ? g_instances[static_cast<std::size_t>(family)]
                                                : nullptr;
}

namespace {
QString operationOf(const QString& call)
{
    return call.left(call.indexOf(QLatin1Char('(')));
}
} // namespace

QStringList RecordingBoard::calls(const QStringList& names) const
{
    QStringList result;
    for (const QString& call : m_calls) {
        if (names.contains(operationOf(call)))
            result << call;
    }
    return result;
}

QStringList RecordingBoard::callsExcept(const QStringList& names) const
{
    QStringList result;
    for (const QString& call : m_calls) {
        if (!names.contains(operationOf(call)))
            result << call;
    }
    return result;
}

int RecordingBoard::count(const QString& name) const
{
    return static_cast<int>(calls(QStringList{name}).size());
}

void RecordingBoard::setResult(const char* operation, std::int32_t value)
{
    m_results[operation] = value;
}

void RecordingBoard::setResultFor(const char* operation, int card, int second, std::int32_t value)
{
    m_resultsFor[Key{operation, card, second}] = value;
}

void RecordingBoard::queueResults(const char* operation, std::vector<std::int32_t> values)
{
    auto& queue = m_queued[operation];
    queue.insert(queue.end(), values.begin(), values.end());
}

void RecordingBoard::setOutValues(const char* operation, std::vector<std::int32_t> values)
{
    m_outs[operation] = std::move(values);
}

void RecordingBoard::setOutValuesFor(const char* operation, int card, int second,
                                     std::vector<std::int32_t> values)
{
    m_outsFor[Key{operation, card, second}] = std::move(values);
}

std::int32_t RecordingBoard::resultFor(const std::string& name,
                                       const std::vector<std::int64_t>& ints)
{
    auto queued = m_queued.find(name);
    if (queued != m_queued.end() && !queued->second.empty()) {
        const std::int32_t value = queued->second.front();
        queued->second.pop_front();
        return value;
    }
    if (ints.size() >= 2) {
        auto specific = m_resultsFor.find(Key{name, ints[0], ints[1]});
        if (specific != m_resultsFor.end())
            return specific->second;
    }
    auto general = m_results.find(name);
    return general != m_results.end() ? general->second : 0;
}

const std::vector<std::int32_t>*
RecordingBoard::outsFor(const std::string& name, const std::vector<std::int64_t>& ints) const
{
    if (!ints.empty()) {
        auto specific = m_outsFor.find(Key{name, ints[0], ints.size() >= 2 ? ints[1] : 0});
        if (specific != m_outsFor.end())
            return &specific->second;
    }
    auto general = m_outs.find(name);
    return general != m_outs.end() ? &general->second : nullptr;
}
