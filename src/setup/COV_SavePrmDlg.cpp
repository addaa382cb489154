#include "COV_SavePrmDlg.h"

#include "AppState.h"
#include "BoardApi.h"
#include "CardTypeSelector.h"
#include "DialogFlags.h"
#include "FrameRelay.h"
#include "OrvaneLog.h"
#include "PromptService.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

COV_SavePrmDlg::COV_SavePrmDlg(const ToolContext& context, QWidget* parent)
    : QDialog(parent, kDialogFlags), m_context(context)
{
    setWindowTitle(tr("Save Parameter"));
    const ActiveController& active = context.state.active;
    m_selector = new CardTypeSelector(context.state.registry, active.family, active.card, this);
    m_allCards = new QCheckBox(tr(" All Cards"), this);
    auto* form = new QFormLayout;
    form->addRow(tr("Card Type"), m_selector->typeList());
    form->addRow(tr("Card No."), m_selector->cardList());
    form->addRow(QString(), m_allCards);

    auto* saveButton = new QPushButton(tr("Save"), this);
    auto* closeButton = new QPushButton(tr("Close"), this);
    saveButton->setToolTip(tr("Write the board parameter file of the chosen card, or "
                              "of every card when \"All Cards\" is ticked"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(saveButton);
    buttons->addWidget(closeButton);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(buttons);

    connect(m_allCards, &QCheckBox::toggled, this,
            [this](bool all) { m_selector->enableLists(!all); });
    connect(saveButton, &QPushButton::clicked, this, [this] { save(); });
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
}

void COV_SavePrmDlg::save()
{
    QStringList refused;
    QStringList saved;
    if (!m_allCards->isChecked()) {
        if (saveCard(m_selector->family(), m_selector->card(), refused))
            saved << m_context.state.cardName(m_selector->family(), m_selector->card());
    } else {
        if (!m_context.prompt.askYesNo(
                tr("Are you sure you want to save the parameter files of all the cards?")))
            return;
        for (BoardFamily family : kAllFamilies) {
            for (int card = 0; card < m_context.state.registry.cardCount(family); ++card) {
                if (saveCard(family, card, refused))
                    saved << m_context.state.cardName(family, card);
            }
        }
    }
    // The board names no file, so the note says whose file was written.
    if (!saved.isEmpty())
        m_context.frame.showNote(
            (saved.size() == 1 ? tr("Saved %1 to its parameter file")
                               : tr("Saved %1 to their parameter files"))
                .arg(saved.join(QStringLiteral(", "))));
    if (!refused.isEmpty())
        m_context.prompt.inform(
            tr("The parameter file was not saved:\n%1").arg(refused.join(QLatin1Char('\n'))));
}

bool COV_SavePrmDlg::saveCard(BoardFamily family, int card, QStringList& refused)
{
    const nrx_i32 result = m_context.board.SaveFile(family, static_cast<CardNo>(card));
    qCInfo(lcParams) << "Save Parameter" << familyShortName(family) << "card" << card << "returned"
                     << result;
    // A card whose file was not written stays marked, so the exit asks about it again.
    if (result < 0) {
        refused << tr("%1(%2): SaveFile returned %3")
                       .arg(
                           QString::fromStdString(m_context.state.registry.modelName(family, card)))
                       .arg(card)
                       .arg(result);
        return false;
    }
    m_context.state.registry.setParametersChanged(family, card, false);
    return true;
}
