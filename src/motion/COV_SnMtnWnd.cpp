#include "COV_SnMtnWnd.h"

#include "AppState.h"
#include "AxisMotionReadout.h"
#include "BoardApi.h"
#include "COV_SnMtnHomeWnd.h"
#include "COV_SnMtnPtpWnd.h"
#include "CardSelectorRow.h"
#include "FrameRelay.h"
#include "MotionButtonColumn.h"
#include "NumberList.h"
#include "PollInterval.h"
#include "PromptService.h"
#include "PromptTexts.h"
#include "SnugScrollArea.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

COV_SnMtnWnd::COV_SnMtnWnd(const ToolContext& context, QWidget* parent, SequencerClockwork* given)
    : MotionToolView(context, parent, given),
      m_sequencer(context.state.active, context.board, context.prompt, clockwork(), *this),
      m_actions(context, m_sequencer, *this)
{
    m_sequencer.setModelNames([&state = context.state](BoardFamily family, CardNo card) {
        return QString::fromStdString(state.registry.modelName(family, card));
    });
    auto* layout = new QHBoxLayout(this);
    auto* fields = new QWidget;
    auto* left = new QVBoxLayout(fields);
    left->setContentsMargins(0, 0, 0, 0);
    m_cardRow = new CardSelectorRow;
    m_axisCombo = new QComboBox;
    m_axisCombo->setObjectName(QStringLiteral("axisCombo"));
    m_cardRow->addSelector(tr("Axis No. : "), m_axisCombo);
    left->addWidget(m_cardRow);
    left->addWidget(createPageArea(), 1);
    // The fields scroll on a small screen; the button column beside them does not.
    layout->addWidget(new SnugScrollArea(fields), 1);
    m_buttons = new MotionButtonColumn(true);
    m_buttons->scope->setToolTip(tr("Record this axis' positions and speed"));
    m_readout = new AxisMotionReadout;
    m_buttons->addUnderMotionButtons(m_readout);
    layout->addWidget(m_buttons);
    connectControls();

    fillCardCombo();
    layoutMotionButtons();
    m_axis = static_cast<AxisNo>(m_context.state.active.axis);
    reload();
    m_poll.setInterval(kPollIntervalMs);
    connect(&m_poll, &QTimer::timeout, this, [this] { showAxis(); });
    m_poll.start();
}

COV_SnMtnWnd::~COV_SnMtnWnd()
{
    m_poll.stop();
    m_buttons->disconnectActions();
    m_sequencer.endForClose();
    m_context.state.active.axis = 0;
    m_context.state.active.setAxesMoving(MovingOwner::SingleAxis, false);
}

QWidget* COV_SnMtnWnd::createPageArea()
{
    auto* area = new QWidget;
    auto* layout = new QVBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_tabBar = new QTabBar;
    m_tabBar->setObjectName(QStringLiteral("tabBar"));
    m_tabBar->addTab(tr("Home"));
    m_tabBar->addTab(tr("Point To Point"));
    m_pages = new QStackedWidget;
    m_pages->setFrameShape(QFrame::StyledPanel);
    m_homePage = new COV_SnMtnHomeWnd(m_context.state, m_context.board);
    m_ptpPage = new COV_SnMtnPtpWnd(m_context.state, m_context.board, m_context.prompt);
    m_pages->addWidget(m_homePage);
    m_pages->addWidget(m_ptpPage);
    m_pages->setCurrentWidget(m_homePage);
    layout->addWidget(m_tabBar);
    layout->addWidget(m_pages, 1);
    return area;
}

void COV_SnMtnWnd::connectControls()
{
    m_buttons->connectTo(m_actions, *this, m_context.frame);
    connect(m_tabBar, &QTabBar::currentChanged, this, [this](int index) { onTabChanged(index); });
    connect(m_cardRow, &CardSelectorRow::cardActivated, this,
            [this](int index) { onCardActivated(index); });
    connect(m_axisCombo, &QComboBox::activated, this,
            [this](int index) { onAxisActivated(index); });
    connect(m_buttons->setPrm, &QPushButton::clicked, this, [this] { onSetPrmClicked(); });
    connect(m_ptpPage, &COV_SnMtnPtpWnd::motionTypeChanged, this,
            [this] { layoutMotionButtons(); });
    connect(m_ptpPage, &COV_SnMtnPtpWnd::repeatChanged, this, [this] { layoutMotionButtons(); });
    connect(m_ptpPage, &COV_SnMtnPtpWnd::parametersWritten, this,
            [this] { m_context.frame.sendToFrame(UM_PARAM_CHANGED, m_card); });
}

void COV_SnMtnWnd::fillCardCombo()
{
    m_card = static_cast<CardNo>(m_cardRow->fillActiveCards(m_context.state));
}

void COV_SnMtnWnd::reload()
{
    AppState& state = m_context.state;
    setWindowTitle(tr("Single Axis Motion - %1(%2)").arg(state.modelName(m_card)).arg(m_card));
    m_axis = static_cast<AxisNo>(NumberList::fillAxes(*m_axisCombo, state, m_card, m_axis));
    updateServoCaption();
    loadPages();
}

void COV_SnMtnWnd::loadPages()
{
    m_readout->forget();
    showAxis();
    m_sequencer.setCardAxis(m_card, m_axis);
    m_homePage->setCardAxis(m_card, m_axis);
    m_homePage->load();
    m_ptpPage->setCardAxis(m_card, m_axis);
    m_ptpPage->load();
}

void COV_SnMtnWnd::showAxis()
{
    const BoardFamily family = m_context.state.active.family;
    BoardApi& board = m_context.board;
    m_readout->show({board.GetCommandPos(family, m_card, m_axis),
                     board.GetActualPos(family, m_card, m_axis),
                     board.GetCommandSpeed(family, m_card, m_axis)},
                    m_context.state.units.shownScale(family, m_card, m_axis));
}

