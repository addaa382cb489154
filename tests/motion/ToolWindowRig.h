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

#include <functional>
#include <memory>

// A motion window on hand-stepped timers, with the test prompts and frame, and its controls
// reached by name as a user would reach them.
template <typename Window = COV_SnMtnWnd> struct ToolWindowRig
{
    BoardApi api;
    AppState state;
    ScriptedPrompt prompt;
    RecordingFrame frame;
    ManualClockwork clockwork;
    ToolContext context{state, api, prompt, frame};
    std::unique_ptr<Window> window;

    Window& open()
    {
        window = std::make_unique<Window>(context, nullptr, &clockwork);
        return *window;
    }
    template <typename T> T* find(const char* name) const
    {
        T* widget = window->template findChild<T*>(QLatin1String(name));
        Q_ASSERT(widget);
        return widget;
    }
    QPushButton* button(const char* name) const { return find<QPushButton>(name); }
    QLineEdit* edit(const char* name) const { return find<QLineEdit>(name); }
    void setText(const char* name, const QString& text) const { edit(name)->setText(text); }
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
    QRect placeOf(const char* name) const
    {
        QWidget* widget = find<QWidget>(name);
        return QRect(widget->mapTo(window.get(), QPoint()), widget->size());
    }
    bool axesMoving() const { return state.active.axesMoving[0] != 0; }
    // Moves the simulated boards on by one millisecond, where a test has them.
    std::function<void()> advance = [] {};

    // Runs boards and window together until the sequence is over (at most a minute).
    template <typename F> bool runToEnd(F eachMs)
    {
        for (int ms = 0; ms < 60000; ++ms) {
            if (!window->sequencer().isMoving() && !clockwork.anyActive())
                return true;
            clockwork.run(1, [&] {
                advance();
                eachMs();
            });
        }
        return false;
    }
    bool runToEnd()
    {
        return runToEnd([] {});
    }
    void run(int ms) { clockwork.run(ms, advance); }
};
