#pragma once

#include "ScopeRecorder.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

// The scope's trigger row: the mode (Free Run, Axis Starts, Level), the trigger channel, and
// for a level trigger the direction and the level, typed in the channel's shown unit.
class ScopeTriggerControls : public QWidget
{
    Q_OBJECT

public:
    explicit ScopeTriggerControls(QWidget* parent = nullptr);

    ScopeRecorder::Trigger mode() const;
    int channel() const;
    ScopeRecorder::Edge edge() const;
    // The typed level; 0 while the text is not a number.
    double level() const;
    void setLevel(double level, int decimals);
    // Shows a kept setup: the mode, the channel and the direction.
    void setTrigger(ScopeRecorder::Trigger mode, int channel, ScopeRecorder::Edge edge);
    // Nothing changes under a running record.
    void setRunning(bool running);

signals:
    // The mode changed: the window enables what goes with it.
    void modeChanged();
    // The level or its channel changed: the window redraws the level line.
    void levelChanged();

private:
    QComboBox* m_mode = nullptr;
    QComboBox* m_channel = nullptr;
    QComboBox* m_edge = nullptr;
    QLineEdit* m_level = nullptr;
};
