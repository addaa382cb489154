#include "DigitalPointPage.h"

#include "CLedButton.h"
#include "DigitalIoModel.h"
#include "LedFaces.h"
#include "OutputButton.h"

#include <QGridLayout>

namespace {
constexpr int kRows = 8;
} // namespace

DigitalPointPage::DigitalPointPage(Side side, QWidget* parent) : QWidget(parent), m_side(side)
{
    QPalette grey = palette();
    grey.setColor(QPalette::Window, LedFaces::groundColor(LedGround::Grey));
    setPalette(grey);
    setAutoFillBackground(true);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(6, 6, 6, 6);
    grid->setHorizontalSpacing(6);
    grid->setVerticalSpacing(2);
    for (int position = 0; position < kPositions; ++position) {
        QAbstractButton* widget = nullptr;
        const auto index = static_cast<std::size_t>(position);
        if (side == Inputs) {
            auto* lamp = new CLedButton(this);
            lamp->setFocusPolicy(Qt::NoFocus);
            lamp->setFixedSize(44, 20);
            m_lamps[index] = lamp;
            widget = lamp;
        } else {
            auto* button = new OutputButton(this);
            button->setFixedSize(52, 22);
            connect(button, &OutputButton::clicked, this,
                    [this, position] { emit pointClicked(position); });
            m_buttons[index] = button;
            widget = button;
        }
        widget->setObjectName(QStringLiteral("point%1").arg(position));
        grid->addWidget(widget, position % kRows, position / kRows);
    }
}

QAbstractButton* DigitalPointPage::point(int position) const
{
    const auto index = static_cast<std::size_t>(position);
    return m_side == Inputs ? static_cast<QAbstractButton*>(m_lamps[index]) : m_buttons[index];
}

CLedButton* DigitalPointPage::lamp(int position) const
{
    return m_lamps[static_cast<std::size_t>(position)];
}

OutputButton* DigitalPointPage::button(int position) const
{
    return m_buttons[static_cast<std::size_t>(position)];
}

bool DigitalPointPage::isShownOn(int position) const
{
    return m_side == Inputs ? lamp(position)->state() == 1 : button(position)->isOn();
}

void DigitalPointPage::setUp(const DigitalIoModel& model)
{
    const bool inputs = m_side == Inputs;
    const int page = inputs ? model.inputPage() : model.outputPage();
    const QString kind = inputs ? tr("Input") : tr("Output");
    const QPixmap off = LedFaces::face(LedLamp::Grey, LedGround::Grey);
    const QPixmap on = LedFaces::face(inputs ? LedLamp::Green : LedLamp::Red, LedGround::Grey);
    const QPixmap flat = LedFaces::face(LedLamp::Flat, LedGround::Grey);
    for (int position = 0; position < kPositions; ++position) {
        const bool present = DigitalIoModel::isPresent(model.ioCount(), page, position);
        const int number = page * kPositions + position;
        if (inputs) {
            CLedButton* led = lamp(position);
            led->SetStateCount(2, true);
            for (unsigned state = 0; state < 2; ++state)
                led->SetStateColors(state, led->stateTextColor(state),
                                    LedFaces::groundColor(LedGround::Grey));
            led->SetStateIconHandle(0, present ? off : flat);
            led->SetStateIconHandle(1, present ? on : flat);
            led->SetState(0);
        } else {
            button(position)->setFaces(present ? off : flat, present ? on : flat);
            button(position)->setEnabled(present);
        }
        QAbstractButton* widget = point(position);
        widget->setText(QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')));
        if (!present)
            widget->setToolTip(tr("%1 %2: not on this card").arg(kind).arg(number));
        else if (inputs)
            widget->setToolTip(
                tr("Input %1: green while the input is on, grey while off").arg(number));
        else
            widget->setToolTip(
                tr("Output %1: red while the output is on; click to switch it over").arg(number));
    }
}

void DigitalPointPage::showChanges(std::uint32_t changed, std::uint32_t word)
{
    for (int position = 0; changed != 0 && position < kPositions; ++position) {
        const std::uint32_t bit = 1U << position;
        if ((changed & bit) != 0) {
            changed &= ~bit;
            showPoint(position, (word & bit) != 0);
        }
    }
}

void DigitalPointPage::showPoint(int position, bool on)
{
    if (m_side == Inputs)
        lamp(position)->SetState(on ? 1 : 0);
    else
        button(position)->setOn(on);
}
