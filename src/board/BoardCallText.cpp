#include "BoardCallText.h"

#include "BoardFamily.h"
#include "CardRegistry.h"

#include <QDateTime>

namespace {

// Marked for the board-call window, which shows them translated; the CSV keeps them as written.
const char* const kHeaders[BoardCallText::ColumnCount] = {
    QT_TRANSLATE_NOOP("BoardCallText", "Time"),
    QT_TRANSLATE_NOOP("BoardCallText", "Family"),
    QT_TRANSLATE_NOOP("BoardCallText", "Operation"),
    QT_TRANSLATE_NOOP("BoardCallText", "Card"),
    QT_TRANSLATE_NOOP("BoardCallText", "Axis"),
    QT_TRANSLATE_NOOP("BoardCallText", "Arguments"),
    QT_TRANSLATE_NOOP("BoardCallText", "Result"),
    QT_TRANSLATE_NOOP("BoardCallText", "Caller")};

QStringList parameterNames(const BoardOpInfo& info)
{
    QString names = QString::fromLatin1(info.argNames);
    names.remove(QLatin1Char('(')).remove(QLatin1Char(')')).remove(QLatin1Char(' '));
    return names.isEmpty() ? QStringList{} : names.split(QLatin1Char(','));
}

QString csvField(QString text)
{
    if (!text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')))
        return text;
    text.replace(QLatin1String("\""), QLatin1String("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace

QString BoardCallText::header(int column)
{
    return column >= 0 && column < ColumnCount ? QString::fromLatin1(kHeaders[column]) : QString();
}

QString BoardCallText::arguments(const BoardCall& call)
{
    const BoardOpInfo& info = call.info();
    const QStringList names = parameterNames(info);
    // Card and axis have columns of their own.
    int first = call.card() >= 0 ? 1 : 0;
    if (call.axis() >= 0)
        first = 2;
    QStringList parts;
    int slot = 0;
    std::int32_t length = 0;
    for (int p = 0; p < info.argCount && p < names.size(); ++p) {
        const BoardArgKind kind = info.argKinds[static_cast<std::size_t>(p)];
        QString text;
        if (kind == BoardArgKind::Text)
            continue;
        if (kind == BoardArgKind::Array) {
            QStringList items;
            const int n = std::min<std::int32_t>(length, BoardCall::kMaxArray);
            for (int i = 0; i < n && slot < call.valueCount; ++i)
                items << QString::number(call.values[static_cast<std::size_t>(slot++)]);
            text = names[p] + QLatin1String("=[") + items.join(QLatin1Char(',')) + QLatin1Char(']');
        } else if (slot < call.valueCount) {
            const std::int32_t value = call.values[static_cast<std::size_t>(slot++)];
            if (kind == BoardArgKind::Value)
                length = value;
            text = (kind == BoardArgKind::Out ? QLatin1String("&") : QLatin1String()) + names[p] +
                   QLatin1Char('=') + QString::number(value);
        }
        if (p >= first && !text.isEmpty())
            parts << text;
    }
    return parts.join(QLatin1Char(' '));
}

QString BoardCallText::column(const BoardCall& call, int column, const QStringList& callers)
{
    switch (column) {
    case Time:
        return QDateTime::fromMSecsSinceEpoch(call.timeUs / 1000)
            .toString(QStringLiteral("HH:mm:ss.zzz"));
    case Family:
        return QString::fromLatin1(familyShortName(static_cast<BoardFamily>(call.family)));
    case Operation:
        return QString::fromLatin1(call.info().name);
    case Card:
        return call.card() >= 0 ? QString::number(call.card()) : QString();
    case Axis:
        return call.axis() >= 0 ? QString::number(call.axis()) : QString();
    case Arguments:
        return arguments(call);
    case Result:
        return QString::number(call.result);
    case Caller:
        return call.caller < callers.size() ? callers[call.caller] : QString();
    default:
        return QString();
    }
}

QString BoardCallText::csvHeader()
{
    QStringList fields;
    for (int c = 0; c < ColumnCount; ++c)
        fields << csvField(header(c));
    return fields.join(QLatin1Char(','));
}

QString BoardCallText::csvLine(const BoardCall& call, const QStringList& callers)
{
    QStringList fields;
    fields << preciseTime(call);
    for (int c = Time + 1; c < ColumnCount; ++c)
        fields << csvField(column(call, c, callers));
    return fields.join(QLatin1Char(','));
}

QString BoardCallText::preciseTime(const BoardCall& call)
{
    const auto micro = static_cast<int>(((call.timeUs % 1000) + 1000) % 1000);
    return QDateTime::fromMSecsSinceEpoch(call.timeUs / 1000)
               .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz")) +
           QStringLiteral("%1").arg(micro, 3, 10, QLatin1Char('0'));
}

QString BoardCallText::failureNote(const BoardCall& call, const CardRegistry& registry)
{
    const auto family = static_cast<BoardFamily>(call.family);
    QString text = QString::fromLatin1(call.info().name);
    if (call.card() >= 0)
        text += QStringLiteral(" on %1(%2)")
                    .arg(QString::fromStdString(registry.modelName(family, call.card())))
                    .arg(call.card());
    if (call.axis() >= 0)
        text += QStringLiteral(" axis %1").arg(call.axis());
    return text + QStringLiteral(" returned %1").arg(call.result);
}
