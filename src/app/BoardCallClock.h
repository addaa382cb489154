#pragma once

#include <QObject>

class BoardCallTrace;

// Tells the board call trace when the program starts delivering another event, so the calls
// an event handler makes carry times read during that handler while the trace reads its clock
// only every few calls. Installed on the application, it sees every event.
class BoardCallClock : public QObject
{
    Q_OBJECT

public:
    // A burst of calls in one handler reads the clock once per this many calls.
    static constexpr int kClockEvery = 16;

    explicit BoardCallClock(BoardCallTrace& trace, QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    BoardCallTrace& m_trace;
};
