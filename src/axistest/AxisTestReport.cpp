#include "AxisTestReport.h"

#include "AxisTestPlots.h"
#include "BoardApi.h"
#include "CardRegistry.h"
#include "ParameterSet.h"
#include "PlotWidget.h"

#include <QBuffer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QPainter>
#include <QSaveFile>

#include <cmath>

namespace {
QString escaped(const QString& text)
{
    return text.toHtmlEscaped();
}

QString number(double value)
{
    return QString::number(value, 'f', 3);
}

// Figures that are no pulses: they read the same in any unit.
bool countsOrTimes(const QString& key)
{
    static const QStringList keys = {
        "run", "time_ms", "code", "cycles", "cycle_time_mean_ms", "cycle_time_max_ms"};
    return keys.contains(key);
}
} // namespace

AxisTestFacts AxisTestFacts::read(BoardApi& board, const CardRegistry& registry, BoardFamily family,
                                  CardNo card, AxisNo axis)
{
    AxisTestFacts facts;
    ParameterScope scope;
    scope.family = family;
    scope.card = card;
    scope.axis = axis;
    const ParameterSet set = ParameterSet::fromBoards(board, registry, scope);
    if (const CardDescription* description = set.card(family, card)) {
        facts.model = QString::fromStdString(description->model);
        facts.firmware = QString::fromStdString(description->firmware);
        facts.library = QString::fromStdString(description->libraryVersion);
    }
    for (const int level : {-1, int(axis)}) {
        if (const ParameterSection* section = set.section(family, card, level)) {
            for (const ParameterValue& value : section->values)
                facts.parameters.emplace_back(QString::fromStdString(value.info->name),
                                              QString::number(value.value));
        }
    }
    return facts;
}

AxisTestReport::AxisTestReport(const AxisTestRun& run, AxisTestFacts facts, QDateTime started,
                               AxisUnitScale scale)
    : m_run(run), m_facts(std::move(facts)), m_started(std::move(started)),
      m_scale(std::move(scale))
{}

QJsonObject AxisTestReport::figuresInUnits(const QJsonObject& figures) const
{
    // Three decimals past the scale's keep a deviation of a fraction of a pulse readable.
    const double rounding = std::pow(10.0, m_scale.decimals() + 3);
    QJsonObject units;
    for (auto it = figures.begin(); it != figures.end(); ++it) {
        if (it.value().isArray()) {
            QJsonArray rows;
            for (const QJsonValue& row : it.value().toArray())
                rows.append(figuresInUnits(row.toObject()));
            units.insert(it.key(), rows);
        } else if (it.value().isDouble() && !countsOrTimes(it.key())) {
            units.insert(it.key(),
                         std::round(m_scale.toUnits(it.value().toDouble()) * rounding) / rounding);
        } else {
            units.insert(it.key(), it.value());
        }
    }
    return units;
}

QString AxisTestReport::kindKey(AxisTestKind kind)
{
    switch (kind) {
    case AxisTestKind::Home:
        return QStringLiteral("home");
    case AxisTestKind::Positioning:
        return QStringLiteral("positioning");
    case AxisTestKind::RunIn:
        return QStringLiteral("runin");
    }
    return {};
}

QJsonObject AxisTestReport::settingsObject() const
{
    const AxisTestSettings& s = m_run.settings();
    QJsonObject o{{"speed", s.speed}, {"tolerance", s.tolerance}};
    switch (s.kind) {
    case AxisTestKind::Home:
        o.insert("runs", s.runs);
        o.insert("away", s.away);
        break;
    case AxisTestKind::Positioning:
        o.insert("from", s.from);
        o.insert("to", s.to);
        o.insert("targets", s.targets);
        o.insert("runs", s.runs);
        o.insert("overrun", s.overrun);
        o.insert("dwell_ms", s.dwellMs);
        break;
    case AxisTestKind::RunIn: {
        static const char* const patterns[] = {"relative", "absolute", "points"};
        o.insert("pattern", patterns[static_cast<int>(s.pattern)]);
        QJsonArray points;
        for (const std::int32_t point : s.points)
            points.append(point);
        o.insert("points", points);
        o.insert("cycles", s.cycles);
        o.insert("duration_s", s.durationS);
        o.insert("dwell_ms", s.dwellMs);
        o.insert("stop_at_fault", s.stopAtFault);
        break;
    }
    }
    return o;
}

