#pragma once

#include <QDialog>

class QComboBox;

// "Log Level Setup": picks the logging level of the active family's board library.
class COV_LogLevDlg : public QDialog
{
    Q_OBJECT

public:
    explicit COV_LogLevDlg(int level, QWidget* parent = nullptr);

    // The chosen level; the level read from the file while nothing in the list is chosen.
    int level() const;
    QComboBox* levelList() const { return m_levels; }

private:
    QWidget* createChoice(int level);

    QComboBox* m_levels = nullptr;
    int m_readLevel = 0;
};
