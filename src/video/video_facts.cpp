#include "video/video_facts.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <string_view>

extern "C" {
#include <libavutil/display.h>
#include <libavutil/pixdesc.h>
}

namespace kavela {

namespace {

constexpr int FullTurn = 360;
constexpr int QuarterTurn = 90;

int rotationOf(const AVStream& stream) {
    std::size_t bytes = 0;
    const auto* const data = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &bytes);
    if (data == nullptr || bytes < 9 * sizeof(std::int32_t))
        return 0;
    // The library counts counterclockwise, and from −180.
    const double clockwise = -av_display_rotation_get(reinterpret_cast<const std::int32_t*>(data));
    if (!std::isfinite(clockwise))
        return 0;
    const auto quarters = std::lround(clockwise / QuarterTurn);
    return static_cast<int>((quarters % 4 + 4) % 4) * QuarterTurn;
}

int bitDepthOf(const AVStream& stream) {
    const auto* const layout =
        av_pix_fmt_desc_get(static_cast<AVPixelFormat>(stream.codecpar->format));
    return layout == nullptr ? 8 : layout->comp[0].depth;
}

bool isInterlaced(AVFieldOrder order) {
    return order == AV_FIELD_TT || order == AV_FIELD_BB || order == AV_FIELD_TB ||
           order == AV_FIELD_BT;
}

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char letter) {
        return 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return lower;
}

/// Cameras write the rate at which they recorded under various keys; all speak of capturing.
bool namesCaptureRate(const std::string& key) {
    return key.find("capture") != std::string::npos &&
           (key.find("fps") != std::string::npos || key.find("rate") != std::string::npos);
}

std::optional<double> captureRateIn(const AVDictionary* tags) {
    const AVDictionaryEntry* tag = nullptr;
    while ((tag = av_dict_get(tags, "", tag, AV_DICT_IGNORE_SUFFIX)) != nullptr) {
        const std::string_view text = tag->value;
        double rate = 0;
        if (namesCaptureRate(lowerCase(tag->key)) &&
            std::from_chars(text.data(), text.data() + text.size(), rate).ec == std::errc() &&
            std::isfinite(rate) && rate > 0)
            return rate;
    }
    return std::nullopt;
}

/// The list of this container is looked for by the library only when something is to be found, and
/// then made up where there is none. It stands at the end or, rarely, at the start.
bool hasCues(const std::filesystem::path& path) {
    constexpr std::string_view Name = "\x1c\x53\xbb\x6b";
    constexpr std::string_view Reference = "\x53\xab\x84"; // before a name: only says where
    constexpr std::streamoff Part = 1 << 20;
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = in.tellg();
    for (const std::streamoff from :
         {std::max<std::streamoff>(size - Part, 0), std::streamoff{0}}) {
        std::string text(static_cast<std::size_t>(Part), 0);
        in.clear();
        in.seekg(from).read(text.data(), Part);
        text.resize(static_cast<std::size_t>(std::max<std::streamsize>(in.gcount(), 0)));
        for (auto at = text.find(Name); at != text.npos; at = text.find(Name, at + 1))
            if (!std::string_view(text).substr(0, at).ends_with(Reference))
                return true;
    }
    return false;
}

double rateOf(const AVStream& stream) {
    const AVRational rate =
        stream.avg_frame_rate.num > 0 ? stream.avg_frame_rate : stream.r_frame_rate;
    return rate.num > 0 && rate.den > 0 ? av_q2d(rate) : 0;
}

} // namespace

VideoSize shownSize(VideoSize stored, PixelAspect aspect, int rotation) {
    VideoSize size = stored;
    if (aspect.num > 0 && aspect.den > 0)
        size.width = static_cast<int>(std::clamp<std::int64_t>(
            av_rescale(stored.width, aspect.num, aspect.den), 1, std::int64_t{stored.width} * 4));
    if (rotation % (2 * QuarterTurn) != 0)
        std::swap(size.width, size.height);
    return size;
}

VideoFacts videoFacts(const Demuxer& demuxer, const std::filesystem::path& path) {
    const AVStream& stream = demuxer.stream();
    const AVCodecParameters& coding = *stream.codecpar;
    VideoFacts facts;
    facts.path = path;
    facts.format = avcodec_get_name(coding.codec_id);
    facts.timeBase = {stream.time_base.num, stream.time_base.den};
    facts.storedSize = {coding.width, coding.height};
    facts.rotation = rotationOf(stream) % FullTurn;
    const AVRational aspect = stream.sample_aspect_ratio.num > 0 ? stream.sample_aspect_ratio
                                                                 : coding.sample_aspect_ratio;
    facts.pixelAspect = {aspect.num, aspect.den};
    facts.shownSize = shownSize(facts.storedSize, facts.pixelAspect, facts.rotation);
    facts.nominalRate = rateOf(stream);
    facts.captureRate = captureRateIn(stream.metadata);
    if (!facts.captureRate)
        facts.captureRate = captureRateIn(demuxer.container().metadata);
    facts.bitDepth = bitDepthOf(stream);
    facts.isInterlaced = isInterlaced(coding.field_order);
    return facts;
}

bool hasStoredIndex(const Demuxer& demuxer, const std::filesystem::path& path) {
    const AVInputFormat& format = *demuxer.container().iformat;
    if ((format.flags & (AVFMT_TS_DISCONT | AVFMT_GENERIC_INDEX)) != 0)
        return false;
    if (std::string_view(format.name).starts_with("matroska"))
        return hasCues(path);
    return demuxer.storedEntries() > 0;
}

} // namespace kavela
