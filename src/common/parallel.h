#pragma once

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace kavela {

/// Calls `work(0)` to `work(count - 1)` on all cores, in no particular order. The first exception
/// is thrown again here, after every thread has stopped.
template <class Work>
void parallelFor(std::size_t count, const Work& work) {
    std::atomic<std::size_t> next = 0;
    std::exception_ptr failure;
    std::mutex failureGuard;
    const auto run = [&] {
        for (std::size_t i = next++; i < count; i = next++) {
            try {
                work(i);
            } catch (...) {
                const std::lock_guard lock(failureGuard);
                if (!failure)
                    failure = std::current_exception();
                next = count;
            }
        }
    };
    {
        const std::size_t cores = std::max(std::thread::hardware_concurrency(), 1U);
        std::vector<std::jthread> threads;
        for (std::size_t i = 1; i < std::min(cores, count); ++i)
            threads.emplace_back(run);
        run();
    }
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace kavela
