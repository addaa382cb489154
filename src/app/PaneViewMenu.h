#pragma once

#include <QCoreApplication>
#include <QString>

#include <utility>
#include <vector>

class QMenu;
class QWidget;
class QDockWidget;

// The frame's View menu: a tick per pane and toolbar, so that a small screen can close or
// float them and bring them back (their places are kept with the frame's saved layout).
class PaneViewMenu
{
    Q_DECLARE_TR_FUNCTIONS(PaneViewMenu)

public:
    // A pane or toolbar and the name the menu gives it (the panes' titles name the card too).
    using Entry = std::pair<QWidget*, QString>;

    // Lets a pane be closed, moved to any side and floated.
    static void freePane(QDockWidget& pane);
    // The ticks follow the panes each time the menu opens.
    static QMenu* create(const std::vector<Entry>& entries, QWidget* parent);
};
