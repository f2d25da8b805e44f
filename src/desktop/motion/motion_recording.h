#pragma once

#include "boatmotion/companions.h"
#include "boatmotion/strokes/motion_analysis.h"
#include "desktop/charts/sample_pyramid.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace kavela::desktop {

/// What a recording is, told before anything is analysed.
struct RecordingFacts {
    double first = 0;   ///< stamp of the first sample, s
    double seconds = 0; ///< from the first sample to the last
    double rate = 0;    ///< usual samples a second; 0 when that cannot be told
    bool hasWatch = false;
    bool hasHeart = false;
    bool hasPosition = false;
    QStringList oddities; ///< such as holes or a clock that ran backwards; empty when all is well
};

[[nodiscard]] RecordingFacts factsOf(const bmrawdata_v5& session);

/// One row of samples over the seconds since the first sample of the boat.
struct Curve {
    std::shared_ptr<const std::vector<double>> times;
    std::shared_ptr<const std::vector<double>> values;
    std::shared_ptr<const SamplePyramid> pyramid; ///< of the values, for drawing them

    [[nodiscard]] bool isEmpty() const { return !times || times->empty(); }
};

/// What can be drawn of a recording. The first ones are along the axes of the boat or need no axes,
/// the others along those of the phone.
enum class CurveKind {
    Forward,
    Turning,
    Roll,
    Pitch,
    Speed,
    HullSpeed,
    Heart,
    Watch,
    AccelerationX,
    AccelerationY,
    AccelerationZ,
    RotationX,
    RotationY,
    RotationZ
};
inline constexpr std::size_t CurveKinds = 14;
inline constexpr std::size_t BoatCurves = 8; ///< those before the phone's own axes

[[nodiscard]] QString titleOf(CurveKind kind);
[[nodiscard]] QString shortTitleOf(CurveKind kind);
[[nodiscard]] QString unitOf(CurveKind kind);

/// One raw recording of the analyser.
struct MotionRecording {
    bmdataStruct data;
    bmrawdata_v5 session; ///< all but the boat's samples, which are in `data`
    RecordingFacts facts;
    QString label; ///< short, and no other recording's
    std::size_t slot = 0;
    double shift = 0; ///< seconds by which it is moved against the others

    MotionProfile profile;
    std::shared_ptr<const MotionAnalysis> analysis; ///< null before it is done, or when it failed
    QString fault;                                  ///< why it failed
    bool isAnalysing = false;

    std::vector<Curve> curves = std::vector<Curve>(CurveKinds);
    [[nodiscard]] const Curve& curve(CurveKind kind) const {
        return curves[static_cast<std::size_t>(kind)];
    }
    [[nodiscard]] MotionSamples samples() const {
        return {data.bm, session.watchmotion, session.gps, session.info.date};
    }
};

/// Reads a recording and makes the curves that need no analysis. Throws FileError and DecodeError.
[[nodiscard]] std::shared_ptr<MotionRecording> readRecording(const std::filesystem::path& path);

/// The curves of a recording that need no analysis.
[[nodiscard]] std::vector<Curve> curvesOf(const MotionRecording& recording);
/// Those and the ones along the boat's axes, with the watch on the clock that was found for it.
[[nodiscard]] std::vector<Curve> curvesOf(const MotionRecording& recording,
                                          std::vector<Curve> before,
                                          const MotionAnalysis& analysis);

} // namespace kavela::desktop
