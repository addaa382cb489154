#pragma once

#include "ToolContext.h"

#include <QDialog>

class ParameterSourceBox;
class QLineEdit;

// "Export Parameters": writes the parameters of one card or of every card to a text file.
class COV_ExportPrmDlg : public QDialog
{
    Q_OBJECT

public:
    COV_ExportPrmDlg(const ToolContext& context, QWidget* parent = nullptr);

    ParameterSourceBox& source() { return *m_source; }
    void setFilePath(const QString& path);
    // Writes the file; false (after saying why) when it could not.
    bool exportFile();

private:
    // The model, card and date of what is exported ("NRX-RL416V_Card0_2026-11-24.ini").
    QString suggestedName() const;

    ToolContext m_context;
    ParameterSourceBox* m_source = nullptr;
    QLineEdit* m_file = nullptr;
};
