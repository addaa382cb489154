#pragma once

#include "ParameterSet.h"

#include <QCoreApplication>
#include <QStringList>

#include <utility>

// One value a file would change on a board.
struct ParameterChange
{
    BoardFamily family = BoardFamily::RL;
    int card = 0;
    int axis = -1;
    const ParameterInfo* info = nullptr;
    std::int32_t boardValue = 0;
    std::int32_t fileValue = 0;
};

// Puts a checked parameter file onto the installed boards: finds what the PC lacks, lists
// what would change and writes only that, through the calls the pages use.
class ParameterImport
{
    Q_DECLARE_TR_FUNCTIONS(ParameterImport)

public:
    // Compares the file with the boards at once; nothing is written until apply().
    ParameterImport(const ParameterSet& file, BoardApi& board, const CardRegistry& registry);

    // A family, card or axis of the file that the PC lacks, each with the file's line.
    const std::vector<ParameterFault>& faults() const { return m_faults; }
    // Axes left out because the file was made for another model of the same family.
    const QStringList& skipped() const { return m_skipped; }
    // Cards the file describes as another model (or family) than the one they are on here.
    const QStringList& otherModels() const { return m_otherModels; }
    const std::vector<ParameterChange>& changes() const { return m_changes; }
    bool canApply() const { return m_faults.empty(); }

    // Writes every change, one board call per changed group of values; refuses (returns
    // nothing) while there are faults. Returns the cards it wrote to, family by family.
    std::vector<std::pair<BoardFamily, int>> apply();

private:
    void check(const ParameterSet& file, const CardRegistry& registry);
    void collect(const ParameterSection& section);

    BoardApi& m_board;
    std::vector<ParameterFault> m_faults;
    QStringList m_skipped;
    QStringList m_otherModels;
    std::vector<ParameterChange> m_changes;
};
