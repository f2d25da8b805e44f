#include "vision/still_blocks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <span>
#include <utility>

namespace kavela {

namespace {

constexpr int BlockSide = 24;  ///< pixels
constexpr int BlockReach = 8;  ///< pixels round where a block is expected
constexpr int MostBlocks = 48; ///< in about so many places of the grid
constexpr std::size_t FewestBlocks = 6;
constexpr int LeastTexture = 1; ///< mean difference of neighbours, each way: films are smooth
constexpr double MostDifference = 0.5; ///< of a block found again, of its contrast
constexpr double MostError = 1.0;      ///< median, pixels

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

double vertex(double before, double at, double behind) {
    const double bend = before - 2 * at + behind;
    return bend > 0 ? std::clamp((before - behind) / (2 * bend), -0.5, 0.5) : 0;
}

/// The least squares over pairs; nothing where they stand on one spot.
std::optional<PictureMotion> fittedMotion(std::span<const MatchedBlock> pairs) {
    const auto count = static_cast<double>(pairs.size());
    PicturePlace from;
    PicturePlace to;
    for (const MatchedBlock& pair : pairs) {
        from = {from.x + pair.from.x / count, from.y + pair.from.y / count};
        to = {to.x + pair.to.x / count, to.y + pair.to.y / count};
    }
    double square = 0;
    double along = 0;
    double turn = 0;
    for (const MatchedBlock& pair : pairs) {
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

double squaredError(const PictureMotion& motion, const MatchedBlock& pair) {
    const PicturePlace at = motion(pair.from);
    return (at.x - pair.to.x) * (at.x - pair.to.x) + (at.y - pair.to.y) * (at.y - pair.to.y);
}

double medianError(const PictureMotion& motion, const std::vector<MatchedBlock>& pairs,
                   std::vector<double>& errors) {
    errors.clear();
    for (const MatchedBlock& pair : pairs)
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

bool touchesBox(const std::optional<TrackBox>& box, double left, double top) {
    return box && left > box->x - BlockSide && left < box->x + box->width &&
           top > box->y - BlockSide && top < box->y + box->height;
}

} // namespace

StillBlocks::StillBlocks(SmallPlane picture, const std::optional<TrackBox>& without)
    : m_picture(std::move(picture)) {
    const int spacing = std::max(
        BlockSide + 4, static_cast<int>(std::sqrt(double(width()) * height() / MostBlocks)));
    for (int top = 2; top + BlockSide <= height() - 2; top += spacing)
        for (int left = 2; left + BlockSide <= width() - 2; left += spacing) {
            if (touchesBox(without, left, top) || !hasTexture(m_picture, left, top))
                continue;
            const int mean = blockMean(m_picture, left, top);
            m_blocks.push_back({left, top, mean, blockContrast(m_picture, left, top, mean)});
        }
}

std::vector<MatchedBlock> StillBlocks::matchesIn(const SmallPlane& now,
                                                 const PictureMotion& expected,
                                                 const std::optional<TrackBox>& without) const {
    constexpr double Half = BlockSide / 2.0;
    std::vector<MatchedBlock> matches;
    for (const Block& block : m_blocks) {
        const PicturePlace middle = expected({block.left + Half, block.top + Half});
        const double left = middle.x - Half;
        const double top = middle.y - Half;
        const bool isInside =
            left > -BlockSide && top > -BlockSide && left < now.width && top < now.height;
        if (!isInside || touchesBox(without, left, top))
            continue;
        if (const auto found = match(block, now, static_cast<int>(std::lround(left)),
                                     static_cast<int>(std::lround(top))))
            matches.push_back(*found);
    }
    return matches;
}

std::optional<MatchedBlock> StillBlocks::match(const Block& block, const SmallPlane& now, int left,
                                               int top) const {
    constexpr int Side = 2 * BlockReach + 1;
    constexpr int Unknown = std::numeric_limits<int>::max();
    std::array<int, std::size_t{Side} * Side> differences;
    differences.fill(Unknown);
    const auto measure = [&](int dx, int dy) {
        const int x = left + dx;
        const int y = top + dy;
        const bool isInside = std::max(std::abs(dx), std::abs(dy)) <= BlockReach && x >= 0 &&
                              y >= 0 && x + BlockSide <= now.width && y + BlockSide <= now.height;
        if (!isInside)
            return Unknown;
        int& known =
            differences[static_cast<std::size_t>((dy + BlockReach) * Side + dx + BlockReach)];
        if (known == Unknown)
            known = blockDifference(m_picture, block.left, block.top, block.mean, now, x, y);
        return known;
    };
    std::array best{0, 0};
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
    const std::array rough = best;
    for (int dy = -1; dy <= 1; ++dy)
        for (int dx = -1; dx <= 1; ++dx)
            tryAt(rough[0] + dx, rough[1] + dy);
    const std::array around{measure(best[0] - 1, best[1]), measure(best[0] + 1, best[1]),
                            measure(best[0], best[1] - 1), measure(best[0], best[1] + 1)};
    if (std::ranges::count(around, Unknown) > 0 || least > MostDifference * block.contrast)
        return std::nullopt;
    const double half = BlockSide / 2.0;
    return MatchedBlock{{block.left + half, block.top + half},
                        {left + best[0] + half + vertex(around[0], least, around[1]),
                         top + best[1] + half + vertex(around[2], least, around[3])}};
}

std::optional<PictureMotion> agreedMotion(const std::vector<MatchedBlock>& pairs) {
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
    std::vector<MatchedBlock> agreeing;
    for (const MatchedBlock& pair : pairs)
        if (squaredError(*best, pair) <= reach * reach)
            agreeing.push_back(pair);
    const auto motion = fittedMotion(agreeing);
    return motion && isLikely(*motion) ? motion : best;
}

} // namespace kavela
