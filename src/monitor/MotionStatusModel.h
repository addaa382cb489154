#pragma once

#include <QAbstractTableModel>
#include <QColor>

#include <array>
#include <optional>

// The motion-status grid's content: command position, actual position and command velocity of
// up to eight axes. Setting a value that is already shown changes nothing and signals nothing.
class MotionStatusModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Row
    {
        CommandPosition = 0,
        ActualPosition = 1,
        CommandVelocity = 2
    };
    static constexpr int kRows = 3;
    static constexpr int kAxes = 8;
    static QColor absentColor() { return QColor(222, 222, 222); }

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Shows a value; returns whether the cell changed.
    bool setValue(int row, int axis, int value);
    // Axes from count on are blank and grey.
    void setPresentAxes(int count);
    int presentAxes() const { return m_presentAxes; }
    bool isPresent(int axis) const { return axis >= 0 && axis < m_presentAxes; }

private:
    std::array<std::array<std::optional<int>, kAxes>, kRows> m_values{};
    int m_presentAxes = kAxes;
};
