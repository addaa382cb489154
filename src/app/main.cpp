#include "COrvaneApp.h"
#include "ToolWindowKinds.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication qtApp(argc, argv);
    COrvaneApp app;
    registerToolWindows(app.toolWindows());
    return app.run();
}
