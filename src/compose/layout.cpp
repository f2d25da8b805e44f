#include "compose/layout.h"

#include "video/picture.h"

#include <algorithm>
#include <cmath>
#include <complex>

namespace kavela {

namespace {

constexpr double InsetShare = 0.3;   ///< of the width, for a picture in a picture
constexpr double InsetMargin = 0.02; ///< of the width
constexpr double GhostOpacity = 0.5;
/// Of the width, left and right: so much room the captions of a side keep wherever the line stands.
constexpr double LeastWipeWords = 1.0 / 3;
constexpr double SmallestTurn = 1e-6; ///< of the picture: points nearer than this say nothing

int evenPixel(double pixels) {
    return static_cast<int>(std::lround(pixels / 2)) * 2;
}

PictureRect rectBetween(double left, double top, double right, double bottom) {
    const int x = evenPixel(left);
    const int y = evenPixel(top);
    return {x, y, evenPixel(right) - x, evenPixel(bottom) - y};
}

/// In the middle of the cell, as large as fits.
PictureRect fittedInto(const PictureRect& cell, VideoSize film) {
    const VideoSize fitting = fitInto(film, {cell.width, cell.height});
    const int width = std::clamp(fitting.width / 2 * 2, 2, std::max(cell.width, 2));
    const int height = std::clamp(fitting.height / 2 * 2, 2, std::max(cell.height, 2));
    return {cell.x + (cell.width - width) / 4 * 2, cell.y + (cell.height - height) / 4 * 2, width,
            height};
}

PictureRect gridCell(const VideoSize& size, int columns, int rows, std::size_t number) {
    const int column = static_cast<int>(number) % columns;
    const int row = static_cast<int>(number) / columns;
    const double width = double(size.width) / columns;
    const double height = double(size.height) / rows;
    return rectBetween(column * width, row * height, (column + 1) * width, (row + 1) * height);
}

/// The first one fills all; the others stand above each other in the lower right corner.
PictureRect insetCell(const VideoSize& size, std::size_t number, VideoSize film) {
    if (number == 0)
        return {0, 0, size.width, size.height};
    const double margin = size.width * InsetMargin;
    const double most = (size.height - 4 * margin) / 3;
    const VideoSize inset = fitInto(film, {evenPixel(size.width * InsetShare), evenPixel(most)});
    const double right = size.width - margin;
    const double bottom = size.height - margin - (double(number) - 1) * (most + margin);
    return rectBetween(right - inset.width, bottom - inset.height, right, bottom);
}

PictureRect cellOf(const LayoutChoice& choice, std::size_t number, std::size_t count,
                   VideoSize film) {
    const int films = static_cast<int>(std::max<std::size_t>(count, 1));
    switch (choice.kind) {
    case LayoutKind::SideBySide:
        return gridCell(choice.size, films, 1, number);
    case LayoutKind::Stacked:
        return gridCell(choice.size, 1, films, number);
    case LayoutKind::TwoByTwo:
        return gridCell(choice.size, 2, 2, number);
    case LayoutKind::PictureInPicture:
        return insetCell(choice.size, number, film);
    default:
        return {0, 0, choice.size.width, choice.size.height};
    }
}

PointPair onPixels(const PointPair& points, const PictureRect& picture, bool isOnWhole) {
    PointPair pixels = points;
    for (PicturePoint& point : pixels) {
        point.x = point.x * picture.width + (isOnWhole ? picture.x : 0);
        point.y = point.y * picture.height + (isOnWhole ? picture.y : 0);
    }
    return pixels;
}

/// Insets leave their columns free down to the lower edge.
int endOfFreeColumns(std::span<const FilmPlace> places, VideoSize size) {
    int end = size.width;
    for (const FilmPlace& place : places) {
        const PictureRect& whole = places.front().cell;
        const bool isInset = place.cell != whole && place.cell.x < whole.x + whole.width &&
                             place.cell.y < whole.y + whole.height;
        if (isInset)
            end = std::min(end, place.cell.x);
    }
    return end;
}

/// Of a picture with others within it: above a single one, so that the clock keeps its corner, and
/// left of several, which reach up to it.
PictureRect wordsBesideInsets(std::span<const FilmPlace> places, VideoSize size) {
    PictureRect words = places.front().cell;
    if (places.size() == 2)
        words.height = places[1].cell.y - words.y;
    else
        words.width = endOfFreeColumns(places, size) - words.x;
    return words;
}

/// Where the captions of each film stand.
void placeWords(const LayoutChoice& choice, std::vector<FilmPlace>& places) {
    for (FilmPlace& place : places)
        place.words = place.cell;
    if (places.size() < 2)
        return;
    PictureRect& first = places[0].words;
    PictureRect& second = places[1].words;
    if (choice.kind == LayoutKind::PictureInPicture) {
        first = wordsBesideInsets(places, choice.size);
    } else if (choice.kind == LayoutKind::Wipe) {
        const int line = evenPixel(std::clamp(choice.wipe, LeastWipeWords, 1 - LeastWipeWords) *
                                   choice.size.width);
        first.width = line;
        second.x = line;
        second.width = choice.size.width - line;
    }
}

/// Lays the second film over the first.
void overlay(const LayoutChoice& choice, std::vector<FilmPlace>& places,
             const std::vector<std::optional<PointPair>>& points) {
    if (places.size() < 2)
        return;
    FilmPlace& upper = places[1];
    if (choice.kind == LayoutKind::Ghost)
        upper.opacity = GhostOpacity;
    else
        upper.firstColumn = evenPixel(std::clamp(choice.wipe, 0.0, 1.0) * choice.size.width);
    if (points.size() > 1 && points[0] && points[1])
        upper.alignment = similarityOf(onPixels(*points[1], upper.picture, false),
                                       onPixels(*points[0], places[0].picture, true));
}

} // namespace

std::size_t mostFilms(LayoutKind kind) {
    return kind == LayoutKind::Ghost || kind == LayoutKind::Wipe ? 2 : 4;
}

std::vector<FilmPlace> layOutFilms(const LayoutChoice& choice, const std::vector<VideoSize>& films,
                                   const std::vector<std::optional<PointPair>>& points) {
    std::vector<FilmPlace> places;
    for (std::size_t i = 0; i < films.size(); ++i) {
        FilmPlace place;
        place.cell = cellOf(choice, i, films.size(), films[i]);
        place.picture = fittedInto(place.cell, films[i]);
        places.push_back(place);
    }
    if (choice.kind == LayoutKind::Ghost || choice.kind == LayoutKind::Wipe)
        overlay(choice, places, points);
    placeWords(choice, places);
    return places;
}

PictureRect lowerStrip(std::span<const FilmPlace> places, VideoSize size, int height) {
    return {0, size.height - height, endOfFreeColumns(places, size), height};
}

std::optional<Similarity> similarityOf(const PointPair& from, const PointPair& to) {
    const auto complex = [](const PicturePoint& point) {
        return std::complex<double>(point.x, point.y);
    };
    const std::complex<double> way = complex(from[1]) - complex(from[0]);
    const std::complex<double> target = complex(to[1]) - complex(to[0]);
    if (std::abs(way) < SmallestTurn || std::abs(target) < SmallestTurn)
        return std::nullopt;
    const std::complex<double> turn = target / way;
    const std::complex<double> shift = complex(to[0]) - turn * complex(from[0]);
    return Similarity{turn.real(), turn.imag(), shift.real(), shift.imag()};
}

} // namespace kavela
