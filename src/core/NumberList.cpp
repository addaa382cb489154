#include "NumberList.h"

#include "AppState.h"

#include <QComboBox>

void NumberList::fill(QComboBox& combo, int count)
{
    combo.clear();
    for (int number = 0; number < count; ++number)
        combo.addItem(QString::number(number));
}

void NumberList::fillActiveCards(QComboBox& combo, const AppState& state)
{
    const int cards = state.activeCardCount();
    fill(combo, cards);
    combo.setCurrentIndex(state.active.card);
    combo.setEnabled(cards > 1);
}

int NumberList::fillAxes(QComboBox& combo, AppState& state, int card, int axis)
{
    const int axes = state.registry.axisCount(state.active.family, card);
    fill(combo, axes);
    if (axis > axes - 1) {
        axis = 0;
        state.active.axis = 0;
    }
    combo.setCurrentIndex(axis);
    return axis;
}
