#include "COV_PrmSuWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "COV_CopyPrmDlg.h"
#include "COV_FilterSetWnd.h"
#include "COV_MtnPrmWnd.h"
#include "COV_SysIOSetWnd.h"
#include "FrameRelay.h"
#include "NamedButton.h"
#include "NumberList.h"
#include "OrvaneLog.h"
#include "PromptService.h"
#include "PromptTexts.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

COV_PrmSuWnd::COV_PrmSuWnd(const ToolContext& context, QWidget* parent)
    : ToolView(parent), m_context(context)
{
    m_systemIo = new COV_SysIOSetWnd(context.board);
    m_pages = {m_systemIo, new COV_MtnPrmWnd(context.board, context.prompt),
               new COV_FilterSetWnd(context.board)};

    auto* layout = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    left->addWidget(createSelectorRow());
    m_tabBar = new QTabBar;
    m_tabBar->setObjectName(QStringLiteral("tabBar"));
    for (const char* title :
         {QT_TR_NOOP("System IO"), QT_TR_NOOP("Motion Parameter"), QT_TR_NOOP("Filter")})
        m_tabBar->addTab(tr(title));
    m_stack = new QStackedWidget;
    m_stack->setFrameShape(QFrame::StyledPanel);
    for (ParameterSetupPage* page : m_pages)
        m_stack->addWidget(page);
    left->setSpacing(0);
    left->addWidget(m_tabBar);
    left->addWidget(m_stack, 1);
    layout->addLayout(left, 1);
    layout->addWidget(createButtonColumn());

    connect(m_tabBar, &QTabBar::currentChanged, this, [this](int index) { onTabChanged(index); });
    connect(m_cardCombo, &QComboBox::activated, this,
            [this](int index) { onCardActivated(index); });
    connect(m_axisCombo, &QComboBox::activated, this,
            [this](int index) { onAxisActivated(index); });

    fillCardCombo();
    m_axis = static_cast<AxisNo>(m_context.state.active.axis);
    refresh();
}

QWidget* COV_PrmSuWnd::createSelectorRow()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 6);
    // Flat buttons serve as the selectors' captions.
    auto caption = [](const QString& text) {
        auto* button = new QPushButton(text);
        button->setFlat(true);
        button->setFocusPolicy(Qt::NoFocus);
        return button;
    };
    m_cardCombo = new QComboBox;
    m_cardCombo->setObjectName(QStringLiteral("cardCombo"));
    m_axisCombo = new QComboBox;
    m_axisCombo->setObjectName(QStringLiteral("axisCombo"));
    layout->addWidget(caption(tr("Card No.")));
    layout->addWidget(m_cardCombo);
    layout->addSpacing(16);
    layout->addWidget(caption(tr("Axis No.")));
    layout->addWidget(m_axisCombo);
    layout->addStretch();
    return row;
}

QWidget* COV_PrmSuWnd::createButtonColumn()
{
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    QPushButton* set =
        makeNamedButton(tr("Set Prm"), "setPrmButton", tr("Write the shown page to the board"));
    QPushButton* copy =
        makeNamedButton(tr("Copy Prm"), "copyPrmButton",
                        tr("Copy the shown page's parameters to axes of another card"));
    QPushButton* reset = makeNamedButton(tr("Default Prm"), "defaultPrmButton",
                                         tr("Restore the factory parameters of this axis"));
    QPushButton* close = makeNamedButton(tr("Close"), "closeButton", tr("Close the window"));
    for (QPushButton* button : {set, copy, reset})
        layout->addWidget(button);
    layout->addStretch();
    layout->addWidget(close);

    connect(set, &QPushButton::clicked, this, [this] {
        m_pages[std::size_t(m_page)]->Apply(m_context.state.active.family);
        qCInfo(lcParams) << "Set Prm" << familyShortName(m_context.state.active.family) << "card"
                         << m_card << "axis" << m_axis << "page" << m_page;
        m_context.frame.sendToFrame(UM_PARAM_CHANGED, m_card);
        noteWritten(m_context.state.active.family);
    });
    connect(copy, &QPushButton::clicked, this, [this] { onCopyClicked(); });
    connect(reset, &QPushButton::clicked, this, [this] { onDefaultClicked(); });
    connect(close, &QPushButton::clicked, this, [this] { requestClose(); });
    return column;
}

void COV_PrmSuWnd::fillCardCombo()
{
    NumberList::fillActiveCards(*m_cardCombo, m_context.state);
    m_card = static_cast<CardNo>(m_context.state.active.card);
}

void COV_PrmSuWnd::refresh()
{
    AppState& state = m_context.state;
    setWindowTitle(tr("Parameter Setup - %1(%2)").arg(state.modelName(m_card)).arg(m_card));
    m_axis = static_cast<AxisNo>(NumberList::fillAxes(*m_axisCombo, state, m_card, m_axis));
    handPagesAxis();
}

void COV_PrmSuWnd::handPagesAxis()
{
    const AppState& state = m_context.state;
    const int axes = state.registry.axisCount(state.active.family, m_card);
    for (ParameterSetupPage* page : m_pages)
        page->setCardAxis(m_card, m_axis, axes);
    for (ParameterSetupPage* page : m_pages)
        page->Load(state.active.family);
}

