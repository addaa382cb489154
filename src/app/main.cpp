#include "COrvaneApp.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication qtApp(argc, argv);
    COrvaneApp app;
    // Tool windows plug in here, one line per kind:
    // app.toolWindows().registerKind(ToolX, [](const ToolContext& c, QWidget* p) -> ToolView* {
    //     return new COV_XWnd(c, p); });
    return app.run();
}
