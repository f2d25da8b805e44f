#include "boatmotion/strokes/stroke_peaks.h"

#include "boatmotion/strokes/cadence.h"
#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr double LeastEvidence = 0.9;
constexpr double LeastEvidenceInTurn = 0.4;
constexpr double TurningRate = 0.5;    // rad/s
constexpr double RestingSpeed = 0.6;   // m/s
constexpr double RestingForce = 20;    // N
constexpr double RestingKick = 0.05;   // rad/s
constexpr double ShortestCycle = 0.30; // s
constexpr double ShortestShare = 0.30; // of the cadence: uneven sides can double what it finds
constexpr double MostEvidence = 1.5;   // of one kind, in units of the usual

/// A swing with what speaks for a stroke.
struct Candidate {
    Swing swing;
    double kick = 0;  ///< range of the yaw rate around it, rad/s
    double drive = 0; ///< mean force around it, N
};

class Gate {
public:
    explicit Gate(const StrokeView& view)
        : m_view(view),
          m_meanForce(movingMean(view.series.force, 1.2)),
          m_longForce(movingMean(view.series.force, 2)),
          m_meanSpeed(movingMean(view.series.speed, 2)) {}

    /// Measures the swings, and what is usual among them.
    std::vector<Candidate> candidates(std::span<const Swing> swings) {
        std::vector<Candidate> found;
        std::vector<double> kicks;
        std::vector<double> drives;
        for (const Swing& swing : swings) {
            found.push_back({swing, kickAround(swing.peak), m_meanForce[swing.peak]});
            kicks.push_back(found.back().kick);
            drives.push_back(found.back().drive);
        }
        m_usualKick = percentileOf(kicks, 0.6);
        m_usualDrive = percentileOf(drives, 0.5);
        return found;
    }

    [[nodiscard]] Candidate measured(const Swing& swing) const {
        return {swing, kickAround(swing.peak), m_meanForce[swing.peak]};
    }

    [[nodiscard]] bool isAtRest(const Candidate& c) const {
        return m_view.hasSpeed && m_meanSpeed[c.swing.peak] < RestingSpeed &&
               (m_longForce[c.swing.peak] < RestingForce || c.kick < RestingKick);
    }

    [[nodiscard]] bool isStroke(const Candidate& c, double typicalHeight) const {
        const double height = ratio(c.swing.height, typicalHeight);
        const double kick = ratio(c.kick, m_usualKick);
        // Without a speed nothing tells the drive apart from none.
        const double drive = m_view.hasSpeed ? ratio(c.drive, m_usualDrive) : 1;
        const bool isTurning = std::abs(m_view.yawMean[c.swing.peak]) > TurningRate;
        return height + 0.4 * kick + 0.6 * drive >=
                   (isTurning ? LeastEvidenceInTurn : LeastEvidence) &&
               !isAtRest(c);
    }

private:
    static double ratio(double value, double usual) {
        return usual > 0 ? std::clamp(value / usual, -MostEvidence, MostEvidence) : 0;
    }

    [[nodiscard]] double kickAround(std::size_t peak) const {
        constexpr std::size_t Reach = 15; // 0.3 s
        const std::size_t begin = peak < Reach ? 0 : peak - Reach;
        const std::size_t end = std::min(peak + Reach, m_view.yawRate.size());
        double low = m_view.yawRate[begin] - m_view.yawMean[begin];
        double high = low;
        for (std::size_t i = begin; i < end; ++i) {
            const double wave = m_view.yawRate[i] - m_view.yawMean[i];
            low = std::min(low, wave);
            high = std::max(high, wave);
        }
        return high - low;
    }

    const StrokeView& m_view;
    std::vector<double> m_meanForce;
    std::vector<double> m_longForce;
    std::vector<double> m_meanSpeed;
    double m_usualKick = 0;
    double m_usualDrive = 0;
};

double seconds(const StrokeView& view, const Swing& from, const Swing& to) {
    return view.series.time[to.peak] - view.series.time[from.peak];
}

void keepHigherOfClose(const StrokeView& view, std::vector<Swing>& strokes) {
    std::vector<Swing> kept;
    for (const Swing& stroke : strokes) {
        const double least =
            std::max(ShortestCycle, ShortestShare * cadenceAt(view.periods, stroke.peak));
        if (kept.empty() || seconds(view, kept.back(), stroke) >= least)
            kept.push_back(stroke);
        else if (stroke.height > kept.back().height)
            kept.back() = stroke;
    }
    strokes = std::move(kept);
}

/// Looks for the weak strokes between two that are further apart than the cadence has it.
class SearchBack {
public:
    SearchBack(const StrokeView& view, std::span<const Swing> raw, const Gate& gate)
        : m_view(view), m_raw(raw), m_gate(gate) {}

    [[nodiscard]] std::optional<Swing> between(const Swing& before, const Swing& after) {
        while (m_next < m_raw.size() && m_raw[m_next].peak <= before.peak)
            ++m_next;
        const double period = cadenceAt(m_view.periods, (before.peak + after.peak) / 2);
        const double gap = seconds(m_view, before, after);
        if (period <= 0 || gap < 1.6 * period || gap > 3.4 * period)
            return std::nullopt;
        const double leastHeight = 0.25 * std::min(before.height, after.height);
        std::optional<Swing> best;
        for (std::size_t i = m_next; i < m_raw.size() && m_raw[i].peak < after.peak; ++i) {
            const Swing& swing = m_raw[i];
            const bool isApart = seconds(m_view, before, swing) >= 0.55 * period &&
                                 seconds(m_view, swing, after) >= 0.55 * period;
            if (isApart && swing.height >= leastHeight && (!best || swing.height > best->height) &&
                !m_gate.isAtRest(m_gate.measured(swing)))
                best = swing;
        }
        return best;
    }

private:
    const StrokeView& m_view;
    std::span<const Swing> m_raw;
    const Gate& m_gate;
    std::size_t m_next = 0;
};

std::vector<Swing> withMissed(const StrokeView& view, const std::vector<Swing>& strokes,
                              std::span<const Swing> raw, const Gate& gate) {
    SearchBack search(view, raw, gate);
    std::vector<Swing> all;
    all.reserve(strokes.size() + strokes.size() / 8);
    for (const Swing& stroke : strokes) {
        if (!all.empty()) {
            // A gap of three cycles hides two.
            const Swing before = all.back();
            if (const auto missed = search.between(before, stroke)) {
                if (const auto earlier = search.between(before, *missed))
                    all.push_back(*earlier);
                all.push_back(*missed);
                if (const auto later = search.between(*missed, stroke))
                    all.push_back(*later);
            }
        }
        all.push_back(stroke);
    }
    return all;
}

} // namespace

std::vector<Swing> strokePeaks(const StrokeView& view, const Swings& swings) {
    Gate gate(view);
    std::vector<Swing> strokes;
    for (const Candidate& candidate : gate.candidates(swings.strong))
        if (gate.isStroke(candidate, typicalAt(swings, candidate.swing.peak)))
            strokes.push_back(candidate.swing);
    keepHigherOfClose(view, strokes);
    return withMissed(view, strokes, swings.raw, gate);
}

} // namespace kavela::strokes
