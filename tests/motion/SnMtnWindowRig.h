#pragma once

#include "AppState.h"
#include "BoardApi.h"
#include "COV_SnMtnWnd.h"
#include "ManualClockwork.h"
#include "RecordingFrame.h"
#include "ScriptedPrompt.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

#include <memory>

// The single-axis window on hand-stepped timers, with the test prompts and frame, and its
// controls reached by name as a user would reach them.
struct SnMtnWindowRig
{
    BoardApi api;
    AppState state;
    ScriptedPrompt prompt;
    RecordingFrame frame;
    ManualClockwork clockwork;
    ToolContext context{state, api, prompt, frame};
    std::unique_ptr<COV_SnMtnWnd> window;

    COV_SnMtnWnd& open()
    {
        window = std::make_unique<COV_SnMtnWnd>(context, clockwork);
        return *window;
    }
    template <typename T> T* find(const char* name) const
    {
        T* widget = window->findChild<T*>(QLatin1String(name));
        Q_ASSERT(widget);
        return widget;
    }
    QPushButton* button(const char* name) const { return find<QPushButton>(name); }
    QLineEdit* edit(const char* name) const { return find<QLineEdit>(name); }
    void setText(const char* name, const char* text) const { edit(name)->setText(text); }
    QString text(const char* name) const { return edit(name)->text(); }
    void selectTab(MotionTab tab) const { find<QTabBar>("tabBar")->setCurrentIndex(int(tab)); }
    void choose(const char* comboName, int index) const
    {
        auto* combo = find<QComboBox>(comboName);
        combo->setCurrentIndex(index);
        emit combo->activated(index);
    }
    void pointToPoint(MotionType type, bool repeat = false) const
    {
        selectTab(MotionTab::PointToPoint);
        choose("motionType", int(type));
        if (repeat)
            find<QCheckBox>("repeat")->click();
    }
    bool axesMoving() const { return state.active.axesMoving[0] != 0; }
};
