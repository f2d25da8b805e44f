#include "compose/film_pictures.h"

#include "common/text.h"
#include "video/video_error.h"

#include <algorithm>

namespace kavela {

namespace {

constexpr int HalfTurn = 180;

} // namespace

FilmPictures::FilmPictures(std::shared_ptr<const VideoIndex> index,
                           std::shared_ptr<FrameCache> cache, VideoSize size)
    : m_index(std::move(index)),
      m_cache(std::move(cache)),
      m_source(std::make_unique<FrameSource>(m_index, m_cache)),
      m_size(size) {}

PlanesPtr FilmPictures::at(FrameNumber number, const Interrupt& interrupt) {
    if (number == m_number || !m_source)
        return m_picture;
    FrameSource::Result result;
    try {
        result = m_source->frame(number, interrupt);
    } catch (const VideoError& error) {
        m_source.reset(); // what came so far stays
        noteFault(number, error.reason());
        return m_picture;
    }
    if (result.outcome == FrameSource::Outcome::Interrupted)
        return nullptr;
    m_number = number;
    if (result.outcome == FrameSource::Outcome::Damaged)
        noteFault(number, say("it cannot be decoded"));
    else if (PlanesPtr picture = made(*result.frame.samples))
        m_picture = std::move(picture);
    else
        noteFault(number, say("its pictures are in a format of no use"));
    return m_picture;
}

void FilmPictures::noteFault(FrameNumber number, const std::string& reason) {
    if (!m_fault)
        m_fault = {number, reason};
}

PlanesPtr FilmPictures::made(const AVFrame& samples) {
    const int rotation = m_index->facts().rotation;
    const bool isSideways = rotation % HalfTurn != 0;
    AvOwner<AVFrame> planes =
        newPlanes(isSideways ? VideoSize{m_size.height, m_size.width} : m_size);
    if (!m_scaler.scale(samples, *planes))
        return nullptr;
    if (rotation != 0)
        planes = turnedPlanes(*planes, rotation);
    return {planes.release(), AvDeleter()};
}

} // namespace kavela
