#include "RangeMagnification.h"

#include "IsNumericText.h"
#include "PromptTexts.h"

#include <cstdlib>

RangeMagnification::Typed RangeMagnification::check(const QString& text, int& item)
{
    if (!IsNumericText(text))
        return Typed::NotNumeric;
    // A plain decimal conversion, as the list's own items are read.
    const long long number = std::strtoll(text.toLatin1().constData(), nullptr, 10);
    const long long index = number - 1;
    if (index < 0)
        return Typed::TooSmall;
    if (index >= kItems)
        return Typed::TooLarge;
    item = static_cast<int>(index);
    return Typed::Accepted;
}

QString RangeMagnification::message(Typed outcome)
{
    switch (outcome) {
    case Typed::NotNumeric:
        return PromptTexts::inputIncorrect();
    case Typed::TooSmall:
        return tr("Speed range is greater than 0!");
    case Typed::TooLarge:
        return tr("Speed range is smaller than 500!");
    case Typed::Accepted:
        break;
    }
    return {};
}

int RangeMagnification::itemOf(int boardValue)
{
    const int item = boardValue - 1;
    return item < 0 ? 99 : (item < kItems ? item : kItems - 1);
}

QString RangeMagnification::rangeText(const QString& itemText)
{
    const int r = std::atoi(itemText.toLatin1().constData());
    return QStringLiteral("(%1 ~ %2)").arg(r).arg(r * kRangeFactor);
}
