#include "ToolWindowFactory.h"

#include "ToolView.h"

ToolView* ToolWindowFactory::create(ToolKind kind, const ToolContext& context,
                                    QWidget* parent) const
{
    const auto maker = m_makers.find(kind);
    return maker == m_makers.end() ? nullptr : maker->second(context, parent);
}

bool ToolWindowFactory::run(FrameCommand command, const ToolContext& context, QWidget* parent) const
{
    const auto found = m_commands.find(command);
    if (found == m_commands.end())
        return false;
    found->second(context, parent);
    return true;
}
