#include "desktop/taking/recording/run_recording.h"

#include "boatmotion/motion_cover.h"
#include "common/folded_text.h"
#include "common/text.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <set>

namespace kavela::desktop {

namespace {

constexpr double Gravity = 9.80665; ///< m/s² in one g
constexpr double HalfDay = 43200;   ///< s

std::set<std::string> wordsIn(const std::string& name) {
    std::set<std::string> words;
    std::string word;
    for (const char c : folded(name) + ' ') {
        const bool isPart = std::isalnum(static_cast<unsigned char>(c)) || (c & 0x80) != 0;
        if (isPart) {
            word += c;
        } else if (!word.empty()) {
            words.insert(std::move(word));
            word.clear();
        }
    }
    return words;
}

template <class Value>
std::shared_ptr<const std::vector<double>> shared(Value&& values) {
    return std::make_shared<const std::vector<double>>(std::forward<Value>(values));
}

void showAccelerations(LoadedRecording& recording) {
    std::vector<std::pair<double, double>> samples;
    for (const boatmotionrawdata_v5& sample : recording.session.boatmotion) {
        const accelerationCodable& a = sample.acceleration;
        if (std::isfinite(sample.timestamp))
            samples.emplace_back(sample.timestamp, std::hypot(a.x, a.y, a.z) * Gravity);
    }
    std::ranges::sort(samples, {}, &std::pair<double, double>::first);
    std::vector<double> times;
    std::vector<double> values;
    for (const auto& [time, value] : samples) {
        times.push_back(time);
        values.push_back(value);
    }
    recording.times = shared(std::move(times));
    recording.forward = shared(std::move(values));
    recording.yawRate = shared(std::vector<double>());
}

} // namespace

LoadedRecording loadedRecording(std::string name, bmrawdata_v5 session) {
    LoadedRecording recording;
    recording.name = std::move(name);
    recording.session = std::move(session);
    try {
        MotionAnalysis analysis =
            analyseMotion(recording.session, profileOf(recording.session.athleteinfo));
        recording.times = shared(std::move(analysis.series.time));
        recording.forward = shared(std::move(analysis.series.forward));
        recording.yawRate = shared(std::move(analysis.series.yawRate));
        for (const std::string& note : notesOf(analysis))
            recording.note += (recording.note.empty() ? "" : "\n") + note;
    } catch (const MotionError& error) {
        showAccelerations(recording);
        recording.note = error.what();
    }
    return recording;
}

std::optional<ClockFit> CommonEvents::fit() const {
    std::vector<EventPair> events;
    for (const Event& event : {first, second})
        if (event.isWhole())
            events.push_back({*event.video, *event.stamp});
    return events.empty() ? std::nullopt : std::optional(clockFit(events));
}

RunFacts factsOf(const athletedata031& run, const infodata031& info) {
    RunFacts facts{.crew = run.names, .race = info.title, .span = runSpan(run)};
    if (info.date.seconds > 0)
        facts.date = info.date;
    double at = 0;
    const std::vector<double>& times = run.sectioninfo.times;
    for (std::size_t k = 0; k < times.size(); ++k) {
        if (!(times[k] > 0))
            continue;
        const bool hasTitle = k < info.splitTitles.size() && !info.splitTitles[k].empty();
        facts.sections.push_back(
            {hasTitle ? info.splitTitles[k] : std::to_string(k + 1), at, at + times[k]});
        at += times[k];
    }
    return facts;
}

Difference differenceOf(const bmrawdata_v5& recording, const RunFacts& run) {
    Difference difference;
    const std::set<std::string> recorded = wordsIn(recording.athleteinfo.name);
    bool isNamed = false;
    bool isMeant = false;
    for (const std::string& name : run.crew) {
        const std::set<std::string> words = wordsIn(name);
        isNamed = isNamed || !words.empty();
        isMeant = isMeant || std::ranges::includes(words, recorded) ||
                  (!words.empty() && std::ranges::includes(recorded, words));
    }
    difference.isOtherAthlete = !recorded.empty() && isNamed && !isMeant;
    const ReferenceDate date = recording.info.date;
    difference.isOtherDay = run.date && date.seconds > 0 && dayText(date) != dayText(*run.date) &&
                            std::abs(date.seconds - run.date->seconds) > HalfDay;
    return difference;
}

std::vector<std::string> coverNotes(const bmrawdata_v5& recording, const ClockFit& fit,
                                    const RunFacts& run) {
    if (!run.span || recording.boatmotion.empty())
        return {};
    const MotionCover cover(recording.boatmotion, runClock(fit, run.span->start));
    std::vector<std::string> notes = cover.notes(run.span->end - run.span->start);
    if (notes.empty())
        return notes;
    std::string without;
    std::string inPart;
    for (const RunFacts::Section& section : run.sections) {
        const auto share = cover.of(section.start, section.end);
        if (share == MotionCover::Whole)
            continue;
        std::string& list = share == MotionCover::None ? without : inPart;
        list += (list.empty() ? "" : ", ") + section.title;
    }
    if (!without.empty())
        notes.push_back(say("Sections without strokes: {}.", without));
    if (!inPart.empty())
        notes.push_back(say("Sections recorded in part: {}.", inPart));
    return notes;
}

void attachTo(athletedata031& run, AttachedPart part) {
    run.bm = std::move(part.bm);
    run.hr = std::move(part.hr);
    run.gps = std::move(part.gps);
    run.watchmotion = std::move(part.watchmotion);
}

void detachFrom(athletedata031& run) {
    attachTo(run, {});
}

bool hasRecording(const athletedata031& run) {
    return !run.bm.empty() || !run.hr.empty() || !run.gps.empty() || !run.watchmotion.empty();
}

} // namespace kavela::desktop
