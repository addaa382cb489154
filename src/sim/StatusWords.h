#pragma once

#include <cstdint>

namespace nrxsim {

class SimCard;

// The five status words of an axis and the stop bits of a stop code, in the boards' layouts.
class StatusWords
{
public:
    static uint16_t card(const SimCard& card, int axis, int64_t nowMs);
    static uint16_t drive(const SimCard& card, int axis);
    static uint16_t main(const SimCard& card, int axis);
    static uint16_t error(const SimCard& card, int axis);
    static uint16_t input(const SimCard& card, int axis);

    // The error word and the stop bits of the drive word that a stop with `code` leaves.
    static uint16_t errorBitsFor(int32_t code);
    static uint16_t stopBitsFor(int32_t code, bool rn);

private:
    static uint16_t inputBits(const SimCard& card, int axis);
};

} // namespace nrxsim
