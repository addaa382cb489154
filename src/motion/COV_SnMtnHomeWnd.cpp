#include "COV_SnMtnHomeWnd.h"

#include "AppState.h"
#include "CounterPresets.h"
#include "FieldText.h"
#include "PageFieldGrid.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

COV_SnMtnHomeWnd::COV_SnMtnHomeWnd(AppState& state, BoardApi& board, QWidget* parent)
    : QWidget(parent), m_state(state), m_board(board)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createModeGroup());
    layout->addWidget(createSpeedGroup());
    m_presets = new CounterPresets(state, board);
    layout->addWidget(m_presets);
    layout->addStretch();
}

QWidget* COV_SnMtnHomeWnd::createModeGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
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
    grid.addRow(QStringLiteral(" Home Mode"), m_mode);

    // The direction is part of the home mode; the combo stays hidden and unused.
    auto* directionLabel = new QLabel(QStringLiteral(" Home Direction "));
    auto* direction = new QComboBox;
    direction->setObjectName(QStringLiteral("homeDirection"));
    direction->addItems({QStringLiteral("CW"), QStringLiteral("CCW")});
    grid.addRow(directionLabel, direction);
    directionLabel->hide();
    direction->hide();
    return group;
}

QWidget* COV_SnMtnHomeWnd::createSpeedGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    const QString pps = QStringLiteral("[pps]");
    m_highSpeed = grid.addField(QStringLiteral(" High Speed"), pps, "highSpeed");
    m_lowSpeed = grid.addField(QStringLiteral(" Low Speed"), pps, "lowSpeed");
    m_accDec =
        grid.addField(QStringLiteral(" Acc/Dec Time"), QStringLiteral("[msec]"), "accDecTime");
    m_offset = grid.addField(QStringLiteral(" Offset"), QStringLiteral("[pulse]"), "offset");
    return group;
}

void COV_SnMtnHomeWnd::setCardAxis(CardNo card, AxisNo axis)
{
    m_card = card;
    m_axis = axis;
    m_presets->setCardAxis(card, axis);
}

void COV_SnMtnHomeWnd::load()
{
    m_presets->load();
    const HomeSettings board = HomeSettings::read(m_board, m_state.active.family, m_card, m_axis);
    m_mode->setCurrentIndex(board.mode);
    setFieldNumber(m_highSpeed, board.highSpeed);
    setFieldNumber(m_lowSpeed, board.lowSpeed);
    setFieldNumber(m_accDec, board.accDecMs);
    setFieldNumber(m_offset, board.offset);
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
