#include "COV_SysIoWnd.h"

#include "AppState.h"
#include "CLedButton.h"
#include "LedFaces.h"
#include "NamedButton.h"
#include "NumberList.h"
#include "OutputButton.h"
#include "PollInterval.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {
const QColor kLabelGrey(210, 210, 210);
const QColor kLabelBlue(0, 0, 255);

struct RowText
{
    const char* label;
    const char* signal;
};
const std::array<RowText, SystemIoModel::kInputRows> kInputRows{{
    {QT_TRANSLATE_NOOP("COV_SysIoWnd", " Encoder Z"),
     QT_TRANSLATE_NOOP("COV_SysIoWnd", "encoder Z mark")},
    {QT_TRANSLATE_NOOP("COV_SysIoWnd", " Alarm"),
     QT_TRANSLATE_NOOP("COV_SysIoWnd", "servo alarm input")},
    {QT_TRANSLATE_NOOP("COV_SysIoWnd", " Inposition"),
     QT_TRANSLATE_NOOP("COV_SysIoWnd", "in-position input")},
    {QT_TRANSLATE_NOOP("COV_SysIoWnd", " +Limit"),
     QT_TRANSLATE_NOOP("COV_SysIoWnd", "plus limit switch")},
    {QT_TRANSLATE_NOOP("COV_SysIoWnd", " Origin"),
     QT_TRANSLATE_NOOP("COV_SysIoWnd", "origin switch")},
    {QT_TRANSLATE_NOOP("COV_SysIoWnd", " -Limit"),
     QT_TRANSLATE_NOOP("COV_SysIoWnd", "minus limit switch")},
}};
const std::array<RowText, SystemIoModel::kOutputRows> kOutputRows{{
    {QT_TRANSLATE_NOOP("COV_SysIoWnd", " Alm Rst"),
     QT_TRANSLATE_NOOP("COV_SysIoWnd",
                       "alarm-reset output: red while on; click to switch it over")},
    {QT_TRANSLATE_NOOP("COV_SysIoWnd", " C. Clear"),
     QT_TRANSLATE_NOOP("COV_SysIoWnd",
                       "counter-clear output: click to send one counter-clear pulse; red while the "
                       "pulse lasts (RN boards cannot report it)")},
    {QT_TRANSLATE_NOOP("COV_SysIoWnd", " S-On"),
     QT_TRANSLATE_NOOP("COV_SysIoWnd", "servo-on output: red while on; click to switch it over")},
}};

QLabel* makeRowLabel(const char* text)
{
    auto* label = new QLabel(QCoreApplication::translate("COV_SysIoWnd", text));
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, kLabelBlue);
    colours.setColor(QPalette::Window, kLabelGrey);
    label->setPalette(colours);
    label->setAutoFillBackground(true);
    label->setMinimumWidth(80);
    return label;
}

CLedButton* makeLamp()
{
    auto* lamp = new CLedButton;
    lamp->setFocusPolicy(Qt::NoFocus);
    lamp->setFixedSize(LedFaces::kSize, LedFaces::kSize);
    return lamp;
}

OutputButton* makeOutput()
{
    auto* button = new OutputButton;
    button->setFixedSize(40, 22);
    return button;
}

// Two states on white: grey when off, green when on; flat in both for an absent signal.
void setLampFaces(CLedButton* lamp, bool present)
{
    const QPixmap flat = LedFaces::face(LedLamp::Flat, LedGround::White);
    lamp->SetStateCount(2, true);
    lamp->SetStateIconHandle(0, present ? LedFaces::face(LedLamp::Grey, LedGround::White) : flat);
    lamp->SetStateIconHandle(1, present ? LedFaces::face(LedLamp::Green, LedGround::White) : flat);
    lamp->SetState(0);
}

void setOutputFaces(OutputButton* button, bool present)
{
    if (present)
        button->setFaces(LedFaces::face(LedLamp::Grey, LedGround::White),
                         LedFaces::face(LedLamp::Red, LedGround::White));
    else
        button->setFaces(LedFaces::face(LedLamp::Flat, LedGround::White),
                         LedFaces::face(LedLamp::Flat, LedGround::White));
    button->setEnabled(present);
}
} // namespace

COV_SysIoWnd::COV_SysIoWnd(const ToolContext& context, QWidget* parent)
    : ToolView(parent), m_context(context), m_model(context.board)
{
    setWindowIcon(QIcon(LedFaces::face(LedLamp::Green, LedGround::White)));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createCardRow());
    layout->addWidget(createInputGroup());
    layout->addWidget(createOutputGroup());
    layout->addWidget(createButtonRow());
    layout->addStretch();
    connectControls();

    fillCardCombo();
    setUpLamps();
    m_timer.setInterval(kPollIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
    m_timer.start();
}

