#include "films/course_layout.h"

#include "films/run_on_film.h"

#include <algorithm>
#include <cmath>

namespace kavela::films {

namespace {

// Distances that a boat of even speed paddles in the usual times.
constexpr double Gap = 175;
constexpr double GapAboveUpstream = 150;
constexpr double GapBelowUpstream = 115;
constexpr double GapBeforeFinish = 215;

constexpr double FromBankToUpstream = 42;
constexpr double LinePastUpstream = HalfGate + 26;

/// Gates swing from side to side, without any pattern that the eye finds.
double heightOf(std::int64_t number) {
    constexpr double Reach = 46;
    return std::round(MidStream + Reach * std::sin(2.4 * static_cast<double>(number)));
}

GatePlace placeOf(std::int64_t number, bool isUpstream, double x, int upstreamsBefore) {
    GatePlace gate{.number = number, .centre = {x, heightOf(number)}, .isUpstream = isUpstream};
    gate.bank = gate.centre.y() < MidStream ? -1 : 1;
    if (isUpstream) {
        gate.bank = upstreamsBefore % 2 == 0 ? -1 : 1;
        gate.centre.setY(gate.bank < 0 ? WaterTop + FromBankToUpstream
                                       : WaterBottom - FromBankToUpstream);
    }
    return gate;
}

CourseLine lineAt(const GatePlace& gate, const QString& title) {
    CourseLine line{.title = title, .x = gate.centre.x()};
    if (gate.isUpstream && gate.bank < 0)
        line.bottom = gate.centre.y() + LinePastUpstream;
    else if (gate.isUpstream)
        line.top = gate.centre.y() - LinePastUpstream;
    return line;
}

void hangGates(CourseLayout& course, const infodata031& info) {
    double x = 0;
    int upstreams = 0;
    bool wasUpstream = false;
    for (std::int64_t number = 1; number <= info.gates; ++number) {
        const bool isUpstream = std::ranges::find(info.upGates, number) != info.upGates.end();
        x += isUpstream ? GapAboveUpstream : wasUpstream ? GapBelowUpstream : Gap;
        course.gates.push_back(placeOf(number, isUpstream, x, upstreams));
        upstreams += isUpstream ? 1 : 0;
        wasUpstream = isUpstream;
    }
    course.length = x + GapBeforeFinish;
}

} // namespace

CourseLayout layOut(const infodata031& info) {
    requireSections(info);
    CourseLayout course;
    hangGates(course, info);
    course.start.title = QStringLiteral("Start");
    for (std::size_t k = 0; k < info.definedsections.size(); ++k) {
        const QString title =
            k < info.splitTitles.size() ? QString::fromStdString(info.splitTitles[k]) : QString();
        if (k + 1 == info.definedsections.size()) {
            course.splits.push_back({.title = title, .x = course.length});
        } else {
            const auto gate = static_cast<std::size_t>(info.definedsections[k].back()) - 1;
            course.splits.push_back(lineAt(course.gates[gate], title));
        }
    }
    return course;
}

} // namespace kavela::films
