#include "COV_SysCfgDlg.h"

#include "DialogFlags.h"
#include "OkCancelButtons.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QVBoxLayout>

COV_SysCfgDlg::COV_SysCfgDlg(QString settingsFilePath, QWidget* parent)
    : QDialog(parent, kDialogFlags), m_path(std::move(settingsFilePath)),
      m_values(OrvaneSettings::readSystem(m_path))
{
    setWindowTitle(tr("System Environment Setup"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createChecks());
    layout->addWidget(createOkCancelButtons(*this));
}

QWidget* COV_SysCfgDlg::createChecks()
{
    auto* box = new QWidget(this);
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    m_showStatus = new QCheckBox(tr(" Default Show Axis Status Window "), box);
    m_followOperation =
        new QCheckBox(tr(" Change Status Window Axis Depeng On Operation Window"), box);
    m_showStatus->setChecked(m_values.showStatusWindow != 0);
    m_followOperation->setChecked(m_values.statusFollowsOperation != 0);
    layout->addWidget(m_showStatus);
    layout->addWidget(m_followOperation);
    return box;
}

void COV_SysCfgDlg::accept()
{
    m_values.showStatusWindow = m_showStatus->isChecked() ? 1 : 0;
    m_values.statusFollowsOperation = m_followOperation->isChecked() ? 1 : 0;
    OrvaneSettings::writeSystem(m_path, m_values);
    QDialog::accept();
}
