#include "vision/path_figures.h"

#include "common/text.h"
#include "vision/track_error.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <span>

namespace kavela {

namespace {

constexpr double HalfSpeedWindow = 0.1; ///< seconds on each side
constexpr int ClickDraws = 200;
constexpr double ClickError = 2; ///< pixels
constexpr double Slack = 1e-6;   ///< seconds

double slopeOf(std::span<const PathFigure> figures, double WaterPlace::*along) {
    double meanT = 0;
    double mean = 0;
    for (const PathFigure& figure : figures) {
        meanT += *figure.seconds / static_cast<double>(figures.size());
        mean += (*figure.water).*along / static_cast<double>(figures.size());
    }
    double product = 0;
    double square = 0;
    for (const PathFigure& figure : figures) {
        product += (*figure.seconds - meanT) * ((*figure.water).*along - mean);
        square += (*figure.seconds - meanT) * (*figure.seconds - meanT);
    }
    return square > 0 ? product / square : 0;
}

/// The figures round one of them that lie within the window, as far as there is no gap.
std::span<const PathFigure> windowRound(std::span<const PathFigure> figures, std::size_t at) {
    const double middle = *figures[at].seconds;
    std::size_t first = at;
    std::size_t last = at;
    while (first > 0 && figures[first - 1].water &&
           middle - *figures[first - 1].seconds <= HalfSpeedWindow + Slack)
        --first;
    while (last + 1 < figures.size() && figures[last + 1].water &&
           *figures[last + 1].seconds - middle <= HalfSpeedWindow + Slack)
        ++last;
    return figures.subspan(first, last - first + 1);
}

/// At the ends of a path half of the window is enough.
void addSpeeds(std::vector<PathFigure>& figures) {
    constexpr std::size_t FewestPoints = 3;
    std::vector<std::optional<double>> speeds(figures.size());
    for (std::size_t i = 0; i < figures.size(); ++i) {
        if (!figures[i].water)
            continue;
        const auto window = windowRound(figures, i);
        if (window.size() >= FewestPoints &&
            *window.back().seconds - *window.front().seconds >= HalfSpeedWindow / 2)
            speeds[i] =
                std::hypot(slopeOf(window, &WaterPlace::x), slopeOf(window, &WaterPlace::y));
    }
    for (std::size_t i = 0; i < figures.size(); ++i)
        figures[i].speed = speeds[i];
}

void layOnWater(std::vector<PathFigure>& figures, const WaterPlane& plane) {
    for (PathFigure& figure : figures)
        figure.water = figure.steadied ? plane.at(*figure.steadied) : std::nullopt;
    addSpeeds(figures);
}

/// What clicks that are a little off do to the speeds. The same draws each time, so that the same
/// path gives the same figures.
void addSpeedErrors(std::vector<PathFigure>& figures, const std::vector<PlanePoint>& points) {
    std::mt19937 source(1);
    std::normal_distribution<double> off(0, ClickError);
    struct Spread {
        double sum = 0;
        double square = 0;
        int count = 0;
    };
    std::vector<Spread> spreads(figures.size());
    std::vector<PathFigure> drawn = figures;
    for (int i = 0; i < ClickDraws; ++i) {
        std::vector<PlanePoint> clicked = points;
        for (PlanePoint& point : clicked)
            point.place = {point.place.x + off(source), point.place.y + off(source)};
        try {
            layOnWater(drawn, WaterPlane(clicked));
        } catch (const TrackError&) {
            continue; // points so near to each other that the clicks change places
        }
        for (std::size_t k = 0; k < drawn.size(); ++k)
            if (drawn[k].speed) {
                spreads[k].sum += *drawn[k].speed;
                spreads[k].square += *drawn[k].speed * *drawn[k].speed;
                ++spreads[k].count;
            }
    }
    constexpr int FewestDraws = ClickDraws / 2;
    for (std::size_t k = 0; k < figures.size(); ++k) {
        const Spread& spread = spreads[k];
        if (!figures[k].speed || spread.count < FewestDraws)
            continue;
        const double mean = spread.sum / spread.count;
        figures[k].speedError =
            std::sqrt(std::max(spread.square / spread.count - mean * mean, 0.0));
    }
}

} // namespace

std::vector<PlanePoint> planeInFirstFrame(const FilmTrack& track, const KnownPlane& plane) {
    const TrackCamera* const camera = track.cameraAt(plane.frame);
    if (!camera)
        throw TrackError(say("It is not known how the camera moved between the path and the frame "
                             "of the known points. Click them in a frame of the path."));
    std::vector<PlanePoint> points = plane.points;
    for (PlanePoint& point : points)
        point.place = camera->toFirst(point.place);
    return points;
}

std::vector<PathFigure> pathFigures(const FilmTrack& track,
                                    const std::optional<KnownPlane>& plane) {
    std::vector<PathFigure> figures;
    for (const TrackPoint& point : track.points) {
        while (!figures.empty() && figures.back().frame + 1 < point.frame)
            figures.push_back({.frame = figures.back().frame + 1});
        figures.push_back({.frame = point.frame,
                           .seconds = point.seconds,
                           .place = point.place,
                           .steadied = track.steadied(point),
                           .score = point.score});
    }
    if (plane) {
        const std::vector<PlanePoint> points = planeInFirstFrame(track, *plane);
        layOnWater(figures, WaterPlane(points));
        addSpeedErrors(figures, points);
    }
    return figures;
}

} // namespace kavela
