#include "IsNumericText.h"

bool IsNumericText(const QString& text, bool allowHexadecimal)
{
    const bool leadingMinus = !text.isEmpty() && text.front() == QLatin1Char('-');
    qsizetype i = 0;
    while (i < text.size() && text.at(i).unicode() < 0x80 && text.at(i).isSpace())
        ++i;
    for (; i < text.size(); ++i) {
        const char16_t c = text.at(i).unicode();
        if (c >= 0x80)
            return false;
        if ((c >= u'0' && c <= u'9') || c == u'.')
            continue;
        const bool letter = (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
        if (letter) {
            const bool hexLetter = (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
            if (allowHexadecimal && hexLetter)
                continue;
            return false;
        }
        if (!leadingMinus)
            return false;
    }
    return true;
}
