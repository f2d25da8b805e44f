#include "boatmotion/strokes/watch.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double LongestShift = 3; // s
constexpr double LeastWatchCorrelation = 0.1;
constexpr double LeastAgreement = 0.6;
constexpr double WatchShare = 1.5;
constexpr double BoatShare = 0.5;
constexpr std::size_t LeastStrokes = 8;
constexpr double LongestLook = 900; // s, of a recording for its clocks

/// Values of a grid looked up at any moment, without those that are not valid.
class LookUp {
public:
    explicit LookUp(const MotionGrid& grid) : m_grid(grid) {}

    /// The index of a moment; nothing in holes or outside. Moments must ascend.
    [[nodiscard]] std::optional<std::size_t> at(double time) {
        while (m_hint + 1 < m_grid.size() && m_grid.time[m_hint + 1] <= time)
            ++m_hint;
        const bool isClose = std::abs(m_grid.time[m_hint] - time) < 2 * Step;
        return isClose && m_grid.valid[m_hint] ? std::optional(m_hint) : std::nullopt;
    }

private:
    const MotionGrid& m_grid;
    std::size_t m_hint = 0;
};

/// The watch's clock beside the boat's: equal, or else both began together.
double coarseOffset(const MotionGrid& watch, const MotionSeries& boat) {
    const double overlap = std::min(watch.time.back(), boat.time.back()) -
                           std::max(watch.time.front(), boat.time.front());
    const double shorter =
        std::min(watch.time.back() - watch.time.front(), boat.time.back() - boat.time.front());
    return 2 * overlap >= shorter ? 0 : boat.time.front() - watch.time.front();
}

std::vector<double> banded(std::vector<double> values) {
    filterBothWays<1>({highPass(0.5)}, {std::span(values)});
    filterBothWays<1>({lowPass(3.5)}, {std::span(values)});
    return values;
}

std::vector<double> wristStrength(const MotionGrid& watch) {
    std::vector<double> strength(watch.size());
    for (std::size_t i = 0; i < strength.size(); ++i)
        strength[i] = std::sqrt(watch.acceleration[0][i] * watch.acceleration[0][i] +
                                watch.acceleration[1][i] * watch.acceleration[1][i] +
                                watch.acceleration[2][i] * watch.acceleration[2][i]);
    return banded(std::move(strength));
}

struct Alignment {
    double offset = 0;
    bool isSure = false;
};

constexpr auto MostShift = static_cast<std::size_t>(LongestShift * Rate);
using ShiftSums = std::array<double, 2 * MostShift + 1>;

/// Products of wrist and boat for every shift, and the energies that they are measured by.
struct Likeness {
    ShiftSums products{};
    double wristEnergy = 0;
    double boatEnergy = 0;

    void add(std::span<const float> wrist, double boat) {
        for (std::size_t shift = 0; shift < products.size(); ++shift)
            products[shift] += boat * static_cast<double>(wrist[shift]);
        wristEnergy += static_cast<double>(wrist[MostShift] * wrist[MostShift]);
        boatEnergy += boat * boat;
    }
};

/// Compares the boat's moments with the wrist's around them, where the watch has no hole.
Likeness likeness(const MotionGrid& watch, const StrokeView& view, double coarse) {
    const std::vector<double> strength = wristStrength(watch);
    const std::vector<float> wrist(strength.begin(), strength.end());
    const std::vector<double> boat = banded(view.series.forward);
    // Some of a long recording is enough to know the clocks.
    const std::size_t size = std::min(boat.size(), static_cast<std::size_t>(LongestLook * Rate));
    Likeness result;
    LookUp lookUp(watch);
    for (std::size_t i = 0; i < size; i += 2) {
        const auto at = lookUp.at(view.series.time[i] - coarse);
        if (!at || !view.series.valid[i] || *at < MostShift || *at + MostShift >= watch.size())
            continue;
        const std::size_t first = *at - MostShift;
        const double length = watch.time[*at + MostShift] - watch.time[first];
        if (std::abs(length - 2 * LongestShift) < 3 * Step)
            result.add(std::span(wrist).subspan(first, 2 * MostShift + 1), boat[i]);
    }
    return result;
}

/// The shift at which wrist and boat move most alike.
Alignment align(const MotionGrid& watch, const StrokeView& view) {
    const double coarse = coarseOffset(watch, view.series);
    const Likeness found = likeness(watch, view, coarse);
    const auto greatest = std::max_element(found.products.begin(), found.products.end());
    const auto best = static_cast<std::size_t>(greatest - found.products.begin());
    const bool isInside = best > 0 && best + 1 < found.products.size();
    const double scale = std::sqrt(found.wristEnergy * found.boatEnergy);
    const double shift = (static_cast<double>(best) - static_cast<double>(MostShift)) * Step;
    return {coarse - shift, isInside && scale > 0 && *greatest / scale >= LeastWatchCorrelation};
}

