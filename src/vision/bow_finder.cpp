#include "vision/bow_finder.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela {

namespace {

/// A part of the band over time, ends excluded.
struct BowPart {
    int firstSlot;
    int lastSlot;
    int firstRow;
    int lastRow;
};

/// How sharp a motion shows the edges in a part: averaged along another way they become dull, also
/// those of a hull that is all of one colour.
double sharpness(const BandStretch& stretch, const PileMotion& motion, const BowPart& part) {
    constexpr float ColourWeight = 2;
    constexpr int Every = 2;
    const Pile pile = pileUp(stretch, motion, {part.firstSlot - 1, part.lastSlot + 1, Every});
    double sum = 0;
    for (int channel = 0; channel < BandChannels; ++channel)
        for (int slot = part.firstSlot; slot < part.lastSlot; ++slot) {
            const float* const before = pile.at(channel, slot - 1);
            const float* const behind = pile.at(channel, slot + 1);
            float squares = 0;
            for (int row = part.firstRow; row < part.lastRow; ++row)
                squares += (behind[row] - before[row]) * (behind[row] - before[row]);
            sum += double(channel == 0 ? squares : ColourWeight * squares);
        }
    return sum;
}

/// Where the boat of a seed stands over time, from ahead of its bow on.
BowPart boatPart(const BandStretch& stretch, const BandBoat& boat, const BoatSeed& seed) {
    const double passage = boat.length / seed.motion.speed;
    const int above = static_cast<int>(boat.height * 0.7);
    return {seed.slot - static_cast<int>(0.3 * passage),
            seed.slot + static_cast<int>(0.8 * passage), std::max(seed.row - above, 0),
            std::min(seed.row + seed.rows + above, stretch.shape.rows)};
}

constexpr std::array SettledSpeeds{0.72, 0.78, 0.84, 0.89, 0.94, 1.0, 1.06, 1.12, 1.19, 1.27, 1.36};

/// The sharpest motion near one.
PileMotion sharpestNear(const BandStretch& stretch, const PileMotion& start, const BowPart& part) {
    PileMotion best = start;
    double most = -1;
    for (const double factor : SettledSpeeds)
        for (const double slant : {-0.06, 0.0, 0.06}) {
            const PileMotion motion{start.speed * factor, start.slant + slant};
            if (const double sharp = sharpness(stretch, motion, part); sharp > most) {
                most = sharp;
                best = motion;
            }
        }
    return best;
}

/// On calm water a boat stands out so much that what it smears along a way several times too slow
/// makes a seed, too. Its edges are far duller there than along its own way.
PileMotion muchSharper(const BandStretch& stretch, const PileMotion& start, const BowPart& part) {
    constexpr double Much = 6;
    PileMotion best = start;
    double most = Much * sharpness(stretch, start, part);
    for (const double factor : {1.5, 2.0, 2.7, 3.6, 4.8, 6.4}) {
        const PileMotion motion{start.speed * factor, start.slant};
        if (const double sharp = sharpness(stretch, motion, part); sharp > most) {
            most = sharp;
            best = motion;
        }
    }
    return best;
}

/// The motion that shows the boat best. A seed can stand in what a fast boat smears ahead of itself
/// along a slow way: then the sharpest is the fastest, and faster ones are tried.
PileMotion settledMotion(const BandStretch& stretch, const BandBoat& boat, const BoatSeed& seed) {
    constexpr int MostTries = 5;
    const BowPart part = boatPart(stretch, boat, seed);
    PileMotion motion = muchSharper(stretch, seed.motion, part);
    for (int i = 0; i < MostTries; ++i) {
        const PileMotion best = sharpestNear(stretch, motion, part);
        const double factor = best.speed / motion.speed;
        motion = best;
        if (factor > SettledSpeeds.front() * 1.01 && factor < SettledSpeeds.back() * 0.99)
            break;
    }
    return motion;
}

/// How much sharper the boat is than along the best way against it. A boat that goes up is duller.
double sharperThanOpposite(const BandStretch& stretch, const BandBoat& boat, const BoatSeed& seed,
                           const PileMotion& motion) {
    const BowPart part = boatPart(stretch, boat, seed);
    double most = 1e-3;
    for (const double factor : {0.35, 0.6, 1.0, 1.5})
        most = std::max(most, sharpness(stretch, {-factor * motion.speed, 0}, part));
    return sharpness(stretch, motion, part) / most;
}

/// What stands out in a part, in spreads of the water, each place with its neighbours.
class BowGround {
public:
    BowGround(const Pile& pile, const std::vector<float>& spread)
        : m_first(pile.first),
          m_slots(pile.slots),
          m_rows(pile.rows),
          m_values(pileEnergy(pile, spread, 0)) {
        for (float& value : m_values)
            value = std::sqrt(value);
        smooth();
    }

