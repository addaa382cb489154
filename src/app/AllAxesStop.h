#pragma once

#include <QCoreApplication>
#include <QStringList>

class BoardApi;
class CardRegistry;

// Stop All's board side: a sudden stop of every axis of every loaded card, and the words that
// say what it did, naming each axis whose stop the board refused.
class AllAxesStop
{
    Q_DECLARE_TR_FUNCTIONS(AllAxesStop)

public:
    AllAxesStop(BoardApi& board, const CardRegistry& registry);

    int stopped() const { return m_stopped; }
    // "NRX-RL416V(0) axis 2 (-1)" for each refused stop.
    const QStringList& refused() const { return m_refused; }
    QString report() const;

private:
    int m_stopped = 0;
    QStringList m_refused;
};
