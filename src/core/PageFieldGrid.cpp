#include "PageFieldGrid.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {
constexpr int kCaptionWidth = 110;
constexpr int kUnitWidth = 48;
constexpr int kButtonWidth = 84;
} // namespace

PageFieldGrid::PageFieldGrid(QWidget* group) : m_grid(new QGridLayout(group))
{
    m_grid->setColumnMinimumWidth(0, kCaptionWidth);
    m_grid->setColumnMinimumWidth(2, kUnitWidth);
    m_grid->setColumnMinimumWidth(3, kButtonWidth);
}

void PageFieldGrid::addRow(const QString& caption, QWidget* control)
{
    addRow(new QLabel(caption), control);
}

void PageFieldGrid::addRow(QWidget* first, QWidget* second)
{
    m_grid->addWidget(first, m_row, 0);
    m_grid->addWidget(second, m_row, 1);
    ++m_row;
}

QLineEdit* PageFieldGrid::addField(const QString& caption, const QString& unit, const char* name,
                                   QLabel** captionOut)
{
    auto* label = new QLabel(caption);
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    label->setBuddy(edit);
    if (!unit.isEmpty())
        m_grid->addWidget(new QLabel(unit), m_row, 2);
    addRow(label, edit);
    if (captionOut != nullptr)
        *captionOut = label;
    return edit;
}

QPushButton* PageFieldGrid::addButton(const QString& caption, const char* name)
{
    auto* button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    m_grid->addWidget(button, m_row - 1, 3);
    return button;
}
