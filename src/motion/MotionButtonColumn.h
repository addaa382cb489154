#pragma once

#include "MotionTypes.h"

#include <QWidget>

class FrameRelay;
class JogReleaseGuard;
class MotionButtonActions;
class QPushButton;
class QVBoxLayout;
class ToolView;

// The button column of both motion windows: the stops and the servo on top, "-" and "+" in
// the middle, the outputs and the tool buttons below and "Close" at the bottom, at one width
// whatever the captions say, so the stop buttons never move.
class MotionButtonColumn : public QWidget
{
    Q_OBJECT

public:
    // The single-axis window carries "Set Prm" in the column, the multi-axis one beside its
    // fields.
    explicit MotionButtonColumn(bool withSetPrm, QWidget* parent = nullptr);
    ~MotionButtonColumn() override;

    // Wires every button: the motion and output buttons to `actions`, the tool buttons to
    // the frame, "Close" to the window. A jog ends as well when the pointer leaves its button
    // or the focus leaves the window.
    void connectTo(MotionButtonActions& actions, ToolView& window, FrameRelay& frame);
    // Before the window's sequencer goes: nothing may reach it any more.
    void disconnectActions();

    // "-" and "+" as the motion type names them; one wide button for a home search or an
    // automatic absolute repeat.
    void showMotionCaptions(bool home, MotionType type, bool autoMove);
    void showServo(bool on);
    // A widget right under "-" and "+" (the single-axis window's own axis).
    void addUnderMotionButtons(QWidget* widget);

    QPushButton* eStop = nullptr;
    QPushButton* sStop = nullptr;
    QPushButton* servo = nullptr;
    QPushButton* minus = nullptr;
    QPushButton* plus = nullptr;
    QPushButton* alarmReset = nullptr;
    QPushButton* counterClear = nullptr;
    QPushButton* setPrm = nullptr; // null without
    QPushButton* parameterSetup = nullptr;
    QPushButton* scope = nullptr;
    QPushButton* close = nullptr;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* createMotionButtons();
    void keepWidth();

    QVBoxLayout* m_rest = nullptr; // the part under the stops, which scrolls
    QWidget* m_motionRow = nullptr;
    MotionButtonActions* m_actions = nullptr;
    JogReleaseGuard* m_jogGuard = nullptr;
};
