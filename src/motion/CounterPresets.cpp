#include "CounterPresets.h"

#include "AppState.h"
#include "BoardApi.h"
#include "FieldText.h"
#include "PageFieldGrid.h"
#include "UnitEchoes.h"

#include <QLineEdit>
#include <QPushButton>

CounterPresets::CounterPresets(AppState& state, BoardApi& board, QWidget* parent)
    : QGroupBox(parent), m_state(state), m_board(board)
{
    PageFieldGrid grid(this);
    const QString pulse = tr("[pulse]");
    m_setCommand = grid.addField(tr(" Set Command"), pulse, "setCommand");
    QPushButton* command = grid.addButton(tr("Command"), "commandButton");
    m_setActual = grid.addField(tr(" Set Actual"), pulse, "setActual");
    QPushButton* actual = grid.addButton(tr("Actual"), "actualButton");
    setFieldNumber(m_setCommand, 0);
    setFieldNumber(m_setActual, 0);
    connect(command, &QPushButton::clicked, this, [this] { preset(TestValue::SetCommand); });
    connect(actual, &QPushButton::clicked, this, [this] { preset(TestValue::SetActual); });
    m_echoes = new UnitEchoes(
        state,
        [this] {
            return UnitEchoes::Axis{m_state.active.family, m_card, m_axis};
        },
        this);
    m_echoes->add(m_setCommand, UnitEchoes::Measure::Position);
    m_echoes->add(m_setActual, UnitEchoes::Measure::Position);
}

void CounterPresets::setCardAxis(CardNo card, AxisNo axis)
{
    m_card = card;
    m_axis = axis;
    m_echoes->refresh();
}

void CounterPresets::load()
{
    const BoardFamily family = m_state.active.family;
    const CardRegistry& registry = m_state.registry;
    setFieldNumber(m_setCommand, registry.testValue(family, m_card, m_axis, TestValue::SetCommand));
    setFieldNumber(m_setActual, registry.testValue(family, m_card, m_axis, TestValue::SetActual));
}

void CounterPresets::preset(TestValue which)
{
    const BoardFamily family = m_state.active.family;
    const bool command = which == TestValue::SetCommand;
    const std::int32_t value = fieldNumber(command ? m_setCommand : m_setActual);
    if (command)
        m_board.SetCommandPos(family, m_card, m_axis, value);
    else
        m_board.SetActualPos(family, m_card, m_axis, value);
    m_state.registry.setTestValue(family, m_card, m_axis, which, value);
}
