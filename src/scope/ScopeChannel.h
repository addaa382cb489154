#pragma once

#include "BoardFamily.h"

#include <QCoreApplication>
#include <QString>

// What one scope channel reads: an axis of a board and one of its signals.
struct ScopeChannel
{
    Q_DECLARE_TR_FUNCTIONS(ScopeChannel)

public:
    enum Signal
    {
        CommandPosition = 0,
        ActualPosition = 1,
        CommandSpeed = 2,
        FollowingError = 3 // command minus actual
    };
    static constexpr int kSignalCount = 4;

    bool enabled = false;
    BoardFamily family = BoardFamily::RL;
    int card = 0;
    int axis = 0;
    Signal signal = CommandPosition;

    static QString signalName(Signal signal)
    {
        switch (signal) {
        case CommandPosition:
            return tr("Command Position");
        case ActualPosition:
            return tr("Actual Position");
        case CommandSpeed:
            return tr("Command Speed");
        case FollowingError:
            return tr("Following Error");
        }
        return {};
    }
    static QString unit(Signal signal)
    {
        return signal == CommandSpeed ? QStringLiteral("pps") : QStringLiteral("pulse");
    }
    // "RL 0.1 Command Speed": family, card.axis and signal, as headers and legends show it.
    QString name() const
    {
        return QStringLiteral("%1 %2.%3 %4")
            .arg(QString::fromLatin1(familyShortName(family)))
            .arg(card)
            .arg(axis)
            .arg(signalName(signal));
    }
};
