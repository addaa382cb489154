#pragma once

#include <Qt>

// The frame of every dialog: a title and a close button, no minimise or maximise.
inline constexpr Qt::WindowFlags kDialogFlags =
    Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
