#include "splitdata/course_parts.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <set>
#include <stdexcept>
#include <utility>

namespace kavela {

namespace {

using PartKind = CoursePart::Kind;
using CoursePoints = std::vector<coursepoint001>;

constexpr std::size_t FewestPoints = 2; ///< of a line

double distanceOf(const coursepoint001& a, const coursepoint001& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

/// From a point to the nearest one between two others.
double distanceTo(const coursepoint001& a, const coursepoint001& b, const coursepoint001& from) {
    const double length = distanceOf(a, b);
    if (length == 0)
        return distanceOf(a, from);
    const double along =
        ((from.x - a.x) * (b.x - a.x) + (from.y - a.y) * (b.y - a.y)) / (length * length);
    const double share = std::clamp(along, 0.0, 1.0);
    return distanceOf({a.x + share * (b.x - a.x), a.y + share * (b.y - a.y)}, from);
}

std::size_t countOf(const coursedesign001& design, PartKind kind) {
    switch (kind) {
    case PartKind::Bank:
        return design.banks.size();
    case PartKind::Gate:
        return design.gates.size();
    case PartKind::SplitLine:
        return design.splitlines.size();
    case PartKind::Line:
        return design.lines.size();
    case PartKind::Text:
        return design.texts.size();
    }
    return 0;
}

/// The points of a whole that is there, where they stand.
std::vector<coursepoint001*> placesOf(coursedesign001& design, PartKind kind, std::size_t index) {
    std::vector<coursepoint001*> places;
    const auto all = [&](CoursePoints& points) {
        for (coursepoint001& point : points)
            places.push_back(&point);
    };
    switch (kind) {
    case PartKind::Bank:
        all(design.banks[index]);
        break;
    case PartKind::Gate:
        places = {&design.gates[index].left, &design.gates[index].right};
        break;
    case PartKind::SplitLine:
        places = {&design.splitlines[index].a, &design.splitlines[index].b};
        break;
    case PartKind::Line:
        all(design.lines[index].points);
        break;
    case PartKind::Text:
        places = {&design.texts[index].at};
        break;
    }
    return places;
}

std::vector<coursepoint001*> placesOf(coursedesign001& design, const CoursePart& part) {
    if (!hasPart(design, part))
        return {};
    std::vector<coursepoint001*> places = placesOf(design, part.kind, part.index);
    if (part.point)
        return {places[*part.point]};
    return places;
}

CoursePoints wholeOf(const coursedesign001& design, PartKind kind, std::size_t index) {
    switch (kind) {
    case PartKind::Bank:
        return design.banks[index];
    case PartKind::Gate:
        return {design.gates[index].left, design.gates[index].right};
    case PartKind::SplitLine:
        return {design.splitlines[index].a, design.splitlines[index].b};
    case PartKind::Line:
        return design.lines[index].points;
    case PartKind::Text:
        return {design.texts[index].at};
    }
    return {};
}

double distanceTo(const CoursePoints& line, const coursepoint001& from) {
    double nearest =
        line.empty() ? FarthestFromCourse * FarthestFromCourse : distanceOf(line.front(), from);
    for (std::size_t i = 1; i < line.size(); ++i)
        nearest = std::min(nearest, distanceTo(line[i - 1], line[i], from));
    return nearest;
}

void keepNear(coursepoint001& point) {
    point.x = std::clamp(point.x, -FarthestFromCourse, FarthestFromCourse);
    point.y = std::clamp(point.y, -FarthestFromCourse, FarthestFromCourse);
}

template <class Part>
void takeOut(std::vector<Part>& parts, std::size_t index) {
    parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(index));
}

void takeOutWhole(coursedesign001& design, const CoursePart& part) {
    switch (part.kind) {
    case PartKind::Bank:
        return takeOut(design.banks, part.index);
    case PartKind::Gate:
        return takeOut(design.gates, part.index);
    case PartKind::SplitLine:
        return takeOut(design.splitlines, part.index);
    case PartKind::Line:
        return takeOut(design.lines, part.index);
    case PartKind::Text:
        return takeOut(design.texts, part.index);
    }
}

template <class Part>
void appendByNumber(std::vector<CoursePart>& parts, PartKind kind, const std::vector<Part>& ones,
                    std::int64_t Part::*number) {
    std::vector<std::size_t> order(ones.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return ones[i].*number; });
    for (const std::size_t index : order)
        parts.push_back({kind, index});
}

std::int64_t nextNumber(const std::set<std::int64_t>& drawn, std::int64_t count) {
    for (std::int64_t number = 1; number <= count; ++number)
        if (!drawn.contains(number))
            return number;
    return drawn.empty() ? 1 : *drawn.rbegin() + 1;
}

/// Puts those points of a stretch that matter between its ends.
void keepBends(std::span<const coursepoint001> points, double tolerance, CoursePoints& kept) {
    // By a stack of its own: a line of thousands of points that winds would go as deep.
    std::vector<bool> isKept(points.size());
    isKept.front() = isKept.back() = true;
    std::vector<std::pair<std::size_t, std::size_t>> stretches{{0, points.size() - 1}};
    while (!stretches.empty()) {
        const auto [first, last] = stretches.back();
        stretches.pop_back();
        std::size_t farthest = first;
        double distance = tolerance;
        for (std::size_t i = first + 1; i < last; ++i)
            if (const double away = distanceTo(points[first], points[last], points[i]);
                away > distance) {
                farthest = i;
                distance = away;
            }
        if (farthest == first)
            continue;
        isKept[farthest] = true;
        stretches.emplace_back(first, farthest);
        stretches.emplace_back(farthest, last);
    }
    for (std::size_t i = 0; i < points.size(); ++i)
        if (isKept[i])
            kept.push_back(points[i]);
}

} // namespace

