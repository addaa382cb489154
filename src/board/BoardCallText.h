#pragma once

#include "BoardCall.h"

#include <QString>
#include <QStringList>

class CardRegistry;

// How recorded calls read in the trace window, the clipboard, CSV files and the status bar.
class BoardCallText
{
public:
    enum Column
    {
        Time,
        Family,
        Operation,
        Card,
        Axis,
        Arguments,
        Result,
        Caller,
        ColumnCount
    };

    static QString header(int column);
    // A column's text; callers are the names indexed by BoardCall::caller.
    static QString column(const BoardCall& call, int column, const QStringList& callers);
    // The arguments after card and axis: "initial=100 drive=5000", "n=2 axes=[0,1]
    // distances=[10,-20]"; out-values as "&drive=5000".
    static QString arguments(const BoardCall& call);
    // A line of a CSV file (RFC 4180 quoting), and its header line.
    static QString csvLine(const BoardCall& call, const QStringList& callers);
    static QString csvHeader();
    // The call's date and clock time to the microsecond, "2026-11-24 14:03:07.123456": the
    // Time column's tooltip and the CSV's time.
    static QString preciseTime(const BoardCall& call);
    // "SetPosSpeed on NRX-RL416V(0) axis 1 returned -1"
    static QString failureNote(const BoardCall& call, const CardRegistry& registry);
};
