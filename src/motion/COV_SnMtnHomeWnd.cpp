#include "COV_SnMtnHomeWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "FieldText.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kLabelWidth = 110;
} // namespace

COV_SnMtnHomeWnd::COV_SnMtnHomeWnd(AppState& state, BoardApi& board, QWidget* parent)
    : QWidget(parent), m_state(state), m_board(board)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createModeGroup());
    layout->addWidget(createSpeedGroup());
    layout->addWidget(createCounterGroup());
    layout->addStretch();
    connect(m_commandButton, &QPushButton::clicked, this, [this] { onCommandClicked(); });
    connect(m_actualButton, &QPushButton::clicked, this, [this] { onActualClicked(); });
}

QLineEdit* COV_SnMtnHomeWnd::addField(QGridLayout* grid, int row, const QString& label,
                                      const QString& unit, const char* name)
{
    auto* caption = new QLabel(label);
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    caption->setBuddy(edit);
    grid->addWidget(caption, row, 0);
    grid->addWidget(edit, row, 1);
    // One label width for every group, so the fields line up down the page.
    grid->setColumnMinimumWidth(0, kLabelWidth);
    grid->addWidget(new QLabel(unit), row, 2);
    return edit;
}

QWidget* COV_SnMtnHomeWnd::createModeGroup()
{
    auto* group = new QGroupBox;
    auto* grid = new QGridLayout(group);
    m_mode = new QComboBox;
    m_mode->setObjectName(QStringLiteral("homeMode"));
    m_mode->addItems({
        QStringLiteral("0 : LowHome (ORG)"),
        QStringLiteral("1 : LowHome (ORG+EZ)"),
        QStringLiteral("2 : HighHome (ORG)"),
        QStringLiteral("3 : HighHome (ORG+EZ)"),
        QStringLiteral("4 : LowHome (Limit)"),
        QStringLiteral("5 : LowHome (Limit+EZ)"),
        QStringLiteral("6 : HighHome (Limit)"),
        QStringLiteral("7 : HighHome (Limit+EZ)"),
        QStringLiteral("8 : LowHome (EZ)"),
        QStringLiteral("9 : CurPos (ORG)"),
    });
    grid->addWidget(new QLabel(QStringLiteral(" Home Mode")), 0, 0);
    grid->addWidget(m_mode, 0, 1);

    // The direction is part of the home mode; the combo stays hidden and unused.
    auto* directionLabel = new QLabel(QStringLiteral(" Home Direction "));
    auto* direction = new QComboBox;
    direction->setObjectName(QStringLiteral("homeDirection"));
    direction->addItems({QStringLiteral("CW"), QStringLiteral("CCW")});
    grid->addWidget(directionLabel, 1, 0);
    grid->addWidget(direction, 1, 1);
    directionLabel->hide();
    direction->hide();
    return group;
}

QWidget* COV_SnMtnHomeWnd::createSpeedGroup()
{
    auto* group = new QGroupBox;
    auto* grid = new QGridLayout(group);
    m_highSpeed =
        addField(grid, 0, QStringLiteral(" High Speed"), QStringLiteral("[pps]"), "highSpeed");
    m_lowSpeed =
        addField(grid, 1, QStringLiteral(" Low Speed"), QStringLiteral("[pps]"), "lowSpeed");
    m_accDec =
        addField(grid, 2, QStringLiteral(" Acc/Dec Time"), QStringLiteral("[msec]"), "accDecTime");
    m_offset = addField(grid, 3, QStringLiteral(" Offset"), QStringLiteral("[pulse]"), "offset");
    return group;
}

QWidget* COV_SnMtnHomeWnd::createCounterGroup()
{
    auto* group = new QGroupBox;
    auto* grid = new QGridLayout(group);
    m_setCommand =
        addField(grid, 0, QStringLiteral(" Set Command"), QStringLiteral("[pulse]"), "setCommand");
    m_commandButton = new QPushButton(QStringLiteral("Command"));
    m_commandButton->setObjectName(QStringLiteral("commandButton"));
    grid->addWidget(m_commandButton, 0, 3);
    m_setActual =
        addField(grid, 1, QStringLiteral(" Set Actual"), QStringLiteral("[pulse]"), "setActual");
    m_actualButton = new QPushButton(QStringLiteral("Actual"));
    m_actualButton->setObjectName(QStringLiteral("actualButton"));
    grid->addWidget(m_actualButton, 1, 3);
    m_setCommand->setText(QStringLiteral("0"));
    m_setActual->setText(QStringLiteral("0"));
    return group;
}

BoardFamily COV_SnMtnHomeWnd::family() const
{
    return m_state.active.family;
}

void COV_SnMtnHomeWnd::setCardAxis(CardNo card, AxisNo axis)
{
    m_card = card;
    m_axis = axis;
}

void COV_SnMtnHomeWnd::load()
{
    const CardRegistry& registry = m_state.registry;
    const std::int32_t setCommand =
        registry.testValue(family(), m_card, m_axis, TestValue::SetCommand);
    const std::int32_t setActual =
        registry.testValue(family(), m_card, m_axis, TestValue::SetActual);
    const HomeSettings board = HomeSettings::read(m_board, family(), m_card, m_axis);
    m_mode->setCurrentIndex(board.mode);
    setFieldNumber(m_highSpeed, board.highSpeed);
    setFieldNumber(m_lowSpeed, board.lowSpeed);
    setFieldNumber(m_accDec, board.accDecMs);
    setFieldNumber(m_offset, board.offset);
    setFieldNumber(m_setCommand, setCommand);
    setFieldNumber(m_setActual, setActual);
}

HomeSettings COV_SnMtnHomeWnd::fields() const
{
    HomeSettings settings;
    // A mode the list does not hold leaves the combo without selection, which reads as -1.
    settings.mode = static_cast<std::uint16_t>(m_mode->currentIndex());
    settings.highSpeed = fieldNumber(m_highSpeed);
    settings.lowSpeed = fieldNumber(m_lowSpeed);
    settings.accDecMs = fieldNumber(m_accDec);
    settings.offset = fieldNumber(m_offset);
    return settings;
}

bool COV_SnMtnHomeWnd::parametersChanged(BoardFamily boardFamily) const
{
    return fields() != HomeSettings::read(m_board, boardFamily, m_card, m_axis);
}

void COV_SnMtnHomeWnd::setParameters(BoardFamily boardFamily)
{
    fields().write(m_board, boardFamily, m_card, m_axis);
}

void COV_SnMtnHomeWnd::onCommandClicked()
{
    const std::int32_t value = fieldNumber(m_setCommand);
    m_board.SetCommandPos(family(), m_card, m_axis, value);
    m_state.registry.setTestValue(family(), m_card, m_axis, TestValue::SetCommand, value);
}

void COV_SnMtnHomeWnd::onActualClicked()
{
    const std::int32_t value = fieldNumber(m_setActual);
    m_board.SetActualPos(family(), m_card, m_axis, value);
    m_state.registry.setTestValue(family(), m_card, m_axis, TestValue::SetActual, value);
}
