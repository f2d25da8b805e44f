#include "subjects.h"

#include "vision/camera_motion.h"
#include "vision/patch_tracker.h"
#include "vision/tracking/track_scene.h"

#include <benchmark/benchmark.h>

#ifdef KAVELA_OPENCV_MATCHING
#include <opencv2/imgproc.hpp>
#endif

#include <array>
#include <cstdint>
#include <vector>

/// Something followed through pictures of 1080 lines: one box with the camera's motion taken out,
/// beside the matching of a template as large in as large a part of the picture.
namespace kavela::bench {

namespace {

constexpr int TrackedFrames = 24;

/// Pictures that hold their samples, since rendering takes longer than following.
class KeptShot {
public:
    KeptShot() {
        TrackShot shot;
        shot.seed = 400;
        shot.width = 1920;
        shot.height = 1080;
        TrackScene scene(shot);
        m_box = scene.athleteBox(0);
        for (int frame = 0; frame < TrackedFrames; ++frame) {
            TrackPicture picture = scene.picture(frame);
            auto& kept = m_samples.emplace_back();
            for (std::size_t plane = 0; plane < 3; ++plane) {
                TrackPicture::Plane& from = picture.planes[plane];
                kept[plane].assign(from.samples, from.samples + from.line * from.height);
                from.samples = kept[plane].data();
            }
            m_pictures.push_back(picture);
        }
    }

    [[nodiscard]] const TrackPicture& picture(int frame) const {
        return m_pictures[static_cast<std::size_t>(frame)];
    }
    [[nodiscard]] const TrackBox& box() const { return m_box; }

private:
    std::vector<std::array<std::vector<std::uint8_t>, 3>> m_samples;
    std::vector<TrackPicture> m_pictures;
    TrackBox m_box;
};

/// Rendered when it is first asked for.
const KeptShot& keptShot() {
    static const KeptShot Shot;
    return Shot;
}

void followBox(benchmark::State& state, const KeptShot& shot, bool hasCamera) {
    for (auto _ : state) {
        PatchTracker tracker(shot.picture(0), shot.box());
        CameraMotion camera;
        static_cast<void>(camera.follow(shot.picture(0), shot.box()));
        for (int frame = 1; frame < TrackedFrames; ++frame) {
            PictureMotion motion;
            if (hasCamera)
                motion = camera.follow(shot.picture(frame), tracker.expectedBox())
                             .value_or(PictureMotion());
            benchmark::DoNotOptimize(tracker.follow(shot.picture(frame), motion));
        }
    }
    state.SetItemsProcessed(state.iterations() * (TrackedFrames - 1));
}

#ifdef KAVELA_OPENCV_MATCHING
/// Brightness alone, at the full size of the box, in a part of the picture that reaches as far.
void matchTemplate(benchmark::State& state, const KeptShot& shot) {
    constexpr int Reach = 56;
    const auto grey = [&](int frame) {
        const TrackPicture::Plane& plane = shot.picture(frame).planes[0];
        return cv::Mat(plane.height, plane.width, CV_8UC1,
                       const_cast<std::uint8_t*>(plane.samples), // it is only read
                       static_cast<std::size_t>(plane.line));
    };
    const cv::Rect box(int(shot.box().x), int(shot.box().y), int(shot.box().width),
                       int(shot.box().height));
    const cv::Rect around(box.x - Reach, box.y - Reach, box.width + 2 * Reach,
                          box.height + 2 * Reach);
    cv::setNumThreads(1);
    const cv::Mat looked = grey(0)(box).clone();
    cv::Mat found;
    for (auto _ : state)
        for (int frame = 1; frame < TrackedFrames; ++frame) {
            cv::matchTemplate(grey(frame)(around), looked, found, cv::TM_CCOEFF_NORMED);
            double best = 0;
            cv::minMaxLoc(found, nullptr, &best);
            benchmark::DoNotOptimize(best);
        }
    state.SetItemsProcessed(state.iterations() * (TrackedFrames - 1));
}
#endif

} // namespace

void addTracking() {
    benchmark::RegisterBenchmark("track/one_box_1080p", [](benchmark::State& state) {
        followBox(state, keptShot(), true);
    })->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("track/one_box_tripod_1080p", [](benchmark::State& state) {
        followBox(state, keptShot(), false);
    })->Unit(benchmark::kMillisecond);
#ifdef KAVELA_OPENCV_MATCHING
    benchmark::RegisterBenchmark("track/opencv_match_template_1080p", [](benchmark::State& state) {
        matchTemplate(state, keptShot());
    })->Unit(benchmark::kMillisecond);
#endif
}

} // namespace kavela::bench
