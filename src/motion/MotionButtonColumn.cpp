#include "MotionButtonColumn.h"

#include "FrameRelay.h"
#include "JogReleaseGuard.h"
#include "MotionButtonActions.h"
#include "NamedButton.h"
#include "SnugScrollArea.h"
#include "ToolView.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {
// "-" and "+" of each motion type, in the order of MotionType.
constexpr std::pair<const char*, const char*> kCaptions[] = {
    {QT_TRANSLATE_NOOP("MotionButtonColumn", "-Jog"),
     QT_TRANSLATE_NOOP("MotionButtonColumn", "+Jog")},
    {QT_TRANSLATE_NOOP("MotionButtonColumn", "Dec."),
     QT_TRANSLATE_NOOP("MotionButtonColumn", "Inc")},
    {QT_TRANSLATE_NOOP("MotionButtonColumn", "Pos. 1"),
     QT_TRANSLATE_NOOP("MotionButtonColumn", "Pos. 2")},
};

QString caption(const char* text)
{
    return QCoreApplication::translate("MotionButtonColumn", text);
}
} // namespace

MotionButtonColumn::MotionButtonColumn(bool withSetPrm, QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    eStop = makeNamedButton(tr("E-Stop"), "eStopButton");
    sStop = makeNamedButton(tr("S-Stop"), "sStopButton");
    servo = makeNamedButton(tr("Servo On"), "servoButton");
    alarmReset = makeNamedButton(tr("Alarm Reset"), "alarmResetButton");
    counterClear = makeNamedButton(tr("Counter Clear"), "counterClearButton");
    if (withSetPrm)
        setPrm = makeNamedButton(tr("Set Prm"), "setPrmButton");
    parameterSetup = makeNamedButton(tr("Parameter Setup"), "parameterSetupButton");
    scope = makeNamedButton(tr("Scope"), "scopeButton");
    close = makeNamedButton(tr("Close"), "closeButton");
    eStop->setToolTip(tr("Stop at once, without deceleration"));
    sStop->setToolTip(tr("Stop with the set deceleration"));
    alarmReset->setToolTip(tr("Hold the servo driver's alarm-reset output on while pressed"));
    counterClear->setToolTip(tr("Pulse the servo driver's counter-clear output"));
    if (setPrm != nullptr)
        setPrm->setToolTip(tr("Write the parameters shown to the board"));
    eStop->setMinimumHeight(40);
    sStop->setMinimumHeight(40);
    layout->addWidget(eStop);
    layout->addWidget(sStop);
    // The stops stay in sight; below them the column scrolls when the window is short.
    auto* rest = new QWidget;
    auto* restLayout = new QVBoxLayout(rest);
    m_rest = restLayout;
    restLayout->setContentsMargins(0, 0, 0, 0);
    restLayout->addWidget(servo);
    restLayout->addSpacing(12);
    m_motionRow = createMotionButtons();
    restLayout->addWidget(m_motionRow);
    restLayout->addSpacing(12);
    for (QPushButton* button : {alarmReset, counterClear, setPrm, parameterSetup, scope}) {
        if (button != nullptr)
            restLayout->addWidget(button);
    }
    restLayout->addStretch();
    restLayout->addWidget(close);
    layout->addWidget(new SnugScrollArea(rest, true), 1);
    keepWidth();
}

MotionButtonColumn::~MotionButtonColumn()
{
    disconnectActions();
}

QWidget* MotionButtonColumn::createMotionButtons()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    minus = makeNamedButton(QStringLiteral("-"), "minusButton");
    plus = makeNamedButton(QStringLiteral("+"), "plusButton");
    minus->setMinimumHeight(48);
    plus->setMinimumHeight(48);
    // Equal stretch keeps "-" the size of "+"; alone, "-" takes the whole row.
    layout->addWidget(minus, 1);
    layout->addWidget(plus, 1);
    return row;
}

