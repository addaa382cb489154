#pragma once

#include "AxisTestSettings.h"

#include <QCoreApplication>
#include <QString>

class AxisTestRun;
class PlotWidget;

// The plots of a test, drawn the same way in the window and in the report: the completed
// position of each search; the deviation at each target from both sides with its ±2s band;
// the cycle time and the largest following error of each run-in cycle.
class AxisTestPlots
{
    Q_DECLARE_TR_FUNCTIONS(AxisTestPlots)

public:
    static int count(AxisTestKind kind);
    static QString caption(AxisTestKind kind, int index);
    // Fills `plot` with plot `index` of the run so far, fitted to its data.
    static void draw(PlotWidget& plot, const AxisTestRun& run, int index);
};
