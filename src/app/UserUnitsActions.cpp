#include "UserUnitsActions.h"

#include "AppState.h"
#include "COV_AxisUnitsDlg.h"
#include "OrvaneLog.h"

#include <QAction>
#include <QMenu>

void UserUnitsActions::addTo(QMenu& menu, AppState& state, PromptService& prompt, QWidget* parent)
{
    menu.addSeparator();
    QAction* edit = menu.addAction(tr("Axis Units..."));
    edit->setObjectName(QStringLiteral("axisUnitsAction"));
    QObject::connect(edit, &QAction::triggered, parent, [&state, &prompt, parent] {
        if (state.activeAxisCount() <= 0)
            return;
        COV_AxisUnitsDlg dialog(state, prompt, parent);
        dialog.exec();
    });
    QAction* show = menu.addAction(tr("Show User Units"));
    show->setObjectName(QStringLiteral("showUserUnitsAction"));
    show->setCheckable(true);
    QObject::connect(&menu, &QMenu::aboutToShow, show,
                     [show, &state] { show->setChecked(state.units.shown()); });
    QObject::connect(show, &QAction::toggled, parent, [&state](bool on) {
        if (on == state.units.shown())
            return;
        state.units.setShown(on);
        if (!state.units.writeShown(state.settingsFilePath))
            qCWarning(lcApp) << "Could not write the units switch to" << state.settingsFilePath;
    });
}
