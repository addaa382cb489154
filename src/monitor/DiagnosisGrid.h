#pragma once

#include "AxisGridCanvas.h"
#include "AxisValueGridModel.h"

#include <QScrollArea>

// A read-only grid of the system diagnosis: a fixed row of axis titles, a fixed column of row
// names 55 wide, eight axis columns 63 wide, rows 22 high, in Arial. Painted by our own
// canvas, which measured cheaper than a table view for the cells a moving axis changes.
// Scrolled or shrunk, it tells which cells are in view so that only those are read.
class DiagnosisGrid : public QScrollArea
{
    Q_OBJECT

public:
    DiagnosisGrid(std::vector<AxisValueGridModel::Row> rows, QWidget* parent = nullptr);

    AxisValueGridModel* values() const { return m_model; }
    AxisGridCanvas* canvas() const { return m_canvas; }
    bool isCellVisible(int row, int axis) const;
    // The size that shows every cell without scroll bars.
    QSize sizeHint() const override;

private:
    AxisValueGridModel* m_model = nullptr;
    AxisGridCanvas* m_canvas = nullptr;
};
