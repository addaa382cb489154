#include "COV_LogLevDlg.h"

#include "DialogFlags.h"
#include "OkCancelButtons.h"
#include "OrvaneSettings.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

COV_LogLevDlg::COV_LogLevDlg(int level, QWidget* parent)
    : QDialog(parent, kDialogFlags), m_readLevel(level)
{
    setWindowTitle(tr("Log Level Setup"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createChoice(level));
    layout->addWidget(createOkCancelButtons(*this));
}

QWidget* COV_LogLevDlg::createChoice(int level)
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(tr("Select Log Level : "), row));
    m_levels = new QComboBox(row);
    m_levels->addItems(OrvaneSettings::logLevelTexts());
    // A level outside the list shows as no choice rather than as a neighbour the user would
    // then write back without having picked it.
    m_levels->setCurrentIndex(level >= 0 && level < m_levels->count() ? level : -1);
    layout->addWidget(m_levels, 1);
    return row;
}

int COV_LogLevDlg::level() const
{
    const int chosen = m_levels->currentIndex();
    return chosen < 0 ? m_readLevel : chosen;
}
