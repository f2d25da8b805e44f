#pragma once

#include "video/index.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

/// Where each film stands in a composed picture.
namespace kavela {

enum class LayoutKind { SideBySide, Stacked, TwoByTwo, PictureInPicture, Ghost, Wipe };

/// A place in a picture, in whole pixels; all even, since colour is stored for two by two.
struct PictureRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const PictureRect&, const PictureRect&) = default;
};

/// A point of a film's upright picture, 0 to 1 from its left and from its top.
struct PicturePoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const PicturePoint&, const PicturePoint&) = default;
};

/// The same two things seen in a film, such as the poles of a gate.
using PointPair = std::array<PicturePoint, 2>;

/// Turns, scales and shifts: (x, y) becomes (a·x − b·y + dx, b·x + a·y + dy).
struct Similarity {
    double a = 1;
    double b = 0;
    double dx = 0;
    double dy = 0;

    friend bool operator==(const Similarity&, const Similarity&) = default;
};

/// Where one film stands. Later films lie over earlier ones.
struct FilmPlace {
    PictureRect cell;    ///< its part of the picture
    PictureRect picture; ///< what its picture fills of the cell: all of it is seen, nothing is cut
    /// The part of the cell that its captions keep to: no film lies there over it, and of films
    /// that share a picture left and right of a line each has its own side.
    PictureRect words;
    double opacity = 1;
    int firstColumn = 0; ///< of the whole picture from which on it is seen, even
    /// From pixels of its own picture to pixels of the whole, where it is laid over another by
    /// points; its place is then that of the film below.
    std::optional<Similarity> alignment;

    friend bool operator==(const FilmPlace&, const FilmPlace&) = default;
};

struct LayoutChoice {
    LayoutKind kind = LayoutKind::SideBySide;
    VideoSize size{1920, 1080}; ///< of the whole picture, both even
    double wipe = 0.5;          ///< share of the width that shows the first film
};

/// The most films that a layout takes: 4, and 2 for those that lie over each other.
[[nodiscard]] std::size_t mostFilms(LayoutKind kind);

/// The place of each film of a list by its upright size. `points` of the first two films, where
/// both are given, bring the second over the first in a ghost or a wipe.
[[nodiscard]] std::vector<FilmPlace>
layOutFilms(const LayoutChoice& choice, const std::vector<VideoSize>& films,
            const std::vector<std::optional<PointPair>>& points = {});

/// The strip along the lower edge of the whole picture, of an even height in pixels, that stays
/// free of films within another one: what belongs to all films stands there, such as the chart of
/// the gap. `places` are those of layOutFilms().
[[nodiscard]] PictureRect lowerStrip(std::span<const FilmPlace> places, VideoSize size, int height);

/// What brings two points over two others; nothing where two of a pair are the same.
[[nodiscard]] std::optional<Similarity> similarityOf(const PointPair& from, const PointPair& to);

} // namespace kavela
