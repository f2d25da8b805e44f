#include "video/recording_date.h"

#include "video/demuxer.h"
#include "video/video_error.h"

extern "C" {
#include <libavutil/parseutils.h>
}

namespace kavela {

namespace {

/// Where containers keep it.
constexpr const char* Keys[] = {"creation_time", "date"};

constexpr double MicrosecondsPerSecond = 1e6;

std::optional<ReferenceDate> beganIn(const AVDictionary* tags) {
    for (const char* const key : Keys) {
        const AVDictionaryEntry* const entry = av_dict_get(tags, key, nullptr, 0);
        std::int64_t since1970 = 0; // microseconds
        // Cameras without a clock write a zero of one era or another.
        if (entry && av_parse_time(&since1970, entry->value, 0) >= 0 &&
            static_cast<double>(since1970) / MicrosecondsPerSecond > SecondsFrom1970To2001)
            return ReferenceDate{static_cast<double>(since1970) / MicrosecondsPerSecond -
                                 SecondsFrom1970To2001};
    }
    return std::nullopt;
}

} // namespace

std::optional<ReferenceDate> recordingBegan(const std::filesystem::path& film) {
    const auto recording = recordingOf(film);
    return recording ? recording->began : std::nullopt;
}

std::optional<FilmRecording> recordingOf(const std::filesystem::path& film) {
    try {
        const Demuxer demuxer(film);
        const AVFormatContext& container = demuxer.container();
        const double seconds =
            container.duration > 0 ? static_cast<double>(container.duration) / AV_TIME_BASE : 0;
        return FilmRecording{beganIn(container.metadata), seconds};
    } catch (const VideoError&) {
        return std::nullopt;
    }
}

} // namespace kavela
