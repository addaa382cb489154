#pragma once

#include <QWidget>

class QComboBox;
class QHBoxLayout;
struct AppState;

// The "Card No. : " row atop a tool window: the active family's cards, the one the user picks
// announced as it is activated; further selectors (an axis) line up after it.
class CardSelectorRow : public QWidget
{
    Q_OBJECT

public:
    explicit CardSelectorRow(QWidget* parent = nullptr);

    // Lists the active family's cards with the active card chosen, and returns that card.
    int fillActiveCards(const AppState& state);
    // Another caption and list after the card's.
    void addSelector(const QString& caption, QWidget* selector);
    QComboBox* combo() const { return m_combo; }

signals:
    void cardActivated(int card);

private:
    QHBoxLayout* m_layout = nullptr;
    QComboBox* m_combo = nullptr;
};