void COV_SnMtnWnd::updateServoCaption()
{
    m_buttons->showServo(m_context.board.GetSvOn(m_context.state.active.family, m_card, m_axis) !=
                         0);
}

void COV_SnMtnWnd::layoutMotionButtons()
{
    const MotionType type = m_ptpPage->motionType();
    m_buttons->showMotionCaptions(m_currentTab != MotionTab::PointToPoint, type,
                                  type == MotionType::Absolute && m_ptpPage->repeatTicked());
}

void COV_SnMtnWnd::promptForVisiblePage(BoardFamily family)
{
    const bool home = m_currentTab == MotionTab::Home;
    const bool changed =
        home ? m_homePage->parametersChanged(family) : m_ptpPage->parametersChanged(family);
    if (!changed || !m_context.prompt.askYesNo(PromptTexts::parametersChanged()))
        return;
    if (home)
        m_homePage->setParameters(family);
    else
        m_ptpPage->setParameters(family);
    m_context.frame.sendToFrame(UM_PARAM_CHANGED, m_card);
    m_context.frame.showNote(
        tr("Wrote the %1 parameters of %2 axis %3 to the board (not saved yet)")
            .arg(m_currentTab == MotionTab::Home ? tr("home") : tr("motion"))
            .arg(m_context.state.cardName(family, m_card))
            .arg(m_axis));
}

void COV_SnMtnWnd::onTabChanged(int index)
{
    const auto tab = static_cast<MotionTab>(index);
    if (tab == m_currentTab || index < 0)
        return;
    m_ptpPage->setRepeat(false);
    m_ptpPage->setInfinite(false);
    promptForVisiblePage(m_context.state.active.family);
    m_currentTab = tab;
    layoutMotionButtons();
    if (tab == MotionTab::Home) {
        m_pages->setCurrentWidget(m_homePage);
        m_homePage->load();
    } else {
        m_pages->setCurrentWidget(m_ptpPage);
        m_ptpPage->load();
    }
}

void COV_SnMtnWnd::onCardActivated(int index)
{
    if (!m_context.frame.mayChangeController()) {
        m_cardRow->combo()->setCurrentIndex(m_card);
        return;
    }
    promptForVisiblePage(m_context.state.active.family);
    m_card = static_cast<CardNo>(index);
    reload();
    m_context.frame.sendToFrame(UM_CARD_CHANGED, m_card);
}

void COV_SnMtnWnd::onAxisActivated(int index)
{
    promptForVisiblePage(m_context.state.active.family);
    m_axis = static_cast<AxisNo>(index);
    m_context.state.active.axis = index;
    updateServoCaption();
    loadPages();
    m_context.frame.sendToFrame(UM_AXIS_CHANGED, m_axis);
}

void COV_SnMtnWnd::onControllerChanged()
{
    const ActiveController& active = m_context.state.active;
    // The fields still belong to the family that was active before the change.
    promptForVisiblePage(active.previousFamily != active.family ? active.previousFamily
                                                                : active.family);
    fillCardCombo();
    reload();
}

void COV_SnMtnWnd::onSetPrmClicked()
{
    const BoardFamily family = m_context.state.active.family;
    if (m_currentTab == MotionTab::Home)
        m_homePage->setParameters(family);
    else
        m_ptpPage->setParameters(family);
    m_context.frame.sendToFrame(UM_PARAM_CHANGED, m_card);
}

void COV_SnMtnWnd::handleUserMessage(UserMessage message, int wParam)
{
    switch (message) {
    case UM_CONTROLLER_CHANGED:
        onControllerChanged();
        break;
    case UM_MOTION_TYPE_CHANGED:
    case UM_REPEAT_CHANGED:
        layoutMotionButtons();
        break;
    case UM_VIEW_COMMAND:
        if (wParam == ToolSingleAxis)
            reload();
        break;
    default:
        break;
    }
}

void COV_SnMtnWnd::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        m_sequencer.endHeldJog();
    MotionToolView::changeEvent(event);
}

MotionType COV_SnMtnWnd::motionType() const
{
    return m_ptpPage->motionType();
}

bool COV_SnMtnWnd::repeatTicked() const
{
    return m_ptpPage->repeatTicked();
}

bool COV_SnMtnWnd::infiniteTicked() const
{
    return m_ptpPage->infiniteTicked();
}

PtpSpeeds COV_SnMtnWnd::speedFields() const
{
    return m_ptpPage->speedFields();
}

RepeatFields COV_SnMtnWnd::takeRepeatFields()
{
    return m_ptpPage->readFields();
}

HomeSettings COV_SnMtnWnd::homeFields() const
{
    return m_homePage->fields();
}

void COV_SnMtnWnd::showCycle(int elapsedMs, int cycleCount)
{
    m_ptpPage->showTimeAndCount(elapsedMs, cycleCount);
}

void COV_SnMtnWnd::clearCycleDisplay()
{
    m_ptpPage->clearTimeAndCount();
}

void COV_SnMtnWnd::setSequenceLocked(bool locked)
{
    m_cardRow->combo()->setEnabled(!locked && m_cardRow->combo()->count() > 1);
    m_axisCombo->setEnabled(!locked);
    m_tabBar->setEnabled(!locked);
    m_ptpPage->setSequenceLocked(locked);
}

MotionAxes COV_SnMtnWnd::buttonAxes(bool)
{
    return MotionAxes{m_context.state.active.family, m_card, {m_axis}};
}

void COV_SnMtnWnd::askBeforeClose()
{
    promptForVisiblePage(m_context.state.active.family);
}
