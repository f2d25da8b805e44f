#include "statistics/places.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <stdexcept>

namespace kavela {

namespace {

constexpr std::size_t Cells = 2000;

/// The results that boats can have, cut into cells.
struct ResultCells {
    double first = 0; ///< midpoint of the first cell
    double width = 0;

    [[nodiscard]] double midpoint(std::size_t cell) const {
        return first + static_cast<double>(cell) * width;
    }
};

void askForOdds(std::span<const BoatOdds> boats) {
    for (const BoatOdds& boat : boats)
        if (!std::isfinite(boat.mean) || !std::isfinite(boat.spread) || !(boat.spread > 0) ||
            !(boat.fail >= 0 && boat.fail <= 1))
            throw std::invalid_argument("a boat needs a mean, a spread above 0 and a chance");
}

ResultCells cellsFor(std::span<const BoatOdds> boats) {
    constexpr double Reach = 6;
    const auto [best, worst] = std::ranges::minmax(boats, {}, &BoatOdds::mean);
    const double margin = Reach * std::ranges::max(boats, {}, &BoatOdds::spread).spread;
    const double width = (worst.mean - best.mean + 2 * margin) / static_cast<double>(Cells);
    return {best.mean - margin + width / 2, width};
}

/// One boat on the cells.
struct BoatOnCells {
    std::vector<double> weights; ///< chance that its result lies in the cell
    std::vector<double> before;  ///< chance that it lies before the cell's midpoint
    double fail = 0;
};

BoatOnCells onCells(const BoatOdds& boat, const ResultCells& cells) {
    BoatOnCells result;
    result.fail = boat.fail;
    const double spread = std::max(boat.spread, cells.width);
    for (std::size_t cell = 0; cell < Cells; ++cell) {
        const double z = (cells.midpoint(cell) - boat.mean) / spread;
        result.weights.push_back(std::exp(-z * z / 2));
        result.before.push_back(std::erfc(-z / std::numbers::sqrt2) / 2);
    }
    const double sum = std::accumulate(result.weights.begin(), result.weights.end(), 0.0);
    for (double& weight : result.weights)
        weight /= sum;
    return result;
}

/// How many of some independent things happen, added one by one.
class CountChances {
public:
    explicit CountChances(std::size_t most) : m_chances(most + 1) {}

    void clear() {
        m_chances[0] = 1;
        m_added = 0;
    }

    void add(double chance) {
        m_chances[m_added + 1] = m_chances[m_added] * chance;
        for (std::size_t k = m_added; k > 0; --k)
            m_chances[k] += (m_chances[k - 1] - m_chances[k]) * chance;
        m_chances[0] *= 1 - chance;
        ++m_added;
    }

    void addTo(std::vector<double>& places, double weight) const {
        for (std::size_t k = 0; k <= m_added; ++k)
            places[k] += weight * m_chances[k];
    }

private:
    std::vector<double> m_chances; ///< by count
    std::size_t m_added = 0;
};

std::vector<double> placesOfBoat(const std::vector<BoatOnCells>& boats, std::size_t own) {
    constexpr double Negligible = 1e-17;
    std::vector<double> places(boats.size(), 0);
    CountChances inFront(boats.size());
    const auto count = [&](std::size_t cell, bool isFailed, double weight) {
        if (weight < Negligible)
            return;
        inFront.clear();
        for (std::size_t i = 0; i < boats.size(); ++i) {
            const BoatOnCells& other = boats[i];
            const double faster = other.before[cell];
            if (i != own)
                inFront.add(isFailed ? 1 - other.fail + other.fail * faster
                                     : (1 - other.fail) * faster);
        }
        inFront.addTo(places, weight);
    };
    for (std::size_t cell = 0; cell < Cells; ++cell) {
        const double weight = boats[own].weights[cell];
        count(cell, false, weight * (1 - boats[own].fail));
        count(cell, true, weight * boats[own].fail);
    }
    return places;
}

} // namespace

std::vector<PlaceChances> placesOf(std::span<const BoatOdds> boats) {
    constexpr std::size_t Medals = 3;
    askForOdds(boats);
    if (boats.empty())
        return {};
    const ResultCells cells = cellsFor(boats);
    std::vector<BoatOnCells> onThem;
    for (const BoatOdds& boat : boats)
        onThem.push_back(onCells(boat, cells));
    std::vector<PlaceChances> all;
    for (std::size_t own = 0; own < boats.size(); ++own) {
        PlaceChances chances{placesOfBoat(onThem, own), 0, 0};
        for (std::size_t k = 0; k < chances.places.size(); ++k) {
            chances.expected += static_cast<double>(k + 1) * chances.places[k];
            chances.medal += k < Medals ? chances.places[k] : 0;
        }
        all.push_back(std::move(chances));
    }
    return all;
}

double chanceOfMissedGate(std::size_t missed, std::size_t runs, std::size_t allMissed,
                          std::size_t allRuns) {
    constexpr double CommonRuns = 20;
    const double common =
        (static_cast<double>(allMissed) + 0.5) / (static_cast<double>(allRuns) + 1);
    return (static_cast<double>(missed) + CommonRuns * common) /
           (static_cast<double>(runs) + CommonRuns);
}

} // namespace kavela
