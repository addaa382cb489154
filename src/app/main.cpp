#include "COV_DIoWnd.h"
#include "COV_SnMtnWnd.h"
#include "COV_SysIoWnd.h"
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
    app.toolWindows().registerKind(ToolSystemIo,
                                   [](const ToolContext& context, QWidget* parent) -> ToolView* {
                                       return new COV_SysIoWnd(context, parent);
                                   });
    app.toolWindows().registerKind(ToolDigitalIo,
                                   [](const ToolContext& context, QWidget* parent) -> ToolView* {
                                       return new COV_DIoWnd(context, parent);
                                   });
    return app.run();
}
