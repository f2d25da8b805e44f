#include "desktop/charts/sample_pyramid.h"

#include <algorithm>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr std::size_t Block = 16;

template <class Value>
std::vector<Extent> blocksOf(const std::vector<Value>& row) {
    std::vector<Extent> blocks((row.size() + Block - 1) / Block);
    for (std::size_t i = 0; i < row.size(); ++i)
        blocks[i / Block].add(row[i]);
    return blocks;
}

} // namespace

void Extent::add(double value) {
    if (!std::isfinite(value))
        return;
    low = std::min(low, value);
    high = std::max(high, value);
}

void Extent::add(const Extent& other) {
    low = std::min(low, other.low);
    high = std::max(high, other.high);
}

SamplePyramid::SamplePyramid(std::shared_ptr<const std::vector<double>> values)
    : m_values(std::move(values)) {
    if (m_values->size() <= Block)
        return;
    m_levels.push_back(blocksOf(*m_values));
    while (m_levels.back().size() > Block)
        m_levels.push_back(blocksOf(m_levels.back()));
}

Extent SamplePyramid::over(std::size_t begin, std::size_t end) const {
    Extent extent;
    end = std::min(end, m_values->size());
    const auto take = [&](const auto& row, std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i)
            extent.add(row[i]);
    };
    // The ends that fill no whole block are taken at each level, the blocks between them above.
    for (std::size_t level = 0; begin < end; ++level) {
        const bool isTop = level == m_levels.size();
        const std::size_t first = isTop ? end : std::min(end, (begin + Block - 1) / Block * Block);
        const std::size_t last = isTop ? end : std::max(first, end / Block * Block);
        if (level == 0) {
            take(*m_values, begin, first);
            take(*m_values, last, end);
        } else {
            take(m_levels[level - 1], begin, first);
            take(m_levels[level - 1], last, end);
        }
        begin = first / Block;
        end = last / Block;
    }
    return extent;
}

} // namespace kavela::desktop
