#pragma once

#include <QCoreApplication>
#include <QString>

// The speed range magnification R as the motion page's editable list takes it: typed text is
// checked before it selects an item, and the range it gives is R .. R x 8000 pulses per second.
class RangeMagnification
{
    Q_DECLARE_TR_FUNCTIONS(RangeMagnification)

public:
    static constexpr int kItems = 500;
    static constexpr int kRangeFactor = 8000;

    enum class Typed
    {
        Accepted,   // item() is the list item to select
        NotNumeric, // "Input value is incorrect!", nothing else happens
        TooSmall,   // "Speed range is greater than 0!", the board's value is selected again
        TooLarge    // "Speed range is smaller than 500!", likewise
    };

    // Checks a typed magnification; on Accepted, item is the list index (R - 1).
    static Typed check(const QString& text, int& item);
    // The message for a refusal; empty for Accepted.
    static QString message(Typed outcome);
    // The list item that shows a board value; a board that reports 0 shows 100.
    static int itemOf(int boardValue);
    // "(%d ~ %d)" for the magnification shown in the list.
    static QString rangeText(const QString& itemText);
};