QWidget* COV_SysIoWnd::createCardRow()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_cardCombo = new QComboBox;
    m_cardCombo->setObjectName(QStringLiteral("cardCombo"));
    layout->addWidget(new QLabel(tr("Card No. : ")));
    layout->addWidget(m_cardCombo);
    layout->addStretch();
    return row;
}

void COV_SysIoWnd::addAxisTitles(QGridLayout* grid)
{
    for (int axis = 0; axis < kAxes; ++axis) {
        auto* title = new QLabel(tr("%1 Axis").arg(axis));
        title->setAlignment(Qt::AlignCenter);
        QPalette colours = title->palette();
        colours.setColor(QPalette::Window, Qt::white);
        title->setPalette(colours);
        title->setAutoFillBackground(true);
        title->setMinimumWidth(44);
        grid->addWidget(title, 0, axis + 1);
    }
}

QWidget* COV_SysIoWnd::createInputGroup()
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(3);
    addAxisTitles(grid);
    for (int row = 0; row < SystemIoModel::kInputRows; ++row) {
        grid->addWidget(makeRowLabel(kInputRows[static_cast<std::size_t>(row)].label), row + 1, 0);
        for (int axis = 0; axis < kAxes; ++axis) {
            CLedButton* lamp = makeLamp();
            lamp->setObjectName(QStringLiteral("input%1_%2").arg(axis).arg(row));
            m_inputs[static_cast<std::size_t>(axis)][static_cast<std::size_t>(row)] = lamp;
            grid->addWidget(lamp, row + 1, axis + 1, Qt::AlignCenter);
        }
    }
    const int emergencyRow = SystemIoModel::kInputRows + 1;
    grid->addWidget(makeRowLabel(QT_TRANSLATE_NOOP("COV_SysIoWnd", " EMG")), emergencyRow, 0);
    m_emergency = makeLamp();
    m_emergency->setObjectName(QStringLiteral("emergencyLamp"));
    m_emergency->setToolTip(
        tr("Emergency-stop input of the card: green while the EMG switch is active"));
    grid->addWidget(m_emergency, emergencyRow, 1, Qt::AlignCenter);
    auto* group = new QTabWidget;
    group->addTab(page, tr("Input"));
    return group;
}

QWidget* COV_SysIoWnd::createOutputGroup()
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(3);
    addAxisTitles(grid);
    for (int row = 0; row < SystemIoModel::kOutputRows; ++row) {
        grid->addWidget(makeRowLabel(kOutputRows[static_cast<std::size_t>(row)].label), row + 1, 0);
        for (int axis = 0; axis < kAxes; ++axis) {
            OutputButton* button = makeOutput();
            button->setObjectName(QStringLiteral("output%1_%2").arg(axis).arg(row));
            m_outputs[static_cast<std::size_t>(axis)][static_cast<std::size_t>(row)] = button;
            grid->addWidget(button, row + 1, axis + 1, Qt::AlignCenter);
        }
    }
    const int runLedRow = SystemIoModel::kOutputRows + 1;
    grid->addWidget(makeRowLabel(QT_TRANSLATE_NOOP("COV_SysIoWnd", " Run Led")), runLedRow, 0);
    m_runLed = makeOutput();
    m_runLed->setObjectName(QStringLiteral("runLedButton"));
    m_runLed->setToolTip(tr("Run LED output of the card: red while on; click to switch it over"));
    grid->addWidget(m_runLed, runLedRow, 1, Qt::AlignCenter);
    auto* group = new QTabWidget;
    group->addTab(page, tr("Output"));
    return group;
}

QWidget* COV_SysIoWnd::createButtonRow()
{
    auto* row = new QWidget;
    auto* layout = new QGridLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_outputDisable = new QCheckBox(tr(" Output Disable"));
    m_outputDisable->setObjectName(QStringLiteral("outputDisable"));
    m_outputDisable->setToolTip(tr("Lock every output against clicks"));
    m_allAlarmResetOn = makeNamedButton(tr("All Alm Rst On"), "allAlarmResetOn",
                                        tr("Alarm-reset output of every axis on"));
    m_allAlarmResetOff = makeNamedButton(tr("All Alm Rst Off"), "allAlarmResetOff",
                                         tr("Alarm-reset output of every axis off"));
    m_allServoOn =
        makeNamedButton(tr("All Servo On"), "allServoOn", tr("Servo-on output of every axis on"));
    m_allServoOff = makeNamedButton(tr("All Servo Off"), "allServoOff",
                                    tr("Servo-on output of every axis off"));
    m_close = makeNamedButton(tr("Close"), "closeButton");
    layout->addWidget(m_outputDisable, 0, 0);
    layout->addWidget(m_allAlarmResetOn, 0, 1);
    layout->addWidget(m_allAlarmResetOff, 0, 2);
    layout->addWidget(m_allServoOn, 1, 1);
    layout->addWidget(m_allServoOff, 1, 2);
    layout->setColumnStretch(3, 1);
    layout->addWidget(m_close, 1, 4);
    return row;
}

