#include "BoardCallModel.h"

#include "BoardCallText.h"
#include "BoardCallTrace.h"

#include <QBrush>
#include <QCoreApplication>
#include <QIODevice>

#include <algorithm>

BoardCallModel::BoardCallModel(const BoardCallTrace& trace, const QStringList& callers,
                               QObject* parent)
    : QAbstractTableModel(parent), m_trace(trace), m_callers(callers)
{
    m_scanned = firstShown();
    refresh();
}

std::uint64_t BoardCallModel::firstShown() const
{
    // The calls that change something go back to the start; shown with the polling reads,
    // the list starts where the reads' ring does.
    return m_filter.hidePolling ? m_trace.keptFrom() : m_trace.begin();
}

void BoardCallModel::setFilter(const BoardCallFilter& filter)
{
    beginResetModel();
    m_filter = filter;
    m_rows.clear();
    m_scanned = firstShown();
    endResetModel();
    refresh();
}

bool BoardCallModel::refresh()
{
    const std::uint64_t first = firstShown();
    const std::uint64_t end = m_trace.end();
    const auto kept = std::lower_bound(m_rows.begin(), m_rows.end(), first);
    const auto gone = static_cast<int>(kept - m_rows.begin());
    if (gone > 0) {
        beginRemoveRows(QModelIndex(), 0, gone - 1);
        m_rows.erase(m_rows.begin(), kept);
        endRemoveRows();
    }
    m_found.clear();
    m_trace.forEachFrom(std::max(m_scanned, first), [this](const BoardCall& call) {
        if (m_filter.matches(call))
            m_found.push_back(call.number);
    });
    m_scanned = end;
    if (!m_found.empty()) {
        const auto rows = static_cast<int>(m_rows.size());
        beginInsertRows(QModelIndex(), rows, rows + static_cast<int>(m_found.size()) - 1);
        m_rows.insert(m_rows.end(), m_found.begin(), m_found.end());
        endInsertRows();
    }
    return gone > 0 || !m_found.empty();
}

const BoardCall* BoardCallModel::call(int row) const
{
    if (row < 0 || row >= rowCount())
        return nullptr;
    const std::uint64_t number = m_rows[static_cast<std::size_t>(row)];
    return m_trace.find(number);
}

QString BoardCallModel::rowText(int row) const
{
    const BoardCall* recorded = call(row);
    if (recorded == nullptr)
        return QString();
    QStringList columns;
    for (int c = 0; c < BoardCallText::ColumnCount; ++c)
        columns << BoardCallText::column(*recorded, c, m_callers);
    return columns.join(QLatin1Char('\t'));
}

bool BoardCallModel::writeCsv(QIODevice& device) const
{
    QByteArray text = BoardCallText::csvHeader().toUtf8() + "\r\n";
    for (int row = 0; row < rowCount(); ++row) {
        if (const BoardCall* recorded = call(row))
            text += BoardCallText::csvLine(*recorded, m_callers).toUtf8() + "\r\n";
    }
    return device.write(text) == text.size();
}

int BoardCallModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int BoardCallModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : BoardCallText::ColumnCount;
}

QVariant BoardCallModel::data(const QModelIndex& index, int role) const
{
    const BoardCall* recorded = call(index.row());
    if (recorded == nullptr)
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return BoardCallText::column(*recorded, index.column(), m_callers);
    case Qt::ToolTipRole:
        // long argument lists do not fit their column; the time shows milliseconds only
        if (index.column() == BoardCallText::Time)
            return BoardCallText::preciseTime(*recorded);
        return index.column() == BoardCallText::Arguments
                   ? QVariant(BoardCallText::arguments(*recorded))
                   : QVariant();
    case Qt::ForegroundRole:
        return recorded->failed() ? QVariant(QBrush(Qt::red)) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == BoardCallText::Arguments ||
                       index.column() == BoardCallText::Operation ||
                       index.column() == BoardCallText::Caller
                   ? QVariant(Qt::AlignLeft | Qt::AlignVCenter)
                   : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

QVariant BoardCallModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return QCoreApplication::translate("BoardCallText",
                                           BoardCallText::header(section).toLatin1().constData());
    return QVariant();
}
