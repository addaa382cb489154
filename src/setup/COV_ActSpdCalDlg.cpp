#include "COV_ActSpdCalDlg.h"

#include "AppState.h"
#include "BoardApi.h"
#include "DialogFlags.h"
#include "FieldText.h"
#include "PlotWidget.h"
#include "SpeedProfileCurve.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

enum Row
{
    DriveRow,
    InitialRow,
    AccelRow,
    DecelRow
};

const QColor kResultColour(0, 0, 255);
const QColor kRequestColour(160, 160, 160);

// Results read as blue text on the dialog's own face, not as inputs.
void styleResult(QLineEdit* edit, const QColor& text, bool transparent)
{
    edit->setStyleSheet(QStringLiteral("QLineEdit { color: %1; background: %2; }")
                            .arg(text.name(), transparent ? QStringLiteral("transparent")
                                                          : QStringLiteral("#2050a0")));
}

} // namespace

COV_ActSpdCalDlg::COV_ActSpdCalDlg(const ToolContext& context, QWidget* parent)
    : QDialog(parent, kDialogFlags), m_context(context), m_family(context.state.active.family)
{
    setWindowTitle(tr("Actual Speed Calculator"));
    auto* left = new QVBoxLayout;
    left->addWidget(createSelectors());
    left->addWidget(createFields());
    left->addStretch(1);
    left->addWidget(createButtons());
    m_plot = new PlotWidget(this);
    m_plot->setAxisTitles(tr("Time [ms]"), tr("Speed [pps]"));
    m_plot->setMinimumSize(420, 300);
    m_plot->setToolTip(tr("Requested (grey) and actual (blue) speed profile of one "
                          "move: ramp up, a short cruise, ramp down"));
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left);
    layout->addWidget(m_plot, 1);

    const AppState& state = m_context.state;
    for (int card = 0; card < state.registry.cardCount(m_family); ++card)
        m_cards->addItem(QString::number(card));
    m_cards->setCurrentIndex(qMax(0, qMin(state.active.card, m_cards->count() - 1)));
    fillAxisList();
    m_axes->setCurrentIndex(qMax(0, qMin(state.active.axis, m_axes->count() - 1)));

    connect(m_cards, &QComboBox::activated, this, [this] {
        fillAxisList();
        loadAxis();
    });
    connect(m_axes, &QComboBox::activated, this, [this] { loadAxis(); });
    connect(m_rangeMode, &QComboBox::currentIndexChanged, this, [this] { applyRangeMode(); });
    loadAxis();
}

QWidget* COV_ActSpdCalDlg::createSelectors()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_cards = new QComboBox(row);
    m_axes = new QComboBox(row);
    layout->addWidget(new QLabel(tr("Card No. : "), row));
    layout->addWidget(m_cards);
    layout->addSpacing(12);
    layout->addWidget(new QLabel(tr("Axis No. : "), row));
    layout->addWidget(m_axes);
    layout->addStretch(1);
    return row;
}

QWidget* COV_ActSpdCalDlg::createFields()
{
    auto* box = new QGroupBox(this);
    auto* grid = new QGridLayout(box);
    grid->addWidget(new QLabel(tr("Request"), box), 0, 1, Qt::AlignCenter);
    grid->addWidget(new QLabel(tr("Actual"), box), 0, 2, Qt::AlignCenter);
    const QString names[] = {tr(" Drive Speed"), tr(" Initial Speed"), tr(" Accel Time"),
                             tr(" Decel Time")};
    const QString units[] = {tr("[pps]"), tr("[pps]"), tr("[msec]"), tr("[msec]")};
    for (int row = 0; row < 4; ++row) {
        grid->addWidget(new QLabel(names[row], box), row + 1, 0);
        m_inputs[row] = new QLineEdit(box);
        m_outputs[row] = new QLineEdit(box);
        m_outputs[row]->setReadOnly(true);
        m_outputs[row]->setFocusPolicy(Qt::NoFocus);
        styleResult(m_outputs[row], kResultColour, true);
        for (QLineEdit* edit : {m_inputs[row], m_outputs[row]}) {
            edit->setAlignment(Qt::AlignRight);
            edit->setFixedWidth(90);
        }
        grid->addWidget(m_inputs[row], row + 1, 1);
        grid->addWidget(m_outputs[row], row + 1, 2);
        grid->addWidget(new QLabel(units[row], box), row + 1, 3);
    }
    grid->addWidget(new QLabel(tr(" Speed Mode"), box), 5, 0);
    m_speedMode = new QComboBox(box);
    m_speedMode->addItems({tr("Trapezoid"), tr("Paravola(S-Curve)")});
    grid->addWidget(m_speedMode, 5, 1, 1, 2);
    grid->addWidget(new QLabel(tr(" Range Mode"), box), 6, 0);
    m_rangeMode = new QComboBox(box);
    m_rangeMode->addItems({tr("Automatic Range"), tr("Fixed Range")});
    grid->addWidget(m_rangeMode, 6, 1, 1, 2);
    grid->addWidget(new QLabel(tr(" Range"), box), 7, 0);
    m_range = new QLineEdit(box);
    m_range->setAlignment(Qt::AlignRight);
    m_range->setFixedWidth(90);
    m_range->setToolTip(tr("Speed magnification R: speeds are whole multiples of R, "
                           "from R to R x 8000 pps"));
    grid->addWidget(m_range, 7, 1);
    m_rangeText = new QLineEdit(box);
    m_rangeText->setReadOnly(true);
    m_rangeText->setFocusPolicy(Qt::NoFocus);
    styleResult(m_rangeText, kResultColour, true);
    grid->addWidget(m_rangeText, 7, 2, 1, 2);
    return box;
}

