#include "ScopeReadout.h"

#include "ScopeRecording.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>
#include <cmath>

namespace {

QString number(double value, int decimals = -1)
{
    if (decimals >= 0)
        return QString::number(value, 'f', decimals);
    return QString::number(value, 'f', value == std::floor(value) ? 0 : 3);
}

} // namespace

ScopeReadout::ScopeReadout(QWidget* parent) : QWidget(parent)
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    grid->setHorizontalSpacing(12);
    const QStringList titles{QString(), tr("Cursor 1"), tr("Cursor 2"), tr("Difference")};
    for (int column = 0; column < titles.size(); ++column) {
        auto* title = new QLabel(QStringLiteral("<b>%1</b>").arg(titles[column]));
        grid->addWidget(title, 0, column, column == 0 ? Qt::AlignLeft : Qt::AlignRight);
    }
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < 4; ++column) {
            auto* cell = new QLabel;
            cell->setObjectName(QStringLiteral("readout%1%2").arg(row).arg(column));
            cell->setAlignment(column == 0 ? Qt::AlignLeft : Qt::AlignRight);
            cell->setTextInteractionFlags(Qt::TextSelectableByMouse);
            m_cells[static_cast<size_t>(row)][static_cast<size_t>(column)] = cell;
            grid->addWidget(cell, row + 1, column);
        }
    }
    grid->setColumnStretch(0, 1);
    setToolTip(tr("Drag the dashed cursor lines on the plot; values are the last "
                  "sample at or before each cursor"));
}

double ScopeReadout::valueAt(const ScopeRecording& recording, int column, double timeMs)
{
    if (recording.isEmpty())
        return 0.0;
    int index = recording.indexAt(timeMs);
    if (index >= recording.sampleCount() ||
        (index > 0 && recording.times[static_cast<size_t>(index)] > timeMs))
        --index;
    const auto at = static_cast<size_t>(std::clamp(index, 0, recording.sampleCount() - 1));
    return column < 0 ? recording.times[at]
                      : recording.columns[static_cast<size_t>(column)].values[at];
}

void ScopeReadout::showValues(const ScopeRecording& recording, double cursor1, double cursor2)
{
    const bool any = !recording.isEmpty();
    setText(0, 0, tr("Time [ms]"));
    setText(0, 1, number(cursor1));
    setText(0, 2, number(cursor2));
    setText(0, 3, number(cursor2 - cursor1));
    for (int row = 1; row < kRows; ++row) {
        const int column = row - 1;
        if (!any || column >= static_cast<int>(recording.columns.size())) {
            for (int cell = 0; cell < 4; ++cell)
                setText(row, cell, QString());
            continue;
        }
        const ScopeRecording::Column& source = recording.columns[static_cast<size_t>(column)];
        const double first = valueAt(recording, column, cursor1);
        const double second = valueAt(recording, column, cursor2);
        setText(row, 0, QStringLiteral("%1 [%2]").arg(source.name, source.unit));
        setText(row, 1, number(first, source.decimals));
        setText(row, 2, number(second, source.decimals));
        setText(row, 3, number(second - first, source.decimals));
    }
}

QString ScopeReadout::text(int row, int column) const
{
    return m_cells[static_cast<size_t>(row)][static_cast<size_t>(column)]->text();
}

void ScopeReadout::setText(int row, int column, const QString& text)
{
    QLabel* cell = m_cells[static_cast<size_t>(row)][static_cast<size_t>(column)];
    if (cell->text() != text)
        cell->setText(text);
}
