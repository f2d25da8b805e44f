#include "boatmotion/session_editing.h"

#include "boatmotion/conversion.h"
#include "boatmotion/session_clock.h"
#include "boatmotion/strokes/segments.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace kavela {

namespace {

constexpr std::size_t LeastSamplesKept = 100;
constexpr double FarthestMoment = 1e12; // s: what is further away is a damaged number
using IsKept = std::function<bool(double moment)>;

std::vector<double> marksOf(const std::vector<smartBMdata_v4>& entries) {
    std::vector<double> marks;
    std::int64_t segment = 0;
    for (const smartBMdata_v4& entry : entries) {
        if (entry.segment == segment)
            continue;
        marks.push_back(entry.timestamp);
        segment = entry.segment;
    }
    if (segment != 0) // the last segment lasts to the end
        marks.push_back(std::nextafter(entries.back().timestamp, HUGE_VAL));
    return marks;
}

/// Sessions that were made without knowing the bow tell no hand of any stroke.
bool isBowKnown(const std::vector<smartBMdata_v4>& entries) {
    const auto isStroke = [](const smartBMdata_v4& entry) { return entry.stroke.strokeRate > 0; };
    return std::ranges::none_of(entries, isStroke) ||
           std::ranges::any_of(entries, [&](const smartBMdata_v4& entry) {
               return isStroke(entry) && entry.stroke.hand != UnknownHand;
           });
}

template <class Sample, class MomentOf>
void keep(std::vector<Sample>& samples, const IsKept& isKept, const MomentOf& momentOf) {
    std::erase_if(samples, [&](const Sample& sample) { return !isKept(momentOf(sample)); });
}

void cutRecording(EditedSession& edited, const IsKept& isKept) {
    bmrawdata_v5 recording = *edited.recording;
    const auto dated = [&](const auto& sample) { return sample.date.seconds - edited.clockOffset; };
    const double before = recording.boatmotion.empty() ? 0 : recording.boatmotion.front().timestamp;
    keep(recording.boatmotion, isKept, [](const auto& sample) { return sample.timestamp; });
    keep(recording.watchmotion, isKept,
         [&](const auto& sample) { return sample.timestamp + edited.watchOffset; });
    keep(recording.gps, isKept, dated);
    keep(recording.heart, isKept, dated);
    if (!recording.boatmotion.empty() && recording.boatmotion.front().timestamp != before)
        edited.session.info.date = {recording.boatmotion.front().timestamp + edited.clockOffset};
    edited.recording = std::make_shared<const bmrawdata_v5>(std::move(recording));
}

std::optional<EditedSession> cutSession(const EditedSession& session, const IsKept& isKept) {
    EditedSession result = session;
    const auto dated = [&](const auto& sample) { return sample.date.seconds - result.clockOffset; };
    keep(result.session.strokesData, isKept, [](const auto& entry) { return entry.timestamp; });
    keep(result.session.heart, isKept, dated);
    keep(result.session.gps, isKept, dated);
    keep(result.powerMeter, isKept, [](const auto& sample) { return sample.dateDouble; });
    std::vector<double> marks = session.marks;
    keep(marks, isKept, [](double mark) { return mark; });
    if (marks.size() != session.marks.size())
        setMarks(result, std::move(marks));
    if (!result.recording)
        return result.session.strokesData.empty() ? std::nullopt : std::optional(std::move(result));
    cutRecording(result, isKept);
    if (result.recording->boatmotion.size() < LeastSamplesKept)
        return std::nullopt;
    return result;
}

} // namespace

EditedSession editedSession(std::shared_ptr<const bmrawdata_v5> recording,
                            const MotionAnalysis& analysis) {
    EditedSession edited;
    edited.session = processedSession(*recording, analysis);
    edited.recording = std::move(recording);
    edited.clockOffset = analysis.clockOffset;
    edited.watchOffset = analysis.usedWatch ? analysis.watchOffset : 0;
    edited.flags = analysis.flags;
    edited.notes = notesOf(analysis);
    edited.hasSpeed = analysis.hasForce();
    edited.isBowKnown = analysis.isBowKnown;
    return edited;
}

