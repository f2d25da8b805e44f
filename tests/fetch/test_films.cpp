#include "fetch/test_films.h"

#include "common/temp_folder.h"
#include "video/av_handles.h"
#include "video/writing/film_writer.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace kavela::test {

namespace {

constexpr int Width = 160;
constexpr int Height = 90;
constexpr int Timescale = 600;

} // namespace

QByteArray testFilm(int number) {
    FilmFormat format;
    format.container = "mov";
    format.size = {Width, Height};
    format.timescale = Timescale;
    format.preset = "ultrafast";
    format.isPlain = true;
    format.threads = 1;
    MemorySink bytes;
    FilmWriter writer(format, bytes);
    for (int frame = 0; frame < TestFrames; ++frame) {
        AVFrame& picture = writer.picture();
        for (int y = 0; y < Height; ++y)
            for (int x = 0; x < Width; ++x)
                picture.data[0][y * picture.linesize[0] + x] =
                    static_cast<std::uint8_t>(16 + (x / 2 * 6 + frame * 7 + number * 50) % 200);
        for (const int plane : {1, 2})
            for (int y = 0; y < Height / 2; ++y)
                std::fill_n(picture.data[plane] + y * picture.linesize[plane], Width / 2,
                            std::uint8_t{128});
        writer.add(frame);
    }
    writer.finish();
    return QByteArray::fromStdString(bytes.take());
}

std::map<QByteArray, QByteArray> testPieces() {
    const TempFolder folder;
    const std::string film = folder.add("film.mov", testFilm(3).toStdString()).string();
    const std::string list = (folder.path() / "list.m3u8").string();
    const std::string command = "ffmpeg -v error -i '" + film +
                                "' -c copy -hls_time 1 -hls_list_size 0 -f hls '" + list + "'";
    if (std::system(command.c_str()) != 0)
        throw std::runtime_error("not made: " + command);
    std::map<QByteArray, QByteArray> pieces;
    for (const std::string& name : folder.names())
        if (name != "film.mov")
            pieces[QByteArray::fromStdString(name)] =
                QByteArray::fromStdString(contentOf(folder.path() / name));
    return pieces;
}

int framesIn(const std::filesystem::path& film) {
    AVFormatContext* opened = nullptr;
    if (avformat_open_input(&opened, film.c_str(), nullptr, nullptr) < 0)
        return -1;
    const AvOwner<AVFormatContext> context(opened);
    const int pictures = av_find_best_stream(opened, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    const AvOwner<AVPacket> packet(av_packet_alloc());
    int frames = 0;
    while (av_read_frame(opened, packet.get()) >= 0) {
        frames += packet->stream_index == pictures ? 1 : 0;
        av_packet_unref(packet.get());
    }
    return frames;
}

} // namespace kavela::test
