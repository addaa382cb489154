#pragma once

#include "SequenceTimer.h"

#include <QTimer>

// A SequenceTimer on a QTimer, for the running program.
class QtSequenceTimer : public SequenceTimer
{
public:
    QtSequenceTimer();

    void start(int intervalMs) override;
    void stop() override { m_timer.stop(); }
    bool isActive() const override { return m_timer.isActive(); }
    void setHandler(std::function<void()> handler) override { m_handler = std::move(handler); }

private:
    QTimer m_timer;
    std::function<void()> m_handler;
};
