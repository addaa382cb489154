#pragma once

#include "BoardCall.h"

#include <QString>

// Which recorded calls a user wants to see; every condition set must hold. -1 means any.
struct BoardCallFilter
{
    int family = -1;
    int card = -1;
    int axis = -1;
    int caller = -1;
    QString operation; // part of the operation's name, any case
    bool hidePolling = true;
    bool failuresOnly = false;

    bool matches(const BoardCall& call) const
    {
        if (family >= 0 && call.family != family)
            return false;
        if (caller >= 0 && call.caller != caller)
            return false;
        const BoardOpInfo& info = call.info();
        if (hidePolling && info.polled)
            return false;
        if (failuresOnly && !call.failed())
            return false;
        if (card >= 0 && call.card() != card)
            return false;
        if (axis >= 0 && !call.involvesAxis(axis))
            return false;
        return operation.isEmpty() ||
               QLatin1String(info.name).contains(operation, Qt::CaseInsensitive);
    }
};
