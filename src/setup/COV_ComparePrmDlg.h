#pragma once

#include "ParameterComparison.h"
#include "ToolContext.h"

#include <QDialog>

class ParameterSourceBox;
class QCheckBox;
class QLabel;
class QTableWidget;

// "Compare Parameters": two sources (an axis, a card or a file) side by side, one row per
// parameter, the rows that differ highlighted.
class COV_ComparePrmDlg : public QDialog
{
    Q_OBJECT

public:
    COV_ComparePrmDlg(const ToolContext& context, QWidget* parent = nullptr);

    ParameterSourceBox& first() { return *m_sources[0]; }
    ParameterSourceBox& second() { return *m_sources[1]; }
    QTableWidget& table() { return *m_table; }
    QCheckBox& differencesOnly() { return *m_differencesOnly; }

    // Reads both sources and fills the table; false (after saying why) when one is unreadable.
    bool compare();

private:
    bool read(const ParameterSourceBox& box, ParameterSet& set);
    void showRows();
    void showUnitRows();

    ToolContext m_context;
    ParameterSourceBox* m_sources[2] = {};
    QCheckBox* m_differencesOnly = nullptr;
    QLabel* m_summary = nullptr;
    QTableWidget* m_table = nullptr;
    std::vector<ComparisonRow> m_rows;
    std::vector<UnitComparisonRow> m_unitRows;
};
