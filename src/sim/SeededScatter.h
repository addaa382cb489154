#pragma once

#include <cstdint>

namespace nrxsim {

// Repeatable scatter for the simulated imperfections of a machine: the same seed gives the
// same sequence on every run and every platform, so a test of them repeats.
class SeededScatter
{
public:
    explicit SeededScatter(uint64_t seed) : state_(seed) {}

    // A whole number from -bound to bound; 0 without drawing when bound is 0.
    int64_t within(int64_t bound);

private:
    uint64_t next();

    uint64_t state_;
};

} // namespace nrxsim
