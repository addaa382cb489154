#pragma once

#include <QCoreApplication>

class PromptService;
class QMenu;
class QWidget;
struct AppState;

// The Setup menu's "Axis Units..." and its checkable "Show User Units", whose state is kept in
// the settings file.
class UserUnitsActions
{
    Q_DECLARE_TR_FUNCTIONS(UserUnitsActions)

public:
    static void addTo(QMenu& menu, AppState& state, PromptService& prompt, QWidget* parent);
};
