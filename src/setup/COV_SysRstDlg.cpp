#include "COV_SysRstDlg.h"

#include "AppState.h"
#include "BoardApi.h"
#include "CardTypeSelector.h"
#include "DialogFlags.h"
#include "FrameRelay.h"
#include "OrvaneLog.h"
#include "PromptService.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

COV_SysRstDlg::COV_SysRstDlg(const ToolContext& context, QWidget* parent)
    : QDialog(parent, kDialogFlags), m_context(context)
{
    setWindowTitle(tr("System Reset"));
    const ActiveController& active = context.state.active;
    m_selector = new CardTypeSelector(context.state.registry, active.family, active.card, this);
    auto* form = new QFormLayout;
    form->addRow(tr("Card Type"), m_selector->typeList());
    form->addRow(tr("Card No."), m_selector->cardList());

    auto* resetButton = new QPushButton(tr("Reset"), this);
    auto* closeButton = new QPushButton(tr("Close"), this);
    resetButton->setToolTip(tr("Reset the chosen card; open tool windows reload"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(resetButton);
    buttons->addWidget(closeButton);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(buttons);

    connect(resetButton, &QPushButton::clicked, this, [this] { reset(); });
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
}

void COV_SysRstDlg::reset()
{
    if (!m_context.prompt.askYesNo(tr("Do you want system reset?")))
        return;
    const nrx_i32 result =
        m_context.board.Reset(m_selector->family(), static_cast<CardNo>(m_selector->card()));
    qCInfo(lcParams) << "System Reset" << familyShortName(m_selector->family()) << "card"
                     << m_selector->card() << "returned" << result;
    // Parameter setup first, then the motion windows, then the I/O monitor.
    for (int kind : {ToolParameter, ToolSingleAxis, ToolMultiAxis, ToolDigitalIo})
        m_context.frame.sendToFrame(UM_VIEW_COMMAND, kind);
}
