#include "ScopeCsv.h"

#include <QFile>
#include <QSaveFile>
#include <QTextStream>

namespace {

QString number(double value)
{
    // 15 significant digits give back the same double for the board's whole numbers and for
    // times kept to the microsecond.
    return QString::number(value, 'g', 15);
}

void fail(QString* error, const QString& text)
{
    if (error != nullptr)
        *error = text;
}

// "RL 0.1 Command Speed [pps]" into name and unit; a title without brackets has no unit.
void splitTitle(const QString& title, QString& name, QString& unit)
{
    const QString trimmed = title.trimmed();
    const int open = trimmed.lastIndexOf(QLatin1Char('['));
    if (open > 0 && trimmed.endsWith(QLatin1Char(']'))) {
        name = trimmed.left(open).trimmed();
        unit = trimmed.mid(open + 1, trimmed.size() - open - 2);
    } else {
        name = trimmed;
        unit.clear();
    }
}

} // namespace

bool ScopeCsv::write(const ScopeRecording& recording, const QString& path, QString* error)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        fail(error, file.errorString());
        return false;
    }
    QTextStream out(&file);
    out << "Time [ms]";
    for (const ScopeRecording::Column& column : recording.columns)
        out << ',' << column.name << " [" << column.unit << ']';
    out << '\n';
    for (int row = 0; row < recording.sampleCount(); ++row) {
        out << number(recording.times[static_cast<size_t>(row)]);
        for (const ScopeRecording::Column& column : recording.columns)
            out << ',' << number(column.values[static_cast<size_t>(row)]);
        out << '\n';
    }
    out.flush();
    if (!file.commit()) {
        fail(error, file.errorString());
        return false;
    }
    return true;
}

std::optional<ScopeRecording> ScopeCsv::read(const QString& path, QString* error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        fail(error, file.errorString());
        return std::nullopt;
    }
    QTextStream in(&file);
    const QStringList header = in.readLine().split(QLatin1Char(','));
    if (header.size() < 2 || !header.first().trimmed().startsWith(QLatin1String("Time"))) {
        fail(error, tr("Not a scope record: the first column must be the time."));
        return std::nullopt;
    }
    ScopeRecording recording;
    for (int i = 1; i < header.size(); ++i) {
        ScopeRecording::Column column;
        splitTitle(header[i], column.name, column.unit);
        recording.columns.push_back(column);
    }
    int lineNumber = 1;
    while (!in.atEnd()) {
        const QString line = in.readLine();
        ++lineNumber;
        if (line.trimmed().isEmpty())
            continue;
        const QStringList fields = line.split(QLatin1Char(','));
        if (fields.size() != header.size()) {
            fail(error, tr("Line %1 has %2 values instead of %3.")
                            .arg(lineNumber)
                            .arg(fields.size())
                            .arg(header.size()));
            return std::nullopt;
        }
        std::vector<double> row(static_cast<size_t>(fields.size()));
        for (int i = 0; i < fields.size(); ++i) {
            bool ok = false;
            row[static_cast<size_t>(i)] = fields[i].trimmed().toDouble(&ok);
            if (!ok) {
                fail(error, QStringLiteral("Line %1: \"%2\" is not a number.")
                                .arg(lineNumber)
                                .arg(fields[i]));
                return std::nullopt;
            }
        }
        if (!recording.times.empty() && row[0] < recording.times.back()) {
            fail(error, tr("Line %1: the time goes backwards.").arg(lineNumber));
            return std::nullopt;
        }
        recording.times.push_back(row[0]);
        for (size_t c = 0; c < recording.columns.size(); ++c)
            recording.columns[c].values.push_back(row[c + 1]);
    }
    // A record cut at the trigger starts before 0.
    recording.triggered = !recording.times.empty() && recording.times.front() < 0.0;
    return recording;
}
