#include "vision/camera_motion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <random>

namespace kavela {

namespace {

constexpr int MatchedSide = 480; ///< longer side of the picture in which blocks are matched
constexpr int BlockSide = 24;    ///< pixels of that picture
constexpr int BlockReach = 8;    ///< pixels round where a block is expected
constexpr int CoarseFactor = 8;  ///< from that picture to the coarse one
constexpr int CoarseReach = 8;   ///< pixels of the coarse picture
constexpr int MostBlocks = 48;
constexpr std::size_t FewestBlocks = 6;
constexpr int LeastTexture = 1; ///< mean difference of neighbours, each way: films are smooth
constexpr int MostUnknown = 12; ///< pictures after which a new one is begun with
constexpr double MostDifference = 0.5; ///< of a block found again, of its contrast
constexpr double MostError = 1.0;      ///< median, pixels of the matched picture

/// The mean brightness of a block, with every second row left out as everywhere here.
int blockMean(const SmallPlane& plane, int left, int top) {
    int sum = 0;
    for (int y = 0; y < BlockSide; y += 2) {
        const std::uint8_t* const row = plane.row(top + y) + left;
        for (int x = 0; x < BlockSide; ++x)
            sum += row[x];
    }
    return sum / (BlockSide * BlockSide / 2);
}

/// The sum of differences once both are equally bright: the sun comes and goes.
int blockDifference(const SmallPlane& a, int ax, int ay, int meanOfA, const SmallPlane& b, int bx,
                    int by) {
    const int lighter = blockMean(b, bx, by) - meanOfA;
    int sum = 0;
    for (int y = 0; y < BlockSide; y += 2) {
        const std::uint8_t* const rowA = a.row(ay + y) + ax;
        const std::uint8_t* const rowB = b.row(by + y) + bx;
        for (int x = 0; x < BlockSide; ++x)
            sum += std::abs(rowA[x] + lighter - rowB[x]);
    }
    return sum;
}

/// What a block's samples differ from their mean, in all.
int blockContrast(const SmallPlane& plane, int left, int top, int mean) {
    int sum = 0;
    for (int y = 0; y < BlockSide; y += 2) {
        const std::uint8_t* const row = plane.row(top + y) + left;
        for (int x = 0; x < BlockSide; ++x)
            sum += std::abs(row[x] - mean);
    }
    return sum;
}

/// Something can be found again only if it differs from its neighbours in both directions.
bool hasTexture(const SmallPlane& plane, int left, int top) {
    int across = 0;
    int down = 0;
    for (int y = top; y < top + BlockSide - 1; y += 2)
        for (int x = left; x < left + BlockSide - 1; ++x) {
            const std::uint8_t* const at = plane.row(y) + x;
            across += std::abs(at[1] - at[0]);
            down += std::abs(at[plane.width] - at[0]);
        }
    const int least = LeastTexture * BlockSide * BlockSide / 2;
    return across >= least && down >= least;
}

int meanShade(const SmallPlane& plane) {
    std::int64_t sum = 0;
    for (const std::uint8_t sample : plane.samples)
        sum += sample;
    return static_cast<int>(sum / std::max<std::int64_t>(std::ssize(plane.samples), 1));
}

double vertex(double before, double at, double behind) {
    const double bend = before - 2 * at + behind;
    return bend > 0 ? std::clamp((before - behind) / (2 * bend), -0.5, 0.5) : 0;
}

template <class Pairs>
std::optional<PictureMotion> fittedMotion(const Pairs& pairs) {
    const auto count = static_cast<double>(pairs.size());
    PicturePlace from;
    PicturePlace to;
    for (const auto& pair : pairs) {
        from = {from.x + pair.from.x / count, from.y + pair.from.y / count};
        to = {to.x + pair.to.x / count, to.y + pair.to.y / count};
    }
    double square = 0;
    double along = 0;
    double turn = 0;
    for (const auto& pair : pairs) {
        const PicturePlace p{pair.from.x - from.x, pair.from.y - from.y};
        const PicturePlace q{pair.to.x - to.x, pair.to.y - to.y};
        square += p.x * p.x + p.y * p.y;
        along += p.x * q.x + p.y * q.y;
        turn += p.x * q.y - p.y * q.x;
    }
    if (square < 1)
        return std::nullopt;
    PictureMotion motion{along / square, turn / square, 0, 0};
    const PicturePlace moved = motion(from);
    motion.dx = to.x - moved.x;
    motion.dy = to.y - moved.y;
    return motion;
}

template <class Pair>
double squaredError(const PictureMotion& motion, const Pair& pair) {
    const PicturePlace at = motion(pair.from);
    return (at.x - pair.to.x) * (at.x - pair.to.x) + (at.y - pair.to.y) * (at.y - pair.to.y);
}

template <class Pair>
double medianError(const PictureMotion& motion, const std::vector<Pair>& pairs,
                   std::vector<double>& errors) {
    errors.clear();
    for (const Pair& pair : pairs)
        errors.push_back(squaredError(motion, pair));
    const auto middle = errors.begin() + static_cast<std::ptrdiff_t>(errors.size() / 2);
    std::ranges::nth_element(errors, middle);
    return *middle;
}

bool isLikely(const PictureMotion& motion) {
    constexpr double MostZoom = 1.25; // from one frame to the next
    const double scale = motion.scale();
    return scale < MostZoom && scale > 1 / MostZoom;
}

/// Least median of the squared errors over pairs of blocks, then the least squares of those that
/// agree with it.
template <class Pair>
std::optional<PictureMotion> agreedMotion(const std::vector<Pair>& pairs) {
    constexpr int Draws = 150;
    if (pairs.size() < FewestBlocks)
        return std::nullopt;
    std::minstd_rand draw(1); // the same film gives the same path
    std::vector<double> errors;
    std::optional<PictureMotion> best;
    double least = std::numeric_limits<double>::infinity();
    for (int i = 0; i < Draws; ++i) {
        const std::size_t first = draw() % pairs.size();
        const std::size_t second = draw() % pairs.size();
        const auto motion = fittedMotion(std::array{pairs[first], pairs[second]});
        if (first == second || !motion || !isLikely(*motion))
            continue;
        if (const double error = medianError(*motion, pairs, errors); error < least) {
            least = error;
            best = motion;
        }
    }
    if (!best || std::sqrt(least) > MostError)
        return std::nullopt;
    const double reach = std::max(2.5 * 1.4826 * std::sqrt(least), 0.4);
    std::vector<Pair> agreeing;
    for (const Pair& pair : pairs)
        if (squaredError(*best, pair) <= reach * reach)
            agreeing.push_back(pair);
    const auto motion = fittedMotion(agreeing);
    return motion && isLikely(*motion) ? motion : best;
}

} // namespace

bool CameraMotion::covers(const std::optional<TrackBox>& box, int x, int y, int factor) {
    return box && x * factor > box->x - BlockSide && x * factor < box->x + box->width &&
           y * factor > box->y - BlockSide && y * factor < box->y + box->height;
}

std::optional<PictureMotion> CameraMotion::follow(const TrackPicture& picture,
                                                  const std::optional<TrackBox>& without) {
    m_factor =
        std::max((std::max(picture.width(), picture.height()) + MatchedSide / 2) / MatchedSide, 1);
    SmallPlane now = smallPlane(picture.planes[0], m_factor);
    SmallPlane coarse = smallPlane(now.plane(), CoarseFactor);
    std::optional<PictureMotion> motion;
    if (!m_hasBefore) {
        motion = PictureMotion();
    } else {
        motion = agreedMotion(matchBlocks(now, coarseShift(coarse), without));
        if (motion) {
            motion->dx *= m_factor;
            motion->dy *= m_factor;
        }
    }
    m_unknown = motion ? 0 : m_unknown + 1;
    if (motion || m_unknown > MostUnknown) {
        m_before = std::move(now);
        m_coarseBefore = std::move(coarse);
        m_hasBefore = true;
    }
    return motion;
}

/// A jerk can be larger than what blocks are searched in: the shift on which the whole picture
/// differs least.
CameraMotion::Shift CameraMotion::coarseShift(const SmallPlane& coarse) const {
    Shift best;
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
                best = {dx * CoarseFactor, dy * CoarseFactor};
            }
        }
    return best;
}

