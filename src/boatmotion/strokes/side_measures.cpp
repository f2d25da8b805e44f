#include "boatmotion/strokes/side_measures.h"

#include "boatmotion/strokes/filters.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kavela::strokes {

namespace {

constexpr std::size_t Answers = 3;     // to this stroke and both neighbours
constexpr std::size_t LeastCourse = 4; // terms of the boat's own course
constexpr std::size_t MostCourse = 7;
constexpr double CoursePerSecond = 3; // terms: turns begin and end within half a second
constexpr std::size_t MostTerms = Answers + MostCourse;
constexpr double SideReach = 0.5;        // of a cycle, before the catch and after the exit
constexpr double LongestSideCycle = 1.6; // s
constexpr std::size_t LeastValues = 20;

using Row = std::array<double, MostTerms>;

/// The answer of a hull to one stroke.
struct Answer {
    std::ptrdiff_t begin = 0; ///< index of the first value
    std::vector<double> values;

    [[nodiscard]] double at(std::size_t index) const {
        const std::ptrdiff_t place = static_cast<std::ptrdiff_t>(index) - begin;
        return place >= 0 && place < std::ssize(values) ? values[static_cast<std::size_t>(place)]
                                                        : 0;
    }
};

/// What a hull does for the force of a stroke, brought to a height of 1.
Answer answerTo(const StrokeView& view, const WaterPhase& phase, const HullAnswer& hull) {
    constexpr std::size_t Tail = 50; // 1 s
    const std::span<const double> force = view.series.force;
    Answer answer;
    const auto begin = static_cast<std::size_t>(phase.catchAt);
    answer.begin = static_cast<std::ptrdiff_t>(begin) + std::lround(hull.delay * Rate);
    const auto end = static_cast<std::size_t>(phase.exitAt) + 1;
    const double base = std::min(force[begin], force[std::min(end, force.size() - 1)]);
    const double height = std::max(force[phase.peak] - base, 1e-6);
    const double keep = std::exp(-hull.decay * Step);
    double value = 0;
    for (std::size_t i = begin; i < std::min(end + Tail, force.size()); ++i) {
        const double push = i <= end ? std::clamp((force[i] - base) / height, 0.0, 1.0) : 0;
        value = keep * value + (1 - keep) / hull.decay * push;
        answer.values.push_back(value);
    }
    return answer;
}

/// Sums of products for a fit by least squares, the stroke's own answer first.
class Fit {
public:
    explicit Fit(std::size_t terms) : m_terms(terms) {}

    void add(const Row& row, double value) {
        for (std::size_t r = 0; r < m_terms; ++r) {
            for (std::size_t c = 0; c <= r; ++c)
                m_products[r][c] += row[r] * row[c];
            m_with[r] += row[r] * value;
        }
        m_square += value * value;
        ++m_count;
    }

    /// The factor of the stroke's own answer, and its error.
    [[nodiscard]] Measure own() {
        if (m_count < LeastValues || !(m_products[0][0] > 1e-12))
            return {};
        // A little of each on the diagonal keeps what cannot be told apart from growing wild.
        for (std::size_t r = 0; r < m_terms; ++r)
            m_products[r][r] = m_products[r][r] * (1 + 1e-6) + (r < Answers ? 1e-4 : 1e-9);
        decompose();
        const Row factors = solved(m_with);
        double explained = 0;
        for (std::size_t r = 0; r < m_terms; ++r)
            explained += factors[r] * m_with[r];
        const double unexplained = std::max(0.0, m_square - explained);
        Row unit{};
        unit[0] = 1;
        // Neighbouring values err together: a tenth of a second is about one independent value.
        constexpr double Together = 5;
        const double freedom =
            std::max(1.0, static_cast<double>(m_count) - static_cast<double>(m_terms));
        return {factors[0], Together * solved(unit)[0] * unexplained / freedom, true};
    }

private:
    /// Cholesky, in place.
    void decompose() {
        for (std::size_t r = 0; r < m_terms; ++r)
            for (std::size_t c = 0; c <= r; ++c) {
                double sum = m_products[r][c];
                for (std::size_t k = 0; k < c; ++k)
                    sum -= m_products[r][k] * m_products[c][k];
                m_products[r][c] =
                    r == c ? std::sqrt(std::max(sum, 1e-15)) : sum / m_products[c][c];
            }
    }
    [[nodiscard]] Row solved(Row b) const {
        for (std::size_t r = 0; r < m_terms; ++r) {
            for (std::size_t k = 0; k < r; ++k)
                b[r] -= m_products[r][k] * b[k];
            b[r] /= m_products[r][r];
        }
        for (std::size_t r = m_terms; r-- > 0;) {
            for (std::size_t k = r + 1; k < m_terms; ++k)
                b[r] -= m_products[k][r] * b[k];
            b[r] /= m_products[r][r];
        }
        return b;
    }