    [[nodiscard]] bool contains(int slot, int row) const {
        return slot >= m_first && slot < m_first + m_slots && row >= 0 && row < m_rows;
    }
    [[nodiscard]] float at(int slot, int row) const { return m_values[place(slot, row)]; }
    [[nodiscard]] std::size_t place(int slot, int row) const {
        return static_cast<std::size_t>((slot - m_first) * m_rows + row);
    }
    [[nodiscard]] std::size_t size() const { return m_values.size(); }
    [[nodiscard]] int first() const { return m_first; }
    [[nodiscard]] int last() const { return m_first + m_slots; }

private:
    void smooth() {
        std::vector<float> smoothed = m_values;
        for (int slot = m_first; slot < last(); ++slot)
            for (int row = 1; row + 1 < m_rows; ++row)
                smoothed[place(slot, row)] =
                    0.25F * at(slot, row - 1) + 0.5F * at(slot, row) + 0.25F * at(slot, row + 1);
        m_values = std::move(smoothed);
    }

    int m_first;
    int m_slots;
    int m_rows;
    std::vector<float> m_values;
};

/// The places above a level that hang together with the front of the hull.
class BowPiece {
public:
    BowPiece(const BowGround& ground, float level, const BowPart& start, const BowPart& bounds)
        : m_ground(ground), m_level(level), m_bounds(bounds), m_taken(ground.size()) {
        for (int slot = start.firstSlot; slot < start.lastSlot; ++slot)
            for (int row = start.firstRow; row < start.lastRow; ++row)
                take(slot, row);
        constexpr int Gap = 2; // a wave over the hull does not end the boat
        while (!m_open.empty()) {
            const auto [slot, row] = m_open.back();
            m_open.pop_back();
            for (int way = -Gap; way <= Gap; ++way)
                for (int side = -1; side <= 1; ++side)
                    take(slot + way, row + side);
        }
    }

    [[nodiscard]] bool isEmpty() const { return m_count == 0; }
    [[nodiscard]] int rowsAt(int slot) const {
        int rows = 0;
        for (int row = m_bounds.firstRow; row < m_bounds.lastRow; ++row)
            rows += m_ground.contains(slot, row) && m_taken[m_ground.place(slot, row)] ? 1 : 0;
        return rows;
    }

private:
    void take(int slot, int row) {
        const bool isInBounds = slot >= m_bounds.firstSlot && slot < m_bounds.lastSlot &&
                                row >= m_bounds.firstRow && row < m_bounds.lastRow &&
                                m_ground.contains(slot, row);
        if (!isInBounds || m_taken[m_ground.place(slot, row)] || m_ground.at(slot, row) < m_level)
            return;
        m_taken[m_ground.place(slot, row)] = true;
        m_open.emplace_back(slot, row);
        ++m_count;
    }

