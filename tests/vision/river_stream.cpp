#include "vision/river_stream.h"

#include <algorithm>
#include <cmath>

namespace kavela {

void RiverScore::add(const RiverScore& other) {
    boats += other.boats;
    near += other.near;
    far += other.far;
    confident += other.confident;
    falseOnes += other.falseOnes;
    minutes += other.minutes;
    errors.insert(errors.end(), other.errors.begin(), other.errors.end());
}

double RiverScore::errorAt(double share) const {
    if (errors.empty())
        return 0;
    std::vector<double> sizes;
    for (const double error : errors)
        sizes.push_back(std::abs(error));
    std::ranges::sort(sizes);
    const auto place = static_cast<std::size_t>(std::ceil(share * double(sizes.size())));
    return sizes[std::clamp<std::size_t>(place, 1, sizes.size()) - 1];
}

double RiverScore::medianLean() const {
    if (errors.empty())
        return 0;
    std::vector<double> sorted = errors;
    std::ranges::sort(sorted);
    return sorted[sorted.size() / 2];
}

RiverScore scoreOf(const RiverScene& scene, std::span<const Proposal> proposals,
                   TimingPoint point) {
    constexpr double Near = 15;
    constexpr double Far = 40;
    constexpr double Confident = 0.5;
    const double rate = scene.recipe().rate;
    const auto errorOf = [&](const Proposal& proposal, const RiverTruth& boat) {
        const double crossed = point == TimingPoint::Body ? boat.bodySeconds : boat.seconds;
        return (secondsOf(proposal, point) - crossed) * rate;
    };
    RiverScore score;
    score.minutes = scene.recipe().seconds / 60;
    score.boats = static_cast<int>(scene.truth().size());
    for (const RiverTruth& boat : scene.truth()) {
        double nearest = 1e9;
        for (const Proposal& proposal : proposals)
            if (const double error = errorOf(proposal, boat); std::abs(error) < std::abs(nearest))
                nearest = error;
        score.near += std::abs(nearest) <= Near ? 1 : 0;
        score.far += std::abs(nearest) <= Far ? 1 : 0;
        if (std::abs(nearest) <= Near)
            score.errors.push_back(nearest);
    }
    for (const Proposal& proposal : proposals) {
        if (proposal.confidence < Confident)
            continue;
        ++score.confident;
        const bool isTrue = std::ranges::any_of(scene.truth(), [&](const RiverTruth& boat) {
            return std::abs(errorOf(proposal, boat)) <= Far;
        });
        score.falseOnes += isTrue ? 0 : 1;
    }
    return score;
}

Crossings crossingsOf(const RiverScene& scene) {
    RiverStream stream(scene);
    const BarrierRequest asked = scene.request();
    const auto halved = [](const SlitPoint& place) {
        return SlitPoint{place.x / 2 - 0.5, place.y / 2 - 0.5};
    };
    const SlitLine line{halved(asked.line.first), halved(asked.line.second), asked.line.from};
    const BoatBox boat{0, 0, asked.boat.width / 2, asked.boat.height / 2};
    return *findCrossings(stream, 0, stream.frameCount(), line, boat);
}

} // namespace kavela