QJsonObject AxisTestReport::figures() const
{
    QJsonObject o;
    switch (m_run.settings().kind) {
    case AxisTestKind::Home: {
        const auto f = m_run.homeFigures();
        o = {{"mean", f.mean},
             {"min", f.min},
             {"max", f.max},
             {"range", f.range},
             {"std_dev", f.deviation}};
        QJsonArray runs;
        for (const AxisTestRecord& r : m_run.homeRuns())
            runs.append(QJsonObject{{"run", r.run},
                                    {"position", r.actual},
                                    {"time_ms", qint64(r.durationMs)},
                                    {"code", r.code}});
        o.insert("runs", runs);
        break;
    }
    case AxisTestKind::Positioning: {
        const PositioningStatistics stats = m_run.positioning();
        const auto& a = stats.axis();
        o = {{"A", a.a},          {"A_up", a.aUp}, {"A_down", a.aDown}, {"B", a.b},
             {"B_mean", a.bMean}, {"E", a.e},      {"E_up", a.eUp},     {"E_down", a.eDown},
             {"M", a.m},          {"R", a.r},      {"R_up", a.rUp},     {"R_down", a.rDown}};
        QJsonArray targets;
        for (const auto& t : stats.atTargets())
            targets.append(QJsonObject{{"position", t.position},
                                       {"mean_up", t.meanUp},
                                       {"mean_down", t.meanDown},
                                       {"s_up", t.sUp},
                                       {"s_down", t.sDown},
                                       {"B", t.reversal},
                                       {"R_up", t.rUp},
                                       {"R_down", t.rDown},
                                       {"R", t.r}});
        o.insert("targets", targets);
        break;
    }
    case AxisTestKind::RunIn:
        o = {{"cycles", m_run.done()},
             {"cycle_time_mean_ms", m_run.meanCycleMs()},
             {"cycle_time_max_ms", qint64(m_run.longestCycleMs())},
             {"following_error_max", m_run.worstFollowingError()}};
        break;
    }
    return o;
}

QJsonObject AxisTestReport::summary() const
{
    const AxisTestSettings& s = m_run.settings();
    QJsonArray axes;
    for (const AxisNo axis : s.axes)
        axes.append(axis);
    const QJsonObject pulses = figures();
    QJsonObject summary{{"test", kindKey(s.kind)},
                        {"outcome", AxisTestRun::outcomeKey(m_run.outcome())},
                        {"fault", m_run.fault()},
                        {"started", m_started.toString(Qt::ISODate)},
                        {"duration_ms", qint64(m_run.elapsedMs())},
                        {"unit", "pulses"},
                        {"board", QJsonObject{{"family", familyShortName(s.family)},
                                              {"card", s.card},
                                              {"model", m_facts.model},
                                              {"firmware", m_facts.firmware},
                                              {"library", m_facts.library}}},
                        {"axes", axes},
                        {"settings", settingsObject()},
                        {"figures", pulses}};
    if (m_scale.isSet()) {
        summary.insert("units", QJsonObject{{"unit", m_scale.unit()},
                                            {"pulses_per_unit", m_scale.pulsesPerUnit()},
                                            {"decimals", m_scale.decimals()}});
        summary.insert("figures_units", figuresInUnits(pulses));
    }
    return summary;
}

