#pragma once

#include "AxisValueGridModel.h"

#include <QTableView>

// A read-only grid of the system diagnosis: a fixed row of axis titles, a fixed column of row
// names 55 wide, eight axis columns 63 wide, rows 22 high, in Arial. Scrolled or shrunk, it
// tells which cells are in view so that only those are read.
class DiagnosisGrid : public QTableView
{
    Q_OBJECT

public:
    static constexpr int kRowHeight = 22;
    static constexpr int kTitleWidth = 55;
    static constexpr int kAxisWidth = 63;

    DiagnosisGrid(std::vector<AxisValueGridModel::Row> rows, QWidget* parent = nullptr);

    AxisValueGridModel* values() const { return m_model; }
    bool isCellVisible(int row, int axis) const;
    // The size that shows every cell without scroll bars.
    QSize sizeHint() const override;

private:
    AxisValueGridModel* m_model = nullptr;
};
