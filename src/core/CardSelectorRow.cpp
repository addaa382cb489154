#include "CardSelectorRow.h"

#include "AppState.h"
#include "NumberList.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

CardSelectorRow::CardSelectorRow(QWidget* parent) : QWidget(parent)
{
    m_layout = new QHBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_combo = new QComboBox;
    m_combo->setObjectName(QStringLiteral("cardCombo"));
    m_layout->addWidget(new QLabel(tr("Card No. : ")));
    m_layout->addWidget(m_combo);
    m_layout->addStretch();
    connect(m_combo, &QComboBox::activated, this, &CardSelectorRow::cardActivated);
}

int CardSelectorRow::fillActiveCards(const AppState& state)
{
    NumberList::fillActiveCards(*m_combo, state);
    return state.active.card;
}

void CardSelectorRow::addSelector(const QString& caption, QWidget* selector)
{
    // Before the closing stretch, so the row stays packed to the left.
    const int end = m_layout->count() - 1;
    m_layout->insertSpacing(end, 16);
    m_layout->insertWidget(end + 1, new QLabel(caption));
    m_layout->insertWidget(end + 2, selector);
}
