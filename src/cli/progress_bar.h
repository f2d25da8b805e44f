#pragma once

#include <cstddef>
#include <mutex>

namespace kavela::cli {

/// A bar on standard error while many files are worked on; nothing where that is no terminal or
/// the work is short. It is gone again afterwards.
class ProgressBar {
public:
    explicit ProgressBar(std::size_t steps);
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar();

    /// One more step is done; may be called from any thread.
    void step();

private:
    void draw() const;

    std::size_t m_steps;
    std::size_t m_done = 0;
    bool m_isShown;
    std::mutex m_guard;
};

} // namespace kavela::cli