EditedSession analysedSession(bmrawdata_v5 recording, std::optional<Mount> mount) {
    auto shared = std::make_shared<const bmrawdata_v5>(std::move(recording));
    MotionProfile profile = profileOf(shared->athleteinfo);
    profile.mount = mount;
    const MotionAnalysis analysis = analyseMotion(*shared, profile);
    EditedSession edited = editedSession(std::move(shared), analysis);
    edited.mount = mount;
    return edited;
}

EditedSession editedSession(smartAlldata_v4 session) {
    EditedSession edited;
    const SessionClock clock = clockOf(session);
    edited.clockOffset = clock.offset;
    edited.isClockGuessed = clock.isGuessed;
    edited.isBowKnown = isBowKnown(session.strokesData);
    edited.session = std::move(session);
    EditedSession marked = edited;
    setMarks(marked, marksOf(edited.session.strokesData));
    const bool isSame = std::ranges::equal(marked.session.strokesData, edited.session.strokesData,
                                           {}, &smartBMdata_v4::segment, &smartBMdata_v4::segment);
    return isSame ? marked : edited;
}

MomentRange momentsOf(const EditedSession& edited) {
    double first = HUGE_VAL;
    double last = -HUGE_VAL;
    const auto take = [&](double moment) {
        if (!(std::abs(moment) < FarthestMoment))
            return;
        first = std::min(first, moment);
        last = std::max(last, moment);
    };
    for (const smartBMdata_v4& entry : edited.session.strokesData)
        take(entry.timestamp);
    for (const gpsrawdata& fix : edited.session.gps)
        take(fix.date.seconds - edited.clockOffset);
    if (edited.recording && !edited.recording->boatmotion.empty()) {
        take(edited.recording->boatmotion.front().timestamp);
        take(edited.recording->boatmotion.back().timestamp);
    }
    return first <= last ? MomentRange{first, last} : MomentRange{};
}

std::optional<EditedSession> keptRange(const EditedSession& session, MomentRange range) {
    return cutSession(session,
                      [range](double moment) { return moment >= range.from && moment < range.to; });
}

std::optional<EditedSession> withoutRange(const EditedSession& session, MomentRange range) {
    return cutSession(session,
                      [range](double moment) { return moment < range.from || moment >= range.to; });
}

void setMarks(EditedSession& edited, std::vector<double> marks) {
    std::ranges::sort(marks);
    marks.erase(std::unique(marks.begin(), marks.end()), marks.end());
    edited.marks = std::move(marks);
    numberSegments(edited.session.strokesData, edited.marks);
}

void removeEntries(EditedSession& edited, std::span<const std::size_t> entries) {
    std::vector<smartBMdata_v4>& data = edited.session.strokesData;
    std::vector<smartBMdata_v4> kept;
    for (std::size_t i = 0; i < data.size(); ++i)
        if (std::ranges::find(entries, i) == entries.end())
            kept.push_back(data[i]);
    data = std::move(kept);
}

bmrawdata_v5 recordingOf(const EditedSession& edited) {
    bmrawdata_v5 recording = *edited.recording;
    const infosessionSmart_v3& info = edited.session.info;
    recording.info.date = info.date;
    recording.info.location = info.location;
    recording.info.sessionKind = info.sessionKind;
    infoathlete_v5& athlete = recording.athleteinfo;
    athlete.name = info.name;
    athlete.weight = info.weight;
    athlete.paddleLength = info.paddleLength;
    athlete.bladeArea = info.bladeArea;
    athlete.bladeHeight = info.bladeHeight;
    athlete.handPosition = info.handPosition;
    return recording;
}

} // namespace kavela
