#include "COV_SnMtnPtpWnd.h"

#include "AppState.h"
#include "CounterPresets.h"
#include "FieldText.h"
#include "IsNumericText.h"
#include "PageFieldGrid.h"
#include "PromptService.h"
#include "PromptTexts.h"
#include "UnitEchoes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {
constexpr const char* kMsec = QT_TRANSLATE_NOOP("COV_SnMtnPtpWnd", "[msec]");
constexpr const char* kPulse = QT_TRANSLATE_NOOP("COV_SnMtnPtpWnd", "[pulse]");
} // namespace

COV_SnMtnPtpWnd::COV_SnMtnPtpWnd(AppState& state, BoardApi& board, PromptService& prompt,
                                 QWidget* parent)
    : QWidget(parent), m_state(state), m_board(board), m_prompt(prompt)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createProfileGroup());
    layout->addWidget(createRepeatGroup());
    layout->addWidget(createPositionGroup());
    m_presets = new CounterPresets(state, board);
    layout->addWidget(m_presets);
    layout->addWidget(createDisplayGroup());
    layout->addStretch();
    connectControls();
    m_echoes = new UnitEchoes(
        state,
        [this] {
            return UnitEchoes::Axis{family(), m_card, m_axis};
        },
        this);
    m_echoes->add(m_profile.drive, UnitEchoes::Measure::Speed);
    m_echoes->add(m_profile.initial, UnitEchoes::Measure::Speed);
    m_echoes->add(m_position1, UnitEchoes::Measure::Position);
    m_echoes->add(m_position2, UnitEchoes::Measure::Position);

    m_profile.motionType->setCurrentIndex(static_cast<int>(m_motionType));
    clearTimeAndCount();
    applyFieldStates();
}

QWidget* COV_SnMtnPtpWnd::createProfileGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    m_profile.addTo(grid);
    return group;
}

QWidget* COV_SnMtnPtpWnd::createRepeatGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    m_repeat = new QCheckBox(tr(" Repeat"));
    m_repeat->setObjectName(QStringLiteral("repeat"));
    m_infinite = new QCheckBox(tr("Infinite"));
    m_infinite->setObjectName(QStringLiteral("infinite"));
    // Their row keeps its room while they are hidden, so the page does not change height
    // with the motion type.
    for (QCheckBox* box : {m_repeat, m_infinite}) {
        QSizePolicy policy = box->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        box->setSizePolicy(policy);
    }
    grid.addRow(m_repeat, m_infinite);
    m_count = grid.addField(tr(" Count"), QString(), "count");
    m_delay = grid.addField(tr(" Delay Time"), tr(kMsec), "delayTime");
    return group;
}

QWidget* COV_SnMtnPtpWnd::createPositionGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    m_position1 = grid.addField(tr(" Position 1"), tr(kPulse), "position1");
    m_position2 = grid.addField(tr(" Position 2"), tr(kPulse), "position2", &m_position2Label);
    return group;
}

QWidget* COV_SnMtnPtpWnd::createDisplayGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    m_repeatCount = grid.addField(tr(" Repeat Count"), QString(), "repeatCount");
    m_cycleTime = grid.addField(tr(" Cycle Time"), tr(kMsec), "cycleTime");
    m_repeatCount->setReadOnly(true);
    m_cycleTime->setReadOnly(true);
    return group;
}

void COV_SnMtnPtpWnd::connectControls()
{
    connect(m_profile.motionType, &QComboBox::activated, this,
            [this](int index) { onMotionTypeActivated(index); });
    connect(m_repeat, &QCheckBox::clicked, this, [this](bool ticked) { onRepeatClicked(ticked); });
    connect(m_profile.drive, &QLineEdit::textChanged, this,
            [this](const QString& text) { onDriveSpeedChanged(text); });
}

BoardFamily COV_SnMtnPtpWnd::family() const
{
    return m_state.active.family;
}

void COV_SnMtnPtpWnd::setCardAxis(CardNo card, AxisNo axis)
{
    m_card = card;
    m_axis = axis;
    m_presets->setCardAxis(card, axis);
    m_echoes->refresh();
}

void COV_SnMtnPtpWnd::applyFieldStates()
{
    const bool jog = m_motionType == MotionType::Jog;
    const bool relative = m_motionType == MotionType::Relative;
    m_position1->setEnabled(m_motionType == MotionType::Absolute);
    m_position2->setEnabled(!jog);
    m_position2Label->setText(relative ? tr(" Distance") : tr(" Position 2"));
    m_profile.showJog(jog);
    m_repeat->setEnabled(!jog);
    m_repeat->setVisible(!jog);
    if (jog)
        m_repeat->setChecked(false);
    m_infinite->setChecked(false);
    m_infinite->setEnabled(relative);
    m_infinite->setVisible(relative && m_repeat->isChecked());
    m_count->setEnabled(!jog);
    m_delay->setEnabled(!jog);
}

void COV_SnMtnPtpWnd::load()
{
    m_presets->load();
    const CardRegistry& registry = m_state.registry;
    const auto remembered = [&](TestValue which) {
        return registry.testValue(family(), m_card, m_axis, which);
    };
    const PtpSpeeds speeds = m_motionType == MotionType::Jog
                                 ? PtpSpeeds::readJog(m_board, family(), m_card, m_axis)
                                 : PtpSpeeds::readPositioning(m_board, family(), m_card, m_axis);
    m_profile.show(speeds);
    setFieldNumber(m_count, remembered(TestValue::Count));
    setFieldNumber(m_delay, remembered(TestValue::DelayTime));
    if (m_motionType == MotionType::Relative) {
        setFieldNumber(m_position2, remembered(TestValue::Distance));
    } else if (m_motionType == MotionType::Absolute) {
        setFieldNumber(m_position1, remembered(TestValue::Position1));
        setFieldNumber(m_position2, remembered(TestValue::Position2));
    }
}

