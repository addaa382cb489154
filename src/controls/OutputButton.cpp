#include "OutputButton.h"

OutputButton::OutputButton(QWidget* parent) : QPushButton(parent)
{
    setAutoDefault(false);
    setIconSize(QSize(16, 16));
}

void OutputButton::setFaces(const QPixmap& off, const QPixmap& on)
{
    m_offIcon = QIcon(off);
    m_onIcon = QIcon(on);
    m_on = false;
    setIcon(m_offIcon);
}

void OutputButton::setOn(bool on)
{
    if (on == m_on)
        return;
    m_on = on;
    setIcon(on ? m_onIcon : m_offIcon);
}
