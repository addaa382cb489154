#pragma once

#include "ToolContext.h"

#include <QDialog>

#include <memory>

class ParameterImport;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;
class UnitScaleImport;

// "Import Parameters": checks a parameter file against the boards, shows what it would change
// and, once the user agrees, writes it.
class COV_ImportPrmDlg : public QDialog
{
    Q_OBJECT

public:
    COV_ImportPrmDlg(const ToolContext& context, QWidget* parent = nullptr);
    ~COV_ImportPrmDlg() override;

    // Reads and checks the file; nothing is written.
    void load(const QString& path);
    // Asks, then writes every change and tells the frame; false when nothing was written.
    bool writeToBoards();

    QTableWidget& changeTable() { return *m_changes; }
    QPlainTextEdit& faultList() { return *m_faults; }

private:
    void showChanges();
    void showUnitChanges();
    void writeUnits();

    ToolContext m_context;
    std::unique_ptr<ParameterImport> m_import;
    std::unique_ptr<UnitScaleImport> m_units; // the file's axis scales
    QLineEdit* m_file = nullptr;
    QLabel* m_summary = nullptr;
    QPlainTextEdit* m_faults = nullptr;
    QTableWidget* m_changes = nullptr;
    QPushButton* m_write = nullptr;
};
