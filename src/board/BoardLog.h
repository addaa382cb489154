#pragma once

#include <QLoggingCategory>

// The board layer's part of the program's log (orvane.board): refused board calls. Info and
// above are on by default; QT_LOGGING_RULES="orvane.board.debug=true" adds every refusal the
// rate limit holds back.
Q_DECLARE_LOGGING_CATEGORY(lcBoard)
