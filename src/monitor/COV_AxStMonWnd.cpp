#include "COV_AxStMonWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "FrameRelay.h"
#include "PollInterval.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr StatusWordKind kWordOrder[] = {StatusWordKind::Card, StatusWordKind::Drive,
                                         StatusWordKind::Main, StatusWordKind::Error,
                                         StatusWordKind::Input};
}

COV_AxStMonWnd::COV_AxStMonWnd(const ToolContext& context, QWidget* parent)
    : ToolView(parent), m_context(context)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createSelectorRow());
    layout->addWidget(createWordGrid());
    layout->addStretch(1);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    m_close = new QPushButton(tr("Close"), this);
    m_close->setObjectName(QStringLiteral("closeButton"));
    m_close->setAutoDefault(false);
    bottom->addWidget(m_close);
    layout->addLayout(bottom);

    connect(m_cardCombo, &QComboBox::activated, this, [this](int index) { chooseCard(index); });
    connect(m_axisCombo, &QComboBox::activated, this, [this](int index) { chooseAxis(index); });
    connect(m_close, &QPushButton::clicked, this, [this] { requestClose(); });

    const AppState& state = m_context.state;
    fillCardCombo(state.active.card);
    m_axis = state.active.axis;
    // The error word's captions hold for every family and axis.
    column(StatusWordKind::Error).loadImages(state.active.family, 0);
    rebuild();

    m_timer.setInterval(kPollIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
    m_timer.start();
}

COV_AxStMonWnd::~COV_AxStMonWnd() = default;

QWidget* COV_AxStMonWnd::createSelectorRow()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_cardCombo = new QComboBox(row);
    m_cardCombo->setObjectName(QStringLiteral("cardCombo"));
    m_axisCombo = new QComboBox(row);
    m_axisCombo->setObjectName(QStringLiteral("axisCombo"));
    layout->addWidget(new QLabel(tr("Card No. : "), row));
    layout->addWidget(m_cardCombo);
    layout->addSpacing(16);
    layout->addWidget(new QLabel(tr("Axis No. : "), row));
    layout->addWidget(m_axisCombo);
    layout->addStretch(1);
    return row;
}

QWidget* COV_AxStMonWnd::createWordGrid()
{
    auto* area = new QWidget(this);
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    // Bit numbers down the left, so a lamp can be told by its row.
    for (int bit = 0; bit < StatusWordColumn::kBits; ++bit) {
        auto* number = new QLabel(QString::number(bit), area);
        number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        number->setToolTip(tr("Bit %1 of each word").arg(bit));
        grid->addWidget(number, StatusWordColumn::kFirstLampRow + bit, 0);
    }
    for (StatusWordKind word : kWordOrder) {
        const int index = static_cast<int>(word);
        m_columns[static_cast<std::size_t>(index)] =
            std::make_unique<StatusWordColumn>(word, *area, *grid, index + 1);
    }
    grid->setColumnStretch(kWords + 1, 1);
    return area;
}

void COV_AxStMonWnd::fillCardCombo(int card)
{
    const int cards = m_context.state.activeCardCount();
    m_cardCombo->clear();
    for (int each = 0; each < cards; ++each)
        m_cardCombo->addItem(QString::number(each));
    m_card = card;
    m_cardCombo->setCurrentIndex(card);
    m_cardCombo->setEnabled(cards > 1);
}

void COV_AxStMonWnd::rebuild()
{
    AppState& state = m_context.state;
    setWindowTitle(tr("Axis Status - %1(%2)").arg(state.modelName(m_card)).arg(m_card));
    const int axes = state.registry.axisCount(state.active.family, m_card);
    m_axisCombo->clear();
    for (int each = 0; each < axes; ++each)
        m_axisCombo->addItem(QString::number(each));
    if (m_axis >= axes) {
        m_axis = 0;
        state.active.axis = 0;
    }
    m_axisCombo->setCurrentIndex(m_axis);
    const BoardFamily family = state.active.family;
    column(StatusWordKind::Card).loadImages(family, m_axis);
    column(StatusWordKind::Drive).loadImages(family, m_axis);
    loadAxisImages();
    resetLamps();
}

void COV_AxStMonWnd::loadAxisImages()
{
    const BoardFamily family = m_context.state.active.family;
    column(StatusWordKind::Main).loadImages(family, m_axis);
    column(StatusWordKind::Input).loadImages(family, m_axis);
}

void COV_AxStMonWnd::resetLamps()
{
    for (auto& each : m_columns)
        each->resetLamps();
}

void COV_AxStMonWnd::chooseCard(int card)
{
    if (card < 0)
        return;
    m_card = card;
    rebuild();
    m_context.frame.sendToFrame(UM_STATUS_CARD_CHANGED, card);
}

void COV_AxStMonWnd::chooseAxis(int axis)
{
    if (axis < 0)
        return;
    m_axis = axis;
    loadAxisImages();
    resetLamps();
    m_context.frame.sendToFrame(UM_STATUS_AXIS_CHANGED, axis);
}

void COV_AxStMonWnd::followAxis(int axis)
{
    // Following the operated axis is a user setting; an axis this card lacks is not shown.
    if (m_context.state.statusFollowsOperation == 0 || axis < 0 || axis >= m_axisCombo->count())
        return;
    m_axis = axis;
    m_axisCombo->setCurrentIndex(axis);
    loadAxisImages();
    resetLamps();
}

void COV_AxStMonWnd::handleUserMessage(UserMessage message, int wParam)
{
    switch (message) {
    case UM_CONTROLLER_CHANGED:
        fillCardCombo(m_context.state.active.card);
        rebuild();
        break;
    case UM_STATUS_CARD_CHANGED:
        if (wParam < 0 || wParam >= m_cardCombo->count())
            break;
        m_card = wParam;
        m_cardCombo->setCurrentIndex(wParam);
        m_cardCombo->setEnabled(m_cardCombo->count() > 1);
        rebuild();
        break;
    case UM_AXIS_CHANGED:
    case UM_STATUS_AXIS_CHANGED:
        followAxis(wParam);
        break;
    default:
        break;
    }
}

void COV_AxStMonWnd::tick()
{
    const AppState& state = m_context.state;
    const BoardFamily family = state.active.family;
    if (m_axis >= state.registry.axisCount(family, m_card))
        return;
    BoardApi& board = m_context.board;
    const auto card = static_cast<CardNo>(m_card);
    const auto axis = static_cast<AxisNo>(m_axis);
    column(StatusWordKind::Card).showWord(board.GetCardStatus(family, card, axis));
    column(StatusWordKind::Drive).showWord(board.GetDrvStatus(family, card, axis));
    column(StatusWordKind::Main).showWord(board.GetMainStatus(family, card, axis));
    column(StatusWordKind::Error).showWord(board.GetErrStatus(family, card, axis));
    column(StatusWordKind::Input).showWord(board.GetInputStatus(family, card, axis));
}