    const BowGround& m_ground;
    float m_level;
    BowPart m_bounds;
    std::vector<bool> m_taken;
    std::vector<std::pair<int, int>> m_open;
    int m_count = 0;
};

constexpr double TipShare = 0.04; ///< of a boat's length: the tip of a bow is too thin to stand out
constexpr double PaddlerShare = 0.36; ///< of a boat's length, that a paddler takes at most

/// What stands out is measured against what the front of the hull gives.
float bowLevel(const BowGround& ground, const BowPart& front) {
    constexpr float Least = 2.2F;
    constexpr float Part = 0.4F; // half would be where a soft edge lies; a dipping bow is fainter
    std::vector<float> values;
    for (int slot = front.firstSlot; slot < front.lastSlot; ++slot)
        for (int row = front.firstRow; row < front.lastRow; ++row)
            if (ground.contains(slot, row))
                values.push_back(ground.at(slot, row));
    if (values.empty())
        return Least;
    const auto high = values.begin() + std::ssize(values) * 7 / 10;
    std::ranges::nth_element(values, high);
    return std::max(Least, Part * *high);
}

/// The part of a slot by which the level was passed before the first slot of the piece.
double beforeSlot(const BowGround& ground, int slot, const BowPart& hull, float level) {
    const auto strongest = [&](int at) {
        float most = 0;
        for (int row = hull.firstRow; row < hull.lastRow; ++row)
            if (ground.contains(at, row))
                most = std::max(most, ground.at(at, row));
        return most;
    };
    const float at = strongest(slot);
    const float before = strongest(slot - 1);
    return at > before && before < level
               ? std::clamp(double((at - level) / (at - before)), 0.0, 1.0)
               : 0.0;
}

constexpr double AheadPassage = 0.8; ///< of a boat's passage, that is looked at before its bow
constexpr double BehindPassage = 1.1;
constexpr double FrontPassage = 0.3;

BowGround groundRound(const BandStretch& stretch, const BoatSeed& seed, const PileMotion& motion,
                      double passage) {
    return {pileUp(stretch, motion,
                   {seed.slot - int(AheadPassage * passage),
                    seed.slot + int(BehindPassage * passage), 1}),
            *seed.spread};
}

int frontSlots(double passage) {
    constexpr int Fewest = 3;
    return std::max(static_cast<int>(FrontPassage * passage), Fewest);
}

/// Looks anew where a hull begins behind water, along a way much faster than that of the seed: it
/// stood in what the boat smeared ahead of itself.
BoatSeed seedAlong(const BandStretch& stretch, const BandBoat& boat, const BoatSeed& seed,
                   const PileMotion& motion) {
    const double reach = boat.length / seed.motion.speed;
    const int length = frontSlots(boat.length / motion.speed);
    const BowGround ground = groundRound(stretch, seed, motion, reach);
    const auto mean = [&](int firstSlot, int row) {
        float sum = 0;
        for (int slot = firstSlot; slot < firstSlot + length; ++slot)
            for (int i = row; i < row + seed.rows; ++i)
                sum += ground.contains(slot, i) ? ground.at(slot, i) : 0;
        return sum;
    };
    const int highest = std::max(seed.row - 2 * seed.rows, 0);
    const int lowest = std::min(seed.row + 2 * seed.rows, stretch.shape.rows - seed.rows);
    BoatSeed anew = seed;
    anew.motion = motion;
    float most = 0;
    for (int slot = seed.slot; slot < seed.slot + int(reach); ++slot)
        for (int row = highest; row <= lowest; ++row)
            if (const float rise = mean(slot, row) - mean(slot - length, row); rise > most) {
                most = rise;
                anew.slot = slot;
                anew.row = row;
            }
    return anew;
}

/// Where a boat is taller than its hull sits the paddler: where most of that lies within what his
/// body takes of the boat's length. Arms and blades reach farther and weigh less. Nothing where no
/// place is taller.
std::optional<double> paddlerSlot(const BowPiece& piece, int first, int last, double length,
                                  int hullRows) {
    constexpr double BodyShare = 0.24; // of a boat's length, to either side together
    const int half = std::max(static_cast<int>(std::lround(BodyShare / 2 * length)), 1);
    const auto above = [&](int slot) { return std::max(piece.rowsAt(slot) - hullRows, 0); };
    int most = 0;
    double found = 0;
    for (int slot = first; slot < last; ++slot) {
        int rows = 0;
        double moment = 0;
        for (int at = slot - half; at <= slot + half; ++at) {
            rows += above(at);
            moment += double(above(at)) * at;
        }
        if (rows > most) {
            most = rows;
            found = moment / rows;
        }
    }
    return most > 0 ? std::optional(found) : std::nullopt;
}

} // namespace

std::optional<FoundBow> findBow(const BandStretch& stretch, const BandBoat& boat,
                                const BoatSeed& found) {
    constexpr double MuchFaster = 2;
    const PileMotion motion = settledMotion(stretch, boat, found);
    const BoatSeed seed = motion.speed > MuchFaster * found.motion.speed
                              ? seedAlong(stretch, boat, found, motion)
                              : found;
    const int passage = static_cast<int>(std::ceil(boat.length / motion.speed));
    const BowGround ground = groundRound(stretch, seed, motion, passage);
    const int rows = stretch.shape.rows;
    const BowPart front{seed.slot, seed.slot + frontSlots(passage), seed.row, seed.row + seed.rows};
    const BowPart hull{ground.first(), ground.last(), std::max(seed.row - seed.rows / 2, 0),
                       std::min(seed.row + seed.rows + seed.rows / 2, rows)};
    const int above = static_cast<int>(boat.height);
    const BowPart whole{ground.first(), ground.last(), std::max(seed.row - above, 0),
                        std::min(seed.row + seed.rows + above, rows)};
    const float level = bowLevel(ground, front);
    const BowPiece bow(ground, level, front, hull);
    if (bow.isEmpty())
        return std::nullopt;
    int first = ground.first();
    const int least = seed.rows >= 6 ? 2 : 1;
    while (first < ground.last() && bow.rowsAt(first) < least)
        ++first;
    if (first == ground.last())
        return std::nullopt;
    const BowPiece body(ground, level, front, whole);
    const double length = boat.length / motion.speed;
    int filled = 0;
    int tallest = 0;
    int places = 0;
    double moment = 0;
    for (int slot = first; slot < std::min(first + passage, ground.last()); ++slot) {
        const int tall = body.rowsAt(slot);
        filled += tall > 0 ? 1 : 0;
        tallest = std::max(tallest, tall);
        places += tall;
        moment += double(tall) * slot;
    }
    const double lengthShare = double(filled) / passage;
    double slot = first - beforeSlot(ground, first, hull, level) - TipShare * length;
    // A hull like the water does not stand out, and what does is the paddler in its middle.
    if (lengthShare < PaddlerShare && places > 0)
        slot = moment / places - length / 2;
    const double paddler = paddlerSlot(body, ground.first(), ground.last(), length, seed.rows)
                               .value_or(slot + length / 2);
    return FoundBow{slot,
                    paddler,
                    motion.speed,
                    lengthShare,
                    tallest / boat.height,
                    sharperThanOpposite(stretch, boat, found, motion)};
}

} // namespace kavela
