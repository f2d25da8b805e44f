#include "vision/river_stream.h"

#include <fmt/format.h>

#ifdef KAVELA_HAS_MOG2
#include <opencv2/core.hpp>
#include <opencv2/video/background_segm.hpp>
#endif

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <string>
#include <vector>

/// How many boats of drawn scenes the search finds, how often it is wrong, by how much, and what it
/// costs, beside the subtraction of the background as a computer-vision library has it.
namespace kavela::bench {

namespace {

struct ScoredScene {
    std::string name;
    RiverRecipe recipe;
};

/// The scenes of one seed. The numbers of the search were set on none of them.
std::vector<ScoredScene> scoredScenes(std::uint32_t seed, double seconds) {
    RiverRecipe plain;
    plain.seconds = seconds;
    plain.boats = static_cast<int>(seconds / 5);
    std::vector<ScoredScene> scenes(6, {"", plain});
    RiverRecipe* recipe = &scenes[0].recipe;
    scenes[0].name = "shadows, clouds, exposure";
    recipe->shadow = 12;
    recipe->clouds = 0.12;
    recipe->exposureStep = 0.2;
    recipe->shake = 0.6;
    recipe = &scenes[1].recipe;
    scenes[1].name = "gusts, rain, birds, going up";
    recipe->shadow = 8;
    recipe->gusts = 0.3;
    recipe->rain = 20;
    recipe->birds = 3;
    recipe->upstreamBoats = 2;
    recipe->noise = 3;
    recipe = &scenes[2].recipe;
    scenes[2].name = "heavy foam, bow under half the time";
    recipe->foam = 0.55;
    recipe->dipping = 0.5;
    recipe = &scenes[3].recipe;
    scenes[3].name = "going up, birds, logs";
    recipe->boats = static_cast<int>(seconds / 7);
    recipe->upstreamBoats = 3;
    recipe->birds = 3;
    recipe->logs = 4;
    scenes[4].name = "dark hulls";
    scenes[4].recipe.hasDarkHulls = true;
    recipe = &scenes[5].recipe;
    scenes[5].name = "empty wild water";
    recipe->boats = 0;
    recipe->foam = 0.5;
    recipe->gusts = 0.3;
    recipe->shake = 0.5;
    std::uint32_t number = seed * 1009;
    for (ScoredScene& scene : scenes)
        scene.recipe.seed = ++number;
    return scenes;
}

double processorSeconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// What drawing the scene's pictures once takes, in seconds of processor time, from some of them.
double drawingSeconds(const RiverScene& scene) {
    constexpr int Tried = 40;
    const double before = processorSeconds();
    for (int i = 0; i < Tried; ++i)
        static_cast<void>(scene.picture(i * 5));
    return (processorSeconds() - before) / Tried * static_cast<double>(scene.frames());
}

void print(const std::string& name, const char* who, const RiverScore& score, double msPerFrame) {
    fmt::print("{:<36} {:<7} boats {:3}  within 15 {:3}  within 40 {:3}  error median {:4.1f}  "
               "p95 {:4.1f}  lean {:+4.1f}  confident {:3}  false {:2}  {:5.1f} ms a frame\n",
               name, who, score.boats, score.near, score.far, score.errorAt(0.5),
               score.errorAt(0.95), score.medianLean(), score.confident, score.falseOnes,
               msPerFrame);
}

#ifdef KAVELA_HAS_MOG2
/// A crossing is a frame in which most of a hull's height at the line becomes foreground, a second
/// after the last one at the earliest.
std::vector<Proposal> proposalsOfPeer(const RiverScene& scene) {
    const auto subtractor = cv::createBackgroundSubtractorMOG2();
    const int middle = scene.recipe().width / 2;
    const int hull = static_cast<int>(scene.recipe().boatLength * 0.08);
    std::vector<Proposal> proposals;
    cv::Mat mask;
    for (std::int64_t frame = 0; frame < scene.frames(); ++frame) {
        HalfPlanes half = scene.picture(frame);
        subtractor->apply(cv::Mat(half.height, half.width, CV_8UC1, half.luma.data()), mask);
        int most = 0;
        for (int row = half.height / 4; row + hull < half.height * 4 / 5; ++row) {
            int full = 0;
            for (int i = 0; i < hull; ++i)
                full += mask.at<unsigned char>(row + i, middle) == 255 ? 1 : 0;
            most = std::max(most, full);
        }
        const double seconds = scene.secondsOf(frame);
        const bool isFree = proposals.empty() || seconds - proposals.back().seconds > 1;
        if (most * 4 >= hull * 3 && isFree && frame > 50)
            proposals.push_back({frame, seconds, 1, frame, seconds});
    }
    return proposals;
}
#endif

void scoreScenes(std::uint32_t seed, double seconds) {
    RiverScore ours;
    RiverScore bodies;
    RiverScore peers;
    for (const ScoredScene& scored : scoredScenes(seed, seconds)) {
        const RiverScene scene(scored.recipe);
        const double drawing = drawingSeconds(scene);
        const auto perFrame = [&](double spent) {
            return (spent - drawing) / static_cast<double>(scene.frames()) * 1000;
        };
        double before = processorSeconds();
        const Crossings found = crossingsOf(scene);
        const double spent = processorSeconds() - before;
        RiverScore score = scoreOf(scene, found.proposals);
        print(scored.name, "kavela", score, perFrame(spent));
        ours.add(score);
        score = scoreOf(scene, found.proposals, TimingPoint::Body);
        print(scored.name, "body", score, perFrame(spent));
        bodies.add(score);
#ifdef KAVELA_HAS_MOG2
        before = processorSeconds();
        score = scoreOf(scene, proposalsOfPeer(scene));
        print(scored.name, "MOG2", score, perFrame(processorSeconds() - before));
        peers.add(score);
#endif
    }
    print("all", "kavela", ours, 0);
    print("all", "body", bodies, 0);
    fmt::print("{:.1f} false an hour\n", ours.falseOnes / ours.minutes * 60);
    if (peers.boats > 0)
        print("all", "MOG2", peers, 0);
}

} // namespace

} // namespace kavela::bench

/// The seed and the seconds of each scene; 7 and 60 where they are not given.
int main(int count, char** words) {
    const auto seed =
        count > 1 ? static_cast<std::uint32_t>(std::strtoul(words[1], nullptr, 10)) : 7U;
    const double seconds = count > 2 ? std::strtod(words[2], nullptr) : 60.0;
    kavela::bench::scoreScenes(seed, seconds);
}
