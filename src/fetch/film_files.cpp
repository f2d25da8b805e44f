#include "fetch/film_files.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "common/text.h"
#include "video/av_handles.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>
#include <utility>
#include <vector>

namespace kavela::fetch {

namespace fs = std::filesystem;

namespace {

/// A film refers to nothing but itself: none that was sent makes this computer ask elsewhere.
constexpr const char* OwnFileOnly = "file";
constexpr const char* PiecesOnly = "file,crypto";

struct OutputDeleter {
    void operator()(AVFormatContext* context) const {
        if (context->pb)
            avio_closep(&context->pb);
        avformat_free_context(context);
    }
};
using FilmOutput = std::unique_ptr<AVFormatContext, OutputDeleter>;

int isStopped(void* flag) {
    return static_cast<const std::atomic<bool>*>(flag)->load() ? 1 : 0;
}

struct OpenedFilm {
    AvOwner<AVFormatContext> context;
    std::string fault;
};

OpenedFilm openFilm(const fs::path& path, const char* protocols, const char* format,
                    const StopFlag& stop) {
    AVFormatContext* context = avformat_alloc_context();
    if (context && stop)
        context->interrupt_callback = {isStopped, stop.get()};
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", protocols, 0);
    // Our own names of pieces have no extension. An older release knows only the first of these.
    if (format)
        for (const auto& [name, value] :
             {std::pair("allowed_extensions", "ALL"),
              std::pair("allowed_segment_extensions", "ALL"), std::pair("extension_picky", "0")})
            av_dict_set(&options, name, value, 0);
    const int opened = avformat_open_input(
        &context, path.c_str(), format ? av_find_input_format(format) : nullptr, &options);
    av_dict_free(&options);
    if (opened < 0) // has freed it
        return {nullptr, avErrorText(opened)};
    OpenedFilm film{AvOwner<AVFormatContext>(context), {}};
    if (const int found = avformat_find_stream_info(context, nullptr); found < 0)
        film.fault = avErrorText(found);
    else if (av_find_best_stream(context, AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0) < 0)
        film.fault = say("it has no pictures");
    return film;
}

/// Which streams of the output the ones of the input go to; -1 for none.
std::vector<int> makeStreams(AVFormatContext& input, AVFormatContext& output) {
    std::vector<int> places;
    int next = 0;
    for (unsigned i = 0; i < input.nb_streams; ++i) {
        const AVStream* const from = input.streams[i];
        const AVMediaType type = from->codecpar->codec_type;
        AVStream* const to = type == AVMEDIA_TYPE_VIDEO || type == AVMEDIA_TYPE_AUDIO
                                 ? avformat_new_stream(&output, nullptr)
                                 : nullptr;
        places.push_back(to ? next++ : -1);
        if (!to)
            continue;
        avcodec_parameters_copy(to->codecpar, from->codecpar);
        to->codecpar->codec_tag = 0; // the tag of another container
        to->time_base = from->time_base;
    }
    return places;
}

/// 0, or the first thing that went wrong; the end of the input is none.
int copyPackets(AVFormatContext& input, AVFormatContext& output, const std::vector<int>& places,
                const StopFlag& stop) {
    const AvOwner<AVPacket> packet(av_packet_alloc());
    while (!stop->load()) {
        const int read = av_read_frame(&input, packet.get());
        if (read == AVERROR_EOF)
            return 0;
        if (read < 0)
            return read;
        const auto from = static_cast<std::size_t>(packet->stream_index);
        // A stream that came to light later has no place.
        if (from >= places.size() || places[from] < 0) {
            av_packet_unref(packet.get());
            continue;
        }
        packet->stream_index = places[from];
        av_packet_rescale_ts(packet.get(), input.streams[from]->time_base,
                             output.streams[packet->stream_index]->time_base);
        packet->pos = -1;
        if (const int written = av_interleaved_write_frame(&output, packet.get()); written < 0)
            return written;
    }
    return AVERROR_EXIT;
}

int writeJoined(AVFormatContext& input, const fs::path& target, const StopFlag& stop) {
    AVFormatContext* made = nullptr;
    if (const int code = avformat_alloc_output_context2(&made, nullptr, "mp4", target.c_str());
        code < 0)
        return code;
    const FilmOutput output(made);
    const std::vector<int> places = makeStreams(input, *output);
    int code = avio_open(&output->pb, target.c_str(), AVIO_FLAG_WRITE);
    if (code >= 0)
        code = avformat_write_header(output.get(), nullptr);
    if (code >= 0)
        code = copyPackets(input, *output, places, stop);
    if (code >= 0)
        code = av_write_trailer(output.get());
    if (code >= 0)
        code = avio_closep(&output->pb); // where a full disk may be told of at last
    return code;
}

/// "film.mp4", "film 2.mp4", …
std::string countedName(const std::string& name, int count) {
    const std::size_t dot = std::min(name.rfind('.'), name.size());
    return count == 1 ? name : name.substr(0, dot) + ' ' + std::to_string(count) + name.substr(dot);
}

} // namespace

std::optional<std::string> faultOfFilm(const fs::path& path) {
    const OpenedFilm film = openFilm(path, OwnFileOnly, nullptr, nullptr);
    if (film.fault.empty())
        return std::nullopt;
    return say("What the server sent is no film: {}.", film.fault);
}

std::string sha256OfFilm(const fs::path& path) {
    QFile file(QFile::decodeName(path.c_str()));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!file.open(QIODevice::ReadOnly) || !hash.addData(&file))
        return {};
    return hash.result().toHex().toStdString();
}

std::optional<std::string> joinPieces(const fs::path& playlist, const fs::path& target,
                                      const StopFlag& stop) {
    const OpenedFilm film = openFilm(playlist, PiecesOnly, "hls", stop);
    if (!film.fault.empty())
        return say("The pieces of the film do not fit together: {}.", film.fault);
    if (const int code = writeJoined(*film.context, target, stop); code < 0)
        return say("The pieces of the film could not be put together: {}.", avErrorText(code));
    return std::nullopt;
}

std::string nameFilm(const fs::path& part, const fs::path& folder, const std::string& name) {
    for (int count = 1;; ++count) {
        std::string own = countedName(name, count);
        if (!keepUnderSecondName(part, folder / own))
            continue;
        std::error_code ignored; // it has its name; the other one is no loss
        fs::remove(part, ignored);
        return own;
    }
}

} // namespace kavela::fetch