std::vector<std::pair<QString, QImage>> AxisTestReport::plots() const
{
    std::vector<std::pair<QString, QImage>> images;
    const AxisTestKind kind = m_run.settings().kind;
    PlotWidget plot;
    for (int index = 0; index < AxisTestPlots::count(kind); ++index) {
        AxisTestPlots::draw(plot, m_run, index);
        QImage image(800, 360, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        plot.paintPlot(painter, image.rect());
        images.emplace_back(AxisTestPlots::caption(kind, index), image);
    }
    return images;
}

QString AxisTestReport::html() const
{
    const AxisTestSettings& s = m_run.settings();
    const QJsonObject summaryObject = summary();
    QString page;
    QTextStream out(&page);
    const QString title = tr("Axis Test: %1").arg(kindKey(s.kind));
    out << "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>" << escaped(title)
        << "</title><style>body{font-family:sans-serif;margin:2em}table{border-collapse:"
           "collapse}td,th{border:1px solid #999;padding:2px 8px;text-align:left}"
           ".passed{color:#070}.failed,.faulted,.stopped{color:#b00}</style></head><body>\n";
    const QString outcome = QString::fromLatin1(AxisTestRun::outcomeKey(m_run.outcome()));
    out << "<h1>" << escaped(title) << "</h1>\n<p class=\"" << outcome << "\"><b>"
        << escaped(outcome.toUpper()) << "</b>";
    if (!m_run.fault().isEmpty())
        out << ": " << escaped(m_run.fault());
    out << "</p>\n";

    const auto table = [&out](const QString& heading, const QJsonObject& object) {
        out << "<h2>" << escaped(heading) << "</h2>\n<table>\n";
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (it.value().isArray() || it.value().isObject())
                continue;
            const QString value = it.value().isDouble() ? number(it.value().toDouble())
                                                        : it.value().toVariant().toString();
            out << "<tr><th>" << escaped(it.key()) << "</th><td>" << escaped(value)
                << "</td></tr>\n";
        }
        out << "</table>\n";
    };
    QJsonObject board = summaryObject.value("board").toObject();
    QStringList axes;
    for (const AxisNo axis : s.axes)
        axes << QString::number(axis);
    board.insert("axes", axes.join(QLatin1Char(',')));
    board.insert("started", m_started.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    board.insert("duration_ms", summaryObject.value("duration_ms"));
    table(tr("Board and axis"), board);
    table(tr("Settings"), summaryObject.value("settings").toObject());

    // The figures in pulses and, with a scale, beside them in its unit.
    const QString unit = escaped(m_scale.unit());
    out << "<h2>" << escaped(tr("Figures")) << "</h2>\n<table><tr><th></th><th>pulses</th>";
    if (m_scale.isSet())
        out << "<th>" << unit << "</th>";
    out << "</tr>\n";
    const QJsonObject figuresObject = summaryObject.value("figures").toObject();
    for (auto it = figuresObject.begin(); it != figuresObject.end(); ++it) {
        if (!it.value().isDouble())
            continue;
        const double value = it.value().toDouble();
        out << "<tr><th>" << escaped(it.key()) << "</th><td>" << number(value) << "</td>";
        if (m_scale.isSet())
            out << "<td>" << (countsOrTimes(it.key()) ? QString() : m_scale.format(value))
                << "</td>";
        out << "</tr>\n";
    }
    out << "</table>\n";

    if (s.kind == AxisTestKind::Positioning)
        writeTargets(out);
    if (s.kind == AxisTestKind::Home) {
        out << "<h2>" << escaped(tr("Searches")) << "</h2>\n<table><tr><th>run</th><th>"
            << "position</th>";
        if (m_scale.isSet())
            out << "<th>position [" << unit << "]</th>";
        out << "<th>time [ms]</th><th>code</th></tr>\n";
        for (const AxisTestRecord& r : m_run.homeRuns()) {
            out << "<tr><td>" << r.run << "</td><td>" << r.actual << "</td>";
            if (m_scale.isSet())
                out << "<td>" << m_scale.format(r.actual) << "</td>";
            out << "<td>" << r.durationMs << "</td><td>" << r.code << "</td></tr>\n";
        }
        out << "</table>\n";
    }

    for (const auto& [caption, image] : plots()) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        out << "<h2>" << escaped(caption) << "</h2>\n<img alt=\"" << escaped(caption)
            << "\" src=\"data:image/png;base64," << png.toBase64() << "\">\n";
    }

    out << "<h2>" << escaped(tr("Parameters of the card and the axis")) << "</h2>\n<table>\n";
    for (const auto& [name, value] : m_facts.parameters)
        out << "<tr><th>" << escaped(name) << "</th><td>" << escaped(value) << "</td></tr>\n";
    out << "</table>\n</body></html>\n";
    out.flush();
    return page;
}

void AxisTestReport::writeTargets(QTextStream& out) const
{
    const PositioningStatistics stats = m_run.positioning();
    const auto table = [&](const QString& heading, auto&& shown) {
        out << "<h2>" << escaped(heading) << "</h2>\n<table><tr>";
        for (const char* head :
             {"target", "mean up", "mean down", "s up", "s down", "B", "R up", "R down", "R"})
            out << "<th>" << head << "</th>";
        out << "</tr>\n";
        for (const auto& t : stats.atTargets()) {
            out << "<tr>";
            for (const double value : {t.position, t.meanUp, t.meanDown, t.sUp, t.sDown, t.reversal,
                                       t.rUp, t.rDown, t.r})
                out << "<td>" << shown(value) << "</td>";
            out << "</tr>\n";
        }
        out << "</table>\n";
    };
    table(tr("At each target (pulses)"), number);
    if (m_scale.isSet())
        table(tr("At each target (%1)").arg(m_scale.unit()),
              [this](double pulses) { return m_scale.format(pulses); });
}

bool AxisTestReport::write(const QString& folder, QString* error) const
{
    const auto save = [&](const QString& name, const QByteArray& bytes) {
        QSaveFile file(QDir(folder).filePath(name));
        if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
            return true;
        if (error != nullptr)
            *error = tr("Could not write %1: %2").arg(file.fileName(), file.errorString());
        return false;
    };
    return save(QStringLiteral("summary.json"), QJsonDocument(summary()).toJson()) &&
           save(QStringLiteral("report.html"), html().toUtf8());
}
