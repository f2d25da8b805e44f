#include "compose/preview.h"

#include <algorithm>
#include <array>
#include <new>

namespace kavela {

namespace {

VideoSize evenSize(VideoSize shape, VideoSize box) {
    const VideoSize fitting = fitInto(shape, box);
    return {std::max(fitting.width / 2 * 2, 2), std::max(fitting.height / 2 * 2, 2)};
}

AvOwner<SwsContext> screenColours(VideoSize size) {
    AvOwner<SwsContext> context(sws_getContext(size.width, size.height, AV_PIX_FMT_YUV420P,
                                               size.width, size.height, AV_PIX_FMT_BGRA, SWS_POINT,
                                               nullptr, nullptr, nullptr));
    if (!context)
        throw std::bad_alloc();
    constexpr int Neutral = 1 << 16;
    sws_setColorspaceDetails(context.get(), sws_getCoefficients(SWS_CS_ITU709), 0,
                             sws_getCoefficients(SWS_CS_DEFAULT), 1, 0, Neutral, Neutral);
    return context;
}

} // namespace

ComposePreview::ComposePreview(const Composition& composition, const std::vector<OpenedFilm>& films,
                               VideoSize box, std::shared_ptr<FrameCache> cache,
                               CaptionPainter* painter)
    : m_mixer(composition, films, evenSize(composition.layout.size, box), painter),
      m_planes(newPlanes(m_mixer.size())),
      m_colours(screenColours(m_mixer.size())) {
    for (std::size_t film = 0; film < films.size(); ++film) {
        m_films.push_back(films[film].index
                              ? std::make_unique<FilmPictures>(films[film].index, cache,
                                                               m_mixer.pictureSize(film))
                              : nullptr);
    }
}

std::shared_ptr<const Picture> ComposePreview::previewAt(double seconds,
                                                         const std::function<bool()>& interrupt) {
    const double common = m_mixer.commonAt(std::clamp(seconds, 0.0, length()));
    std::vector<PlanesPtr> pictures;
    for (std::size_t film = 0; film < m_films.size(); ++film) {
        pictures.push_back(
            m_films[film] ? m_films[film]->at(m_mixer.frameOf(film, common), interrupt) : nullptr);
        if (interrupt && interrupt())
            return nullptr;
    }
    m_mixer.mix(common, pictures, *m_planes);
    return shown();
}

std::shared_ptr<const Picture> ComposePreview::shown() {
    constexpr std::ptrdiff_t Alignment = 64; // the converter writes whole vectors
    const auto [width, height] = m_mixer.size();
    const std::ptrdiff_t line = (width * 4 + Alignment - 1) / Alignment * Alignment;
    const std::shared_ptr<std::uint8_t[]> pixels = std::make_shared_for_overwrite<std::uint8_t[]>(
        static_cast<std::size_t>(line * height + Alignment));
    const std::array<std::uint8_t*, 4> targets = {pixels.get()};
    const std::array<int, 4> lines = {static_cast<int>(line)};
    sws_scale(m_colours.get(), m_planes->data, m_planes->linesize, 0, height, targets.data(),
              lines.data());
    return std::make_shared<const Picture>(Picture{width, height, line, pixels});
}

} // namespace kavela
