#include "vision/shake.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace kavela {

namespace {

constexpr int ShakeBlock = 24;
constexpr std::size_t MostShakeBlocks = 12;
constexpr std::size_t FewestShakeBlocks = 3;
constexpr double LeastLikeness = 0.8;
/// A tripod in the wind trembles by less.
constexpr int ShakeReach = 8;
constexpr int ShakeStep = 3; ///< reach round the last shift

/// The block's samples with mean 0 and length 1; false where it is flat.
bool takePattern(const HalfPlanes& picture, int left, int top, std::vector<float>& pattern) {
    pattern.resize(ShakeBlock * ShakeBlock);
    float sum = 0;
    auto out = pattern.begin();
    for (int y = top; y < top + ShakeBlock; ++y)
        for (int x = left; x < left + ShakeBlock; ++x)
            sum += * out++ = picture.luma[picture.at(x, y)];
    const float mean = sum / float(pattern.size());
    float squares = 0;
    for (float& value : pattern) {
        value -= mean;
        squares += value * value;
    }
    constexpr float Flat = 4.0F * ShakeBlock * ShakeBlock;
    if (squares < Flat)
        return false;
    const float scale = 1 / std::sqrt(squares);
    for (float& value : pattern)
        value *= scale;
    return true;
}

/// The likeness of a block's pattern to the picture at a place, −1 to 1.
double likenessAt(const std::vector<float>& pattern, const HalfPlanes& picture, int left, int top) {
    float product = 0;
    float sum = 0;
    float squares = 0;
    const float* model = pattern.data();
    for (int y = top; y < top + ShakeBlock; ++y) {
        const std::uint8_t* const row = picture.luma.data() + picture.at(left, y);
        for (int x = 0; x < ShakeBlock; ++x) {
            const float value = row[x];
            product += *model++ * value;
            sum += value;
            squares += value * value;
        }
    }
    const float spread = squares - sum * sum / (ShakeBlock * ShakeBlock);
    return spread < 1 ? 0.0 : double(product / std::sqrt(spread));
}

/// The smaller of the two curvatures of a block: only a corner holds it in both directions.
double cornerStrength(const HalfPlanes& picture, int left, int top) {
    double xx = 0;
    double yy = 0;
    double xy = 0;
    for (int y = top + 1; y < top + ShakeBlock - 1; ++y)
        for (int x = left + 1; x < left + ShakeBlock - 1; ++x) {
            const double dx =
                picture.luma[picture.at(x + 1, y)] - picture.luma[picture.at(x - 1, y)];
            const double dy =
                picture.luma[picture.at(x, y + 1)] - picture.luma[picture.at(x, y - 1)];
            xx += dx * dx;
            yy += dy * dy;
            xy += dx * dy;
        }
    return (xx + yy) / 2 - std::hypot((xx - yy) / 2, xy);
}

HalfPlanes medianPicture(std::span<const HalfPlanes> pictures) {
    HalfPlanes median(pictures.front().width, pictures.front().height);
    std::vector<std::uint8_t> values(pictures.size());
    const auto middle = values.begin() + std::ssize(values) / 2;
    for (std::size_t i = 0; i < median.luma.size(); ++i) {
        for (std::size_t j = 0; j < pictures.size(); ++j)
            values[j] = pictures[j].luma[i];
        std::ranges::nth_element(values, middle);
        median.luma[i] = *middle;
    }
    return median;
}

double medianOf(std::vector<double>& values) {
    const auto middle = values.begin() + std::ssize(values) / 2;
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// The top of a parabola through three values at −1, 0 and 1.
double parabolaTop(double before, double at, double behind) {
    const double bend = before - 2 * at + behind;
    return bend >= 0 ? 0.0 : std::clamp((before - behind) / (2 * bend), -0.5, 0.5);
}

} // namespace

ShakeMeter::ShakeMeter(std::span<const HalfPlanes> pictures) {
    if (pictures.size() < FewestShakeBlocks)
        return;
    chooseBlocks(pictures, medianPicture(pictures));
    judgeHold(pictures);
}

ShakeMeter::Match ShakeMeter::matchOf(const Block& block, const HalfPlanes& picture, int nearX,
                                      int nearY, int reach) {
    Match best;
    int bestX = nearX;
    int bestY = nearY;
    const auto likeness = [&](int x, int y) {
        const bool isInside = block.x + x >= 0 && block.y + y >= 0 &&
                              block.x + x + ShakeBlock <= picture.width &&
                              block.y + y + ShakeBlock <= picture.height;
        return isInside ? likenessAt(block.pattern, picture, block.x + x, block.y + y) : -1.0;
    };
    for (int y = nearY - reach; y <= nearY + reach; ++y)
        for (int x = nearX - reach; x <= nearX + reach; ++x)
            if (const double value = likeness(x, y); value > best.likeness) {
                best.likeness = value;
                bestX = x;
                bestY = y;
            }
    best.shift.x =
        bestX + parabolaTop(likeness(bestX - 1, bestY), best.likeness, likeness(bestX + 1, bestY));
    best.shift.y =
        bestY + parabolaTop(likeness(bestX, bestY - 1), best.likeness, likeness(bestX, bestY + 1));
    best.shift.isKnown = best.likeness > LeastLikeness;
    return best;
}

void ShakeMeter::chooseBlocks(std::span<const HalfPlanes> pictures, const HalfPlanes& median) {
    struct Corner {
        double strength;
        int x;
        int y;
    };
    std::vector<Corner> corners;
    for (int y = ShakeReach; y + ShakeBlock + ShakeReach <= median.height; y += ShakeBlock / 2)
        for (int x = ShakeReach; x + ShakeBlock + ShakeReach <= median.width; x += ShakeBlock / 2)
            corners.push_back({cornerStrength(median, x, y), x, y});
    std::ranges::sort(corners, std::greater(), &Corner::strength);
    constexpr std::size_t MostTried = 60;
    constexpr double LeastStrength = 3'000;
    for (const Corner& corner : corners) {
        if (m_blocks.size() >= MostShakeBlocks ||
            &corner - corners.data() >= std::ptrdiff_t(MostTried))
            return;
        const bool isApart = std::ranges::none_of(m_blocks, [&](const Block& block) {
            return std::abs(block.x - corner.x) < ShakeBlock &&
                   std::abs(block.y - corner.y) < ShakeBlock;
        });
        Block block{corner.x, corner.y, {}};
        if (!isApart || corner.strength < LeastStrength ||
            !takePattern(median, corner.x, corner.y, block.pattern))
            continue;
        constexpr std::size_t Tried = 12;
        const std::size_t every = std::max<std::size_t>(pictures.size() / Tried, 1);
        std::size_t found = 0;
        std::size_t tried = 0;
        for (std::size_t i = 0; i < pictures.size(); i += every, ++tried)
            found += matchOf(block, pictures[i], 0, 0, ShakeReach / 2).shift.isKnown ? 1U : 0U;
        if (found * 4 >= tried * 3)
            m_blocks.push_back(std::move(block));
    }
}

/// A tripod keeps the picture within a few pixels. Blocks of the first picture are looked for in
/// the others, since the median of pictures that moved has no blocks at all.
void ShakeMeter::judgeHold(std::span<const HalfPlanes> pictures) {
    if (m_blocks.size() >= FewestShakeBlocks)
        return;
    constexpr int Step = ShakeBlock;
    constexpr double LeastStrength = 8'000;
    constexpr int FewestCorners = 4;
    int corners = 0;
    int still = 0;
    const HalfPlanes& first = pictures.front();
    for (int y = ShakeReach; y + ShakeBlock + ShakeReach <= first.height; y += Step)
        for (int x = ShakeReach; x + ShakeBlock + ShakeReach <= first.width; x += Step) {
            Block block{x, y, {}};
            if (cornerStrength(first, x, y) < LeastStrength ||
                !takePattern(first, x, y, block.pattern))
                continue;
            ++corners;
            const Match match = matchOf(block, pictures[pictures.size() / 2], 0, 0, ShakeReach / 2);
            still += match.shift.isKnown ? 1 : 0;
        }
    m_isHandHeld = corners >= FewestCorners && still * 4 < corners;
}

CameraShift ShakeMeter::shiftNear(const HalfPlanes& picture, const CameraShift& start,
                                  int reach) const {
    std::vector<double> x;
    std::vector<double> y;
    for (const Block& block : m_blocks) {
        const Match match = matchOf(block, picture, static_cast<int>(std::lround(start.x)),
                                    static_cast<int>(std::lround(start.y)), reach);
        if (!match.shift.isKnown)
            continue;
        x.push_back(match.shift.x);
        y.push_back(match.shift.y);
    }
    if (x.size() < std::max(FewestShakeBlocks, m_blocks.size() / 3))
        return {start.x, start.y, false};
    return {medianOf(x), medianOf(y), true};
}

CameraShift ShakeMeter::shiftOf(const HalfPlanes& picture) {
    if (m_blocks.size() < FewestShakeBlocks)
        return m_last;
    CameraShift shift = shiftNear(picture, m_last, ShakeStep);
    if (!shift.isKnown)
        shift = shiftNear(picture, {}, ShakeReach); // a jolt
    m_last = shift.isKnown ? shift : CameraShift{m_last.x, m_last.y, false};
    return m_last;
}

} // namespace kavela
