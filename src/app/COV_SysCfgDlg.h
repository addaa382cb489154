#pragma once

#include "OrvaneSettings.h"

#include <QDialog>

class QCheckBox;

// "System Environment Setup": the two display switches of ZelbrinOrvane.ini, written on OK.
class COV_SysCfgDlg : public QDialog
{
    Q_OBJECT

public:
    explicit COV_SysCfgDlg(QString settingsFilePath, QWidget* parent = nullptr);

    // The values as read on opening, or as written by OK.
    const OrvaneSettings::System& values() const { return m_values; }
    QCheckBox* showStatusBox() const { return m_showStatus; }
    QCheckBox* followOperationBox() const { return m_followOperation; }

    void accept() override;

private:
    QWidget* createChecks();

    QString m_path;
    OrvaneSettings::System m_values;
    QCheckBox* m_showStatus = nullptr;
    QCheckBox* m_followOperation = nullptr;
};
