#include "MotionStatusModel.h"

namespace {
const char* const kRowTitles[MotionStatusModel::kRows] = {"Command Position", "Actual Position",
                                                          "Command Velocity"};
} // namespace

int MotionStatusModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kRows;
}

int MotionStatusModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kAxes;
}

QVariant MotionStatusModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const int axis = index.column();
    switch (role) {
    case Qt::DisplayRole: {
        const auto& value =
            m_values[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(axis)];
        if (!isPresent(axis) || !value)
            return QString();
        return QString::number(*value);
    }
    case Qt::BackgroundRole:
        return isPresent(axis) ? QColor(Qt::white) : absentColor();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

QVariant MotionStatusModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(orientation == Qt::Horizontal
                                       ? Qt::Alignment(Qt::AlignCenter)
                                       : Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Horizontal)
        return QStringLiteral("%1 Axis").arg(section);
    return section >= 0 && section < kRows ? QString::fromLatin1(kRowTitles[section]) : QString();
}

Qt::ItemFlags MotionStatusModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsEnabled : Qt::NoItemFlags;
}

bool MotionStatusModel::setValue(int row, int axis, int value)
{
    if (row < 0 || row >= kRows || axis < 0 || axis >= kAxes)
        return false;
    auto& shown = m_values[static_cast<std::size_t>(row)][static_cast<std::size_t>(axis)];
    if (shown == value)
        return false;
    shown = value;
    const QModelIndex cell = index(row, axis);
    emit dataChanged(cell, cell, {Qt::DisplayRole});
    return true;
}

void MotionStatusModel::setPresentAxes(int count)
{
    count = qBound(0, count, kAxes);
    if (count == m_presentAxes)
        return;
    const int first = qMin(count, m_presentAxes);
    const int last = qMax(count, m_presentAxes) - 1;
    m_presentAxes = count;
    // Axes that leave forget their values, so returning axes show fresh ones.
    for (auto& row : m_values)
        for (int axis = count; axis < kAxes; ++axis)
            row[static_cast<std::size_t>(axis)].reset();
    emit dataChanged(index(0, first), index(kRows - 1, last),
                     {Qt::DisplayRole, Qt::BackgroundRole});
}
