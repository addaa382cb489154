#pragma once

#include <QString>

class QPushButton;

// The windows' push buttons: named for tests and the layout, never a default button (Enter
// belongs to the fields), with an optional tooltip in words.
QPushButton* makeNamedButton(const QString& caption, const char* name,
                             const QString& tip = QString());
