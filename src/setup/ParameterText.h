#pragma once

#include "ParameterSet.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>

// Parameters as a readable UTF-8 INI text: a [Header] section, a section per card
// ([RL.Card0]) and per axis ([RL.Card0.Axis0]), one Name=value line per parameter. Reading
// checks the whole text and reports every fault with its line.
class ParameterText
{
    Q_DECLARE_TR_FUNCTIONS(ParameterText)

public:
    static constexpr int kFormatVersion = 1;

    static QByteArray write(const ParameterSet& set, const QDateTime& created);
    // Writes through a temporary file renamed over the old one, so a failed write never
    // replaces a good file. Returns an empty text on success, else why it failed.
    static QString writeFile(const QString& path, const ParameterSet& set,
                             const QDateTime& created);

    // The set the text holds; faults gets one entry per fault found (the set is then not to
    // be used).
    static ParameterSet read(const QByteArray& text, std::vector<ParameterFault>& faults);
    // As read(), from a file; a file that cannot be opened is a fault at line 0.
    static ParameterSet readFile(const QString& path, std::vector<ParameterFault>& faults);

    // Adds more faults to a list, keeping it in line order.
    static void merge(std::vector<ParameterFault>& faults, const std::vector<ParameterFault>& more);
    // "Line 12: ..." (or the text alone for line 0), one fault a line.
    static QString faultList(const std::vector<ParameterFault>& faults);
};
