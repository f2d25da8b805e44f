#pragma once

#include "compose/composition.h"
#include "compose/film_pictures.h"
#include "compose/overlay.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace kavela {

/// A film of a composition as it was found.
struct OpenedFilm {
    std::shared_ptr<const VideoIndex> index; ///< null where the film cannot be shown
    std::string fault;                       ///< why not
};

/// Opens the films of a composition. Null entries never: a film that cannot be opened is told as
/// such. `onProgress` gets 0 to 1. Empty once `stop` is requested. Throws VideoError, that of the
/// first film, when none of them can be opened.
[[nodiscard]] std::vector<OpenedFilm>
openFilms(const Composition& composition, const std::stop_token& stop = {},
          const std::function<void(double fraction)>& onProgress = {});

/// Seconds of the last frame of each film, 0 for one that is not there.
[[nodiscard]] std::vector<double> lengthsOf(std::span<const OpenedFilm> films);

/// Makes the pictures of a composition, alike for the screen and for the file: which frame of each
/// film is due when, where it stands, and what is written over it. Used from one thread at a time,
/// apart from frameOf().
class FrameMixer {
public:
    /// As many opened films as the composition has. `size` is that of the whole picture, even;
    /// `painter` may be null for a composition without captions, and must outlive the mixer. Throws
    /// DecodeError as rangeOf() and timeMapOf() do.
    FrameMixer(const Composition& composition, std::span<const OpenedFilm> films, VideoSize size,
               CaptionPainter* painter);

    [[nodiscard]] VideoSize size() const { return m_size; }
    [[nodiscard]] const TimeMap& map() const { return m_map; }
    [[nodiscard]] const CommonRange& range() const { return m_range; }
    [[nodiscard]] const CaptionPlan& captions() const { return m_captions; }
    [[nodiscard]] const std::vector<FilmPlace>& places() const { return m_places; }
    /// How large the pictures of a film have to be: those of one that follows a path are larger
    /// than its place. Even.
    [[nodiscard]] VideoSize pictureSize(std::size_t film) const;
    /// Seconds of the composed film.
    [[nodiscard]] double length() const { return (m_range.to - m_range.from) / m_speed; }
    /// Common time at a number of seconds of the composed film.
    [[nodiscard]] double commonAt(double seconds) const { return m_range.from + seconds * m_speed; }
    /// The frame that a film shows at a moment of common time: the one with the stamp at or before
    /// it, the first one before the film begins. Only for films that are there. Any thread.
    [[nodiscard]] FrameNumber frameOf(std::size_t film, double common) const;

    /// Fills the planes, of the mixer's size, with what is seen at a moment of common time.
    /// `pictures` has one entry for each film, of its pictureSize(), or null.
    void mix(double common, std::span<const PlanesPtr> pictures, AVFrame& planes);

private:
    void placeFilms(const Composition& composition);
    void write(double common, AVFrame& planes);
    void layFilm(std::size_t film, double common, const AVFrame& picture, AVFrame& planes) const;
    void drawPath(std::size_t film, double common, AVFrame& planes) const;
    [[nodiscard]] PicturePlace cornerOf(std::size_t film, FrameNumber frame) const;

    std::vector<OpenedFilm> m_films;
    std::vector<std::string> m_names;                     ///< of the files
    std::vector<std::shared_ptr<const PathView>> m_views; ///< null where no path is shown
    VideoSize m_size;
    double m_speed;
    bool m_hasGapChart;
    bool m_isWipe;
    CaptionPainter* m_painter;
    TimeMap m_map;
    CommonRange m_range;
    CaptionPlan m_captions;
    std::vector<FilmPlace> m_places;
};

} // namespace kavela
