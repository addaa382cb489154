#include "COV_SysDbgWnd.h"

#include "AppState.h"
#include "BoardApi.h"
#include "DiagnosisGrid.h"
#include "DigitalIoWords.h"
#include "NumberList.h"
#include "PollInterval.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
using Format = AxisValueGridModel::Format;
// The status grid's rows, in the order of the board reads.
enum StatusRow
{
    CardRow,
    DriveRow,
    MainRow,
    ErrorRow,
    InputRow,
    StatusRows
};
} // namespace

COV_SysDbgWnd::COV_SysDbgWnd(const ToolContext& context, QWidget* parent)
    : ToolView(parent), m_context(context), m_family(context.state.active.family),
      m_card(context.state.active.card)
{
    setWindowTitle(tr("System Diagnosis"));
    using Measure = AxisValueGridModel::Measure;
    m_positions = new DiagnosisGrid({{tr("Cmd Pos"), Format::Decimal, Measure::Position},
                                     {tr("Act Pos"), Format::Decimal, Measure::Position},
                                     {tr("Cmd Vel"), Format::Decimal, Measure::Speed}},
                                    this);
    m_statuses = new DiagnosisGrid({{tr("Card"), Format::HexWord16},
                                    {tr("Drive"), Format::HexWord16},
                                    {tr("Main"), Format::HexWord16},
                                    {tr("Error"), Format::HexWord16},
                                    {tr("Input"), Format::HexWord16}},
                                   this);
    m_positions->setObjectName(QStringLiteral("positionGrid"));
    m_positions->values()->setCompactUnitTitles(true);
    m_statuses->setObjectName(QStringLiteral("statusGrid"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createSelectorRow());
    layout->addWidget(createGridGroup(tr(" Position / Speed Status "), m_positions));
    layout->addWidget(createGridGroup(tr(" Axis IO Status "), m_statuses));
    auto* io = new QHBoxLayout;
    io->addWidget(createIoGroup(tr(" Digital Input Status "), Inputs));
    io->addWidget(createIoGroup(tr(" Digital Output Status "), Outputs));
    layout->addLayout(io);
    layout->addStretch(1);

    fillFamilyCombo();
    fillCardCombo();
    m_cardCombo->setCurrentIndex(m_card);
    takeCounts();
    connect(m_familyCombo, &QComboBox::activated, this, [this](int index) { chooseFamily(index); });
    connect(m_cardCombo, &QComboBox::activated, this, [this](int index) { chooseCard(index); });
    connect(m_close, &QPushButton::clicked, this, [this] { requestClose(); });

    m_timer.setInterval(kPollIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
    m_timer.start();
}

QWidget* COV_SysDbgWnd::createSelectorRow()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_familyCombo = new QComboBox(row);
    m_familyCombo->setObjectName(QStringLiteral("familyCombo"));
    m_cardCombo = new QComboBox(row);
    m_cardCombo->setObjectName(QStringLiteral("cardCombo"));
    m_close = new QPushButton(tr("Close"), row);
    m_close->setObjectName(QStringLiteral("closeButton"));
    m_close->setAutoDefault(false);
    layout->addWidget(new QLabel(tr("Card Type : "), row));
    layout->addWidget(m_familyCombo);
    layout->addSpacing(16);
    layout->addWidget(new QLabel(tr("Card No. : "), row));
    layout->addWidget(m_cardCombo);
    layout->addStretch(1);
    layout->addWidget(m_close);
    return row;
}

QGroupBox* COV_SysDbgWnd::createGridGroup(const QString& title, DiagnosisGrid* grid)
{
    auto* group = new QGroupBox(title, this);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(grid);
    return group;
}

QGroupBox* COV_SysDbgWnd::createIoGroup(const QString& title, Side side)
{
    static const char* const kLabels[2] = {QT_TR_NOOP("Group_0 (   0 ~ 31 )  :"),
                                           QT_TR_NOOP("Group_1 ( 32 ~ 63 )  :")};
    auto* group = new QGroupBox(title, this);
    auto* layout = new QGridLayout(group);
    for (int each = 0; each < 2; ++each) {
        auto* field = new QLineEdit(group);
        field->setReadOnly(true);
        field->setFocusPolicy(Qt::NoFocus);
        field->setAlignment(Qt::AlignCenter);
        field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("0xDDDDDDDDD")) +
                             8);
        field->setToolTip(tr("Bits %1 to %2, bit %1 on the right")
                              .arg(each * DigitalIoWords::kGroupBits)
                              .arg(each * DigitalIoWords::kGroupBits + 31));
        m_ioFields[static_cast<std::size_t>(side)][static_cast<std::size_t>(each)] = field;
        layout->addWidget(new QLabel(tr(kLabels[each]), group), each, 0);
        layout->addWidget(field, each, 1);
    }
    layout->setColumnStretch(2, 1);
    return group;
}

QLineEdit* COV_SysDbgWnd::ioWordField(Side side, int group) const
{
    return m_ioFields[static_cast<std::size_t>(side)][static_cast<std::size_t>(group)];
}

