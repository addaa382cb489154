#include "BoardCallTrace.h"

BoardCallTrace::BoardCallTrace(std::size_t capacity)
    : m_entries(capacity > 0 ? capacity : 1), m_start(Clock::now())
{}
