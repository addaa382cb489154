#pragma once

#include "ToolWindowFactory.h"
#include "UserMessage.h"

#include <QString>

#include <vector>

// The frame menu a tool-window kind is opened from.
enum class ToolMenu
{
    IoMonitoring,
    Setup,
    Motion,
    Status,
    Window
};

// One tool-window kind: its number, the caption a user sees in its menu (and the caller name
// its board calls carry in the trace), the menu it lives in and how its view is made.
struct ToolWindowKind
{
    ToolKind kind;
    const char* caption; // untranslated; see toolWindowCaption()
    ToolMenu menu;
    ToolWindowFactory::Maker make;
    bool simulatedOnly = false; // offered only while some boards are simulated
};

// Every tool-window kind of the program in kind order: the one list the frame's menus, the
// factory, the window host, the tests and the benchmarks read.
const std::vector<ToolWindowKind>& toolWindowKinds();
// The kind's entry, or null for a number that is no kind.
const ToolWindowKind* findToolWindowKind(int kind);
// The kind's caption in the user's language; empty for a number that is no kind.
QString toolWindowCaption(ToolKind kind);

// Registers every tool-window kind and dialog command of the program with the factory.
void registerToolWindows(ToolWindowFactory& factory);
