#include "ToolWindowKinds.h"

#include "COV_ActSpdCalDlg.h"
#include "COV_AxStMonWnd.h"
#include "COV_AxisTestWnd.h"
#include "COV_BoardCallWnd.h"
#include "COV_ComparePrmDlg.h"
#include "COV_DIoWnd.h"
#include "COV_ExportPrmDlg.h"
#include "COV_ImportPrmDlg.h"
#include "COV_MnMtnWnd.h"
#include "COV_PrmSuWnd.h"
#include "COV_SavePrmDlg.h"
#include "COV_ScopeWnd.h"
#include "COV_SimulatorWnd.h"
#include "COV_SnMtnWnd.h"
#include "COV_SysDbgWnd.h"
#include "COV_SysIoWnd.h"
#include "COV_SysRstDlg.h"
#include "FileDialogPlace.h"

#include <QCoreApplication>
#include <QFileDialog>

namespace {

template <typename View> ToolWindowFactory::Maker makerOf()
{
    return [](const ToolContext& context, QWidget* parent) -> ToolView* {
        return new View(context, parent);
    };
}

template <typename Dialog> ToolWindowFactory::Command dialogOf()
{
    return [](const ToolContext& context, QWidget* parent) {
        Dialog dialog(context, parent);
        dialog.exec();
    };
}

} // namespace

const std::vector<ToolWindowKind>& toolWindowKinds()
{
    static const std::vector<ToolWindowKind> kinds{
        {ToolSystemIo, QT_TRANSLATE_NOOP("ToolWindowKinds", "System IO"), ToolMenu::IoMonitoring,
         makerOf<COV_SysIoWnd>()},
        {ToolDigitalIo, QT_TRANSLATE_NOOP("ToolWindowKinds", "Digital IO"), ToolMenu::IoMonitoring,
         makerOf<COV_DIoWnd>()},
        {ToolParameter, QT_TRANSLATE_NOOP("ToolWindowKinds", "Parameter"), ToolMenu::Setup,
         makerOf<COV_PrmSuWnd>()},
        {ToolSingleAxis, QT_TRANSLATE_NOOP("ToolWindowKinds", "Single Axis"), ToolMenu::Motion,
         makerOf<COV_SnMtnWnd>()},
        {ToolMultiAxis, QT_TRANSLATE_NOOP("ToolWindowKinds", "Multi Axis"), ToolMenu::Motion,
         makerOf<COV_MnMtnWnd>()},
        {ToolAxisStatus, QT_TRANSLATE_NOOP("ToolWindowKinds", "Axis Status"), ToolMenu::Status,
         makerOf<COV_AxStMonWnd>()},
        {ToolSystemDiagnosis, QT_TRANSLATE_NOOP("ToolWindowKinds", "System Diagnosis"),
         ToolMenu::Status, makerOf<COV_SysDbgWnd>()},
        {ToolScope, QT_TRANSLATE_NOOP("ToolWindowKinds", "Scope"), ToolMenu::Motion,
         makerOf<COV_ScopeWnd>()},
        {ToolBoardCalls, QT_TRANSLATE_NOOP("ToolWindowKinds", "Board Calls"), ToolMenu::Window,
         makerOf<COV_BoardCallWnd>()},
        {ToolAxisTest, QT_TRANSLATE_NOOP("ToolWindowKinds", "Axis Test"), ToolMenu::Motion,
         makerOf<COV_AxisTestWnd>()},
        {ToolSimulator, QT_TRANSLATE_NOOP("ToolWindowKinds", "Simulator"), ToolMenu::Window,
         makerOf<COV_SimulatorWnd>(), true},
    };
    return kinds;
}

const ToolWindowKind* findToolWindowKind(int kind)
{
    for (const ToolWindowKind& entry : toolWindowKinds()) {
        if (entry.kind == kind)
            return &entry;
    }
    return nullptr;
}

QString toolWindowCaption(ToolKind kind)
{
    const ToolWindowKind* entry = findToolWindowKind(kind);
    return entry ? QCoreApplication::translate("ToolWindowKinds", entry->caption) : QString();
}

void registerToolWindows(ToolWindowFactory& factory)
{
    for (const ToolWindowKind& entry : toolWindowKinds())
        factory.registerKind(entry.kind, entry.make);
    factory.registerCommand(FrameCommand::SaveParameter, dialogOf<COV_SavePrmDlg>());
    factory.registerCommand(FrameCommand::SystemReset, dialogOf<COV_SysRstDlg>());
    factory.registerCommand(FrameCommand::ActualSpeedCalculator, dialogOf<COV_ActSpdCalDlg>());
    factory.registerCommand(FrameCommand::ExportParameters, dialogOf<COV_ExportPrmDlg>());
    factory.registerCommand(FrameCommand::CompareParameters, dialogOf<COV_ComparePrmDlg>());
    factory.registerCommand(
        FrameCommand::ImportParameters, [](const ToolContext& context, QWidget* parent) {
            const QString path = QFileDialog::getOpenFileName(
                parent, QCoreApplication::translate("ToolWindowKinds", "Import Parameters"),
                FileDialogPlace::start(QStringLiteral("ImportParameters")),
                QCoreApplication::translate("ToolWindowKinds",
                                            "Parameter files (*.ini *.txt);;All files (*)"));
            FileDialogPlace::remember(QStringLiteral("ImportParameters"), path);
            if (path.isEmpty())
                return;
            COV_ImportPrmDlg dialog(context, parent);
            dialog.load(path);
            dialog.exec();
        });
}