void COV_SysDbgWnd::fillFamilyCombo()
{
    const CardRegistry& registry = m_context.state.registry;
    m_familyCombo->clear();
    for (BoardFamily family : kAllFamilies) {
        if (!registry.hasBoards(family))
            continue;
        m_familyCombo->addItem(QString::fromLatin1(familyDisplayName(family)), familyIndex(family));
        if (family == m_family)
            m_familyCombo->setCurrentIndex(m_familyCombo->count() - 1);
    }
    m_familyCombo->setEnabled(m_familyCombo->count() > 1);
}

void COV_SysDbgWnd::fillCardCombo()
{
    const int cards = m_context.state.registry.cardCount(m_family);
    NumberList::fill(*m_cardCombo, cards);
    m_cardCombo->setEnabled(cards > 1);
}

void COV_SysDbgWnd::chooseFamily(int index)
{
    if (index < 0)
        return;
    m_family = static_cast<BoardFamily>(m_familyCombo->itemData(index).toInt());
    m_card = 0;
    fillCardCombo();
    m_cardCombo->setCurrentIndex(0);
    takeCounts();
}

void COV_SysDbgWnd::chooseCard(int index)
{
    if (index < 0)
        return;
    m_card = index;
    takeCounts();
}

// The grids are not rebuilt; the next tick blanks and greys the columns of missing axes.
void COV_SysDbgWnd::takeCounts()
{
    const CardRegistry& registry = m_context.state.registry;
    m_axisCount = qBound(0, static_cast<int>(registry.axisCount(m_family, m_card)),
                         static_cast<int>(AxisValueGridModel::kAxes));
    m_ioCount = registry.ioCount(m_family, m_card);
}

void COV_SysDbgWnd::tick()
{
    readPositions();
    readStatusWords();
    readIo(Inputs);
    readIo(Outputs);
}

void COV_SysDbgWnd::readPositions()
{
    BoardApi& board = m_context.board;
    const auto card = static_cast<CardNo>(m_card);
    AxisValueGridModel* values = m_positions->values();
    values->setPresentAxes(m_axisCount);
    takeScales();
    for (int axis = 0; axis < m_axisCount; ++axis) {
        const auto a = static_cast<AxisNo>(axis);
        if (m_positions->isCellVisible(CmdPos, axis))
            values->setValue(CmdPos, axis, board.GetCommandPos(m_family, card, a));
        if (m_positions->isCellVisible(ActPos, axis))
            values->setValue(ActPos, axis, board.GetActualPos(m_family, card, a));
        if (m_positions->isCellVisible(CmdVel, axis))
            values->setValue(CmdVel, axis, board.GetCommandSpeed(m_family, card, a));
    }
}

void COV_SysDbgWnd::takeScales()
{
    const AxisUnits& units = m_context.state.units;
    const std::tuple<int, int, int> now(units.revision(), familyIndex(m_family), m_card);
    if (now == m_scalesOf)
        return;
    m_scalesOf = now;
    m_positions->values()->setScales(
        units.shownScales(m_family, m_card, AxisValueGridModel::kAxes));
}

void COV_SysDbgWnd::readStatusWords()
{
    BoardApi& board = m_context.board;
    const auto card = static_cast<CardNo>(m_card);
    AxisValueGridModel* values = m_statuses->values();
    values->setPresentAxes(m_axisCount);
    for (int axis = 0; axis < m_axisCount; ++axis) {
        const auto a = static_cast<AxisNo>(axis);
        auto show = [&](int row, auto& read) {
            if (m_statuses->isCellVisible(row, axis))
                values->setValue(row, axis, read(m_family, card, a));
        };
        show(CardRow, board.GetCardStatus);
        show(DriveRow, board.GetDrvStatus);
        show(MainRow, board.GetMainStatus);
        show(ErrorRow, board.GetErrStatus);
        show(InputRow, board.GetInputStatus);
    }
}

void COV_SysDbgWnd::readIo(Side side)
{
    BoardApi& board = m_context.board;
    const auto card = static_cast<CardNo>(m_card);
    // The input count governs the outputs too, as it always has.
    const auto readBit = [&](int bit) {
        const auto b = static_cast<nrx_u16>(bit);
        return (side == Inputs ? board.GetDIBit(m_family, card, b)
                               : board.GetDOBit(m_family, card, b)) != 0;
    };
    const auto s = static_cast<std::size_t>(side);
    for (int group = 0; group < 2; ++group) {
        const auto g = static_cast<std::size_t>(group);
        QLineEdit* field = m_ioFields[s][g];
        auto& shown = m_ioShown[s][g];
        if (group == 1 && DigitalIoWords::bitsToRead(m_ioCount, group) == 0) {
            if (shown || !m_ioEmpty[s][g]) {
                shown.reset();
                m_ioEmpty[s][g] = true;
                field->clear();
            }
            continue;
        }
        const std::uint32_t word = DigitalIoWords::read(m_ioCount, group, readBit);
        if (shown != word) {
            shown = word;
            m_ioEmpty[s][g] = false;
            field->setText(DigitalIoWords::text(word));
        }
    }
}
