#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <optional>

namespace kavela::bench {

/// Times the making of a value out of (or into) so many bytes of text; throwing the value away
/// again does not count.
template <class Make>
void measureMaking(benchmark::State& state, std::size_t bytes, Make make) {
    for ([[maybe_unused]] const auto iteration : state) {
        std::optional made(make());
        benchmark::DoNotOptimize(made);
        state.PauseTiming();
        made.reset();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

} // namespace kavela::bench
