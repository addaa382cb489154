#pragma once

#include "BoardCallFilter.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <deque>
#include <vector>

class BoardCallTrace;
class QIODevice;

// The recorded board calls that pass a filter, oldest first, as a table read straight from the
// trace: the model keeps only the numbers of the matching calls, never a copy of them.
class BoardCallModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    BoardCallModel(const BoardCallTrace& trace, const QStringList& callers,
                   QObject* parent = nullptr);

    const BoardCallFilter& filter() const { return m_filter; }
    void setFilter(const BoardCallFilter& filter);

    // Drops the calls the trace no longer holds and adds the new ones that match. True when
    // rows came or went.
    bool refresh();

    // The call of a row; null once the trace has gone round over it.
    const BoardCall* call(int row) const;
    // A row's columns separated by tabs, as copied to the clipboard.
    QString rowText(int row) const;
    // Every row as CSV with a header line.
    bool writeCsv(QIODevice& device) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

private:
    std::uint64_t firstShown() const;

    const BoardCallTrace& m_trace;
    const QStringList& m_callers;
    BoardCallFilter m_filter;
    std::deque<std::uint64_t> m_rows; // numbers of the matching calls in the trace
    std::uint64_t m_scanned = 0;      // calls before this number have been looked at
    std::vector<std::uint64_t> m_found;
};
