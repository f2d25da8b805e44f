#include "vision/crossing_search.h"

#include "vision/bow_finder.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace kavela {

namespace {

/// In boat lengths a second.
constexpr std::array SearchSpeeds{0.32, 0.42, 0.55, 0.71, 0.92, 1.18, 1.5, 1.9};
constexpr std::array SearchSlants{-0.13, 0.0, 0.13};
constexpr double HullPart = 0.3; ///< of a boat's height with its paddler
constexpr double BehindPart = 0.4;
constexpr double AheadPart = 0.25;
constexpr float EnergyLimit = 60;
constexpr float LeastSeedScore = 3;
constexpr float AheadWeight = 1.6F;
constexpr double OverOpposite = 1.4;
constexpr double SecondsBetweenBands = 0.04;

/// Sums of energy over any rectangle of slots and rows.
class EnergySums {
public:
    EnergySums(const std::vector<float>& energy, int slots, int rows)
        : m_slots(slots),
          m_rows(rows),
          m_sums(static_cast<std::size_t>(slots + 1) * static_cast<std::size_t>(rows + 1)) {
        for (int slot = 0; slot < slots; ++slot) {
            double row = 0;
            for (int i = 0; i < rows; ++i) {
                row += energy[static_cast<std::size_t>(slot * rows + i)];
                sum(slot + 1, i + 1) = sum(slot, i + 1) + row;
            }
        }
    }
    /// The mean over slots and rows, ends excluded, within the ground.
    [[nodiscard]] float mean(int firstSlot, int lastSlot, int firstRow, int lastRow) const {
        firstSlot = std::clamp(firstSlot, 0, m_slots);
        lastSlot = std::clamp(lastSlot, 0, m_slots);
        const int places = (lastSlot - firstSlot) * (lastRow - firstRow);
        if (places <= 0)
            return 0;
        return static_cast<float>((sum(lastSlot, lastRow) - sum(firstSlot, lastRow) -
                                   sum(lastSlot, firstRow) + sum(firstSlot, firstRow)) /
                                  places);
    }

private:
    [[nodiscard]] double& sum(int slot, int row) {
        return m_sums[static_cast<std::size_t>(slot * (m_rows + 1) + row)];
    }
    [[nodiscard]] double sum(int slot, int row) const {
        return m_sums[static_cast<std::size_t>(slot * (m_rows + 1) + row)];
    }
    int m_slots;
    int m_rows;
    std::vector<double> m_sums;
};

/// The best that a slot has to offer.
struct SlotBest {
    float score = 0;
    int row = 0;
    std::size_t motion = 0;
};

class BandSearch {
public:
    BandSearch(const BandStretch& stretch, const BandBoat& boat)
        : m_stretch(stretch),
          m_boat(boat),
          m_slots(static_cast<int>(stretch.slots.size())),
          m_rows(stretch.shape.rows),
          m_hull(std::clamp(static_cast<int>(std::lround(boat.height * HullPart)), 2,
                            std::max(stretch.shape.rows - 1, 2))),
          m_best(stretch.slots.size()) {}

    [[nodiscard]] bool isTooSmall() const { return m_hull >= m_rows || m_slots < 10; }
    void tryMotions(const std::stop_token& stop);
    [[nodiscard]] std::vector<BandCrossing> crossings(const std::stop_token& stop) const;

private:
    struct TriedMotion {
        PileMotion motion;
        std::vector<float> spread;
    };
    [[nodiscard]] EnergySums sumsFor(const PileMotion& motion, std::vector<float>& spread) const;
    void tryForward(const PileMotion& motion);
    [[nodiscard]] static double confidenceOf(const SlotBest& best, const FoundBow& bow);

