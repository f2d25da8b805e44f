#include "films/boat_way.h"

#include <algorithm>
#include <cmath>

namespace kavela::films {

namespace {

constexpr std::int64_t Touch = 2;

constexpr Frames WaitsBefore = 90; ///< the start: from then on the boat gathers speed
constexpr double RunUp = 50;
constexpr Frames Coasting = 110;
constexpr double CoastingWay = 80;

double distance(QPointF a, QPointF b) {
    return std::hypot(b.x() - a.x(), b.y() - a.y());
}

/// How far beside the middle of the gate the boat goes, downwards. A touched pole hangs over the
/// deck; a missed gate is passed on its side of the open water.
double besideGate(const GatePlace& gate, std::int64_t penalty) {
    constexpr double AlmostAtThePole = HalfGate - 5;
    constexpr double OutsideThePole = HalfGate + 15;
    if (penalty == 0)
        return 3.0 * static_cast<double>(gate.number % 3 - 1);
    const double side = gate.isUpstream || penalty != Touch ? -gate.bank
                        : gate.number % 2 == 0              ? 1
                                                            : -1;
    return side * (penalty == Touch ? AlmostAtThePole : OutsideThePole);
}

/// A point of the centripetal spline through four points, between the second and the third: it
/// makes no loops where the points lie close.
QPointF splinePoint(const QPointF (&p)[4], double part) {
    double t[4] = {0, 0, 0, 0};
    for (int i = 1; i < 4; ++i)
        t[i] = t[i - 1] + std::sqrt(std::max(distance(p[i - 1], p[i]), 1e-3));
    const double at = t[1] + (t[2] - t[1]) * part;
    const auto between = [at](QPointF a, QPointF b, double from, double to) {
        return a * ((to - at) / (to - from)) + b * ((at - from) / (to - from));
    };
    const QPointF a = between(p[0], p[1], t[0], t[1]);
    const QPointF b = between(p[1], p[2], t[1], t[2]);
    const QPointF c = between(p[2], p[3], t[2], t[3]);
    return between(between(a, b, t[0], t[2]), between(b, c, t[1], t[3]), t[1], t[2]);
}

} // namespace

BoatWay::BoatWay(const CourseLayout& course, const RunOnFilm& run) {
    lead(course, run);
    passGates(course, run);
    endWay(course, run);
    drawCurve();
    setSpeeds();
}

void BoatWay::anchor(double x, double y, Frames frame) {
    m_moments.push_back({m_stations.size(), frame});
    m_stations.emplace_back(x, y);
}

void BoatWay::lead(const CourseLayout& course, const RunOnFilm& run) {
    via(-3 * BoatLength, MidStream);
    via(-2 * BoatLength, MidStream);
    anchor(-RunUp, MidStream, run.start - WaitsBefore);
    const double towardGate = (course.gates.front().centre.y() - MidStream) / 4;
    anchor(0, MidStream + towardGate, run.start);
}

void BoatWay::passGates(const CourseLayout& course, const RunOnFilm& run) {
    for (std::size_t i = 0; i < run.gates.size(); ++i) {
        const GatePlace& gate = course.gates[i];
        const double shift = besideGate(gate, run.pens[i]);
        if (gate.isUpstream)
            passUpstream(gate, shift, run.gates[i]);
        else
            anchor(gate.centre.x(), gate.centre.y() + shift, run.gates[i]);
    }
}

/// Down along the gate, around its lower side, up through it and around its open pole.
void BoatWay::passUpstream(const GatePlace& gate, double shift, Frames frame) {
    const QPointF at = gate.centre;
    const auto station = [&](double along, double off, double shifted) {
        via(at.x() + along, at.y() - gate.bank * off + shift * shifted);
    };
    station(-25, 72, 0);
    station(48, 60, 0);
    station(78, 30, 0.5);
    station(46, 0, 0.9);
    anchor(at.x(), at.y() + shift, frame);
    station(-44, 9, 0.7);
    station(-58, 40, 0.4);
    station(-14, 76, 0);
}

void BoatWay::endWay(const CourseLayout& course, const RunOnFilm& run) {
    if (run.finish) {
        anchor(course.length, MidStream, *run.finish);
        anchor(course.length + CoastingWay, MidStream, *run.finish + Coasting);
        via(course.length + 3 * CoastingWay, MidStream);
        return;
    }
    // Whoever gives up paddles to the bank.
    const GatePlace& gate = course.gates[run.gates.size() - 1];
    const double bank = gate.bank < 0 ? WaterTop + 12 : WaterBottom - 12;
    anchor(gate.centre.x() + 170, bank, run.gates.back() + 2 * Coasting - 40);
    via(gate.centre.x() + 260, bank);
}

void BoatWay::drawCurve() {
    constexpr int Steps = 32;
    m_curve.push_back(m_stations.front());
    m_ways.push_back(0);
    std::vector<double> wayOfStation{0};
    for (std::size_t i = 0; i + 1 < m_stations.size(); ++i) {
        const QPointF before = i == 0 ? m_stations[0] * 2 - m_stations[1] : m_stations[i - 1];
        const QPointF after =
            i + 2 < m_stations.size() ? m_stations[i + 2] : m_stations[i + 1] * 2 - m_stations[i];
        const QPointF corners[4] = {before, m_stations[i], m_stations[i + 1], after};
        for (int step = 1; step <= Steps; ++step) {
            const QPointF point = splinePoint(corners, static_cast<double>(step) / Steps);
            m_ways.push_back(m_ways.back() + distance(m_curve.back(), point));
            m_curve.push_back(point);
        }
        wayOfStation.push_back(m_ways.back());
    }
    for (const Moment& moment : m_moments)
        m_anchors.push_back({static_cast<double>(moment.frame), wayOfStation[moment.station], 0});
}

/// Monotone cubic interpolation after Fritsch and Butland (1984): the boat never drifts back, and
/// is at each anchor when it should be. It rests before the first and after the last.
void BoatWay::setSpeeds() {
    const auto speedBetween = [this](std::size_t i) {
        return (m_anchors[i + 1].way - m_anchors[i].way) /
               (m_anchors[i + 1].frame - m_anchors[i].frame);
    };
    for (std::size_t i = 1; i + 1 < m_anchors.size(); ++i) {
        const double before = speedBetween(i - 1);
        const double after = speedBetween(i);
        m_anchors[i].speed = 2 * before * after / (before + after);
    }
}

double BoatWay::wayAt(double frame) const {
    if (frame <= m_anchors.front().frame)
        return m_anchors.front().way;
    if (frame >= m_anchors.back().frame)
        return m_anchors.back().way;
    const auto next = std::ranges::upper_bound(m_anchors, frame, {}, &Anchor::frame);
    const Anchor& to = *next;
    const Anchor& from = *std::prev(next);
    const double span = to.frame - from.frame;
    const double t = (frame - from.frame) / span;
    const double u = 1 - t;
    return from.way * (1 + 2 * t) * u * u + to.way * (3 - 2 * t) * t * t +
           span * t * u * (from.speed * u - to.speed * t);
}

QPointF BoatWay::pointAt(double way) const {
    const auto next = std::ranges::upper_bound(m_ways, way);
    if (next == m_ways.begin())
        return m_curve.front();
    if (next == m_ways.end())
        return m_curve.back();
    const auto i = static_cast<std::size_t>(next - m_ways.begin());
    const double part = (way - m_ways[i - 1]) / (m_ways[i] - m_ways[i - 1]);
    return m_curve[i - 1] + (m_curve[i] - m_curve[i - 1]) * part;
}

BoatPlace BoatWay::at(Frames frame) const {
    constexpr double HalfAFrame = 0.5;
    const double way = wayAt(static_cast<double>(frame) + HalfAFrame);
    const QPointF bow = pointAt(way);
    const QPointF hull = bow - pointAt(way - BoatLength);
    const double length = std::max(distance({}, hull), 1e-6);
    return {bow, hull / length};
}

} // namespace kavela::films
