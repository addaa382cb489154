#pragma once

#include <QCoreApplication>
#include <QSettings>

// The user's own store of what the program remembers between runs: the frame's layout, the
// open tool windows, their setups and the file dialogs' folders. Keyed by the application's
// name, so another program built on these classes (a test, a benchmark) keeps its own.
class UserSettings : public QSettings
{
public:
    UserSettings()
        : QSettings(QStringLiteral("Local AppWizard-Generated Applications"),
                    QCoreApplication::applicationName())
    {}
};
