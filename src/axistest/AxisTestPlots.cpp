#include "AxisTestPlots.h"

#include "AxisTestRun.h"
#include "PlotWidget.h"

namespace {
const QColor kUp(0, 90, 200);
const QColor kDown(200, 60, 0);

QVector<QPointF> pointsOf(const BoundedSeries& series)
{
    return QVector<QPointF>(series.points().begin(), series.points().end());
}
} // namespace

int AxisTestPlots::count(AxisTestKind kind)
{
    return kind == AxisTestKind::RunIn ? 2 : 1;
}

QString AxisTestPlots::caption(AxisTestKind kind, int index)
{
    switch (kind) {
    case AxisTestKind::Home:
        return tr("Completed position of each search");
    case AxisTestKind::Positioning:
        return tr("Deviation against target position");
    case AxisTestKind::RunIn:
        return index == 0 ? tr("Cycle time over the cycles")
                          : tr("Largest following error of each cycle");
    }
    return {};
}

void AxisTestPlots::draw(PlotWidget& plot, const AxisTestRun& run, int index)
{
    plot.clearSeries();
    switch (run.settings().kind) {
    case AxisTestKind::Home: {
        QVector<QPointF> points;
        for (const AxisTestRecord& r : run.homeRuns())
            points.append({double(r.run), double(r.actual)});
        plot.setSeries(0, points, kUp, tr("Completed position"));
        plot.setAxisTitles(tr("Search"), tr("Position [pulse]"));
        break;
    }
    case AxisTestKind::Positioning: {
        // Only targets measured so far, so a running test draws no false zeros.
        QVector<QPointF> series[6];
        const PositioningStatistics stats = run.positioning();
        for (const auto& t : stats.atTargets()) {
            if (t.countUp > 0) {
                series[0].append({t.position, t.meanUp});
                series[1].append({t.position, t.meanUp + 2 * t.sUp});
                series[2].append({t.position, t.meanUp - 2 * t.sUp});
            }
            if (t.countDown > 0) {
                series[3].append({t.position, t.meanDown});
                series[4].append({t.position, t.meanDown + 2 * t.sDown});
                series[5].append({t.position, t.meanDown - 2 * t.sDown});
            }
        }
        const QColor upBand = kUp.lighter(160);
        const QColor downBand = kDown.lighter(160);
        plot.setSeries(0, series[0], kUp, tr("Mean deviation, approach from below"));
        plot.setSeries(1, series[1], upBand, tr("+2s from below"));
        plot.setSeries(2, series[2], upBand, tr("-2s from below"));
        plot.setSeries(3, series[3], kDown, tr("Mean deviation, approach from above"));
        plot.setSeries(4, series[4], downBand, tr("+2s from above"));
        plot.setSeries(5, series[5], downBand, tr("-2s from above"));
        plot.setAxisTitles(tr("Target [pulse]"), tr("Deviation [pulse]"));
        break;
    }
    case AxisTestKind::RunIn:
        if (index == 0) {
            plot.setSeries(0, pointsOf(run.cycleTimes()), kUp, tr("Cycle time"));
            plot.setAxisTitles(tr("Cycle"), tr("Time [ms]"));
        } else {
            plot.setSeries(0, pointsOf(run.followingErrors()), kDown,
                           tr("Largest following error"));
            plot.setAxisTitles(tr("Cycle"), tr("Following error [pulse]"));
        }
        break;
    }
    plot.fitX();
    plot.fitY();
}
