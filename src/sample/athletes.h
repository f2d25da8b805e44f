#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavela::sample {

/// One boat of the season: an invented athlete, or two in a double.
struct Boat {
    std::vector<std::string> names;
    std::string nationality;
    std::string category; ///< "K1M", "K1W", "C1M", "C1W", "C2X"
    std::string hand;     ///< "Left" or "Right"
    std::int64_t bib = 0;
    double pace = 1;         ///< 1 for the fastest kayak there could be, more for a slower boat
    double upstreamPace = 1; ///< the same at upstream gates only, on top of the other
    double steadiness = 1;   ///< around 1; a higher one varies less and touches fewer gates

    /// "Ann Ada", or "Ann Ada - Bo Bead" for a double.
    [[nodiscard]] std::string crew() const;
};

/// Every boat of the season, by category and bib.
[[nodiscard]] std::vector<Boat> sampleBoats();

/// The boats of one category.
[[nodiscard]] std::vector<Boat> sampleBoats(std::string_view category);

} // namespace kavela::sample
