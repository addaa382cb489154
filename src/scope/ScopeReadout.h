#pragma once

#include <QWidget>

#include <array>

class QGridLayout;
class QLabel;
struct ScopeRecording;

// The two cursors read out: time and every column's value at each cursor, and the
// difference (cursor 2 minus cursor 1). Labels are touched only when their text changes.
class ScopeReadout : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kRows = 5; // time and up to four channels

    explicit ScopeReadout(QWidget* parent = nullptr);

    void showValues(const ScopeRecording& recording, double cursor1, double cursor2);
    QString text(int row, int column) const;

    // The value of a column at a time: the last sample at or before it (the first sample
    // before the record starts); column -1 is the sample's time.
    static double valueAt(const ScopeRecording& recording, int column, double timeMs);

private:
    void setText(int row, int column, const QString& text);

    // Per row: its title and the three values.
    std::array<std::array<QLabel*, 4>, kRows> m_cells{};
};
