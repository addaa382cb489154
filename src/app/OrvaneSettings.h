#pragma once

#include "BoardFamily.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

// The two settings files next to the executable: ZelbrinOrvane.ini with its display
// switches and DbgLevel.ini with each family's log level.
class OrvaneSettings
{
    Q_DECLARE_TR_FUNCTIONS(OrvaneSettings)

public:
    struct System
    {
        int showStatusWindow = 1;       // "Default_Show_Status_Window"
        int statusFollowsOperation = 1; // "Change_Status_Axis_Depend_On_Operation"
    };

    static constexpr int kDefaultLogLevel = 2;

    static QString settingsFileName() { return QStringLiteral("ZelbrinOrvane.ini"); }
    static QString debugLevelFileName() { return QStringLiteral("DbgLevel.ini"); }

    // Missing keys and empty values keep their defaults of 1.
    static System readSystem(const QString& settingsFilePath);
    static void writeSystem(const QString& settingsFilePath, const System& values);

    // "DEBUG_RL", "DEBUG_RM" or "DEBUG_RN".
    static QByteArray logSection(BoardFamily family);
    // The family's LOG_LEVEL from DbgLevel.ini in the module directory; 2 when absent.
    static int readLogLevel(const QString& moduleDirectory, BoardFamily family);
    // The log-level list, indexed by level.
    static QStringList logLevelTexts();
};
