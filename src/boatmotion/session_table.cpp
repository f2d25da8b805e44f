#include "boatmotion/session_table.h"

#include "boatmotion/strokes/segments.h"

#include <algorithm>
#include <cmath>

namespace kavela {

namespace {

constexpr double BoutGap = 2.5;         // s between strokes: more ends a bout
constexpr double HeartReach = 15;       // s that a heart rate holds
constexpr std::size_t MostRows = 20000; // of distance marks: more come of damaged fixes
constexpr std::size_t RateReach = 2;    // strokes on both sides of the median

std::optional<double> known(double value) {
    return value != 0 && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// Adds up what is known.
class Mean {
public:
    void add(std::optional<double> value) {
        if (!value)
            return;
        m_sum += *value;
        ++m_count;
    }
    [[nodiscard]] std::optional<double> value() const {
        return m_count > 0 ? std::optional(m_sum / m_count) : std::nullopt;
    }

private:
    double m_sum = 0;
    int m_count = 0;
};

double medianRate(const std::vector<StrokeFigures>& strokes, std::size_t place,
                  const std::vector<smartBMdata_v4>& entries) {
    std::size_t first = place;
    while (first > 0 && place - first < RateReach &&
           strokes[first].time - strokes[first - 1].time < BoutGap)
        --first;
    std::size_t last = place;
    while (last + 1 < strokes.size() && last - place < RateReach &&
           strokes[last + 1].time - strokes[last].time < BoutGap)
        ++last;
    std::vector<double> rates;
    for (std::size_t i = first; i <= last; ++i)
        rates.push_back(entries[strokes[i].entry].stroke.strokeRate);
    std::ranges::sort(rates);
    const std::size_t half = rates.size() / 2;
    return rates.size() % 2 == 1 ? rates[half] : (rates[half - 1] + rates[half]) / 2;
}

void addHeart(const EditedSession& edited, SessionFigures& figures) {
    for (const heartmotiondata& reading : edited.session.heart)
        if (reading.hr > 0)
            figures.heart.emplace_back(reading.date.seconds - edited.clockOffset, reading.hr);
    std::ranges::stable_sort(figures.heart, {}, &std::pair<double, double>::first);
}

void addStroke(const smartBMdata_v4& entry, std::size_t place, SessionFigures& figures) {
    StrokeFigures stroke;
    stroke.entry = place;
    stroke.time = entry.timestamp;
    stroke.end = entry.timestamp + 60 / entry.stroke.strokeRate;
    stroke.force = known(entry.stroke.force);
    stroke.impulse = known(entry.stroke.impulse);
    stroke.power = known(entry.stroke.power);
    stroke.speed = speedAt(figures.track, (stroke.time + stroke.end) / 2);
    stroke.heartRate = heartRateAt(figures, stroke.time);
    stroke.way = distanceBetween(figures.track, stroke.time, stroke.end);
    figures.strokes.push_back(stroke);
}

/// A rate is that of a stroke alone and its cycle may end a little before or after the next catch;
/// one that ends long before it was followed by something else.
void holdStrokes(std::vector<StrokeFigures>& strokes) {
    constexpr double FollowsWithin = 1.5; // cycles
    for (std::size_t i = 0; i < strokes.size(); ++i) {
        StrokeFigures& stroke = strokes[i];
        const double cycle = std::min(stroke.end - stroke.time, BoutGap);
        stroke.until = stroke.time + (cycle > 0 ? cycle : 0);
        if (i + 1 < strokes.size() && strokes[i + 1].time <= stroke.time + FollowsWithin * cycle)
            stroke.until = strokes[i + 1].time;
    }
}

void addTurn(const smartBMdata_v4& entry, std::size_t place, SessionFigures& figures) {
    TurnFigures turn;
    turn.entry = place;
    turn.time = entry.timestamp;
    turn.heartRate = heartRateAt(figures, turn.time);
    const double middle = entry.timestamp + entry.rotation.rotationTime / 2;
    if (const auto at = placeAt(figures.track, middle))
        turn.marker = rotData{static_cast<std::int64_t>(figures.turns.size() + 1), at->latitude,
                              at->longitude, entry.rotation};
    figures.turns.push_back(turn);
}

/// The moments between which a segment lies: its marks, or those of its strokes.
MomentRange rangeOf(const EditedSession& edited, std::int64_t segment, MomentRange strokes) {
    const auto place = static_cast<std::size_t>(segment);
    if (segment > 0 && place < edited.marks.size())
        return {edited.marks[place - 1], edited.marks[place]};
    return strokes;
}

void addSegments(const EditedSession& edited, SessionFigures& figures) {
    for (const segmentStruct& averages : segmentAverages(edited.session.strokesData)) {
        StretchOfSession segment;
        segment.averages = averages;
        std::optional<MomentRange> ofStrokes;
        double paddled = 0;
        for (const StrokeFigures& stroke : figures.strokes) {
            if (edited.session.strokesData[stroke.entry].segment != averages.segment)
                continue;
            ++segment.strokes;
            paddled += stroke.end - stroke.time;
            ofStrokes = {ofStrokes ? ofStrokes->from : stroke.time, stroke.end};
        }
        const MomentRange range = rangeOf(edited, averages.segment, *ofStrokes);
        segment.from = range.from;
        // what lies outside the marks is no stretch of water: only its strokes count
        const bool isRest = averages.segment == 0 && edited.marks.size() >= 2;
        segment.seconds = isRest ? paddled : range.to - range.from;
        if (!isRest)
            segment.distance = distanceBetween(figures.track, range.from, range.to);
        if (segment.distance && segment.seconds > 0)
            segment.speed = *segment.distance / segment.seconds;
        figures.segments.push_back(segment);
    }
}

SideFigures sideOf(const EditedSession& edited, const SessionFigures& figures, std::int64_t hand) {
    SideFigures side;
    Mean force;
    Mean impulse;
    Mean power;
    Mean water;
    for (const StrokeFigures& stroke : figures.strokes) {
        const smartStraight_v3& values = edited.session.strokesData[stroke.entry].stroke;
        if (values.hand != hand)
            continue;
        ++side.strokes;
        force.add(stroke.force);
        impulse.add(stroke.impulse);
        power.add(stroke.power);
        water.add(values.waterPhase);
    }
    side.force = force.value();
    side.impulse = impulse.value();
    side.power = power.value();
    side.waterPhase = water.value().value_or(0);
    return side;
}

/// The moment at which the way reaches a distance from the first fix.
double momentAt(const Track& track, double distance) {
    const auto next = std::ranges::lower_bound(track, distance, {}, &TrackPlace::distance);
    if (next == track.begin() || next == track.end())
        return next == track.end() ? track.back().time : track.front().time;
    const TrackPlace& before = *std::prev(next);
    const double way = next->distance - before.distance;
    return std::lerp(before.time, next->time, way > 0 ? (distance - before.distance) / way : 0);
}

MetersRow metersBetween(const SessionFigures& figures, double from, double to, double distance,
                        double step) {
    Mean rate;
    Mean power;
    Mean force;
    Mean impulse;
    double count = 0;
    for (const StrokeFigures& stroke : figures.strokes) {
        if (stroke.time < from || stroke.time >= to)
            continue;
        ++count;
        rate.add(stroke.rate);
        power.add(stroke.power);
        force.add(stroke.force);
        impulse.add(stroke.impulse);
    }
    const double speed = to > from ? step / (to - from) : 0;
    return {{.distance = distance,
             .strokerate = rate.value().value_or(0),
             .power = power.value().value_or(0),
             .force = force.value().value_or(0),
             .drag = MotionProfile().drag * speed * speed,
             .impulse = impulse.value().value_or(0),
             .speed = speed,
             .mstr = count > 0 ? step / count : 0},
            from};
}

} // namespace

SessionFigures figuresOf(const EditedSession& edited) {
    SessionFigures figures;
    figures.moments = momentsOf(edited);
    figures.track = trackOf(edited.session.gps, edited.clockOffset);
    addHeart(edited, figures);
    const std::vector<smartBMdata_v4>& entries = edited.session.strokesData;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (isStroke(entries[i]))
            addStroke(entries[i], i, figures);
        else
            addTurn(entries[i], i, figures);
    }
    std::ranges::stable_sort(figures.strokes, {}, &StrokeFigures::time);
    std::ranges::stable_sort(figures.turns, {}, &TurnFigures::time);
    for (std::size_t i = 0; i < figures.strokes.size(); ++i)
        figures.strokes[i].rate = medianRate(figures.strokes, i, entries);
    holdStrokes(figures.strokes);
    addSegments(edited, figures);
    figures.sides = {sideOf(edited, figures, 0), sideOf(edited, figures, 1)};
    return figures;
}

std::optional<double> heartRateAt(const SessionFigures& figures, double moment) {
    const auto after =
        std::ranges::upper_bound(figures.heart, moment, {}, &std::pair<double, double>::first);
    if (after == figures.heart.begin() || moment - std::prev(after)->first > HeartReach)
        return std::nullopt;
    return std::prev(after)->second;
}

std::optional<std::size_t> strokeMadeAt(const SessionFigures& figures, double moment) {
    const auto after = std::ranges::upper_bound(figures.strokes, moment, {}, &StrokeFigures::time);
    if (after == figures.strokes.begin() || moment >= std::prev(after)->until)
        return std::nullopt;
    return static_cast<std::size_t>(after - figures.strokes.begin()) - 1;
}

std::optional<std::size_t> strokeAt(const SessionFigures& figures, double moment) {
    const auto after = std::ranges::upper_bound(figures.strokes, moment, {}, &StrokeFigures::time);
    const double since =
        after == figures.strokes.begin() ? HUGE_VAL : moment - std::prev(after)->time;
    const double until = after == figures.strokes.end() ? HUGE_VAL : after->time - moment;
    const auto place = static_cast<std::size_t>(after - figures.strokes.begin());
    if (until < since && until < (after->end - after->time) / 2)
        return place;
    return since < BoutGap ? std::optional(place - 1) : std::nullopt;
}

std::optional<double> imbalance(std::optional<double> left, std::optional<double> right) {
    if (!left || !right || *left + *right <= 0)
        return std::nullopt;
    return 200 * (*right - *left) / (*left + *right);
}

std::vector<MetersRow> metersOf(const EditedSession& edited, const SessionFigures& figures,
                                double step) {
    std::vector<MetersRow> rows;
    if (figures.track.empty() || !(step > 0))
        return rows;
    const double begin =
        edited.marks.size() >= 2
            ? placeAt(figures.track, edited.marks.front()).value_or(figures.track.front()).distance
            : 0;
    const double length = figures.track.back().distance - begin;
    for (double distance = step; distance <= length && rows.size() < MostRows; distance += step) {
        const double from = momentAt(figures.track, begin + distance - step);
        const double to = momentAt(figures.track, begin + distance);
        rows.push_back(metersBetween(figures, from, to, distance, step));
    }
    return rows;
}

} // namespace kavela
