#include "COV_LogLevDlg.h"

#include "OkCancelButtons.h"
#include "OrvaneSettings.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

COV_LogLevDlg::COV_LogLevDlg(int level, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Log Level Setup"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createChoice(level));
    layout->addWidget(createOkCancelButtons(*this));
}

QWidget* COV_LogLevDlg::createChoice(int level)
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("Select Log Level : "), row));
    m_levels = new QComboBox(row);
    m_levels->addItems(OrvaneSettings::logLevelTexts());
    m_levels->setCurrentIndex(qBound(0, level, m_levels->count() - 1));
    layout->addWidget(m_levels, 1);
    return row;
}

int COV_LogLevDlg::level() const
{
    return m_levels->currentIndex();
}
