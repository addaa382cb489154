#pragma once

#include "BoardFamily.h"
#include "ToolContext.h"

#include <QDialog>

class CardTypeSelector;
class QCheckBox;

// "Save Parameter": writes the board parameter file of one card or of every card and clears
// their parameters-changed flags, so the exit does not ask about them again.
class COV_SavePrmDlg : public QDialog
{
    Q_OBJECT

public:
    COV_SavePrmDlg(const ToolContext& context, QWidget* parent = nullptr);

    void save();

    CardTypeSelector* selector() const { return m_selector; }
    QCheckBox* allCardsBox() const { return m_allCards; }

private:
    bool saveCard(BoardFamily family, int card, QStringList& refused);

    ToolContext m_context;
    CardTypeSelector* m_selector = nullptr;
    QCheckBox* m_allCards = nullptr;
};
