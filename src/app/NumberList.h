#pragma once

class QComboBox;
struct AppState;

// The drop-down lists of card and axis numbers ("0", "1", ...) that the windows carry.
class NumberList
{
public:
    // Refills the list with "0" up to count less one.
    static void fill(QComboBox& combo, int count);
    // The active family's cards with the active card chosen; disabled with a single card.
    static void fillActiveCards(QComboBox& combo, const AppState& state);
};
