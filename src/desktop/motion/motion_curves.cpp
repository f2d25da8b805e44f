#include "boatmotion/strokes/clocks.h"
#include "desktop/motion/motion_recording.h"
#include "desktop/shell/shown_number.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace kavela::desktop {

namespace {

using Row = std::vector<double>;
constexpr double Gravity = 9.80665; ///< m/s² in a g

std::shared_ptr<const Row> shared(Row row) {
    return std::make_shared<const Row>(std::move(row));
}

Curve curve(std::shared_ptr<const Row> times, Row values) {
    auto kept = shared(std::move(values));
    return {std::move(times), kept, std::make_shared<SamplePyramid>(kept)};
}

/// Samples in the order of their moments, whatever the order they were recorded in.
template <class Sample, class Time>
std::vector<const Sample*> inOrder(const std::vector<Sample>& samples, Time timeOf) {
    std::vector<const Sample*> ordered;
    ordered.reserve(samples.size());
    for (const Sample& sample : samples)
        ordered.push_back(&sample);
    const auto isEarlier = [&](const Sample* a, const Sample* b) {
        return timeOf(*a) < timeOf(*b);
    };
    if (!std::ranges::is_sorted(ordered, isEarlier))
        std::ranges::stable_sort(ordered, isEarlier);
    return ordered;
}

/// Collects the curves of one recording.
class CurveMaker {
public:
    CurveMaker(const MotionRecording& recording, std::vector<Curve> before)
        : m_recording(recording), m_curves(std::move(before)) {
        m_curves.resize(CurveKinds);
    }

    std::vector<Curve> withoutAnalysis() {
        addPhoneAxes();
        addWatch(std::nullopt);
        addDated();
        return std::move(m_curves);
    }

    std::vector<Curve> withAnalysis(const MotionAnalysis& analysis) {
        if (analysis.usedWatch)
            addWatch(analysis.watchOffset);
        addBoatAxes(analysis);
        return std::move(m_curves);
    }

private:
    Curve& at(CurveKind kind) { return m_curves[static_cast<std::size_t>(kind)]; }

    template <class Samples, class Time, class Value>
    void add(CurveKind kind, const Samples& samples, Time timeOf, Value valueOf) {
        Row times;
        Row values;
        times.reserve(samples.size());
        values.reserve(samples.size());
        for (const auto* sample : samples) {
            times.push_back(timeOf(*sample));
            values.push_back(valueOf(*sample));
        }
        at(kind) = curve(shared(std::move(times)), std::move(values));
    }

    void addPhoneAxes() {
        using Sample = boatmotionrawdata_v5;
        const auto ordered =
            inOrder(m_recording.data.bm, [](const Sample& sample) { return sample.timestamp; });
        const auto time = [&](const Sample& s) { return s.timestamp - m_recording.facts.first; };
        add(CurveKind::AccelerationX, ordered, time,
            [](const Sample& s) { return s.acceleration.x * Gravity; });
        const auto times = at(CurveKind::AccelerationX).times;
        const auto addOther = [&](CurveKind kind, auto value) {
            Row values;
            values.reserve(ordered.size());
            for (const Sample* sample : ordered)
                values.push_back(value(*sample));
            at(kind) = curve(times, std::move(values));
        };
        addOther(CurveKind::AccelerationY,
                 [](const Sample& s) { return s.acceleration.y * Gravity; });
        addOther(CurveKind::AccelerationZ,
                 [](const Sample& s) { return s.acceleration.z * Gravity; });
        addOther(CurveKind::RotationX,
                 [](const Sample& s) { return s.rotationRate.x * DegreesPerRadian; });
        addOther(CurveKind::RotationY,
                 [](const Sample& s) { return s.rotationRate.y * DegreesPerRadian; });
        addOther(CurveKind::RotationZ,
                 [](const Sample& s) { return s.rotationRate.z * DegreesPerRadian; });
    }

    /// The watch has a clock of its own; where the analysis could not relate both, its samples are
    /// taken as stamped by the boat's clock, or else as begun with the boat's.
    void addWatch(std::optional<double> found) {
        using Sample = watchmotiondata_v5;
        const auto& samples = m_recording.session.watchmotion;
        if (samples.empty())
            return;
        const auto stamp = [](const Sample& sample) { return sample.timestamp; };
        const auto ordered = inOrder(samples, stamp);
        const double first = ordered.front()->timestamp;
        const RecordingFacts& facts = m_recording.facts;
        const bool isSameClock =
            first < facts.first + facts.seconds && ordered.back()->timestamp > facts.first;
        const double offset = found.value_or(isSameClock ? 0 : facts.first - first);
        add(
            CurveKind::Watch, ordered,
            [&](const Sample& s) { return s.timestamp + offset - facts.first; },
            [](const Sample& s) {
                return Gravity * std::hypot(s.acceleration.x, s.acceleration.y, s.acceleration.z);
            });
    }

    /// Fixes and heart rates are dated.
    void addDated() {
        const RecordingFacts& facts = m_recording.facts;
        const bmrawdata_v5& session = m_recording.session;
        const double offset = strokes::clockRelation(facts.first, facts.first + facts.seconds,
                                                     session.gps, session.info.date)
                                  .offset +
                              facts.first;
        const auto add = [&](CurveKind kind, const auto& samples, auto valueOf) {
            const auto time = [&](const auto& s) { return s.date.seconds - offset; };
            if (!samples.empty())
                this->add(kind, inOrder(samples, time), time, valueOf);
        };
        add(CurveKind::Heart, session.heart, [](const heartmotiondata& s) {
            return s.hr > 0 ? s.hr : std::numeric_limits<double>::quiet_NaN();
        });
        add(CurveKind::Speed, session.gps, [](const gpsrawdata& s) {
            // Receivers write a speed below 0 where they know none.
            return s.speed >= 0 ? s.speed : std::numeric_limits<double>::quiet_NaN();
        });
    }

    void addBoatAxes(const MotionAnalysis& analysis) {
        const MotionSeries& series = analysis.series;
        Row times = series.time;
        for (double& time : times)
            time -= m_recording.facts.first;
        const auto shared50 = shared(std::move(times));
        const auto add = [&](CurveKind kind, const Row& values, double factor) {
            Row scaled(values.size());
            for (std::size_t i = 0; i < values.size(); ++i)
                scaled[i] =
                    series.valid[i] ? values[i] * factor : std::numeric_limits<double>::quiet_NaN();
            at(kind) = curve(shared50, std::move(scaled));
        };
        add(CurveKind::Forward, series.forward, 1);
        add(CurveKind::Turning, series.yawRate, DegreesPerRadian);
        add(CurveKind::Roll, series.roll, DegreesPerRadian);
        add(CurveKind::Pitch, series.pitch, DegreesPerRadian);
        if (analysis.hasSpeed)
            add(CurveKind::HullSpeed, series.speed, 1);
        else
            at(CurveKind::HullSpeed) = {};
    }

    const MotionRecording& m_recording;
    std::vector<Curve> m_curves;
};

} // namespace

std::vector<Curve> curvesOf(const MotionRecording& recording) {
    return CurveMaker(recording, {}).withoutAnalysis();
}

std::vector<Curve> curvesOf(const MotionRecording& recording, std::vector<Curve> before,
                            const MotionAnalysis& analysis) {
    return CurveMaker(recording, std::move(before)).withAnalysis(analysis);
}

} // namespace kavela::desktop
