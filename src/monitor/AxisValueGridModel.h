#pragma once

#include "AxisUnitScale.h"

#include <QAbstractTableModel>
#include <QColor>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

// A grid of per-axis values, one named row per quantity and one column per axis (up to eight).
// It keeps numbers, not texts, so a tick that changes nothing formats nothing; setting a value
// already shown signals nothing, a new one signals its one cell.
class AxisValueGridModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum class Format
    {
        Decimal,   // "%d"
        HexWord16, // the low 16 bits, "%04X"
    };
    // What a decimal row counts, so that an axis' unit scale can apply to it.
    enum class Measure
    {
        Plain,
        Position, // pulses
        Speed,    // pulses/s
    };
    struct Row
    {
        QString title;
        Format format;
        Measure measure = Measure::Plain;
    };
    static constexpr int kAxes = 8;
    static QColor absentColor() { return QColor(222, 222, 222); }

    explicit AxisValueGridModel(std::vector<Row> rows, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Shows a value; returns whether the cell changed.
    bool setValue(int row, int axis, std::int32_t value);
    // Axes from count on are blank and grey.
    void setPresentAxes(int count);
    bool isPresent(int axis) const { return axis >= 0 && axis < m_presentAxes; }

    // The axes' unit scales (none for an axis shown in pulses): position and speed rows read
    // in units, and the row titles name the unit all present scaled axes share, otherwise
    // each scaled axis' title names its own. Unchanged scales signal nothing.
    void setScales(const std::vector<AxisUnitScale>& scales);
    // Narrow columns name an axis' own unit as "0 [mm]" rather than "0 Axis [mm]".
    void setCompactUnitTitles(bool compact) { m_compactUnitTitles = compact; }
    const AxisUnitScale& scale(int axis) const { return m_scales[static_cast<std::size_t>(axis)]; }

    static QString format(Format format, std::int32_t value);

private:
    std::vector<Row> m_rows;
    std::vector<std::array<std::optional<std::int32_t>, kAxes>> m_values;
    // The unit every present axis shares, or empty when one has none or they differ.
    QString sharedUnit() const;

    std::array<AxisUnitScale, kAxes> m_scales{};
    bool m_anyScale = false;
    bool m_compactUnitTitles = false;
    int m_presentAxes = kAxes;
};
