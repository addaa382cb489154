#pragma once

#include "UserMessage.h"

#include <functional>
#include <map>

class QWidget;
class ToolView;
struct ToolContext;

// Frame commands whose dialogs are provided by other subsystems.
enum class FrameCommand
{
    SaveParameter,
    SystemReset,
    ActualSpeedCalculator,
    ExportParameters,
    ImportParameters,
    CompareParameters
};

// What the frame can open: a maker per tool-window kind and a handler per dialog command,
// registered at start-up. Kinds and commands without one open nothing.
class ToolWindowFactory
{
public:
    using Maker = std::function<ToolView*(const ToolContext& context, QWidget* parent)>;
    using Command = std::function<void(const ToolContext& context, QWidget* parent)>;

    void registerKind(ToolKind kind, Maker maker) { m_makers[kind] = std::move(maker); }
    void registerCommand(FrameCommand command, Command run)
    {
        m_commands[command] = std::move(run);
    }

    bool has(ToolKind kind) const { return m_makers.count(kind) != 0; }
    // A new view of the kind, owned by parent; null when the kind has no maker.
    ToolView* create(ToolKind kind, const ToolContext& context, QWidget* parent) const;
    // Runs the command's dialog; false when none is registered.
    bool run(FrameCommand command, const ToolContext& context, QWidget* parent) const;

private:
    std::map<ToolKind, Maker> m_makers;
    std::map<FrameCommand, Command> m_commands;
};
