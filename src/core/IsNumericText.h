#pragma once

#include <QString>

// The check applied to a typed number before its plain decimal conversion: digits and "."
// after leading white space, hexadecimal letters only when allowed, no character outside
// 7-bit ASCII. A text that starts with "-" also admits any other non-letter character, a
// looseness users of the boards' tools rely on. An empty text passes.
bool IsNumericText(const QString& text, bool allowHexadecimal = false);
