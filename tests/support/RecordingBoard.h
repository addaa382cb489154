#pragma once

#include "BoardApi.h"
#include "BoardFamily.h"
#include "nrx_contract.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <type_traits>
#include <vector>

// A board library double at the contract boundary: a function table like the loader's, whose
// every entry logs the call with its arguments ("Inc_Move(0,1,1000)") and returns scripted
// values. One instance per family may exist at a time.
class RecordingBoard
{
public:
    explicit RecordingBoard(BoardFamily family);
    ~RecordingBoard();
    RecordingBoard(const RecordingBoard&) = delete;
    RecordingBoard& operator=(const RecordingBoard&) = delete;

    BoardFamily family() const { return m_family; }
    const NrxFunctionTable* table() const { return &m_table; }
    void installInto(BoardApi& api) const { api.setTable(m_family, &m_table); }

    // Every call so far, oldest first. Array arguments show as [a,b], out-pointers as "&",
    // strings in quotes.
    QStringList calls() const { return m_calls; }
    // Only the calls whose operation is one of names, in order.
    QStringList calls(const QStringList& names) const;
    // Calls apart from the given (typically polled) operations.
    QStringList callsExcept(const QStringList& names) const;
    int count(const QString& name) const;
    void clearCalls() { m_calls.clear(); }

    // What an operation returns: queued values first, then the value for its first two
    // integer arguments (card and axis, or card and bit), then the operation's value, else 0.
    void setResult(const char* operation, std::int32_t value);
    void setResultFor(const char* operation, int card, int second, std::int32_t value);
    void queueResults(const char* operation, std::vector<std::int32_t> values);
    // Values written through an operation's out-pointers, in parameter order.
    void setOutValues(const char* operation, std::vector<std::int32_t> values);
    void setOutValuesFor(const char* operation, int card, int second,
                         std::vector<std::int32_t> values);

    // Used by the generated table entries.
    template <typename R> struct Call;
    static RecordingBoard* instance(int family);

private:
    using Key = std::tuple<std::string, std::int64_t, std::int64_t>;

    template <typename T> static void noteInteger(std::vector<std::int64_t>& ints, T value);
    template <typename T>
    QString formatArgument(T value, std::int64_t lastInteger, const std::vector<std::int32_t>* outs,
                           std::size_t& outIndex);

    std::int32_t resultFor(const std::string& name, const std::vector<std::int64_t>& ints);
    const std::vector<std::int32_t>* outsFor(const std::string& name,
                                             const std::vector<std::int64_t>& ints) const;

    template <typename R, typename... T> R record(const char* name, T... args);

    BoardFamily m_family;
    NrxFunctionTable m_table{};
    QStringList m_calls;
    std::map<std::string, std::deque<std::int32_t>> m_queued;
    std::map<Key, std::int32_t> m_resultsFor;
    std::map<std::string, std::int32_t> m_results;
    std::map<Key, std::vector<std::int32_t>> m_outsFor;
    std::map<std::string, std::vector<std::int32_t>> m_outs;
};

template <typename R> struct RecordingBoard::Call
{
    RecordingBoard* board;
    const char* name;
    template <typename... T> R operator()(T... args) const
    {
        return board ? board->record<R>(name, args...) : R{};
    }
};

template <typename T> void RecordingBoard::noteInteger(std::vector<std::int64_t>& ints, T value)
{
    if constexpr (std::is_integral_v<T>)
        ints.push_back(static_cast<std::int64_t>(value));
}

template <typename T>
QString RecordingBoard::formatArgument(T value, std::int64_t lastInteger,
                                       const std::vector<std::int32_t>* outs, std::size_t& outIndex)
{
    if constexpr (std::is_integral_v<T>) {
        return QString::number(static_cast<qint64>(value));
    } else if constexpr (std::is_same_v<T, const char*>) {
        return QStringLiteral("\"%1\"").arg(QString::fromLatin1(value ? value : ""));
    } else if constexpr (std::is_const_v<std::remove_pointer_t<T>>) {
        // Arrays of the multi-axis operations: their length is the count before them.
        QStringList items;
        for (std::int64_t i = 0; value && i < lastInteger; ++i)
            items << QString::number(static_cast<qint64>(value[i]));
        return QLatin1Char('[') + items.join(QLatin1Char(',')) + QLatin1Char(']');
    } else {
        if (value && outs && outIndex < outs->size())
            *value = static_cast<std::remove_pointer_t<T>>((*outs)[outIndex]);
        ++outIndex;
        return QStringLiteral("&");
    }
}

template <typename R, typename... T> R RecordingBoard::record(const char* name, T... args)
{
    std::vector<std::int64_t> ints;
    (noteInteger(ints, args), ...);
    const std::vector<std::int32_t>* outs = outsFor(name, ints);
    std::size_t outIndex = 0;
    std::int64_t lastInteger = 0;
    QStringList parts;
    auto format = [&](auto value) {
        parts << formatArgument(value, lastInteger, outs, outIndex);
        if constexpr (std::is_integral_v<decltype(value)>)
            lastInteger = static_cast<std::int64_t>(value);
    };
    (format(args), ...);
    (void)format; // operations without arguments
    m_calls << QString::fromLatin1(name) + QLatin1Char('(') + parts.join(QLatin1Char(',')) +
                   QLatin1Char(')');
    return static_cast<R>(resultFor(name, ints));
}