    const BandStretch& m_stretch;
    BandBoat m_boat;
    int m_slots;
    int m_rows;
    int m_hull;
    std::vector<SlotBest> m_best;
    std::vector<TriedMotion> m_motions;
};

EnergySums BandSearch::sumsFor(const PileMotion& motion, std::vector<float>& spread) const {
    const int every =
        std::max(static_cast<int>(std::lround(SecondsBetweenBands / m_stretch.secondsPerSlot)), 1);
    const Pile pile = pileUp(m_stretch, motion, {0, m_slots, every});
    spread = usualSpread(pile);
    return {pileEnergy(pile, spread, EnergyLimit), m_slots, m_rows};
}

void BandSearch::tryForward(const PileMotion& motion) {
    TriedMotion tried{motion, {}};
    const EnergySums sums = sumsFor(motion, tried.spread);
    const double passage = m_boat.length / motion.speed;
    const int behind = std::max(static_cast<int>(passage * BehindPart), 2);
    const int ahead = std::max(static_cast<int>(passage * AheadPart), 2);
    for (int slot = 0; slot < m_slots; ++slot)
        for (int row = 0; row + m_hull <= m_rows; ++row) {
            // What is only smeared ahead of a boat fills the second half alone.
            const int half = slot + behind / 2;
            const float full = std::min(sums.mean(slot, half, row, row + m_hull),
                                        sums.mean(half, slot + behind, row, row + m_hull));
            const float empty = sums.mean(slot - ahead, slot, row, row + m_hull);
            SlotBest& best = m_best[static_cast<std::size_t>(slot)];
            if (const float score = full - AheadWeight * empty; score > best.score)
                best = {score, row, m_motions.size()};
        }
    m_motions.push_back(std::move(tried));
}

void BandSearch::tryMotions(const std::stop_token& stop) {
    const double scale = m_boat.length * m_stretch.secondsPerSlot;
    for (const double speed : SearchSpeeds)
        for (const double slant : SearchSlants)
            if (!stop.stop_requested())
                tryForward({speed * scale, slant});
}

double BandSearch::confidenceOf(const SlotBest& best, const FoundBow& bow) {
    constexpr double StrongScore = 7;
    constexpr double WholeLength = 0.65;
    constexpr double WholeHeight = 0.6;
    constexpr double TooHigh = 1.7;  // foam and gusts know no height
    constexpr double WholeWay = 1.0; // twice as sharp as against it
    const double strength = 1 - std::exp(-best.score / StrongScore);
    const double length = std::min(bow.lengthShare / WholeLength, 1.0);
    const double height =
        bow.heightShare > TooHigh ? 0.5 : std::min(bow.heightShare / WholeHeight, 1.0);
    const double way = std::clamp((bow.sharpness - 1) / WholeWay, 0.0, 1.0);
    return strength * length * height * way;
}

std::vector<BandCrossing> BandSearch::crossings(const std::stop_token& stop) const {
    std::vector<int> order;
    for (int slot = 0; slot < m_slots; ++slot)
        if (m_best[static_cast<std::size_t>(slot)].score >= LeastSeedScore)
            order.push_back(slot);
    std::ranges::stable_sort(order, std::greater(), [&](int slot) {
        return m_best[static_cast<std::size_t>(slot)].score;
    });
    std::vector<BandCrossing> found;
    std::vector<bool> isBlocked(static_cast<std::size_t>(m_slots));
    for (const int slot : order) {
        if (stop.stop_requested())
            break;
        if (isBlocked[static_cast<std::size_t>(slot)])
            continue;
        const SlotBest& best = m_best[static_cast<std::size_t>(slot)];
        const TriedMotion& tried = m_motions[best.motion];
        const double passage = m_boat.length / tried.motion.speed;
        const auto block = [&](double from, double to) {
            for (int at = std::max(int(from), 0); at < std::min(int(to), m_slots); ++at)
                isBlocked[static_cast<std::size_t>(at)] = true;
        };
        const auto bow =
            findBow(m_stretch, m_boat, {slot, best.row, m_hull, tried.motion, &tried.spread});
        const bool isOneBefore =
            bow && bow->slot >= 0 && bow->slot < m_slots &&
            isBlocked[static_cast<std::size_t>(bow->slot)]; // another way of seeing a boat
        const double smear = LongestPile / m_stretch.secondsPerSlot;
        // A boat may come close behind one that goes up.
        block(slot - 0.25 * passage, slot + 0.25 * passage);
        block(slot, slot + 1.0);
        if (!bow || bow->sharpness < OverOpposite || isOneBefore)
            continue;
        block(bow->slot - 0.5 * passage - smear, bow->slot + 1.1 * passage + smear);
        found.push_back({bow->slot, bow->bodySlot, bow->speed, confidenceOf(best, *bow)});
    }
    std::ranges::sort(found, {}, &BandCrossing::slot);
    return found;
}

} // namespace

std::vector<BandCrossing> searchCrossings(const BandStretch& stretch, const BandBoat& boat,
                                          const std::stop_token& stop) {
    BandSearch search(stretch, boat);
    if (search.isTooSmall())
        return {};
    search.tryMotions(stop);
    return search.crossings(stop);
}

} // namespace kavela
