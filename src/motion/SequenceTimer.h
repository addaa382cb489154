#pragma once

#include <functional>

// A repeating timer of the motion sequencing. Whoever owns it decides how it fires: a QTimer in
// the program, a hand-stepped one in tests.
class SequenceTimer
{
public:
    virtual ~SequenceTimer() = default;
    // (Re)starts with the period in milliseconds; a running timer begins a new period.
    virtual void start(int intervalMs) = 0;
    virtual void stop() = 0;
    virtual bool isActive() const = 0;
    virtual void setHandler(std::function<void()> handler) = 0;
};
