#include "vision/barrier_figures.h"

#include "common/text.h"

namespace kavela {

const BarrierFigures& measuredBarrierFigures(TimingPoint point) {
    // Change them with docs/light-barrier.md, after a run of bench/vision.
    static const BarrierFigures bow{.scenes = 18,
                                    .runs = 168,
                                    .minutes = 18,
                                    .foundShare = 151.0 / 168,
                                    .falsePerHour = 13.3,
                                    .p95ErrorFrames = 12.9,
                                    .cpuShareOfPlaying = 0.92};
    static const BarrierFigures body = [] {
        BarrierFigures figures = bow;
        figures.foundShare = 153.0 / 168;
        figures.falsePerHour = 10;
        figures.p95ErrorFrames = 7.8;
        return figures;
    }();
    return point == TimingPoint::Body ? body : bow;
}

bool reachesTargets(const BarrierFigures& figures, const BarrierTargets& targets) {
    return figures.runs > 0 && figures.foundShare >= targets.leastFoundShare &&
           figures.falsePerHour <= targets.mostFalsePerHour &&
           figures.p95ErrorFrames <= targets.mostP95ErrorFrames && figures.cpuShareOfPlaying > 0 &&
           figures.cpuShareOfPlaying <= targets.mostCpuShareOfPlaying;
}

std::string tellFigures(const BarrierFigures& figures, const BarrierTargets& targets) {
    if (figures.runs == 0)
        return say("The search for boats was not measured.");
    constexpr std::string_view OnRealWater =
        KAVELA_TEXT("Measured on {} scenes of real water ({} runs, {:.0f} minutes): {:.1f} % of "
                    "the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: at "
                    "most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: {:g}).");
    constexpr std::string_view OnRenderedWater =
        KAVELA_TEXT("Measured on {} scenes of rendered water ({} runs, {:.0f} minutes): {:.1f} % "
                    "of the runs found (asked: {:.0f} %), {:.1f} false proposals an hour (asked: "
                    "at most {:g}), an error of at most {:.1f} frames for 95 of 100 (asked: "
                    "{:g}).");
    return sayMarked(figures.isOnRealWater ? OnRealWater : OnRenderedWater, figures.scenes,
                     figures.runs, figures.minutes, 100 * figures.foundShare,
                     100 * targets.leastFoundShare, figures.falsePerHour, targets.mostFalsePerHour,
                     figures.p95ErrorFrames, targets.mostP95ErrorFrames);
}

} // namespace kavela
