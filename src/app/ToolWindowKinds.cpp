#include "ToolWindowKinds.h"

#include "COV_ActSpdCalDlg.h"
#include "COV_AxStMonWnd.h"
#include "COV_BoardCallWnd.h"
#include "COV_ComparePrmDlg.h"
#include "COV_DIoWnd.h"
#include "COV_ExportPrmDlg.h"
#include "COV_ImportPrmDlg.h"
#include "COV_MnMtnWnd.h"
#include "COV_PrmSuWnd.h"
#include "COV_SavePrmDlg.h"
#include "COV_ScopeWnd.h"
#include "COV_SnMtnWnd.h"
#include "COV_SysDbgWnd.h"
#include "COV_SysIoWnd.h"
#include "COV_SysRstDlg.h"
#include "ToolWindowFactory.h"

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

void registerToolWindows(ToolWindowFactory& factory)
{
    factory.registerKind(ToolSingleAxis, makerOf<COV_SnMtnWnd>());
    factory.registerKind(ToolMultiAxis, makerOf<COV_MnMtnWnd>());
    factory.registerKind(ToolParameter, makerOf<COV_PrmSuWnd>());
    factory.registerKind(ToolSystemIo, makerOf<COV_SysIoWnd>());
    factory.registerKind(ToolDigitalIo, makerOf<COV_DIoWnd>());
    factory.registerKind(ToolAxisStatus, makerOf<COV_AxStMonWnd>());
    factory.registerKind(ToolSystemDiagnosis, makerOf<COV_SysDbgWnd>());
    factory.registerKind(ToolScope, makerOf<COV_ScopeWnd>());
    factory.registerKind(ToolBoardCalls, makerOf<COV_BoardCallWnd>());
    factory.registerCommand(FrameCommand::SaveParameter, dialogOf<COV_SavePrmDlg>());
    factory.registerCommand(FrameCommand::SystemReset, dialogOf<COV_SysRstDlg>());
    factory.registerCommand(FrameCommand::ActualSpeedCalculator, dialogOf<COV_ActSpdCalDlg>());
    factory.registerCommand(FrameCommand::ExportParameters, dialogOf<COV_ExportPrmDlg>());
    factory.registerCommand(FrameCommand::CompareParameters, dialogOf<COV_ComparePrmDlg>());
    factory.registerCommand(FrameCommand::ImportParameters,
                            [](const ToolContext& context, QWidget* parent) {
                                const QString path = QFileDialog::getOpenFileName(
                                    parent, QStringLiteral("Import Parameters"), QString(),
                                    QStringLiteral("Parameter files (*.ini *.txt);;All files (*)"));
                                if (path.isEmpty())
                                    return;
                                COV_ImportPrmDlg dialog(context, parent);
                                dialog.load(path);
                                dialog.exec();
                            });
}
