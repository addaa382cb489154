#pragma once

#include "ScopeRecording.h"

#include <QPointF>
#include <QVector>

#include <vector>

class AxisUnits;

// Turns a record's columns into the user units of their axes while units are shown: values,
// unit names and decimals, and the predicted speed curves drawn over them. Columns of axes
// without a scale, and records read from files, stay as they are.
class ScopeUnits
{
public:
    static void apply(ScopeRecording& recording, std::vector<QVector<QPointF>>& predicted,
                      const AxisUnits& units);
};
