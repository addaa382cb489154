#pragma once

#include <QDialog>

class QComboBox;

// "Log Level Setup": picks the logging level of the active family's board library.
class COV_LogLevDlg : public QDialog
{
    Q_OBJECT

public:
    explicit COV_LogLevDlg(int level, QWidget* parent = nullptr);

    int level() const;
    QComboBox* levelList() const { return m_levels; }

private:
    QWidget* createChoice(int level);

    QComboBox* m_levels = nullptr;
};