std::vector<CameraMotion::Seen>
CameraMotion::matchBlocks(const SmallPlane& now, const Shift& shift,
                          const std::optional<TrackBox>& without) const {
    const int spacing = std::max(
        BlockSide + 4, static_cast<int>(std::sqrt(double(now.width) * now.height / MostBlocks)));
    std::vector<Seen> seen;
    for (int top = 2; top + BlockSide <= m_before.height - 2; top += spacing)
        for (int left = 2; left + BlockSide <= m_before.width - 2; left += spacing)
            if (!covers(without, left, top, m_factor) && hasTexture(m_before, left, top))
                if (const auto pair = matchBlock(now, left, top, shift))
                    seen.push_back(*pair);
    return seen;
}

std::optional<CameraMotion::Seen> CameraMotion::matchBlock(const SmallPlane& now, int left, int top,
                                                           const Shift& shift) const {
    constexpr int Side = 2 * BlockReach + 1;
    constexpr int Unknown = std::numeric_limits<int>::max();
    std::array<int, std::size_t{Side} * Side> differences;
    differences.fill(Unknown);
    const auto at = [&](int dx, int dy) -> int& {
        return differences[static_cast<std::size_t>((dy + BlockReach) * Side + dx + BlockReach)];
    };
    const int mean = blockMean(m_before, left, top);
    const auto measure = [&](int dx, int dy) {
        const int x = left + shift.x + dx;
        const int y = top + shift.y + dy;
        const bool isInside = std::max(std::abs(dx), std::abs(dy)) <= BlockReach && x >= 0 &&
                              y >= 0 && x + BlockSide <= now.width && y + BlockSide <= now.height;
        if (!isInside)
            return Unknown;
        int& known = at(dx, dy);
        if (known == Unknown)
            known = blockDifference(m_before, left, top, mean, now, x, y);
        return known;
    };
    Shift best;
    int least = Unknown;
    const auto tryAt = [&](int dx, int dy) {
        if (const int found = measure(dx, dy); found < least) {
            least = found;
            best = {dx, dy};
        }
    };
    for (int dy = -BlockReach; dy <= BlockReach; dy += 2)
        for (int dx = -BlockReach; dx <= BlockReach; dx += 2)
            tryAt(dx, dy);
    const Shift rough = best;
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            tryAt(rough.x + dx, rough.y + dy);
    const std::array around{measure(best.x - 1, best.y), measure(best.x + 1, best.y),
                            measure(best.x, best.y - 1), measure(best.x, best.y + 1)};
    if (std::ranges::count(around, Unknown) > 0 ||
        least > MostDifference * blockContrast(m_before, left, top, mean))
        return std::nullopt;
    const double half = BlockSide / 2.0;
    const PicturePlace middle{left + half, top + half};
    return Seen{middle,
                {middle.x + shift.x + best.x + vertex(around[0], least, around[1]),
                 middle.y + shift.y + best.y + vertex(around[2], least, around[3])}};
}

} // namespace kavela