bool COV_PrmSuWnd::leaveCheck(BoardFamily family)
{
    ParameterSetupPage* page = m_pages[std::size_t(m_page)];
    if (!page->IsChanged(family))
        return false;
    if (!m_context.prompt.askYesNo(leaveQuestion(family)))
        return true;
    page->Apply(family);
    noteWritten(family);
    // The frame marks the active family's card; after a controller change the written card
    // is the previous family's, so it is marked here.
    if (family == m_context.state.active.family)
        m_context.frame.sendToFrame(UM_PARAM_CHANGED, m_card);
    else
        m_context.state.registry.setParametersChanged(family, m_card, true);
    return false;
}

void COV_PrmSuWnd::noteWritten(BoardFamily family)
{
    m_context.frame.showNote(tr("Wrote \"%1\" of %2 axis %3 to the board (not saved yet)")
                                 .arg(m_tabBar->tabText(m_page).remove(QLatin1Char('&')))
                                 .arg(m_context.state.cardName(family, m_card))
                                 .arg(m_axis));
}

QString COV_PrmSuWnd::leaveQuestion(BoardFamily family) const
{
    // Which card, axis and page the edits are on, above the question as it always reads.
    return tr("%1, axis %2, \"%3\":")
               .arg(m_context.state.cardName(family, m_card))
               .arg(m_axis)
               .arg(m_tabBar->tabText(m_page).remove(QLatin1Char('&'))) +
           QLatin1Char('\n') + PromptTexts::parametersChanged();
}

void COV_PrmSuWnd::onTabChanged(int index)
{
    if (index < 0 || index == m_page)
        return;
    const BoardFamily family = m_context.state.active.family;
    // Edits the user chose not to write do not stay in the page that is left.
    if (leaveCheck(family))
        m_pages[std::size_t(m_page)]->Load(family);
    m_page = index;
    m_stack->setCurrentIndex(index);
}

void COV_PrmSuWnd::onCardActivated(int index)
{
    leaveCheck(m_context.state.active.family);
    m_card = static_cast<CardNo>(index);
    refresh();
}

void COV_PrmSuWnd::onAxisActivated(int index)
{
    leaveCheck(m_context.state.active.family);
    m_axis = static_cast<AxisNo>(index);
    handPagesAxis();
}

void COV_PrmSuWnd::onControllerChanged()
{
    // The pages still show values of the family that was active before the change.
    leaveCheck(m_context.state.active.previousFamily);
    fillCardCombo();
    refresh();
}

void COV_PrmSuWnd::onAxisChanged(int axis)
{
    const AppState& state = m_context.state;
    leaveCheck(state.active.family);
    if (m_card == state.active.card) {
        m_axis = static_cast<AxisNo>(axis);
        m_axisCombo->setCurrentIndex(axis);
        handPagesAxis();
        return;
    }
    fillCardCombo();
    refresh();
}

void COV_PrmSuWnd::onDefaultClicked()
{
    if (!m_context.prompt.askYesNo(tr("%1 axis parameter set to default value?").arg(m_axis)))
        return;
    const nrx_i32 result =
        m_context.board.SetSystemDefault(m_context.state.active.family, m_card, m_axis);
    qCInfo(lcParams) << "Default Prm" << familyShortName(m_context.state.active.family) << "card"
                     << m_card << "axis" << m_axis << "returned" << result;
    refresh();
    // The other windows showing this axis's parameters take the defaults too.
    for (ToolKind kind : {ToolSingleAxis, ToolMultiAxis, ToolDigitalIo})
        m_context.frame.sendToFrame(UM_VIEW_COMMAND, kind);
}

void COV_PrmSuWnd::onCopyClicked()
{
    leaveCheck(m_context.state.active.family);
    openCopyDialog();
}

void COV_PrmSuWnd::openCopyDialog()
{
    // Window-modal without a nested event loop, so the window's own timers and a test driving
    // it carry on while the dialog is up.
    auto* dialog = new COV_CopyPrmDlg(m_context, m_card, m_axis, m_page, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void COV_PrmSuWnd::handleUserMessage(UserMessage message, int wParam)
{
    switch (message) {
    case UM_CONTROLLER_CHANGED:
        onControllerChanged();
        break;
    case UM_AXIS_CHANGED:
        onAxisChanged(wParam);
        break;
    case UM_HOME_LIMIT_USE:
        m_systemIo->setHomeUsesLimit(wParam != 0);
        m_systemIo->Load(m_context.state.active.family);
        break;
    case UM_VIEW_COMMAND:
        if (wParam == ToolParameter)
            refresh();
        break;
    case UM_PARAM_LEAVE_CHECK:
        leaveCheck(m_context.state.active.family);
        break;
    default:
        break;
    }
}

bool COV_PrmSuWnd::settleBeforeExit()
{
    const BoardFamily family = m_context.state.active.family;
    ParameterSetupPage* page = m_pages[std::size_t(m_page)];
    if (!page->IsChanged(family))
        return true;
    switch (m_context.prompt.askYesNoCancel(leaveQuestion(family))) {
    case PromptAnswer::Cancel:
        return false;
    case PromptAnswer::Yes:
        page->Apply(family);
        noteWritten(family);
        m_context.frame.sendToFrame(UM_PARAM_CHANGED, m_card);
        return true;
    default:
        // Dropped, so closing the window asks nothing more.
        page->Load(family);
        return true;
    }
}

void COV_PrmSuWnd::askBeforeClose()
{
    leaveCheck(m_context.state.active.family);
}
