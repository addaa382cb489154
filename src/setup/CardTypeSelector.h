#pragma once

#include "BoardFamily.h"

#include <QObject>

#include <vector>

class CardRegistry;
class QComboBox;
class QWidget;

// The "Card Type" and "Card No." lists of the parameter dialogs: the families that have
// boards, in family order, and the card numbers of the chosen one. The dialog places them.
class CardTypeSelector : public QObject
{
    Q_OBJECT

public:
    // Starts on `family` and `card` where that family has boards, else on the first one.
    CardTypeSelector(const CardRegistry& registry, BoardFamily family, int card, QWidget* parent);

    QComboBox* typeList() const { return m_types; }
    QComboBox* cardList() const { return m_cards; }
    BoardFamily family() const;
    int card() const;
    int cardCount() const;

    // Refills the card list for the chosen family with the given selection.
    void fillCards(int selection = 0);
    // A list is usable only when allowed and when it offers a choice.
    void enableLists(bool allowed);

signals:
    // The user chose another family (the card list is already refilled) or card.
    void familyChosen(BoardFamily family);
    void cardChosen(int card);

private:
    const CardRegistry& m_registry;
    std::vector<BoardFamily> m_families; // per item of the type list
    QComboBox* m_types = nullptr;
    QComboBox* m_cards = nullptr;
    bool m_allowed = true;
};