void MotionButtonColumn::keepWidth()
{
    // One width whatever the motion buttons say, so the stop buttons never move and the window
    // keeps its size when the tab or the motion type changes.
    int width = 0;
    for (QPushButton* button :
         {eStop, sStop, servo, alarmReset, counterClear, setPrm, parameterSetup, scope, close}) {
        if (button != nullptr)
            width = std::max(width, button->sizeHint().width());
    }
    int pair = 0;
    for (const auto& [minusText, plusText] : kCaptions) {
        for (const char* text : {minusText, plusText}) {
            minus->setText(caption(text));
            pair = std::max(pair, minus->sizeHint().width());
        }
    }
    setFixedWidth(std::max(width, 2 * pair + layout()->spacing()));
    for (QPushButton* button : {minus, plus})
        button->setSizePolicy(QSizePolicy::Ignored, button->sizePolicy().verticalPolicy());
}

void MotionButtonColumn::connectTo(MotionButtonActions& actions, ToolView& window,
                                   FrameRelay& frame)
{
    m_actions = &actions;
    for (QPushButton* button : {minus, plus, alarmReset})
        button->installEventFilter(this);
    m_jogGuard = new JogReleaseGuard(&window, [this] {
        if (m_actions != nullptr)
            m_actions->endHeldJog();
    });
    m_jogGuard->watchButton(minus);
    m_jogGuard->watchButton(plus);

    connect(eStop, &QPushButton::clicked, this, [this] { m_actions->stop(true); });
    connect(sStop, &QPushButton::clicked, this, [this] { m_actions->stop(false); });
    connect(servo, &QPushButton::clicked, this, [this] {
        if (const std::optional<bool> on = m_actions->toggleServo())
            showServo(*on);
    });
    connect(counterClear, &QPushButton::clicked, this, [this] { m_actions->clearCounters(); });
    connect(parameterSetup, &QPushButton::clicked, this,
            [&frame] { frame.sendToFrame(UM_OPEN_TOOL, ToolParameter); });
    connect(scope, &QPushButton::clicked, this,
            [&frame] { frame.sendToFrame(UM_OPEN_TOOL, ToolScope); });
    connect(close, &QPushButton::clicked, &window, [&window] { window.requestClose(); });
}

void MotionButtonColumn::disconnectActions()
{
    // Deleting the window's children moves the focus; the guard must not hear that once the
    // sequencer is gone, so it goes first.
    delete m_jogGuard;
    m_jogGuard = nullptr;
    m_actions = nullptr;
}

void MotionButtonColumn::showMotionCaptions(bool home, MotionType type, bool autoMove)
{
    if (!home && !autoMove) {
        const auto& [minusText, plusText] = kCaptions[static_cast<int>(type)];
        minus->setText(caption(minusText));
        plus->setText(caption(plusText));
        plus->show();
        return;
    }
    plus->hide();
    minus->setText(home ? tr("Home") : tr("Auto Move"));
}

void MotionButtonColumn::addUnderMotionButtons(QWidget* widget)
{
    m_rest->insertWidget(m_rest->indexOf(m_motionRow) + 1, widget);
}

void MotionButtonColumn::showServo(bool on)
{
    servo->setText(on ? tr("Servo Off") : tr("Servo On"));
}

bool MotionButtonColumn::eventFilter(QObject* watched, QEvent* event)
{
    if (m_actions == nullptr)
        return QWidget::eventFilter(watched, event);
    const MotionButton button = watched == alarmReset ? MotionButton::AlarmReset
                                : watched == minus    ? MotionButton::Minus
                                                      : MotionButton::Plus;
    bool down = false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
            return false;
        down = event->type() == QEvent::MouseButtonPress;
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        // Space held on the focused button is a held mouse button. A held key also sends
        // release and press pairs of its own: those neither stop nor restart the motion.
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() != Qt::Key_Space)
            return false;
        if (key->isAutoRepeat())
            return true;
        down = event->type() == QEvent::KeyPress;
        break;
    }
    case QEvent::FocusOut:
        // The release of a key held on this button would go elsewhere.
        if (static_cast<QAbstractButton*>(watched)->isDown())
            m_actions->release(button);
        return false;
    default:
        return false;
    }
    // A refused press never reaches the button: its message box took the release, so the
    // button would stay drawn pressed.
    if (down)
        return !m_actions->press(button);
    m_actions->release(button);
    // The buttons still get the event, so they look pressed.
    return false;
}
