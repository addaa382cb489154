#pragma once

#include "BoardFamily.h"

#include <QString>

// What one scope channel reads: an axis of a board and one of its signals.
struct ScopeChannel
{
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
            return QStringLiteral("Command Position");
        case ActualPosition:
            return QStringLiteral("Actual Position");
        case CommandSpeed:
            return QStringLiteral("Command Speed");
        case FollowingError:
            return QStringLiteral("Following Error");
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
