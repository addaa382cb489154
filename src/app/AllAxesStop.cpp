#include "AllAxesStop.h"

#include "BoardApi.h"
#include "CardRegistry.h"
#include "OrvaneLog.h"

AllAxesStop::AllAxesStop(BoardApi& board, const CardRegistry& registry)
{
    for (BoardFamily family : kAllFamilies) {
        for (int card = 0; card < registry.cardCount(family); ++card) {
            for (int axis = 0; axis < registry.axisCount(family, card); ++axis) {
                const nrx_i32 result =
                    board.Sudden_Stop(family, static_cast<CardNo>(card), static_cast<AxisNo>(axis));
                if (result >= 0) {
                    ++m_stopped;
                    continue;
                }
                m_refused << tr("%1(%2) axis %3 (%4)")
                                 .arg(QString::fromStdString(registry.modelName(family, card)))
                                 .arg(card)
                                 .arg(axis)
                                 .arg(result);
            }
        }
    }
    if (m_refused.isEmpty())
        qCInfo(lcMotion) << "Stop All Axes:" << m_stopped << "axes stopped";
    else
        qCWarning(lcMotion).noquote()
            << "Stop All Axes:" << m_stopped << "axes stopped; the board refused to stop"
            << m_refused.join(QStringLiteral(", "));
}

QString AllAxesStop::report() const
{
    if (m_refused.isEmpty())
        return tr("All axes stopped (%1)").arg(m_stopped);
    return tr("Stop All: %1 axes stopped; the board refused to stop %2")
        .arg(m_stopped)
        .arg(m_refused.join(QStringLiteral(", ")));
}
