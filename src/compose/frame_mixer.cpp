#include "compose/frame_mixer.h"

#include "compose/path_laying.h"
#include "compose/picture_laying.h"
#include "video/video_error.h"

#include <algorithm>

namespace kavela {

namespace {

/// The size at which a film that cannot be opened keeps its place.
constexpr VideoSize UnknownFilmSize{1920, 1080};

OpenedFilm openedFilm(const std::filesystem::path& path, const std::stop_token& stop,
                      const std::function<void(double)>& onProgress) {
    try {
        return {readVideoIndex(path, stop,
                               [&](const IndexProgress& progress) {
                                   if (onProgress)
                                       onProgress(progress.fraction);
                               }),
                {}};
    } catch (const VideoError& error) {
        return {nullptr, error.reason()};
    }
}

} // namespace

std::vector<OpenedFilm> openFilms(const Composition& composition, const std::stop_token& stop,
                                  const std::function<void(double fraction)>& onProgress) {
    std::vector<OpenedFilm> films;
    const auto count = static_cast<double>(composition.films.size());
    for (const ComposedFilm& film : composition.films) {
        const auto before = static_cast<double>(films.size());
        films.push_back(openedFilm(film.path, stop, [&](double fraction) {
            if (onProgress)
                onProgress((before + fraction) / count);
        }));
        if (stop.stop_requested())
            return {};
    }
    if (!films.empty() &&
        std::ranges::none_of(films, [](const OpenedFilm& film) { return film.index != nullptr; }))
        throw VideoError(composition.films.front().path, films.front().fault);
    return films;
}

std::vector<double> lengthsOf(std::span<const OpenedFilm> films) {
    std::vector<double> lengths;
    for (const OpenedFilm& film : films)
        lengths.push_back(film.index ? film.index->secondsOf(film.index->frameCount() - 1) : 0);
    return lengths;
}

FrameMixer::FrameMixer(const Composition& composition, std::span<const OpenedFilm> films,
                       VideoSize size, CaptionPainter* painter)
    : m_films(films.begin(), films.end()),
      m_size(size),
      m_speed(composition.speed),
      m_hasGapChart(composition.captions.gap),
      m_isWipe(composition.layout.kind == LayoutKind::Wipe),
      m_painter(painter),
      m_map(timeMapOf(composition)),
      m_range(rangeOf(composition, m_map, lengthsOf(films))),
      m_captions(captionsOf(composition, m_map)) {
    placeFilms(composition);
}

void FrameMixer::placeFilms(const Composition& composition) {
    LayoutChoice layout = composition.layout;
    layout.size = m_size;
    std::vector<VideoSize> sizes;
    std::vector<std::optional<PointPair>> points;
    for (std::size_t i = 0; i < composition.films.size(); ++i) {
        sizes.push_back(m_films[i].index ? m_films[i].index->facts().shownSize : UnknownFilmSize);
        points.push_back(composition.films[i].points);
        m_views.push_back(composition.films[i].view);
        m_names.push_back(composition.films[i].path.filename().string());
    }
    m_places = layOutFilms(layout, sizes, points);
}

FrameNumber FrameMixer::frameOf(std::size_t film, double common) const {
    return m_films[film].index->frameAt(m_map.filmSeconds(film, common)).value_or(0);
}

void FrameMixer::mix(double common, std::span<const PlanesPtr> pictures, AVFrame& planes) {
    darken(planes);
    for (std::size_t film = 0; film < m_places.size(); ++film)
        if (pictures[film])
            layFilm(film, common, *pictures[film], planes);
    for (std::size_t film = 0; film < m_places.size(); ++film)
        if (pictures[film] && m_views[film] && m_views[film]->isDrawn())
            drawPath(film, common, planes);
    if (m_isWipe && m_places.size() > 1)
        drawDivider(planes, m_places[1].firstColumn);
    if (m_painter != nullptr)
        write(common, planes);
}

VideoSize FrameMixer::pictureSize(std::size_t film) const {
    const PictureRect& place = m_places[film].picture;
    const double zoom = m_views[film] ? m_views[film]->zoom() : 1;
    return {static_cast<int>(place.width * zoom) / 2 * 2,
            static_cast<int>(place.height * zoom) / 2 * 2};
}

/// The corner of what is seen of a larger picture: the path in the middle, as far as the picture
/// goes.
PicturePlace FrameMixer::cornerOf(std::size_t film, FrameNumber frame) const {
    const PictureRect& place = m_places[film].picture;
    const VideoSize size = pictureSize(film);
    const PicturePoint middle = m_views[film]->middleAt(m_films[film].index->secondsOf(frame));
    return {std::clamp(middle.x * size.width - place.width / 2.0, 0.0,
                       std::max(double(size.width - place.width), 0.0)),
            std::clamp(middle.y * size.height - place.height / 2.0, 0.0,
                       std::max(double(size.height - place.height), 0.0))};
}

void FrameMixer::layFilm(std::size_t film, double common, const AVFrame& picture,
                         AVFrame& planes) const {
    if (m_views[film] && m_views[film]->zoom() > 1)
        layPart(m_places[film].picture, cornerOf(film, frameOf(film, common)), picture, planes);
    else
        layPicture(m_places[film], picture, planes);
}

void FrameMixer::drawPath(std::size_t film, double common, AVFrame& planes) const {
    const FilmPlace& place = m_places[film];
    const FrameNumber frame = frameOf(film, common);
    const VideoSize size = pictureSize(film);
    const PicturePlace corner = m_views[film]->zoom() > 1 ? cornerOf(film, frame) : PicturePlace{};
    for (const std::vector<PicturePoint>& piece : m_views[film]->trailUpTo(frame)) {
        std::vector<PicturePlace> line;
        for (const PicturePoint& point : piece) {
            const PicturePlace own{point.x * size.width - corner.x,
                                   point.y * size.height - corner.y};
            if (const auto& to = place.alignment)
                line.push_back({to->a * own.x - to->b * own.y + to->dx,
                                to->b * own.x + to->a * own.y + to->dy});
            else
                line.push_back({own.x + place.picture.x, own.y + place.picture.y});
        }
        drawTrail(line, place.picture, place.firstColumn, planes);
    }
}

void FrameMixer::write(double common, AVFrame& planes) {
    CaptionScene scene;
    scene.size = m_size;
    scene.places = m_places;
    scene.captions = m_captions.at(common);
    for (std::size_t film = 0; film < m_films.size(); ++film)
        if (!m_films[film].index)
            scene.captions.push_back(
                {CaptionKind::Missing, film, m_names[film] + ": " + m_films[film].fault});
    if (m_hasGapChart)
        scene.gaps = m_captions.gaps();
    scene.common = common;
    scene.from = m_range.from;
    scene.to = m_range.to;
    for (const PlacedOverlay& placed : m_painter->paint(scene))
        placed.overlay->layOver(planes, placed.x, placed.y);
}

} // namespace kavela
