#include "ScopeUnits.h"

#include "AxisUnits.h"

void ScopeUnits::apply(ScopeRecording& recording, std::vector<QVector<QPointF>>& predicted,
                       const AxisUnits& units)
{
    if (!units.shown())
        return;
    for (size_t c = 0; c < recording.columns.size(); ++c) {
        ScopeRecording::Column& column = recording.columns[c];
        if (column.channel < 0)
            continue;
        const ScopeChannel& source = column.source;
        const AxisUnitScale scale = units.scale(source.family, source.card, source.axis);
        if (!scale.isSet())
            continue;
        const double factor = 1.0 / scale.pulsesPerUnit();
        for (double& value : column.values)
            value *= factor;
        column.unit =
            source.signal == ScopeChannel::CommandSpeed ? scale.speedUnit() : scale.unit();
        column.decimals = scale.decimals();
        if (c < predicted.size())
            for (QPointF& point : predicted[c])
                point.setY(point.y() * factor);
    }
}
