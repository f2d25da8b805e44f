#include "cli/progress_bar.h"

#include "cli/console.h"

#include <cstdio>
#include <string>

namespace kavela::cli {

namespace {
constexpr std::size_t ShortWork = 3;
constexpr std::size_t BarWidth = 40;
} // namespace

ProgressBar::ProgressBar(std::size_t steps)
    : m_steps(steps), m_isShown(steps > ShortWork && standardError().isTerminal) {}

ProgressBar::~ProgressBar() {
    if (m_isShown)
        std::fputs("\r\x1b[K", stderr);
}

void ProgressBar::step() {
    const std::lock_guard lock(m_guard);
    ++m_done;
    if (m_isShown)
        draw();
}

void ProgressBar::draw() const {
    const std::size_t filled = BarWidth * m_done / m_steps;
    const std::string bar = std::string(filled, '#') + std::string(BarWidth - filled, '.');
    std::fprintf(stderr, "\r[%s] %zu of %zu files", bar.c_str(), m_done, m_steps);
}

} // namespace kavela::cli