std::vector<CoursePart> partsOf(const coursedesign001& design) {
    std::vector<CoursePart> parts;
    appendByNumber(parts, PartKind::Gate, design.gates, &coursegate001::number);
    appendByNumber(parts, PartKind::SplitLine, design.splitlines, &coursesplitline001::split);
    for (const PartKind kind : {PartKind::Bank, PartKind::Line, PartKind::Text})
        for (std::size_t index = 0; index < countOf(design, kind); ++index)
            parts.push_back({kind, index});
    return parts;
}

bool hasPart(const coursedesign001& design, const CoursePart& part) {
    return part.index < countOf(design, part.kind) &&
           (!part.point || *part.point < wholeOf(design, part.kind, part.index).size());
}

std::vector<coursepoint001> pointsOf(const coursedesign001& design, const CoursePart& part) {
    if (!hasPart(design, part))
        return {};
    CoursePoints points = wholeOf(design, part.kind, part.index);
    if (part.point)
        return {points[*part.point]};
    return points;
}

coursepoint001 middleOf(const coursedesign001& design, const CoursePart& part) {
    const CoursePoints points = pointsOf(design, part);
    if (points.empty())
        throw std::out_of_range("a part of a course that is not there");
    const auto [left, right] = std::ranges::minmax(points, {}, &coursepoint001::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &coursepoint001::y);
    return {(left.x + right.x) / 2, (top.y + bottom.y) / 2};
}

std::optional<CoursePart> partNear(const coursedesign001& design, const coursepoint001& at,
                                   double reach) {
    std::optional<CoursePart> found;
    // From what lies lowest to what lies on top, which wins where both are as near.
    double nearest = reach;
    std::vector<CoursePart> parts;
    for (const PartKind kind :
         {PartKind::Bank, PartKind::Line, PartKind::SplitLine, PartKind::Gate, PartKind::Text})
        for (std::size_t index = 0; index < countOf(design, kind); ++index)
            parts.push_back({kind, index});
    for (const CoursePart& part : parts) {
        const CoursePoints points = pointsOf(design, part);
        for (std::size_t i = 0; points.size() > 1 && i < points.size(); ++i)
            if (const double away = distanceOf(points[i], at); away <= nearest) {
                nearest = away;
                found = CoursePart{part.kind, part.index, i};
            }
    }
    if (found)
        return found;
    nearest = reach;
    for (const CoursePart& part : parts)
        if (const double away = distanceTo(pointsOf(design, part), at); away <= nearest) {
            nearest = away;
            found = part;
        }
    return found;
}

