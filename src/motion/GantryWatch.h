#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>

// The gantry check's clock: while on, a precise 1 ms timer runs the check, and the watch
// keeps how regularly the periods really came.
class GantryWatch : public QObject
{
public:
    static constexpr int kIntervalMs = 1;

    explicit GantryWatch(std::function<void()> check, QObject* parent = nullptr);

    void setOn(bool on);
    bool isOn() const { return m_timer.isActive(); }
    // One period: the statistics, then the check.
    void tick();

    double meanPeriodMs() const;
    double longestPeriodMs() const { return static_cast<double>(m_longestNs) / 1e6; }
    qint64 ticks() const { return m_ticks; }

private:
    std::function<void()> m_check;
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_firstNs = 0;
    qint64 m_lastNs = -1;
    qint64 m_longestNs = 0;
    qint64 m_ticks = 0;
};
