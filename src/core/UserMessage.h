#pragma once

// The private notifications exchanged between the main frame, the workspace tree and the tool
// windows, with their traditional numbers (WM_USER + n).
enum UserMessage : int
{
    UM_OPEN_TOOL = 1124,
    UM_TREE_BUILD = 1125,
    UM_SELECT_BOARD = 1126,
    UM_CONTROLLER_CHANGED = 1127,
    UM_SELECT_CARD = 1128,
    UM_PARAM_CHANGED = 1129,
    UM_CARD_CHANGED = 1134,
    UM_AXIS_CHANGED = 1135,
    UM_MOTION_TYPE_CHANGED = 1136,
    UM_REPEAT_CHANGED = 1137,
    UM_HOME_LIMIT_USE = 1138,
    UM_STATUS_CARD_CHANGED = 1144,
    UM_STATUS_AXIS_CHANGED = 1145,
    UM_VIEW_COMMAND = 1154,
    // Values are about to be written over the boards' parameters: a window holding unwritten
    // edits asks whether to write them first, since the reload that follows drops them.
    UM_PARAM_LEAVE_CHECK = 1155,
};

// The tool-window kinds, as carried by UM_OPEN_TOOL and UM_VIEW_COMMAND.
enum ToolKind : int
{
    ToolSystemIo = 100,
    ToolDigitalIo = 101,
    ToolParameter = 102,
    ToolSingleAxis = 103,
    ToolMultiAxis = 104,
    ToolAxisStatus = 105,
    ToolSystemDiagnosis = 106,
    ToolScope = 107,
    ToolBoardCalls = 108,
    ToolAxisTest = 109,
};
constexpr int kToolKindFirst = ToolSystemIo;
constexpr int kToolKindLast = ToolAxisTest;
