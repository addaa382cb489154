#pragma once

#include <QLoggingCategory>

// The program's own log above the board layer: start and exit (orvane.app), stops and their
// causes (orvane.motion), parameter writes, saves, exports and imports (orvane.params), and
// what the user was refused (orvane.ui). Info and above are on by default; debug is switched
// on with QT_LOGGING_RULES="orvane.*.debug=true". Log texts are for a service engineer and
// stay in English.
Q_DECLARE_LOGGING_CATEGORY(lcApp)
Q_DECLARE_LOGGING_CATEGORY(lcMotion)
Q_DECLARE_LOGGING_CATEGORY(lcParams)
Q_DECLARE_LOGGING_CATEGORY(lcUi)