void COV_SysIoWnd::connectControls()
{
    connect(m_cardCombo, &QComboBox::activated, this, [this](int index) {
        const AppState& state = m_context.state;
        m_model.setCard(state.active.family, index,
                        state.registry.axisCount(state.active.family, index));
        setUpLamps();
    });
    for (int axis = 0; axis < kAxes; ++axis) {
        for (int row = 0; row < SystemIoModel::kOutputRows; ++row) {
            connect(outputButton(axis, row), &OutputButton::clicked, this,
                    [this, axis, row] { m_model.clickOutput(row, axis); });
        }
    }
    connect(m_runLed, &OutputButton::clicked, this, [this] { m_model.clickRunLed(); });
    connect(m_allAlarmResetOn, &QPushButton::clicked, this,
            [this] { m_model.setAllAlarmReset(true); });
    connect(m_allAlarmResetOff, &QPushButton::clicked, this,
            [this] { m_model.setAllAlarmReset(false); });
    connect(m_allServoOn, &QPushButton::clicked, this, [this] { m_model.setAllServo(true); });
    connect(m_allServoOff, &QPushButton::clicked, this, [this] { m_model.setAllServo(false); });
    connect(m_outputDisable, &QCheckBox::toggled, this, [this](bool on) { onLockToggled(on); });
    connect(m_close, &QPushButton::clicked, this, [this] { requestClose(); });
}

CLedButton* COV_SysIoWnd::inputLamp(int axis, int row) const
{
    return m_inputs[static_cast<std::size_t>(axis)][static_cast<std::size_t>(row)];
}

OutputButton* COV_SysIoWnd::outputButton(int axis, int row) const
{
    return m_outputs[static_cast<std::size_t>(axis)][static_cast<std::size_t>(row)];
}

void COV_SysIoWnd::fillCardCombo()
{
    const AppState& state = m_context.state;
    NumberList::fillActiveCards(*m_cardCombo, state);
    // The title names the card it was built for, until the next controller change.
    setWindowTitle(
        tr("System IO - %1(%2)").arg(state.modelName(state.active.card)).arg(state.active.card));
    m_model.setCard(state.active.family, state.active.card, state.activeAxisCount());
}

void COV_SysIoWnd::setUpLamps()
{
    setLampFaces(m_emergency, true);
    for (int axis = 0; axis < kAxes; ++axis) {
        const bool present = m_model.isPresent(axis);
        for (int row = 0; row < SystemIoModel::kInputRows; ++row) {
            CLedButton* lamp = inputLamp(axis, row);
            setLampFaces(lamp, present);
            const char* signal = kInputRows[static_cast<std::size_t>(row)].signal;
            lamp->setToolTip(
                present ? tr("Axis %1 %2: green while on, grey while off").arg(axis).arg(tr(signal))
                        : tr("Axis %1: not on this card").arg(axis));
        }
        for (int row = 0; row < SystemIoModel::kOutputRows; ++row) {
            OutputButton* button = outputButton(axis, row);
            setOutputFaces(button, present);
            button->setToolTip(present
                                   ? tr("Axis %1 %2")
                                         .arg(axis)
                                         .arg(tr(kOutputRows[static_cast<std::size_t>(row)].signal))
                                   : tr("Axis %1: not on this card").arg(axis));
        }
    }
    setOutputFaces(m_runLed, true);
}

int COV_SysIoWnd::tick()
{
    const std::vector<SystemIoModel::Change>& changes = m_model.refresh();
    for (const SystemIoModel::Change& change : changes) {
        switch (change.kind) {
        case SystemIoModel::Change::Input:
            inputLamp(change.axis, change.row)->SetState(change.on ? 1 : 0);
            break;
        case SystemIoModel::Change::Emergency:
            m_emergency->SetState(change.on ? 1 : 0);
            break;
        case SystemIoModel::Change::Output:
            outputButton(change.axis, change.row)->setOn(change.on);
            break;
        case SystemIoModel::Change::RunLed:
            m_runLed->setOn(change.on);
            break;
        }
    }
    return static_cast<int>(changes.size());
}

void COV_SysIoWnd::onLockToggled(bool locked)
{
    m_model.setLocked(locked);
    // The per-axis buttons stay enabled; the model ignores their clicks while locked.
    for (QPushButton* button : {m_allAlarmResetOn, m_allAlarmResetOff, m_allServoOn, m_allServoOff})
        button->setEnabled(!locked);
}

void COV_SysIoWnd::handleUserMessage(UserMessage message, int)
{
    if (message != UM_CONTROLLER_CHANGED)
        return;
    fillCardCombo();
    setUpLamps();
}