coursedesign001 movedPart(coursedesign001 design, const CoursePart& part, double dx, double dy) {
    for (coursepoint001* const place : placesOf(design, part)) {
        *place = {place->x + dx, place->y + dy};
        keepNear(*place);
    }
    return design;
}

coursedesign001 pulledPart(coursedesign001 design, const CoursePart& part,
                           const coursepoint001& to) {
    if (!part.point || !hasPart(design, part))
        return design;
    const std::vector<coursepoint001*> places = placesOf(design, part.kind, part.index);
    coursepoint001& pulled = *places[*part.point];
    if (part.kind == PartKind::Gate) {
        const coursepoint001 other = *places[1 - *part.point];
        const double width = distanceOf(pulled, other);
        const double away = distanceOf(to, other);
        if (away > 0)
            pulled = {other.x + (to.x - other.x) * width / away,
                      other.y + (to.y - other.y) * width / away};
    } else {
        pulled = to;
    }
    keepNear(pulled);
    return design;
}

coursedesign001 turnedPart(coursedesign001 design, const CoursePart& part, double degrees) {
    if ((part.kind != PartKind::Gate && part.kind != PartKind::SplitLine) ||
        part.index >= countOf(design, part.kind))
        return design;
    const coursepoint001 middle = middleOf(design, {part.kind, part.index});
    const double turn = degrees * std::numbers::pi / 180;
    for (coursepoint001* const place : placesOf(design, part.kind, part.index)) {
        const double dx = place->x - middle.x;
        const double dy = place->y - middle.y;
        *place = {middle.x + dx * std::cos(turn) - dy * std::sin(turn),
                  middle.y + dx * std::sin(turn) + dy * std::cos(turn)};
        keepNear(*place);
    }
    return design;
}

coursedesign001 withoutPart(coursedesign001 design, const CoursePart& part) {
    if (!hasPart(design, part))
        return design;
    CoursePoints* const line = part.kind == PartKind::Bank   ? &design.banks[part.index]
                               : part.kind == PartKind::Line ? &design.lines[part.index].points
                                                             : nullptr;
    if (part.point && line && line->size() > FewestPoints)
        takeOut(*line, *part.point);
    else
        takeOutWhole(design, part);
    return design;
}

std::int64_t nextGateNumber(const coursedesign001& design, std::int64_t gates) {
    std::set<std::int64_t> drawn;
    for (const coursegate001& gate : design.gates)
        drawn.insert(gate.number);
    return nextNumber(drawn, gates);
}

std::int64_t nextSplitNumber(const coursedesign001& design, std::int64_t splits) {
    std::set<std::int64_t> drawn;
    for (const coursesplitline001& line : design.splitlines)
        drawn.insert(line.split);
    return nextNumber(drawn, splits);
}

std::string courseNameOf(const coursedesign001& design, const CoursePart& part) {
    if (!hasPart(design, part))
        return {};
    switch (part.kind) {
    case PartKind::Bank:
        return "bank " + std::to_string(part.index + 1);
    case PartKind::Gate:
        return "gate " + std::to_string(design.gates[part.index].number);
    case PartKind::SplitLine:
        return "split " + std::to_string(design.splitlines[part.index].split);
    case PartKind::Line:
        return design.lines[part.index].name.empty() ? "line"
                                                     : "line of " + design.lines[part.index].name;
    case PartKind::Text:
        return "text";
    }
    return {};
}

std::vector<coursepoint001> smoothed(std::span<const coursepoint001> points, double tolerance) {
    if (points.size() <= FewestPoints)
        return {points.begin(), points.end()};
    CoursePoints kept;
    keepBends(points, tolerance, kept);
    return kept;
}

} // namespace kavela
