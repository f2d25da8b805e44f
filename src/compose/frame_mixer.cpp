#include "compose/frame_mixer.h"

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

FrameMixer::FrameMixer(const Composition& composition, std::span<const OpenedFilm> films,
                       VideoSize size, CaptionPainter* painter)
    : m_films(films.begin(), films.end()),
      m_size(size),
      m_speed(composition.speed),
      m_hasGapChart(composition.captions.gap),
      m_isWipe(composition.layout.kind == LayoutKind::Wipe),
      m_painter(painter),
      m_map(timeMapOf(composition)),
      m_range(rangeOf(composition, m_map)),
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
            layPicture(m_places[film], *pictures[film], planes);
    if (m_isWipe && m_places.size() > 1)
        drawDivider(planes, m_places[1].firstColumn);
    if (m_painter != nullptr)
        write(common, planes);
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
