#include "BoardFailureLog.h"

#include "BoardCallText.h"
#include "BoardLog.h"

QString BoardFailureLog::line(const BoardCall& call, const QStringList& callers)
{
    QString text = BoardCallText::column(call, BoardCallText::Operation, callers) +
                   QLatin1Char(' ') + BoardCallText::column(call, BoardCallText::Family, callers);
    if (call.card() >= 0)
        text += QStringLiteral(" card %1").arg(call.card());
    if (call.axis() >= 0)
        text += QStringLiteral(" axis %1").arg(call.axis());
    const QString arguments = BoardCallText::arguments(call);
    if (!arguments.isEmpty())
        text += QLatin1Char(' ') + arguments;
    text += QStringLiteral(" returned %1").arg(call.result);
    const QString caller = BoardCallText::column(call, BoardCallText::Caller, callers);
    if (!caller.isEmpty())
        text += QStringLiteral(" (%1)").arg(caller);
    return text;
}

void BoardFailureLog::note(const BoardCall& call, const QStringList& callers)
{
    const int card = call.card() >= 0 && call.card() < kMaxCards ? call.card() : 0;
    const auto index = (std::size_t(call.family) * kMaxCards + std::size_t(card)) * kBoardOpCount +
                       std::size_t(call.op);
    if (index >= m_operations.size())
        return;
    Operation& operation = m_operations[index];
    if (operation.logged && call.timeUs - operation.loggedUs < kIntervalUs) {
        ++operation.held;
        qCDebug(lcBoard).noquote() << "Board call refused again:" << line(call, callers);
        return;
    }
    if (operation.held > 0)
        qCWarning(lcBoard).noquote() << "Board call refused:" << line(call, callers) << "- and"
                                     << operation.held << "more time(s) since the last line";
    else
        qCWarning(lcBoard).noquote() << "Board call refused:" << line(call, callers);
    operation.logged = true;
    operation.loggedUs = call.timeUs;
    operation.held = 0;
}