using Tilts = std::vector<Vector>;

/// The wrist's gravity in the middle of each water phase, about its mean over nine strokes.
Tilts tiltsOf(const StrokeView& view, std::span<const WaterPhase> phases, const MotionGrid& watch,
              double offset) {
    Tilts tilts(phases.size(), Vector{});
    LookUp lookUp(watch);
    for (std::size_t i = 0; i < phases.size(); ++i) {
        const auto middle = static_cast<std::size_t>((phases[i].catchAt + phases[i].exitAt) / 2);
        const auto at = lookUp.at(view.series.time[middle] - offset);
        for (std::size_t k = 0; k < 3; ++k)
            tilts[i][k] = at ? watch.gravity[k][*at] : i > 0 ? tilts[i - 1][k] : 0;
    }
    Tilts detrended = tilts;
    constexpr std::size_t Reach = 4;
    for (std::size_t i = 0; i < tilts.size(); ++i) {
        const std::size_t begin = i < Reach ? 0 : i - Reach;
        const std::size_t end = std::min(i + Reach + 1, tilts.size());
        for (std::size_t n = begin; n < end; ++n)
            for (std::size_t k = 0; k < 3; ++k)
                detrended[i][k] -= tilts[n][k] / static_cast<double>(end - begin);
    }
    return detrended;
}

/// The direction in which the tilts differ most, by repeated multiplication with their scatter.
Vector principalDirection(const Tilts& tilts) {
    std::array<Vector, 3> scatter{};
    for (const Vector& tilt : tilts)
        for (std::size_t r = 0; r < 3; ++r)
            for (std::size_t c = 0; c < 3; ++c)
                scatter[r][c] += tilt[r] * tilt[c];
    std::size_t strongest = 0;
    for (std::size_t k = 1; k < 3; ++k)
        if (scatter[k][k] > scatter[strongest][strongest])
            strongest = k;
    Vector direction = scatter[strongest];
    for (int round = 0; round < 50; ++round) {
        const double length = std::sqrt(dot(direction, direction));
        if (!(length > 0))
            return {1, 0, 0};
        for (double& part : direction)
            part /= length;
        direction = {dot(scatter[0], direction), dot(scatter[1], direction),
                     dot(scatter[2], direction)};
    }
    const double length = std::sqrt(dot(direction, direction));
    return length > 0 ? Vector{direction[0] / length, direction[1] / length, direction[2] / length}
                      : Vector{1, 0, 0};
}

/// The tilts along that direction, in units of their spread.
std::vector<double> parities(const Tilts& tilts) {
    const Vector direction = principalDirection(tilts);
    std::vector<double> parity;
    parity.reserve(tilts.size());
    double squares = 0;
    for (const Vector& tilt : tilts) {
        parity.push_back(dot(tilt, direction));
        squares += parity.back() * parity.back();
    }
    const double spread = std::sqrt(squares / static_cast<double>(parity.size()));
    for (double& value : parity)
        value = spread > 1e-6 ? std::clamp(value / spread, -3.0, 3.0) : 0;
    return parity;
}

} // namespace

std::optional<WatchEvidence> watchEvidence(const StrokeView& view,
                                           std::span<const WaterPhase> phases,
                                           std::span<const double> boatScores,
                                           const MotionGrid& watch) {
    if (phases.size() < LeastStrokes || watch.size() == 0)
        return std::nullopt;
    const Alignment alignment = align(watch, view);
    if (!alignment.isSure)
        return std::nullopt;
    WatchEvidence evidence{alignment.offset, {}};
    std::vector<double> parity = parities(tiltsOf(view, phases, watch, alignment.offset));
    double vote = 0;
    for (std::size_t i = 0; i < parity.size(); ++i)
        vote += parity[i] * boatScores[i];
    double agreeing = 0;
    for (std::size_t i = 0; i < parity.size(); ++i)
        agreeing += (vote < 0 ? -parity[i] : parity[i]) * boatScores[i] > 0;
    if (agreeing < LeastAgreement * static_cast<double>(parity.size()))
        return std::nullopt;
    for (std::size_t i = 0; i < parity.size(); ++i)
        evidence.scores.push_back(WatchShare * (vote < 0 ? -parity[i] : parity[i]) +
                                  BoatShare * boatScores[i]);
    return evidence;
}

} // namespace kavela::strokes
