#include "COV_SnMtnWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "COV_SnMtnHomeWnd.h"
#include "COV_SnMtnPtpWnd.h"
#include "FrameRelay.h"
#include "JogReleaseGuard.h"
#include "NamedButton.h"
#include "NumberList.h"
#include "PromptService.h"
#include "PromptTexts.h"
#include "QtClockwork.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include <algorithm>

COV_SnMtnWnd::COV_SnMtnWnd(const ToolContext& context, QWidget* parent)
    : COV_SnMtnWnd(context, std::make_unique<QtClockwork>(), nullptr, parent)
{}

COV_SnMtnWnd::COV_SnMtnWnd(const ToolContext& context, SequencerClockwork& clockwork,
                           QWidget* parent)
    : COV_SnMtnWnd(context, nullptr, &clockwork, parent)
{}

COV_SnMtnWnd::COV_SnMtnWnd(const ToolContext& context, std::unique_ptr<QtClockwork> ownClockwork,
                           SequencerClockwork* clockwork, QWidget* parent)
    : ToolView(parent), m_context(context), m_ownClockwork(std::move(ownClockwork)),
      m_sequencer(context.state.active, context.board, context.prompt,
                  clockwork != nullptr ? *clockwork : *m_ownClockwork, *this)
{
    auto* layout = new QHBoxLayout(this);
    auto* left = new QVBoxLayout;
    left->addWidget(createSelectorRow());
    left->addWidget(createPageArea(), 1);
    layout->addLayout(left, 1);
    layout->addWidget(createButtonColumn());
    connectControls();

    fillCardCombo();
    layoutMotionButtons();
    m_axis = static_cast<AxisNo>(m_context.state.active.axis);
    reload();
}

COV_SnMtnWnd::~COV_SnMtnWnd()
{
    // Deleting the children moves the focus; the guard must not hear that once the sequencer
    // is gone, so it goes first.
    delete m_jogGuard;
    m_jogGuard = nullptr;
    m_sequencer.endHeldJog();
    m_context.state.active.axis = 0;
    m_context.state.active.setAxesMoving(MovingOwner::SingleAxis, false);
}

QWidget* COV_SnMtnWnd::createSelectorRow()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_cardCombo = new QComboBox;
    m_cardCombo->setObjectName(QStringLiteral("cardCombo"));
    m_axisCombo = new QComboBox;
    m_axisCombo->setObjectName(QStringLiteral("axisCombo"));
    layout->addWidget(new QLabel(tr("Card No. : ")));
    layout->addWidget(m_cardCombo);
    layout->addSpacing(16);
    layout->addWidget(new QLabel(tr("Axis No. : ")));
    layout->addWidget(m_axisCombo);
    layout->addStretch();
    return row;
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

QWidget* COV_SnMtnWnd::createMotionButtons()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_minus = makeNamedButton(QStringLiteral("-"), "minusButton");
    m_plus = makeNamedButton(QStringLiteral("+"), "plusButton");
    m_minus->setMinimumHeight(48);
    m_plus->setMinimumHeight(48);
    // Equal stretch keeps "-" the size of "+"; alone, "-" takes the whole row.
    layout->addWidget(m_minus, 1);
    layout->addWidget(m_plus, 1);
    return row;
}

QWidget* COV_SnMtnWnd::createButtonColumn()
{
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    m_eStop = makeNamedButton(tr("E-Stop"), "eStopButton");
    m_sStop = makeNamedButton(tr("S-Stop"), "sStopButton");
    m_servo = makeNamedButton(tr("Servo On"), "servoButton");
    m_alarmReset = makeNamedButton(tr("Alarm Reset"), "alarmResetButton");
    m_counterClear = makeNamedButton(tr("Counter Clear"), "counterClearButton");
    m_setPrm = makeNamedButton(tr("Set Prm"), "setPrmButton");
    m_parameterSetup = makeNamedButton(tr("Parameter Setup"), "parameterSetupButton");
    m_scope = makeNamedButton(tr("Scope"), "scopeButton");
    m_scope->setToolTip(tr("Record this axis' positions and speed"));
    m_close = makeNamedButton(tr("Close"), "closeButton");
    m_eStop->setMinimumHeight(40);
    m_sStop->setMinimumHeight(40);
    for (QPushButton* button : {m_eStop, m_sStop, m_servo})
        layout->addWidget(button);
    layout->addSpacing(12);
    layout->addWidget(createMotionButtons());
    layout->addSpacing(12);
    for (QPushButton* button : {m_alarmReset, m_counterClear, m_setPrm, m_parameterSetup, m_scope})
        layout->addWidget(button);
    layout->addStretch();
    layout->addWidget(m_close);
    keepColumnWidth(*column);
    return column;
}

void COV_SnMtnWnd::keepColumnWidth(QWidget& column) const
{
    // One width whatever the motion buttons say, so the stop buttons never move and the window
    // keeps its size when the tab or the motion type changes.
    int width = 0;
    for (QPushButton* button : {m_eStop, m_sStop, m_servo, m_alarmReset, m_counterClear, m_setPrm,
                                m_parameterSetup, m_scope, m_close})
        width = std::max(width, button->sizeHint().width());
    int pair = 0;
    for (const char* caption : {"-Jog", "+Jog", "Dec.", "Inc", "Pos. 1", "Pos. 2"}) {
        m_minus->setText(tr(caption));
        pair = std::max(pair, m_minus->sizeHint().width());
    }
    const int spacing = column.layout()->spacing();
    column.setFixedWidth(std::max(width, 2 * pair + spacing));
    for (QPushButton* button : {m_minus, m_plus})
        button->setSizePolicy(QSizePolicy::Ignored, button->sizePolicy().verticalPolicy());
}