PtpSpeeds COV_SnMtnPtpWnd::speedFields() const
{
    return m_profile.speeds();
}

bool COV_SnMtnPtpWnd::parametersChanged(BoardFamily boardFamily) const
{
    const PtpSpeeds fields = speedFields();
    if (m_motionType == MotionType::Jog) {
        const PtpSpeeds board = PtpSpeeds::readJog(m_board, boardFamily, m_card, m_axis);
        return fields.initial != board.initial || fields.drive != board.drive ||
               fields.accelMs != board.accelMs;
    }
    const PtpSpeeds board = PtpSpeeds::readPositioning(m_board, boardFamily, m_card, m_axis);
    return fields.initial != board.initial || fields.drive != board.drive ||
           fields.accelMs != board.accelMs || fields.decelMs != board.decelMs;
}

void COV_SnMtnPtpWnd::setParameters(BoardFamily boardFamily)
{
    const PtpSpeeds speeds = speedFields();
    if (m_motionType == MotionType::Jog)
        speeds.writeJog(m_board, boardFamily, m_card, m_axis);
    else
        speeds.writePositioning(m_board, boardFamily, m_card, m_axis);
}

RepeatFields COV_SnMtnPtpWnd::readFields()
{
    CardRegistry& registry = m_state.registry;
    const auto remember = [&](TestValue which, std::int32_t value) {
        registry.setTestValue(family(), m_card, m_axis, which, value);
    };
    remember(TestValue::Count, fieldNumber(m_count));
    remember(TestValue::DelayTime, fieldNumber(m_delay));
    if (m_motionType == MotionType::Relative) {
        remember(TestValue::Distance, fieldNumber(m_position2));
    } else if (m_motionType == MotionType::Absolute) {
        remember(TestValue::Position1, fieldNumber(m_position1));
        remember(TestValue::Position2, fieldNumber(m_position2));
    }
    RepeatFields fields;
    fields.count = registry.testValue(family(), m_card, m_axis, TestValue::Count);
    fields.delayMs = registry.testValue(family(), m_card, m_axis, TestValue::DelayTime);
    fields.distance = registry.testValue(family(), m_card, m_axis, TestValue::Distance);
    fields.position1 = registry.testValue(family(), m_card, m_axis, TestValue::Position1);
    fields.position2 = registry.testValue(family(), m_card, m_axis, TestValue::Position2);
    return fields;
}

bool COV_SnMtnPtpWnd::repeatTicked() const
{
    return m_repeat->isChecked();
}

bool COV_SnMtnPtpWnd::infiniteTicked() const
{
    return m_infinite->isChecked();
}

void COV_SnMtnPtpWnd::setRepeat(bool ticked)
{
    m_repeat->setChecked(ticked);
}

void COV_SnMtnPtpWnd::setInfinite(bool ticked)
{
    m_infinite->setChecked(ticked);
}

void COV_SnMtnPtpWnd::showTimeAndCount(int elapsedMs, int cycleCount)
{
    // Refreshed every 10 ms: touch the displays only when the figure changed.
    const QString time = QString::number(elapsedMs);
    const QString count = QString::number(cycleCount);
    if (m_cycleTime->text() != time)
        m_cycleTime->setText(time);
    if (m_repeatCount->text() != count)
        m_repeatCount->setText(count);
}

void COV_SnMtnPtpWnd::clearTimeAndCount()
{
    m_repeatCount->setText(QStringLiteral("0"));
    m_cycleTime->setText(QStringLiteral("0"));
}

void COV_SnMtnPtpWnd::setSequenceLocked(bool locked)
{
    m_profile.motionType->setEnabled(!locked);
    m_repeat->setEnabled(!locked);
    m_infinite->setEnabled(!locked);
}

void COV_SnMtnPtpWnd::onMotionTypeActivated(int index)
{
    if (index < 0 || index > static_cast<int>(MotionType::Absolute))
        return;
    if (parametersChanged(family()) && m_prompt.askYesNo(PromptTexts::parametersChanged())) {
        setParameters(family());
        emit parametersWritten();
    }
    m_motionType = static_cast<MotionType>(index);
    applyFieldStates();
    emit motionTypeChanged();
    load();
}

void COV_SnMtnPtpWnd::onRepeatClicked(bool ticked)
{
    if (!ticked) {
        m_infinite->setChecked(false);
        m_infinite->setEnabled(false);
        m_infinite->setVisible(false);
    } else if (m_motionType == MotionType::Relative) {
        m_infinite->setChecked(false);
        m_infinite->setEnabled(true);
        m_infinite->setVisible(true);
    }
    emit repeatChanged();
}

void COV_SnMtnPtpWnd::onDriveSpeedChanged(const QString& text)
{
    if (m_restoringDrive)
        return;
    if (IsNumericText(text, false)) {
        m_lastValidDrive = text;
        return;
    }
    m_prompt.inform(PromptTexts::inputIncorrect());
    m_restoringDrive = true;
    m_profile.drive->setText(m_lastValidDrive);
    m_restoringDrive = false;
}
