#include "AxisTestCsv.h"

AxisTestCsv::AxisTestCsv(const QString& path) : m_file(path)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        return;
    m_out.setDevice(&m_file);
    m_out << header() << '\n';
    m_out.flush();
}

QString AxisTestCsv::header()
{
    return QStringLiteral("time_ms,kind,run,axis,target,direction,command,actual,value,"
                          "duration_ms,code,note");
}

QString AxisTestCsv::line(const AxisTestRecord& r)
{
    static const char* const kinds[] = {"home", "measure", "cycle", "event"};
    QString note = r.note;
    note.replace(QLatin1Char('"'), QLatin1String("\"\""));
    const bool event = r.kind == AxisTestRecord::Kind::Event;
    const auto field = [event](auto value) { return event ? QString() : QString::number(value); };
    return QStringLiteral("%1,%2,%3,%4,%5,%6,%7,%8,%9,%10,%11,\"%12\"")
        .arg(r.timeMs)
        .arg(QLatin1String(kinds[static_cast<int>(r.kind)]))
        .arg(r.run)
        .arg(event ? QString() : QString::number(r.axis),
             r.kind == AxisTestRecord::Kind::Measure ? QString::number(r.target) : QString(),
             r.kind == AxisTestRecord::Kind::Measure ? QString::number(r.direction) : QString(),
             field(r.command), field(r.actual), field(r.value), field(r.durationMs), field(r.code),
             note);
}

void AxisTestCsv::record(const AxisTestRecord& record)
{
    if (!m_file.isOpen())
        return;
    m_out << line(record) << '\n';
    // Events are rare and worth having on disk at once; measured lines ride the buffer.
    if (record.kind == AxisTestRecord::Kind::Event)
        m_out.flush();
}
