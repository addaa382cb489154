#include "UnitEchoes.h"

#include "AppState.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {
// A field grid's columns: caption, field, unit, then a button on some rows.
constexpr int kButtonColumn = 3;
} // namespace

UnitEchoes::UnitEchoes(const AppState& state, std::function<Axis()> axis, QWidget* window)
    : QObject(window), m_state(state), m_axis(std::move(axis))
{
    window->installEventFilter(this);
}

void UnitEchoes::add(QLineEdit* field, Measure measure)
{
    auto* label = new QLabel(field->parentWidget());
    label->setObjectName(field->objectName() + QStringLiteral("Units"));
    if (auto* grid = qobject_cast<QGridLayout*>(field->parentWidget()->layout())) {
        int row = 0, column = 0, rows = 0, columns = 0;
        grid->getItemPosition(grid->indexOf(field), &row, &column, &rows, &columns);
        // The button column where the row has no button, so the page grows no wider.
        const bool buttonFree = grid->itemAtPosition(row, kButtonColumn) == nullptr;
        grid->addWidget(label, row, buttonFree ? kButtonColumn : kButtonColumn + 1);
    } else {
        label->hide(); // a field outside a field grid has no room beside it
    }
    QFont small = label->font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    label->setFont(small);
    m_echoes.push_back({field, label, measure});
    const Echo& added = m_echoes.back();
    connect(field, &QLineEdit::textChanged, this, [this, added] { echo(added); });
    // Echoed at once, so the window opens wide enough for them.
    refresh();
}

void UnitEchoes::refresh()
{
    const Axis axis = m_axis();
    m_scale = m_state.units.shownScale(axis.family, axis.card, axis.axis);
    for (const Echo& each : m_echoes)
        echo(each);
}

QLabel* UnitEchoes::echoOf(const QLineEdit* field) const
{
    for (const Echo& each : m_echoes)
        if (each.field == field)
            return each.label;
    return nullptr;
}

bool UnitEchoes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show)
        refresh();
    return QObject::eventFilter(watched, event);
}

void UnitEchoes::echo(const Echo& each) const
{
    bool ok = false;
    const double pulses = each.field->text().trimmed().toDouble(&ok);
    QString text;
    if (m_scale.isSet() && ok)
        text = QStringLiteral("= ") + (each.measure == Measure::Speed
                                           ? m_scale.formatSpeedWithUnit(pulses)
                                           : m_scale.formatWithUnit(pulses));
    if (each.label->text() != text)
        each.label->setText(text);
}