void COV_SnMtnWnd::connectControls()
{
    for (QPushButton* button : {m_minus, m_plus, m_alarmReset})
        button->installEventFilter(this);
    m_jogGuard = new JogReleaseGuard(this, [this] { m_sequencer.endHeldJog(); });
    m_jogGuard->watchButton(m_minus);
    m_jogGuard->watchButton(m_plus);

    connect(m_tabBar, &QTabBar::currentChanged, this, [this](int index) { onTabChanged(index); });
    connect(m_cardCombo, &QComboBox::activated, this,
            [this](int index) { onCardActivated(index); });
    connect(m_axisCombo, &QComboBox::activated, this,
            [this](int index) { onAxisActivated(index); });
    connect(m_eStop, &QPushButton::clicked, this, [this] { m_sequencer.suddenStop(); });
    connect(m_sStop, &QPushButton::clicked, this, [this] { m_sequencer.decelStop(); });
    connect(m_servo, &QPushButton::clicked, this, [this] { onServoClicked(); });
    connect(m_counterClear, &QPushButton::clicked, this, [this] {
        m_context.board.PutSvCClrCmd(m_context.state.active.family, m_card, m_axis);
    });
    connect(m_setPrm, &QPushButton::clicked, this, [this] { onSetPrmClicked(); });
    connect(m_parameterSetup, &QPushButton::clicked, this,
            [this] { m_context.frame.sendToFrame(UM_OPEN_TOOL, ToolParameter); });
    connect(m_scope, &QPushButton::clicked, this,
            [this] { m_context.frame.sendToFrame(UM_OPEN_TOOL, ToolScope); });
    connect(m_close, &QPushButton::clicked, this, [this] { requestClose(); });
    connect(m_ptpPage, &COV_SnMtnPtpWnd::motionTypeChanged, this,
            [this] { layoutMotionButtons(); });
    connect(m_ptpPage, &COV_SnMtnPtpWnd::repeatChanged, this, [this] { layoutMotionButtons(); });
    connect(m_ptpPage, &COV_SnMtnPtpWnd::parametersWritten, this,
            [this] { m_context.frame.sendToFrame(UM_PARAM_CHANGED, m_card); });
}

void COV_SnMtnWnd::fillCardCombo()
{
    NumberList::fillActiveCards(*m_cardCombo, m_context.state);
    m_card = static_cast<CardNo>(m_context.state.active.card);
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
    m_sequencer.setCardAxis(m_card, m_axis);
    m_homePage->setCardAxis(m_card, m_axis);
    m_homePage->load();
    m_ptpPage->setCardAxis(m_card, m_axis);
    m_ptpPage->load();
}

void COV_SnMtnWnd::updateServoCaption()
{
    m_servoOn = m_context.board.GetSvOn(m_context.state.active.family, m_card, m_axis) != 0;
    m_servo->setText(m_servoOn ? tr("Servo Off") : tr("Servo On"));
}

void COV_SnMtnWnd::layoutMotionButtons()
{
    const bool pointToPoint = m_currentTab == MotionTab::PointToPoint;
    const MotionType type = m_ptpPage->motionType();
    const bool autoMove = type == MotionType::Absolute && m_ptpPage->repeatTicked();
    if (pointToPoint && !autoMove) {
        switch (type) {
        case MotionType::Jog:
            m_minus->setText(tr("-Jog"));
            m_plus->setText(tr("+Jog"));
            break;
        case MotionType::Relative:
            m_minus->setText(tr("Dec."));
            m_plus->setText(tr("Inc"));
            break;
        case MotionType::Absolute:
            m_minus->setText(tr("Pos. 1"));
            m_plus->setText(tr("Pos. 2"));
            break;
        }
        m_plus->show();
        return;
    }
    m_plus->hide();
    m_minus->setText(pointToPoint ? tr("Auto Move") : tr("Home"));
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

void COV_SnMtnWnd::onServoClicked()
{
    const BoardFamily family = m_context.state.active.family;
    const bool on = m_context.board.GetSvOn(family, m_card, m_axis) == 0;
    m_context.board.PutSvOn(family, m_card, m_axis, on ? 1 : 0);
    m_servoOn = on;
    m_servo->setText(on ? tr("Servo Off") : tr("Servo On"));
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

void COV_SnMtnWnd::hideEvent(QHideEvent* event)
{
    m_sequencer.endHeldJog();
    ToolView::hideEvent(event);
}

void COV_SnMtnWnd::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && !isActiveWindow())
        m_sequencer.endHeldJog();
    ToolView::changeEvent(event);
}

bool COV_SnMtnWnd::eventFilter(QObject* watched, QEvent* event)
{
    const auto type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease)
        return ToolView::eventFilter(watched, event);
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
        return false;
    const bool down = type == QEvent::MouseButtonPress;
    if (watched == m_alarmReset) {
        // The alarm-reset output is held for as long as the button is.
        m_context.board.PutSvAlmRst(m_context.state.active.family, m_card, m_axis, down ? 1 : 0);
    } else if (watched == m_minus || watched == m_plus) {
        if (down)
            m_sequencer.press(watched == m_minus ? DirectionMinus : DirectionPlus);
        else
            m_sequencer.release();
    }
    // The buttons still get the event, so they look pressed.
    return false;
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
    m_cardCombo->setEnabled(!locked && m_cardCombo->count() > 1);
    m_axisCombo->setEnabled(!locked);
    m_tabBar->setEnabled(!locked);
    m_ptpPage->setSequenceLocked(locked);
}

void COV_SnMtnWnd::beforeClose()
{
    m_sequencer.endHeldJog();
}

void COV_SnMtnWnd::askBeforeClose()
{
    promptForVisiblePage(m_context.state.active.family);
}
