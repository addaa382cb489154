#pragma once

struct AppState;
class BoardApi;
class FrameRelay;
class PromptService;

// What every tool window is given: the shared state, the boards, the prompts and the frame.
struct ToolContext
{
    AppState& state;
    BoardApi& board;
    PromptService& prompt;
    FrameRelay& frame;
};