QWidget* COV_ActSpdCalDlg::createButtons()
{
    auto* row = new QWidget(this);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* calculateButton = new QPushButton(tr("Calculate"), row);
    auto* closeButton = new QPushButton(tr("Close"), row);
    calculateButton->setObjectName(QStringLiteral("calculate"));
    calculateButton->setDefault(true);
    layout->addStretch(1);
    layout->addWidget(calculateButton);
    layout->addWidget(closeButton);
    connect(calculateButton, &QPushButton::clicked, this, [this] { calculate(); });
    connect(closeButton, &QPushButton::clicked, this, &QDialog::reject);
    return row;
}

void COV_ActSpdCalDlg::fillAxisList()
{
    const int axes = m_context.state.registry.axisCount(m_family, m_cards->currentIndex());
    const int selection = m_axes->currentIndex();
    m_axes->clear();
    for (int axis = 0; axis < axes; ++axis)
        m_axes->addItem(QString::number(axis));
    m_axes->setCurrentIndex(selection >= 0 && selection < axes ? selection : 0);
}

void COV_ActSpdCalDlg::loadAxis()
{
    BoardApi& board = m_context.board;
    const auto card = static_cast<CardNo>(qMax(0, m_cards->currentIndex()));
    const auto axis = static_cast<AxisNo>(qMax(0, m_axes->currentIndex()));
    const int speedMode = board.GetSpeedMode(m_family, card, axis);
    int range = board.GetRangeMode(m_family, card, axis);
    const int rangeMode = board.GetFixedRange(m_family, card, axis);
    nrx_i32 initial = 0, drive = 0, accel = 0, decel = 0;
    board.GetPosSpeed(m_family, card, axis, &initial, &drive, &accel, &decel);
    // A fresh board reports magnification 0 and runs at 100.
    if (range == 0)
        range = 100;
    m_speedMode->setCurrentIndex(qBound(0, speedMode, 1));
    m_rangeMode->setCurrentIndex(qBound(0, rangeMode, 1));
    applyRangeMode();
    m_boardRange = range;
    setFieldNumber(m_range, range);
    showRange(range);
    setFieldNumber(m_inputs[DriveRow], drive);
    setFieldNumber(m_inputs[InitialRow], initial);
    setFieldNumber(m_inputs[AccelRow], accel);
    setFieldNumber(m_inputs[DecelRow], decel);
    calculate();
}

void COV_ActSpdCalDlg::applyRangeMode()
{
    const bool fixed = m_rangeMode->currentIndex() == ActualSpeedCalculator::FixedRange;
    m_range->setReadOnly(!fixed);
    // Blue marks the magnification the board chose; a fixed one is the user's own.
    styleResult(m_range, fixed ? QColor(Qt::white) : kResultColour, !fixed);
}

void COV_ActSpdCalDlg::showRange(int magnification)
{
    m_rangeText->setText(QStringLiteral("(%1 ~ %2)")
                             .arg(magnification)
                             .arg(magnification * ActualSpeedCalculator::kRegisterMax));
}

ActualSpeedCalculator::Request COV_ActSpdCalDlg::readRequest() const
{
    ActualSpeedCalculator::Request request;
    request.speedMode = m_speedMode->currentIndex();
    request.rangeMode = m_rangeMode->currentIndex();
    // The automatic range shows what each calculation chose, so the next one starts again
    // from the board's magnification instead of narrowing step by step.
    request.range = request.rangeMode == ActualSpeedCalculator::FixedRange ? fieldNumber(m_range)
                                                                           : m_boardRange;
    request.drive = fieldNumber(m_inputs[DriveRow]);
    request.initial = fieldNumber(m_inputs[InitialRow]);
    request.accelMs = fieldNumber(m_inputs[AccelRow]);
    request.decelMs = fieldNumber(m_inputs[DecelRow]);
    return request;
}

void COV_ActSpdCalDlg::calculate()
{
    const ActualSpeedCalculator::Request request = readRequest();
    const ActualSpeedCalculator::Result result = ActualSpeedCalculator::calculate(request);
    setFieldNumber(m_range, result.magnification);
    showRange(result.magnification);
    setFieldNumber(m_outputs[DriveRow], result.driveSpeed);
    setFieldNumber(m_outputs[InitialRow], result.initialSpeed);
    // Shown truncated to whole milliseconds.
    setFieldNumber(m_outputs[AccelRow], static_cast<int>(result.accelTimeMs));
    setFieldNumber(m_outputs[DecelRow], static_cast<int>(result.decelTimeMs));
    drawProfile(request, result);
}

void COV_ActSpdCalDlg::drawProfile(const ActualSpeedCalculator::Request& request,
                                   const ActualSpeedCalculator::Result& result)
{
    const SpeedProfileCurve::Ramps asked = SpeedProfileCurve::requested(request);
    const SpeedProfileCurve::Ramps made = SpeedProfileCurve::actual(request, result);
    const double cruise = SpeedProfileCurve::cruiseFor(asked, made);
    m_plot->setSeries(0, SpeedProfileCurve::points(asked, cruise), kRequestColour, tr("Request"));
    m_plot->setSeries(1, SpeedProfileCurve::points(made, cruise), kResultColour, tr("Actual"));
}
