#include "COV_ComparePrmDlg.h"
#include "COV_ExportPrmDlg.h"
#include "COV_ImportPrmDlg.h"
#include "COV_PrmSuWnd.h"
#include "COV_SnMtnWnd.h"
#include "COrvaneApp.h"
#include "ParameterCommandLine.h"

#include <QApplication>
#include <QFileDialog>

int main(int argc, char* argv[])
{
    // "orvane params ..." runs in a shell with no display: decide before any GUI exists.
    if (ParameterCommandLine::isCommand(argc, argv))
        return ParameterCommandLine::main(argc, argv);

    QApplication qtApp(argc, argv);
    COrvaneApp app;
    // Each tool window plugs in with one line.
    app.toolWindows().registerKind(ToolSingleAxis,
                                   [](const ToolContext& context, QWidget* parent) -> ToolView* {
                                       return new COV_SnMtnWnd(context, parent);
                                   });
    app.toolWindows().registerKind(ToolParameter,
                                   [](const ToolContext& context, QWidget* parent) -> ToolView* {
                                       return new COV_PrmSuWnd(context, parent);
                                   });
    app.toolWindows().registerCommand(FrameCommand::ExportParameters,
                                      [](const ToolContext& context, QWidget* parent) {
                                          COV_ExportPrmDlg dialog(context, parent);
                                          dialog.exec();
                                      });
    app.toolWindows().registerCommand(
        FrameCommand::ImportParameters, [](const ToolContext& context, QWidget* parent) {
            const QString path = QFileDialog::getOpenFileName(
                parent, QStringLiteral("Import Parameters"), QString(),
                QStringLiteral("Parameter files (*.ini *.txt);;All files (*)"));
            if (path.isEmpty())
                return;
            COV_ImportPrmDlg dialog(context, parent);
            dialog.load(path);
            dialog.exec();
        });
    app.toolWindows().registerCommand(FrameCommand::CompareParameters,
                                      [](const ToolContext& context, QWidget* parent) {
                                          COV_ComparePrmDlg dialog(context, parent);
                                          dialog.exec();
                                      });
    return app.run();
}
