#pragma once

#include "ActiveController.h"
#include "AxisUnits.h"
#include "CardRegistry.h"

#include <QString>

// The one application-state object: the active controller, the card registry and the few
// settings that windows read directly.
struct AppState
{
    ActiveController active;
    CardRegistry registry;
    QString moduleDirectory;        // the executable's folder, with a trailing separator
    QString settingsFilePath;       // moduleDirectory + "ZelbrinOrvane.ini"
    int statusFollowsOperation = 1; // "Change_Status_Axis_Depend_On_Operation"
    int logLevel = 2;
    AxisUnits units; // each axis' unit scale and the "Show User Units" switch

    // Card count, axis count and model name of the active card, for titles and selectors.
    int activeCardCount() const { return registry.cardCount(active.family); }
    int activeAxisCount() const { return registry.axisCount(active.family, active.card); }
    QString modelName(int card) const
    {
        return QString::fromStdString(registry.modelName(active.family, card));
    }
    // A card as titles and notes name it: "NRX-RL416V(0)".
    QString cardName(BoardFamily family, int card) const
    {
        return QStringLiteral("%1(%2)")
            .arg(QString::fromStdString(registry.modelName(family, card)))
            .arg(card);
    }
};
