#include "COV_BoardCallWnd.h"
#include "COV_SnMtnWnd.h"
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
    app.toolWindows().registerKind(ToolBoardCalls,
                                   [](const ToolContext& context, QWidget* parent) -> ToolView* {
                                       return new COV_BoardCallWnd(context, parent);
                                   });
    return app.run();
}
