#include "vision/tracking/scene_film.h"

#include "video/av_handles.h"
#include "video/writing/film_writer.h"
#include "video/writing/unfinished_file.h"

#include <cstring>

namespace kavela {

std::filesystem::path writeScene(TrackScene& scene, int frames,
                                 const std::filesystem::path& target) {
    UnfinishedFile file(target);
    FilmFormat format;
    const TrackPicture first = scene.picture(0);
    format.size = {first.width(), first.height()};
    format.isHighDefinition = false;
    FilmWriter writer(format, file);
    for (int frame = 0; frame < frames; ++frame) {
        const TrackPicture picture = scene.picture(frame);
        AVFrame& to = writer.picture();
        for (int plane = 0; plane < 3; ++plane) {
            const TrackPicture::Plane& from = picture.planes[static_cast<std::size_t>(plane)];
            for (int y = 0; y < from.height; ++y)
                std::memcpy(to.data[plane] + std::ptrdiff_t{y} * to.linesize[plane], from.row(y),
                            static_cast<std::size_t>(from.width));
        }
        writer.add(frame);
    }
    writer.finish();
    return file.finish();
}

} // namespace kavela