    std::size_t m_terms;
    std::array<Row, MostTerms> m_products{};
    Row m_with{};
    double m_square = 0;
    std::size_t m_count = 0;
};

class Measuring {
public:
    Measuring(const StrokeView& view, std::span<const WaterPhase> phases,
              std::span<const double> series)
        : m_view(view), m_phases(phases), m_series(series) {}

    /// All strokes, for one kind of hull.
    [[nodiscard]] std::vector<Measure> measured(const HullAnswer& hull) const {
        std::vector<Answer> answers;
        for (const WaterPhase& phase : m_phases)
            answers.push_back(answerTo(m_view, phase, hull));
        std::vector<Measure> measures;
        for (std::size_t i = 0; i < m_phases.size(); ++i)
            measures.push_back(measure(answers, i));
        return measures;
    }

    /// How far measures stand out from their errors. Only straight on: in a turn what is left
    /// unexplained is that of the turn, whatever the hull.
    [[nodiscard]] double clearness(const std::vector<Measure>& measures) const {
        constexpr double StraightOn = 0.3; // rad/s
        double sum = 0;
        for (std::size_t i = 0; i < measures.size(); ++i) {
            const Measure& m = measures[i];
            if (m.isKnown && m.variance > 0 &&
                std::abs(m_view.yawMean[m_phases[i].peak]) < StraightOn)
                sum += std::log1p(m.value * m.value / m.variance);
        }
        return sum;
    }

private:
    [[nodiscard]] Measure measure(const std::vector<Answer>& answers, std::size_t i) const {
        static const Answer None;
        const WaterPhase& phase = m_phases[i];
        const double reach = SideReach * cycleAround(i) * Rate;
        const auto begin = static_cast<std::size_t>(std::max(0.0, phase.catchAt - reach));
        const auto end =
            std::min(static_cast<std::size_t>(phase.exitAt + reach) + 1, m_series.size());
        const Answer& before = i > 0 ? answers[i - 1] : None;
        const Answer& after = i + 1 < answers.size() ? answers[i + 1] : None;
        const double middle = (static_cast<double>(begin) + static_cast<double>(end)) / 2;
        const double half = (static_cast<double>(end) - static_cast<double>(begin)) / 2;
        const auto course =
            std::clamp(static_cast<std::size_t>(2.5 + CoursePerSecond * 2 * half * Step),
                       LeastCourse, MostCourse);
        Fit fit(Answers + course);
        for (std::size_t k = begin; k < end; ++k) {
            if (!m_view.series.valid[k])
                continue;
            const double x = (static_cast<double>(k) - middle) / half;
            Row row{answers[i].at(k), before.at(k), after.at(k), 1, x};
            for (std::size_t n = 2; n < course; ++n) // Legendre's polynomials
                row[Answers + n] = (static_cast<double>(2 * n - 1) * x * row[Answers + n - 1] -
                                    static_cast<double>(n - 1) * row[Answers + n - 2]) /
                                   static_cast<double>(n);
            fit.add(row, m_series[k]);
        }
        return fit.own();
    }

    /// Seconds from this stroke to the nearer of its neighbours.
    [[nodiscard]] double cycleAround(std::size_t i) const {
        double cycle = LongestSideCycle;
        if (i > 0)
            cycle = std::min(cycle, secondsBetween(i - 1, i));
        if (i + 1 < m_phases.size())
            cycle = std::min(cycle, secondsBetween(i, i + 1));
        return cycle;
    }
    [[nodiscard]] double secondsBetween(std::size_t a, std::size_t b) const {
        return m_view.series.time[m_phases[b].peak] - m_view.series.time[m_phases[a].peak];
    }

    const StrokeView& m_view;
    std::span<const WaterPhase> m_phases;
    std::span<const double> m_series;
};

} // namespace

SideMeasures sideMeasures(const StrokeView& view, std::span<const WaterPhase> phases,
                          std::span<const double> series, std::span<const double> decays,
                          std::span<const double> delays) {
    const Measuring measuring(view, phases, series);
    SideMeasures best;
    double clearest = -1;
    for (const double delay : delays)
        for (const double decay : decays) {
            std::vector<Measure> measures = measuring.measured({decay, delay});
            const double clear = measuring.clearness(measures);
            if (clear > clearest) {
                clearest = clear;
                best = {std::move(measures), {decay, delay}};
            }
        }
    return best;
}

} // namespace kavela::strokes
