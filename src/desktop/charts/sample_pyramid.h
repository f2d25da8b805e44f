#pragma once

#include <cstddef>
#include <limits>
#include <memory>
#include <vector>

namespace kavela::desktop {

/// The least and the greatest of some values.
struct Extent {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    [[nodiscard]] bool isEmpty() const { return !(low <= high); }
    void add(double value); ///< left out where it is not finite
    void add(const Extent& other);
};

/// Answers for any range of a long row of samples which is its least and its greatest, in a time
/// that hardly grows with the range. Takes about a seventh of the samples' own memory.
class SamplePyramid {
public:
    explicit SamplePyramid(std::shared_ptr<const std::vector<double>> values);

    /// Of the samples from `begin` to before `end`; empty where none of them is finite.
    [[nodiscard]] Extent over(std::size_t begin, std::size_t end) const;

private:
    std::shared_ptr<const std::vector<double>> m_values;
    std::vector<std::vector<Extent>> m_levels; ///< each over blocks of the one before
};

} // namespace kavela::desktop
