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
    // The axes of a card of the active family with the axis chosen, which it returns; an axis
    // the card lacks becomes 0, for the window and for the active controller alike.
    static int fillAxes(QComboBox& combo, AppState& state, int card, int axis);
};
