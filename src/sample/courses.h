#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kavela::sample {

/// A course as it was hung.
struct Course {
    std::string place;
    std::string water;
    std::vector<std::int64_t> upGates;
    std::vector<std::int64_t> sectionEnds; ///< last gate of each section
    std::vector<std::string> sectionNames; ///< empty: named after their gates
    double bestSeconds = 0;                ///< of the fastest kayak there could be
    double latitude = 0;                   ///< of the start, degrees
    double longitude = 0;                  ///< of the start, degrees

    [[nodiscard]] std::int64_t gates() const { return sectionEnds.back(); }
    [[nodiscard]] bool isUpstream(std::int64_t gate) const;
    /// The gate numbers of each section.
    [[nodiscard]] std::vector<std::vector<std::int64_t>> sections() const;
    [[nodiscard]] std::vector<std::string> titles() const;
    /// Seconds of the fastest kayak from each gate to the next one, from the start to the finish:
    /// one more than there are gates.
    [[nodiscard]] std::vector<double> legs() const;
};

[[nodiscard]] Course riverside();
[[nodiscard]] Course oldMill();
[[nodiscard]] Course highland();
[[nodiscard]] Course harbour();
[[nodiscard]] Course homeWater();

} // namespace kavela::sample
