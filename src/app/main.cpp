#include "COrvaneApp.h"
#include "ParameterCommandLine.h"
#include "ToolWindowKinds.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    // "orvane params ..." runs in a shell with no display: decide before any GUI exists.
    if (ParameterCommandLine::isCommand(argc, argv))
        return ParameterCommandLine::main(argc, argv);

    QApplication qtApp(argc, argv);
    COrvaneApp app;
    registerToolWindows(app.toolWindows());
    return app.run();
}
