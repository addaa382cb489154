#include "COV_ActSpdCalDlg.h"
#include "COV_SavePrmDlg.h"
#include "COV_ScopeWnd.h"
#include "COV_SnMtnWnd.h"
#include "COV_SysRstDlg.h"
#include "COrvaneApp.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication qtApp(argc, argv);
    COrvaneApp app;
    // Each tool window plugs in with one line.
    app.toolWindows().registerKind(ToolSingleAxis,
                                   [](const ToolContext& context, QWidget* parent) -> ToolView* {
                                       return new COV_SnMtnWnd(context, parent);
                                   });
    app.toolWindows().registerKind(ToolScope,
                                   [](const ToolContext& context, QWidget* parent) -> ToolView* {
                                       return new COV_ScopeWnd(context, parent);
                                   });
    app.toolWindows().registerCommand(FrameCommand::ActualSpeedCalculator,
                                      [](const ToolContext& context, QWidget* parent) {
                                          COV_ActSpdCalDlg dialog(context, parent);
                                          dialog.exec();
                                      });
    app.toolWindows().registerCommand(FrameCommand::SaveParameter,
                                      [](const ToolContext& context, QWidget* parent) {
                                          COV_SavePrmDlg dialog(context, parent);
                                          dialog.exec();
                                      });
    app.toolWindows().registerCommand(FrameCommand::SystemReset,
                                      [](const ToolContext& context, QWidget* parent) {
                                          COV_SysRstDlg dialog(context, parent);
                                          dialog.exec();
                                      });
    return app.run();
}
