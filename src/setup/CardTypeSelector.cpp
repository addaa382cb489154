#include "CardTypeSelector.h"

#include "CardRegistry.h"

#include <QComboBox>

CardTypeSelector::CardTypeSelector(const CardRegistry& registry, BoardFamily family, int card,
                                   QWidget* parent)
    : QObject(parent), m_registry(registry), m_types(new QComboBox(parent)),
      m_cards(new QComboBox(parent))
{
    int selection = 0;
    for (BoardFamily each : kAllFamilies) {
        if (!registry.hasBoards(each))
            continue;
        if (each == family)
            selection = static_cast<int>(m_families.size());
        m_families.push_back(each);
        m_types->addItem(QString::fromLatin1(familyDisplayName(each)));
    }
    m_types->setCurrentIndex(m_families.empty() ? -1 : selection);
    fillCards(m_families.empty() || m_families[size_t(selection)] != family ? 0 : card);
    enableLists(true);
    connect(m_types, &QComboBox::activated, this, [this] {
        fillCards(0);
        emit familyChosen(this->family());
    });
    connect(m_cards, &QComboBox::activated, this, [this](int index) { emit cardChosen(index); });
}

BoardFamily CardTypeSelector::family() const
{
    const int index = m_types->currentIndex();
    return index >= 0 && index < int(m_families.size()) ? m_families[size_t(index)]
                                                        : BoardFamily::RL;
}

int CardTypeSelector::card() const
{
    return qMax(0, m_cards->currentIndex());
}

int CardTypeSelector::cardCount() const
{
    return m_registry.cardCount(family());
}

void CardTypeSelector::fillCards(int selection)
{
    m_cards->clear();
    const int count = m_types->currentIndex() < 0 ? 0 : cardCount();
    for (int card = 0; card < count; ++card)
        m_cards->addItem(QString::number(card));
    m_cards->setCurrentIndex(selection >= 0 && selection < count ? selection : 0);
    m_cards->setEnabled(m_allowed && count > 1);
}

void CardTypeSelector::enableLists(bool allowed)
{
    m_allowed = allowed;
    m_types->setEnabled(allowed && m_types->count() > 1);
    m_cards->setEnabled(allowed && m_cards->count() > 1);
}
