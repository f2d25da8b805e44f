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

} // namespace

std::optional<ReferenceDate> recordingBegan(const std::filesystem::path& film) {
    try {
        const Demuxer demuxer(film);
        for (const char* const key : Keys) {
            const AVDictionaryEntry* const entry =
                av_dict_get(demuxer.container().metadata, key, nullptr, 0);
            std::int64_t since1970 = 0; // microseconds
            // Cameras without a clock write a zero of one era or another.
            if (entry && av_parse_time(&since1970, entry->value, 0) >= 0 &&
                static_cast<double>(since1970) / MicrosecondsPerSecond > SecondsFrom1970To2001)
                return ReferenceDate{static_cast<double>(since1970) / MicrosecondsPerSecond -
                                     SecondsFrom1970To2001};
        }
    } catch (const VideoError&) {
        return std::nullopt;
    }
    return std::nullopt;
}

} // namespace kavela
