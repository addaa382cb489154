#include "PaneViewMenu.h"

#include <QAction>
#include <QDockWidget>
#include <QMenu>

void PaneViewMenu::freePane(QDockWidget& pane)
{
    pane.setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable |
                     QDockWidget::DockWidgetFloatable);
    pane.setAllowedAreas(Qt::AllDockWidgetAreas);
}

QMenu* PaneViewMenu::create(const std::vector<Entry>& entries, QWidget* parent)
{
    auto* menu = new QMenu(tr("&View"), parent);
    menu->setObjectName(QStringLiteral("ViewMenu"));
    std::vector<std::pair<QAction*, QWidget*>> ticks;
    for (const auto& [widget, name] : entries) {
        QAction* tick = menu->addAction(name);
        tick->setCheckable(true);
        QObject::connect(tick, &QAction::triggered, widget, &QWidget::setVisible);
        ticks.emplace_back(tick, widget);
    }
    QObject::connect(menu, &QMenu::aboutToShow, menu, [ticks] {
        for (const auto& [tick, widget] : ticks)
            tick->setChecked(!widget->isHidden());
    });
    return menu;
}
