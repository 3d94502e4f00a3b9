#pragma once

#include <benchmark/benchmark.h>
#include <chrono>

namespace bench {

using Seconds = std::chrono::duration<double>;

/// Most that a figure may be, as a multiple of its floor. For a floor that is itself the budget.
constexpr double WholeFloor = 1;

/// Tells scripts/bench what came out: \a value and \a floor in \a unit, and up to which ratio of the two the
/// promise is kept. The floor is measured in the same run, or the time that is allowed.
inline void tell(benchmark::State &state, double value, double floor, double most, const char *unit)
{
    state.counters["value"] = value;
    state.counters["floor"] = floor;
    state.counters["ratio"] = value / floor;
    state.counters["most"] = most;
    state.SetLabel(unit);
}

inline void tell(benchmark::State &state, Seconds value, Seconds floor, double most = WholeFloor)
{
    using Milliseconds = std::chrono::duration<double, std::milli>;
    tell(state, Milliseconds(value).count(), Milliseconds(floor).count(), most, "ms");
}

} // namespace bench
