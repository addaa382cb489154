#include "COV_SnMtnHomeWnd.h"

#include "AppState.h"
#include "CounterPresets.h"
#include "FieldText.h"
#include "PageFieldGrid.h"
#include "UnitEchoes.h"

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
    m_echoes = new UnitEchoes(
        state,
        [this] {
            return UnitEchoes::Axis{m_state.active.family, m_card, m_axis};
        },
        this);
    m_echoes->add(m_highSpeed, UnitEchoes::Measure::Speed);
    m_echoes->add(m_lowSpeed, UnitEchoes::Measure::Speed);
    m_echoes->add(m_offset, UnitEchoes::Measure::Position);
}

QWidget* COV_SnMtnHomeWnd::createModeGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    m_mode = new QComboBox;
    m_mode->setObjectName(QStringLiteral("homeMode"));
    m_mode->addItems({
        tr("0 : LowHome (ORG)"),
        tr("1 : LowHome (ORG+EZ)"),
        tr("2 : HighHome (ORG)"),
        tr("3 : HighHome (ORG+EZ)"),
        tr("4 : LowHome (Limit)"),
        tr("5 : LowHome (Limit+EZ)"),
        tr("6 : HighHome (Limit)"),
        tr("7 : HighHome (Limit+EZ)"),
        tr("8 : LowHome (EZ)"),
        tr("9 : CurPos (ORG)"),
    });
    grid.addRow(tr(" Home Mode"), m_mode);

    // The direction is part of the home mode; the combo stays hidden and unused.
    auto* directionLabel = new QLabel(tr(" Home Direction "));
    auto* direction = new QComboBox;
    direction->setObjectName(QStringLiteral("homeDirection"));
    direction->addItems({tr("CW"), tr("CCW")});
    grid.addRow(directionLabel, direction);
    directionLabel->hide();
    direction->hide();
    return group;
}

QWidget* COV_SnMtnHomeWnd::createSpeedGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    const QString pps = tr("[pps]");
    m_highSpeed = grid.addField(tr(" High Speed"), pps, "highSpeed");
    m_lowSpeed = grid.addField(tr(" Low Speed"), pps, "lowSpeed");
    m_accDec = grid.addField(tr(" Acc/Dec Time"), tr("[msec]"), "accDecTime");
    m_offset = grid.addField(tr(" Offset"), tr("[pulse]"), "offset");
    return group;
}

void COV_SnMtnHomeWnd::setCardAxis(CardNo card, AxisNo axis)
{
    m_card = card;
    m_axis = axis;
    m_presets->setCardAxis(card, axis);
    m_echoes->refresh();
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
