#include "MultiAxisForm.h"

#include "CardSelectorRow.h"
#include "MotionButtonColumn.h"
#include "NamedButton.h"
#include "PageFieldGrid.h"
#include "SnugScrollArea.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr const char* kMsec = QT_TRANSLATE_NOOP("MultiAxisForm", "[msec]");
constexpr const char* kPulse = QT_TRANSLATE_NOOP("MultiAxisForm", "[pulse]");

QCheckBox* makeCheckBox(const QString& caption, const char* name)
{
    auto* box = new QCheckBox(caption);
    box->setObjectName(QLatin1String(name));
    return box;
}
// Narrows a field group: captions at their own width, short edits, and no button column
// unless the group has buttons.
void compact(QGroupBox* group, bool buttons)
{
    auto* grid = static_cast<QGridLayout*>(group->layout());
    grid->setColumnMinimumWidth(0, 0);
    if (!buttons)
        grid->setColumnMinimumWidth(3, 0);
    for (QLineEdit* edit : group->findChildren<QLineEdit*>())
        edit->setMaximumWidth(90);
}

// A row across the whole group below its fields.
void addSpanningRow(QGroupBox* group, QWidget* first, QWidget* second)
{
    auto* grid = static_cast<QGridLayout*>(group->layout());
    auto* row = new QHBoxLayout;
    row->addWidget(first);
    row->addStretch();
    row->addWidget(second);
    grid->addLayout(row, grid->rowCount(), 0, 1, grid->columnCount());
}
} // namespace

MultiAxisForm::MultiAxisForm(QWidget* window)
{
    // Three narrow columns, so the window fits beside the docked panes on a small screen.
    auto* layout = new QHBoxLayout(window);
    // The fields scroll on a small screen; the button column beside them does not.
    auto* fields = new QWidget;
    auto* columns = new QHBoxLayout(fields);
    columns->setContentsMargins(0, 0, 0, 0);
    auto* left = new QVBoxLayout;
    left->addWidget(createAxisColumn());
    left->addWidget(createCounterGroup());
    left->addWidget(createGantryGroup());
    left->addStretch();
    columns->addLayout(left);
    auto* middle = new QVBoxLayout;
    middle->addWidget(createProfileGroup());
    middle->addWidget(createRepeatGroup());
    middle->addStretch();
    columns->addLayout(middle);
    layout->addWidget(new SnugScrollArea(fields), 1);
    layout->addWidget(createButtonColumn());
}

QWidget* MultiAxisForm::createAxisColumn()
{
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    cardRow = new CardSelectorRow;
    layout->addWidget(cardRow);
    layout->addWidget(new QLabel(tr("Select Axis")));
    axisList = new QListWidget;
    axisList->setObjectName(QStringLiteral("axisList"));
    axisList->setToolTip(tr("Tick the axes that move together; the highlighted "
                            "axis is the one the fields show"));
    axisList->setMaximumHeight(8 * 19 + 6);
    layout->addWidget(axisList);
    allAxes = makeCheckBox(tr(" All Axes"), "allAxes");
    layout->addWidget(allAxes);
    return column;
}

QWidget* MultiAxisForm::createProfileGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    profile.addTo(grid);
    setAll = makeCheckBox(tr(" Set All Selected Axes"), "setAll");
    setPrm = makeNamedButton(tr("Set Prm"), "setPrmButton");
    addSpanningRow(group, setAll, setPrm);
    compact(group, false);
    return group;
}

QWidget* MultiAxisForm::createRepeatGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    repeat = makeCheckBox(tr(" Repeat"), "repeat");
    infinite = makeCheckBox(tr("Infinite"), "infinite");
    grid.addRow(repeat, infinite);
    count = grid.addField(tr(" Count"), QString(), "count");
    delay = grid.addField(tr(" Delay Time"), tr(kMsec), "delayTime");
    position1 = grid.addField(tr(" Position 1"), tr(kPulse), "position1");
    position2 = grid.addField(tr(" Position 2"), tr(kPulse), "position2", &position2Label);
    applyAll = makeCheckBox(tr(" Apply All Selected Axes"), "applyAll");
    apply = makeNamedButton(tr("Apply"), "applyButton");
    addSpanningRow(group, applyAll, apply);
    compact(group, false);
    return group;
}

QWidget* MultiAxisForm::createCounterGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    setCommand = grid.addField(tr(" Set Command"), tr(kPulse), "setCommand");
    commandButton = grid.addButton(tr("Command"), "commandButton");
    setActual = grid.addField(tr(" Set Actual"), tr(kPulse), "setActual");
    actualButton = grid.addButton(tr("Actual"), "actualButton");
    repeatCount = grid.addField(tr(" Repeat Count"), QString(), "repeatCount");
    cycleTime = grid.addField(tr(" Cycle Time"), tr(kMsec), "cycleTime");
    for (QLineEdit* display : {repeatCount, cycleTime})
        display->setReadOnly(true);
    compact(group, true);
    return group;
}

QWidget* MultiAxisForm::createGantryGroup()
{
    auto* group = new QGroupBox;
    PageFieldGrid grid(group);
    gantryBox = makeCheckBox(tr(" Gantry Error Check"), "gantryCheck");
    gantryBox->setToolTip(tr("Every millisecond while the axes move, compare "
                             "each checked axis with the next; stop them all "
                             "when two differ by more than the error limit"));
    grid.addRow(gantryBox, new QWidget);
    gantrySource = new QComboBox;
    gantrySource->setObjectName(QStringLiteral("gantrySource"));
    gantrySource->addItems({tr("0 : Command"), tr("1 : Actual")});
    grid.addRow(tr(" Position"), gantrySource);
    errorLimitEdit = grid.addField(tr(" Error Limit "), tr(kPulse), "errorLimit");
    compact(group, false);
    return group;
}

QWidget* MultiAxisForm::createButtonColumn()
{
    buttons = new MotionButtonColumn(false);
    buttons->eStop->setToolTip(tr("Stop the checked axes at once"));
    buttons->sStop->setToolTip(tr("Stop the checked axes with their deceleration"));
    buttons->scope->setToolTip(tr("Record the axes' positions and speeds"));
    return buttons;
}
