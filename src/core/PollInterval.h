#pragma once

// How often windows and panes read the boards and the sequences look at a running motion: fast
// enough that lamps and figures follow a moving axis, slow enough to leave the board time to work.
constexpr int kPollIntervalMs = 10;
