#pragma once

#include <atomic>
#include <thread>

namespace nrxsim {

// The one lock a library's calls take in turn, in the order they came (a ticket lock), so a
// thread polling in a tight loop never starves another. Free, it costs a single atomic add,
// a fraction of a mutex's lock and unlock, which counts in reads the windows repeat every
// 10 ms; a waiting caller yields until its turn.
class CallLock
{
public:
    void lock()
    {
        const unsigned ticket = next_.fetch_add(1, std::memory_order_relaxed);
        while (serving_.load(std::memory_order_acquire) != ticket)
            std::this_thread::yield();
    }
    // Only the holder writes serving_, so a plain increment is enough.
    void unlock()
    {
        serving_.store(serving_.load(std::memory_order_relaxed) + 1, std::memory_order_release);
    }

private:
    std::atomic<unsigned> next_{0};
    std::atomic<unsigned> serving_{0};
};

} // namespace nrxsim
