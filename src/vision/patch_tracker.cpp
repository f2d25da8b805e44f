#include "vision/patch_tracker.h"

#include "common/text.h"
#include "vision/track_error.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela {

namespace {

constexpr double LongerSide = 40;     ///< samples along the longer side of a box
constexpr double LeastContrast = 3;   ///< shades
constexpr double ReachOfBox = 0.35;   ///< of its longer side
constexpr int LeastReach = 10;        ///< samples
constexpr int MostReach = 28;         ///< samples
constexpr double BelievedAgain = 0.5; ///< score behind a gap
constexpr double RenewedFrom = 0.55;  ///< score that is good enough to learn from
constexpr double RenewedShare = 0.08;
constexpr double LeastFirst = 0.2; ///< correlation with the first look
constexpr double SizeStep = 0.04;

double topOf(double before, double at, double behind) {
    const double bend = before - 2 * at + behind;
    return bend < 0 ? std::clamp((before - behind) / (2 * bend), -0.5, 0.5) : 0;
}

bool liesInPicture(const TrackPicture& picture, const PicturePlace& place) {
    return place.x >= 0 && place.y >= 0 && place.x < picture.width() && place.y < picture.height();
}

void checkBox(const TrackPicture& picture, const TrackBox& box) {
    if (!(box.width >= PatchTracker::LeastSide && box.height >= PatchTracker::LeastSide))
        throw TrackError(say("The box is too small: it needs 8 pixels each way at least."));
    if (box.x < 0 || box.y < 0 || box.x + box.width > picture.width() ||
        box.y + box.height > picture.height())
        throw TrackError(say("The box does not lie within the picture, which has {} × {} pixels.",
                             picture.width(), picture.height()));
}

} // namespace

PatchTracker::PatchTracker(const TrackPicture& picture, const TrackBox& box)
    : m_box(box), m_place(box.middle()) {
    checkBox(picture, box);
    m_step = std::max(std::max(box.width, box.height) / LongerSide, 1.0);
    m_width = std::max(static_cast<int>(std::lround(box.width / m_step)), 4);
    m_height = std::max(static_cast<int>(std::lround(box.height / m_step)), 4);
    SampledPatch patch;
    samplePatch(picture, m_place, m_step, m_width, m_height, patch);
    m_first.emplace(patch);
    if (m_first->contrast() < LeastContrast)
        throw TrackError(say("There is nothing in the box that could be known again: it has one "
                             "colour all over."));
    m_renewed = m_first;
}

TrackBox PatchTracker::expectedBox() const {
    const double width = m_box.width * m_size;
    const double height = m_box.height * m_size;
    return {m_place.x - width / 2, m_place.y - height / 2, width, height};
}

double PatchTracker::scoreAt(const PatchWindow& window, int x, int y) const {
    return (window.correlation(*m_first, x, y) + window.correlation(*m_renewed, x, y)) / 2;
}

/// Every other place first: what is looked for is wider than one sample.
PatchTracker::Match PatchTracker::bestMatch(const PatchWindow& window) const {
    int bestX = 0;
    int bestY = 0;
    double best = -2;
    const auto tryAt = [&](int x, int y) {
        if (x < 0 || y < 0 || x >= window.across() || y >= window.down())
            return;
        if (const double score = scoreAt(window, x, y); score > best) {
            best = score;
            bestX = x;
            bestY = y;
        }
    };
    for (int y = 0; y < window.down(); y += 2)
        for (int x = 0; x < window.across(); x += 2)
            tryAt(x, y);
    const std::array rough{bestX, bestY};
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            if (dx != 0 || dy != 0)
                tryAt(rough[0] + dx, rough[1] + dy);
    const auto at = [&](int x, int y) {
        return scoreAt(window, std::clamp(x, 0, window.across() - 1),
                       std::clamp(y, 0, window.down() - 1));
    };
    Match match;
    match.x = bestX - (window.across() - 1) / 2.0 +
              topOf(at(bestX - 1, bestY), best, at(bestX + 1, bestY));
    match.y =
        bestY - (window.down() - 1) / 2.0 + topOf(at(bestX, bestY - 1), best, at(bestX, bestY + 1));
    match.score = best;
    match.first = window.correlation(*m_first, bestX, bestY);
    return match;
}

std::optional<PatchTracker::Found> PatchTracker::follow(const TrackPicture& picture,
                                                        const PictureMotion& camera) {
    // Without turning the speed: within the life of a speed no camera is turned that far.
    PicturePlace expected = camera(m_place);
    expected = {expected.x + m_speed.x, expected.y + m_speed.y};
    const double size = m_size * camera.scale();
    const double longer = std::max(m_width, m_height);
    const int reach = std::min(
        std::max(static_cast<int>(longer * ReachOfBox), LeastReach) + 2 * m_missed, MostReach);
    std::optional<Found> found;
    if (liesInPicture(picture, expected)) {
        const double step = m_step * size;
        SampledPatch samples;
        samplePatch(picture, expected, step, m_width + 2 * reach, m_height + 2 * reach, samples);
        const Match match = bestMatch(PatchWindow(std::move(samples), m_width, m_height));
        const PicturePlace place{expected.x + match.x * step, expected.y + match.y * step};
        if (match.score >= (m_missed > 0 ? BelievedAgain : LeastScore) &&
            match.first >= LeastFirst && liesInPicture(picture, place))
            found = Found{place, size, match.score};
    }
    m_size = size;
    if (found) {
        take(picture, *found, expected);
        found->size = m_size;
    } else {
        m_place = expected;
        m_speed = {m_speed.x * 0.9, m_speed.y * 0.9};
        ++m_missed;
    }
    return found;
}

/// Whether it fits better a little larger or smaller: boats come nearer.
double PatchTracker::otherSize(const TrackPicture& picture, const PicturePlace& place,
                               double score) const {
    constexpr double LeastGain = 0.004;
    constexpr double MostChange = 4;
    double best = score + LeastGain;
    double size = m_size;
    for (const double factor : {1 - SizeStep, 1 + SizeStep}) {
        const double other = m_size * factor;
        if (other > MostChange || other < 1 / MostChange)
            continue;
        SampledPatch samples;
        samplePatch(picture, place, m_step * other, m_width, m_height, samples);
        const double at = scoreAt(PatchWindow(std::move(samples), m_width, m_height), 0, 0);
        if (at > best) {
            best = at;
            size = m_size * (1 + (factor - 1) / 2);
        }
    }
    return size;
}

void PatchTracker::take(const TrackPicture& picture, const Found& found,
                        const PicturePlace& expected) {
    constexpr double SpeedShare = 0.4; // of what the last picture tells
    SampledPatch patch;
    samplePatch(picture, found.place, m_step * m_size, m_width, m_height, patch);
    const double here = scoreAt(PatchWindow(patch, m_width, m_height), 0, 0);
    m_speed = {m_speed.x + SpeedShare * (found.place.x - expected.x),
               m_speed.y + SpeedShare * (found.place.y - expected.y)};
    m_place = found.place;
    m_missed = 0;
    if (found.score >= RenewedFrom)
        m_renewed->renew(patch, RenewedShare);
    m_size = otherSize(picture, found.place, here);
}

} // namespace kavela
