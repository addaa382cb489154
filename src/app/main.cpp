#include "COV_AxStMonWnd.h"
#include "COV_SnMtnWnd.h"
#include "COV_SysDbgWnd.h"
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
    app.toolWindows().registerKind(ToolAxisStatus,
                                   [](const ToolContext& context, QWidget* parent) -> ToolView* {
                                       return new COV_AxStMonWnd(context, parent);
                                   });
    app.toolWindows().registerKind(ToolSystemDiagnosis,
                                   [](const ToolContext& context, QWidget* parent) -> ToolView* {
                                       return new COV_SysDbgWnd(context, parent);
                                   });
    return app.run();
}
