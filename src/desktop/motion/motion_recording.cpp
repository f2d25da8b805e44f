#include "desktop/motion/motion_recording.h"

#include "boatmotion/session_files.h"
#include "common/text.h"
#include "desktop/shell/shown_number.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double Hole = 0.3; ///< s; the analysis leaves out what lies in a longer one

QString tr(const char* text) {
    return QCoreApplication::translate("MotionRecording", text);
}

struct KindText {
    const char* title;
    const char* shortTitle;
    const char* unit;
};

const KindText& textOf(CurveKind kind) {
    static constexpr std::array<KindText, CurveKinds> Texts{{
        {"Forward acceleration", KAVELA_TEXT("Forward"), "m/s²"},
        {KAVELA_TEXT("Turning rate (left above 0)"), KAVELA_TEXT("Turning"), "°/s"},
        {KAVELA_TEXT("Roll (starboard down above 0)"), "Roll", "°"},
        {KAVELA_TEXT("Pitch (bow up above 0)"), "Pitch", "°"},
        {KAVELA_TEXT("Speed by position"), "Speed", "m/s"},
        {KAVELA_TEXT("Hull speed, estimated"), KAVELA_TEXT("Hull speed"), "m/s"},
        {"Heart rate", "Heart", "/min"},
        {KAVELA_TEXT("Watch acceleration"), KAVELA_TEXT("Watch"), "m/s²"},
        {KAVELA_TEXT("Acceleration of the phone, x"), KAVELA_TEXT("Acceleration x"), "m/s²"},
        {KAVELA_TEXT("Acceleration of the phone, y"), KAVELA_TEXT("Acceleration y"), "m/s²"},
        {KAVELA_TEXT("Acceleration of the phone, z"), KAVELA_TEXT("Acceleration z"), "m/s²"},
        {KAVELA_TEXT("Rotation of the phone, x"), KAVELA_TEXT("Rotation x"), "°/s"},
        {KAVELA_TEXT("Rotation of the phone, y"), KAVELA_TEXT("Rotation y"), "°/s"},
        {KAVELA_TEXT("Rotation of the phone, z"), KAVELA_TEXT("Rotation z"), "°/s"},
    }};
    return Texts[static_cast<std::size_t>(kind)];
}

/// Counts what is odd about the stamps of a recording.
struct StampFaults {
    std::size_t backward = 0;
    std::size_t repeated = 0;
    std::size_t holes = 0;
    double longest = 0; ///< of the holes, s
};

StampFaults faultsOf(const std::vector<boatmotionrawdata_v5>& samples) {
    StampFaults faults;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        const double step = samples[i].timestamp - samples[i - 1].timestamp;
        faults.backward += step < 0 ? 1 : 0;
        faults.repeated += step == 0 ? 1 : 0;
        faults.holes += step > Hole ? 1 : 0;
        faults.longest = std::max(faults.longest, step);
    }
    return faults;
}

double usualRate(const std::vector<boatmotionrawdata_v5>& samples) {
    std::vector<double> steps;
    for (std::size_t i = 1; i < samples.size(); ++i)
        if (const double step = samples[i].timestamp - samples[i - 1].timestamp; step > 0)
            steps.push_back(step);
    if (steps.empty())
        return 0;
    const auto middle = steps.begin() + static_cast<std::ptrdiff_t>(steps.size() / 2);
    std::ranges::nth_element(steps, middle);
    return 1 / *middle;
}

QStringList odditiesOf(const std::vector<boatmotionrawdata_v5>& samples) {
    if (samples.empty())
        return {tr("no motion of the boat")};
    const StampFaults faults = faultsOf(samples);
    QStringList told;
    if (faults.holes == 1)
        told << tr("a hole of %1 s").arg(shownNumber(faults.longest, 1));
    if (faults.holes > 1)
        told << tr("%1 holes, the longest of %2 s")
                    .arg(faults.holes)
                    .arg(shownNumber(faults.longest, 1));
    if (faults.backward > 0)
        told << (faults.backward == 1
                     ? tr("the clock ran backwards once")
                     : tr("the clock ran backwards %1 times").arg(faults.backward));
    if (faults.repeated > 0)
        told << (faults.repeated == 1 ? tr("a moment stands twice")
                                      : tr("%1 moments stand twice").arg(faults.repeated));
    return told;
}

} // namespace

QString titleOf(CurveKind kind) {
    return tr(textOf(kind).title);
}

QString shortTitleOf(CurveKind kind) {
    return tr(textOf(kind).shortTitle);
}

QString unitOf(CurveKind kind) {
    return tr(textOf(kind).unit);
}

RecordingFacts factsOf(const bmrawdata_v5& session) {
    RecordingFacts facts;
    const auto& samples = session.boatmotion;
    if (!samples.empty()) {
        const auto [first, last] =
            std::ranges::minmax_element(samples, {}, &boatmotionrawdata_v5::timestamp);
        facts.first = first->timestamp;
        facts.seconds = last->timestamp - first->timestamp;
        facts.rate = usualRate(samples);
    }
    facts.hasWatch = !session.watchmotion.empty();
    facts.hasHeart = !session.heart.empty();
    facts.hasPosition = !session.gps.empty();
    facts.oddities = odditiesOf(samples);
    return facts;
}

std::shared_ptr<MotionRecording> readRecording(const std::filesystem::path& path) {
    auto recording = std::make_shared<MotionRecording>();
    recording->session = readRawSession(path);
    recording->facts = factsOf(recording->session);
    recording->data.name = path.filename().string();
    recording->data.url = path;
    recording->data.bm = std::move(recording->session.boatmotion);
    recording->session.boatmotion.clear();
    recording->profile = profileOf(recording->session.athleteinfo);
    recording->curves = curvesOf(*recording);
    return recording;
}

} // namespace kavela::desktop
