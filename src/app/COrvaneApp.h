#pragma once

#include "AppState.h"
#include "AppTranslations.h"
#include "BoardApi.h"
#include "MessageBoxPrompt.h"
#include "ToolWindowFactory.h"

#include <memory>

class BoardCallClock;
class BoardLoader;
class COV_MainFrame;
class LogFile;

// The program: starts its log file, loads the board libraries from its own folder, creates the
// main frame shown maximised, runs the event loop and tears everything down in order. Construct
// it after the QApplication.
class COrvaneApp
{
public:
    COrvaneApp();
    ~COrvaneApp();
    COrvaneApp(const COrvaneApp&) = delete;
    COrvaneApp& operator=(const COrvaneApp&) = delete;

    // Where the tool windows and dialogs of every subsystem are registered before run().
    ToolWindowFactory& toolWindows() { return m_factory; }

    // Returns the program's exit code; 1 when no board could be loaded.
    int run();

private:
    void logStart() const;

    // first: the log outlives everything that may write to it
    std::unique_ptr<LogFile> m_log;
    AppTranslations m_translations;
    AppState m_state;
    BoardCallTrace m_trace;
    BoardApi m_board;
    MessageBoxPrompt m_prompt;
    ToolWindowFactory m_factory;
    std::unique_ptr<BoardCallClock> m_traceClock;
    std::unique_ptr<BoardLoader> m_loader;
    std::unique_ptr<COV_MainFrame> m_frame;
};
