#include "AxisTestCommandLine.h"
#include "COrvaneApp.h"
#include "ParameterCommandLine.h"
#include "ToolWindowKinds.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char* argv[])
{
    // "orvane params ..." and "orvane test ..." run in a shell with no display: decide
    // before any GUI exists.
    if (ParameterCommandLine::isCommand(argc, argv))
        return ParameterCommandLine::main(argc, argv);
    if (AxisTestCommandLine::isCommand(argc, argv))
        return AxisTestCommandLine::main(argc, argv);
    if (ParameterCommandLine::isStray(argc, argv)) {
        std::fprintf(stderr, "orvane: unknown command \"%s\"\n%s\n%s", argv[1],
                     qPrintable(ParameterCommandLine::usage()),
                     qPrintable(AxisTestCommandLine::usage()));
        return ParameterCommandLine::BadInput;
    }

    QApplication qtApp(argc, argv);
    COrvaneApp app;
    registerToolWindows(app.toolWindows());
    return app.run();
}
