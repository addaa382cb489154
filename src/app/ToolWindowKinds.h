#pragma once

class ToolWindowFactory;

// Registers every tool-window kind and dialog command of the program with the factory: the
// one list the program and the benchmarks share.
void registerToolWindows(ToolWindowFactory& factory);
