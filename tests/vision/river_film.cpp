#include "vision/river_film.h"

#include "common/safe_file.h"
#include "video/writing/film_writer.h"

#include <algorithm>
#include <cmath>

extern "C" {
#include <libavutil/frame.h>
}

namespace kavela {

namespace {

void fillFrame(const HalfPlanes& half, AVFrame& frame) {
    for (int y = 0; y < 2 * half.height; ++y)
        for (int x = 0; x < 2 * half.width; ++x)
            frame.data[0][y * frame.linesize[0] + x] = half.luma[half.at(x / 2, y / 2)];
    for (int y = 0; y < half.height; ++y) {
        const auto row = std::ptrdiff_t(half.at(0, y));
        std::copy_n(half.blue.begin() + row, half.width, frame.data[1] + y * frame.linesize[1]);
        std::copy_n(half.red.begin() + row, half.width, frame.data[2] + y * frame.linesize[2]);
    }
}

} // namespace

void writeRiverFilm(const RiverScene& scene, const std::filesystem::path& path) {
    FilmFormat format;
    format.size = {2 * scene.recipe().width, 2 * scene.recipe().height};
    format.rate = {static_cast<int>(std::lround(scene.recipe().rate)), 1};
    format.tick = {1, format.rate.num};
    format.preset = "ultrafast";
    format.quality = 18;
    MemorySink sink;
    FilmWriter writer(format, sink);
    for (std::int64_t i = 0; i < scene.frames(); ++i) {
        fillFrame(scene.picture(i), writer.picture());
        writer.add(i);
    }
    writer.finish();
    writeFileSafely(path, sink.take());
}

} // namespace kavela
