#include "AxisValueGridModel.h"

AxisValueGridModel::AxisValueGridModel(std::vector<Row> rows, QObject* parent)
    : QAbstractTableModel(parent), m_rows(std::move(rows)), m_values(m_rows.size())
{}

int AxisValueGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int AxisValueGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kAxes;
}

QString AxisValueGridModel::format(Format format, std::int32_t value)
{
    if (format == Format::Decimal)
        return QString::number(value);
    const auto word = static_cast<std::uint16_t>(value & 0xFFFF);
    return QString::number(word, 16).toUpper().rightJustified(4, u'0');
}

QVariant AxisValueGridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const int axis = index.column();
    const auto row = static_cast<std::size_t>(index.row());
    switch (role) {
    case Qt::DisplayRole: {
        const auto& value = m_values[row][static_cast<std::size_t>(axis)];
        if (!isPresent(axis) || !value)
            return QString();
        const AxisUnitScale& unit = m_scales[static_cast<std::size_t>(axis)];
        if (m_rows[row].measure != Measure::Plain && unit.isSet())
            return unit.format(*value);
        return format(m_rows[row].format, *value);
    }
    case Qt::BackgroundRole:
        return isPresent(axis) ? QColor(Qt::white) : absentColor();
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

QVariant AxisValueGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(orientation == Qt::Horizontal
                                       ? Qt::Alignment(Qt::AlignCenter)
                                       : Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    if (role != Qt::DisplayRole)
        return QVariant();
    const QString shared = m_anyScale ? sharedUnit() : QString();
    if (orientation == Qt::Horizontal) {
        const QString title = tr("%1 Axis").arg(section);
        if (!m_anyScale || !shared.isEmpty() || !isPresent(section) ||
            !m_scales[static_cast<std::size_t>(section)].isSet())
            return title;
        return tr("%1 [%2]").arg(m_compactUnitTitles ? QString::number(section) : title,
                                 m_scales[static_cast<std::size_t>(section)].unit());
    }
    if (section < 0 || section >= rowCount())
        return QString();
    const Row& row = m_rows[static_cast<std::size_t>(section)];
    if (shared.isEmpty() || row.measure == Measure::Plain)
        return row.title;
    return tr("%1 [%2]").arg(
        row.title, row.measure == Measure::Speed ? shared + QStringLiteral("/s") : shared);
}

QString AxisValueGridModel::sharedUnit() const
{
    QString shared;
    for (int axis = 0; axis < m_presentAxes; ++axis) {
        const AxisUnitScale& each = m_scales[static_cast<std::size_t>(axis)];
        if (!each.isSet() || (axis > 0 && each.unit() != shared))
            return QString();
        shared = each.unit();
    }
    return shared;
}

void AxisValueGridModel::setScales(const std::vector<AxisUnitScale>& scales)
{
    std::array<AxisUnitScale, kAxes> next{};
    for (std::size_t axis = 0; axis < next.size() && axis < scales.size(); ++axis)
        next[axis] = scales[axis];
    if (next == m_scales)
        return;
    m_scales = next;
    m_anyScale = false;
    for (const AxisUnitScale& each : m_scales)
        m_anyScale = m_anyScale || each.isSet();
    emit dataChanged(index(0, 0), index(rowCount() - 1, kAxes - 1), {Qt::DisplayRole});
    emit headerDataChanged(Qt::Horizontal, 0, kAxes - 1);
    emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
}

Qt::ItemFlags AxisValueGridModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? Qt::ItemIsEnabled : Qt::NoItemFlags;
}

bool AxisValueGridModel::setValue(int row, int axis, std::int32_t value)
{
    if (row < 0 || row >= rowCount() || axis < 0 || axis >= kAxes)
        return false;
    auto& shown = m_values[static_cast<std::size_t>(row)][static_cast<std::size_t>(axis)];
    if (shown == value)
        return false;
    shown = value;
    const QModelIndex cell = index(row, axis);
    emit dataChanged(cell, cell, {Qt::DisplayRole});
    return true;
}

void AxisValueGridModel::setPresentAxes(int count)
{
    count = qBound(0, count, static_cast<int>(kAxes));
    if (count == m_presentAxes)
        return;
    const int first = qMin(count, m_presentAxes);
    const int last = qMax(count, m_presentAxes) - 1;
    m_presentAxes = count;
    // Axes that leave forget their values, so returning axes show fresh ones.
    for (auto& row : m_values)
        for (int axis = count; axis < kAxes; ++axis)
            row[static_cast<std::size_t>(axis)].reset();
    emit dataChanged(index(0, first), index(rowCount() - 1, last),
                     {Qt::DisplayRole, Qt::BackgroundRole});
    // The shared unit is that of the present axes.
    if (m_anyScale) {
        emit headerDataChanged(Qt::Horizontal, 0, kAxes - 1);
        emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
    }
}
