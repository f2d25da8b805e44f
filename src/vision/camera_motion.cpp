#include "vision/camera_motion.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <utility>

namespace kavela {

namespace {

constexpr int CoarseFactor = 8; ///< from the picture in which blocks are matched to the coarse one
constexpr int CoarseReach = 8;  ///< pixels of the coarse picture
constexpr int MostUnknown = 12; ///< pictures after which a new one is begun with

int meanShade(const SmallPlane& plane) {
    std::int64_t sum = 0;
    for (const std::uint8_t sample : plane.samples)
        sum += sample;
    return static_cast<int>(sum / std::max<std::int64_t>(std::ssize(plane.samples), 1));
}

/// A motion between pictures that are smaller by a factor, in pixels of the large ones.
PictureMotion enlarged(PictureMotion motion, double factor) {
    motion.dx *= factor;
    motion.dy *= factor;
    return motion;
}

/// A block looks the same only as long as it is about as large and upright, and enough of them have
/// to be in view.
bool isNearView(const PictureMotion& motion, int width, int height) {
    constexpr double MostZoom = 1.06;
    constexpr double MostTurn = 0.05; // radians
    constexpr double LeastShared = 0.5;
    const double scale = motion.scale();
    if (!(scale < MostZoom && scale > 1 / MostZoom && std::abs(motion.b) < MostTurn * scale))
        return false;
    const PicturePlace middle = motion({width / 2.0, height / 2.0});
    const double across = 1 - std::abs(middle.x - width / 2.0) / width;
    const double down = 1 - std::abs(middle.y - height / 2.0) / height;
    return across > 0 && down > 0 && across * down >= LeastShared;
}

} // namespace

std::optional<PictureMotion> CameraMotion::follow(const TrackPicture& picture,
                                                  const std::optional<TrackBox>& without) {
    constexpr int Side = StillBlocks::PictureSide;
    const int factor = std::max((std::max(picture.width(), picture.height()) + Side / 2) / Side, 1);
    SmallPlane now = smallPlane(picture.planes[0], factor);
    SmallPlane coarse = smallPlane(now.plane(), CoarseFactor);
    std::optional<TrackBox> box = without;
    if (box)
        box = TrackBox{box->x / factor, box->y / factor, box->width / factor, box->height / factor};
    const bool isFirst = m_before.samples.empty();
    const auto motion = isFirst ? std::optional(PictureMotion()) : motionTo(now, coarse, box);
    m_unknown = motion ? 0 : m_unknown + 1;
    if (!motion && m_unknown > MostUnknown) {
        m_views.clear();
        m_toNow = {};
    }
    if (motion || m_unknown > MostUnknown) {
        m_before = std::move(now);
        m_coarseBefore = std::move(coarse);
    }
    return motion ? std::optional(enlarged(*motion, factor)) : std::nullopt;
}

/// The view that was kept first tells the place best: what was kept later lies off by the errors of
/// all before. Only where none is near enough does the last picture become one.
std::optional<PictureMotion> CameraMotion::motionTo(const SmallPlane& now, const SmallPlane& coarse,
                                                    const std::optional<TrackBox>& box) {
    const PictureMotion shift = coarseShift(coarse);
    for (View& view : m_views)
        view.hasFailed = false;
    for (View& view : m_views)
        if (const auto motion = motionFrom(view, now, shift, box)) {
            forgetFailing();
            return motion;
        }
    View last{StillBlocks(m_before, box), m_toNow};
    const auto motion = motionFrom(last, now, shift, box);
    if (motion) {
        forgetFailing();
        // The first one stays for whom the camera comes back to where it began.
        if (m_views.size() >= MostViews)
            m_views.erase(m_views.begin() + 1);
        m_views.push_back(std::move(last));
    }
    return motion;
}

/// A picture that another view explains, and one that is as near does not, speaks against that one:
/// it would be tried in vain for ever.
void CameraMotion::forgetFailing() {
    for (View& view : m_views)
        view.failures += view.hasFailed ? 1 : 0;
    std::erase_if(m_views, [](const View& view) { return view.failures > MostFailures; });
}

std::optional<PictureMotion> CameraMotion::motionFrom(View& view, const SmallPlane& now,
                                                      const PictureMotion& shift,
                                                      const std::optional<TrackBox>& box) {
    const PictureMotion expected = view.fromFirst.inverse().then(m_toNow).then(shift);
    if (!isNearView(expected, now.width, now.height))
        return std::nullopt;
    std::optional<TrackBox> boxNow = box;
    if (boxNow) {
        boxNow->x += shift.dx;
        boxNow->y += shift.dy;
    }
    const auto matches = view.blocks.matchesIn(now, expected, boxNow);
    const auto motion = agreedMotion(matches);
    view.hasFailed = !motion;
    if (!motion)
        return std::nullopt;
    view.failures = 0;
    const PictureMotion before = std::exchange(m_toNow, view.fromFirst.then(*motion));
    return before.inverse().then(m_toNow);
}

/// A jerk can be larger than what blocks are searched in: the shift on which the whole picture
/// differs least.
PictureMotion CameraMotion::coarseShift(const SmallPlane& coarse) const {
    PictureMotion best;
    double least = std::numeric_limits<double>::infinity();
    const int lighter = meanShade(coarse) - meanShade(m_coarseBefore);
    for (int dy = -CoarseReach; dy <= CoarseReach; ++dy)
        for (int dx = -CoarseReach; dx <= CoarseReach; ++dx) {
            int sum = 0;
            int count = 0;
            for (int y = std::max(0, -dy); y < std::min(coarse.height, coarse.height - dy); ++y)
                for (int x = std::max(0, -dx); x < std::min(coarse.width, coarse.width - dx); ++x) {
                    sum +=
                        std::abs(m_coarseBefore.row(y)[x] + lighter - coarse.row(y + dy)[x + dx]);
                    ++count;
                }
            // Of two that fit alike, the smaller one.
            const double mean = count > 0 ? double(sum) / count + 0.02 * std::hypot(dx, dy) : least;
            if (mean < least && count * 3 > coarse.width * coarse.height) {
                least = mean;
                best.dx = dx * CoarseFactor;
                best.dy = dy * CoarseFactor;
            }
        }
    return best;
}

} // namespace kavela
