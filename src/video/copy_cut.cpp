#include "video/copy_cut.h"

#include "common/error.h"
#include "common/posix_file.h"
#include "common/safe_file.h"
#include "video/av_handles.h"
#include "video/index.h"
#include "video/video_error.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <memory>
#include <optional>
#include <string>
#include <vector>

extern "C" {
#include <libavutil/mathematics.h>
#include <libavutil/parseutils.h>
}

namespace kavela {

namespace fs = std::filesystem;

namespace {

constexpr std::array HidingEndings{".mp4", ".mov", ".m4v"};

/// Reading the index is so much of the work that is told.
constexpr double IndexShare = 0.3;

/// A writer that closes its file.
struct CutWriterDeleter {
    void operator()(AVFormatContext* context) const {
        avio_closep(&context->pb);
        avformat_free_context(context);
    }
};
using CutWriter = std::unique_ptr<AVFormatContext, CutWriterDeleter>;

/// The file that becomes the target; gone unless it was told to stay.
class UnfinishedCut {
public:
    explicit UnfinishedCut(const fs::path& target)
        : m_target(target),
          m_path(target.parent_path() /
                 ('.' + target.stem().string() + '.' + std::to_string(::getpid()) + ".part" +
                  target.extension().string())) {
        if (isTaken(target))
            throw FileError(target, "there is a file of this name already");
    }
    UnfinishedCut(const UnfinishedCut&) = delete;
    UnfinishedCut& operator=(const UnfinishedCut&) = delete;
    ~UnfinishedCut() {
        std::error_code ignored;
        fs::remove(m_path, ignored);
    }

    [[nodiscard]] const fs::path& path() const { return m_path; }

    void finish() {
        PosixFile file(m_path, O_RDONLY);
        if (::fsync(file.descriptor()) != 0)
            throw systemFileError(m_target);
        file.close();
        if (!keepUnderSecondName(m_path, m_target))
            throw FileError(m_target, "there is a file of this name already");
    }

private:
    fs::path m_target;
    fs::path m_path;
};

/// Which packets of a film make a stretch, by their stamps in ticks of the video.
struct CutPlan {
    PacketRecord key;        ///< the first one
    std::int64_t first = 0;  ///< the first frame that is seen
    std::int64_t last = 0;   ///< the last one
    std::int64_t end = 0;    ///< when that one ends
    PacketRecord lastPacket; ///< in the order of the file
    std::size_t packets = 0; ///< from the first to the last one
};

CutPlan planOf(const VideoIndex& index, const FilmStretch& stretch) {
    const fs::path& path = index.facts().path;
    if (index.facts().hasEstimatedStamps)
        throw VideoError(path, "its frames have no times of their own; it can only be cut exactly");
    const auto first = index.frameAt(stretch.first);
    const auto last = index.frameAt(stretch.last);
    if (!first || !last || *last < *first)
        throw VideoError(path, "the end of the cut lies before its beginning");
    CutPlan plan;
    plan.first = index.frame(*first).stamp;
    plan.last = index.frame(*last).stamp;
    plan.end = plan.last + std::max<std::int64_t>(index.frame(*last).duration, 1);
    const auto key = index.packets().keyFor(plan.first, 0);
    if (!key)
        throw VideoError(path, "no key frame stands before the cut; it can only be cut exactly");
    PacketNumber lastPacket = *key;
    for (FrameNumber number = *first; number <= *last; ++number)
        lastPacket = std::max(lastPacket, index.frame(number).packet);
    plan.key = index.packets().at(*key);
    plan.lastPacket = index.packets().at(lastPacket);
    plan.packets = lastPacket - *key + 1;
    return plan;
}

AvOwner<AVFormatContext> openForCut(const fs::path& film) {
    AVFormatContext* context = nullptr;
    AVDictionary* options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    const int code =
        avformat_open_input(&context, ("file:" + film.string()).c_str(), nullptr, &options);
    av_dict_free(&options);
    if (code < 0)
        throw VideoError(film, avErrorText(code));
    AvOwner<AVFormatContext> reader(context);
    if (const int found = avformat_find_stream_info(reader.get(), nullptr); found < 0)
        throw VideoError(film, avErrorText(found));
    return reader;
}

/// Copies a stretch from one container into another.
class StretchCopy {
public:
    StretchCopy(const fs::path& film, const CutPlan& plan, const fs::path& target,
                const fs::path& written, std::stop_token stop)
        : m_film(film),
          m_plan(plan),
          m_target(target),
          m_stop(std::move(stop)),
          m_reader(openForCut(film)),
          m_packet(av_packet_alloc()) {
        if (!m_packet)
            throw std::bad_alloc();
        chooseStreams();
        openWriter(written);
    }

    /// False when it was stopped.
    [[nodiscard]] bool run(const std::function<void(double fraction)>& onProgress) {
        goToKey();
        std::size_t packets = 0;
        while (!m_isDone && !m_stop.stop_requested()) {
            if (!readNext())
                break;
            take();
            if (onProgress && ++packets % 64 == 0)
                onProgress(std::min(1.0, static_cast<double>(packets) /
                                             static_cast<double>(2 * m_plan.packets)));
        }
        if (m_stop.stop_requested())
            return false;
        if (!m_hasLast)
            throw VideoError(m_film, "the film ends before the cut does");
        check(av_write_trailer(m_writer.get()));
        check(m_writer->pb->error);
        check(avio_closep(&m_writer->pb));
        return true;
    }

private:
    void check(int code) const {
        if (code < 0)
            throw FileError(m_target, avErrorText(code));
    }

    [[nodiscard]] const AVStream& video() const {
        return *m_reader->streams[static_cast<unsigned>(m_video)];
    }

    void chooseStreams() {
        m_video = av_find_best_stream(m_reader.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
        if (m_video < 0)
            throw VideoError(m_film, "there is no video in this file");
        m_sound = av_find_best_stream(m_reader.get(), AVMEDIA_TYPE_AUDIO, -1, m_video, nullptr, 0);
        for (unsigned i = 0; i < m_reader->nb_streams; ++i)
            if (const int stream = static_cast<int>(i); stream != m_video && stream != m_sound)
                m_reader->streams[i]->discard = AVDISCARD_ALL;
    }

    void openWriter(const fs::path& written) {
        AVFormatContext* context = nullptr;
        const bool isMov = m_target.extension() == ".mov" || m_target.extension() == ".MOV";
        const std::string address = "file:" + written.string();
        check(avformat_alloc_output_context2(&context, nullptr, isMov ? "mov" : "mp4",
                                             address.c_str()));
        m_writer.reset(context);
        addStream(video());
        if (m_sound >= 0)
            addStream(*m_reader->streams[static_cast<unsigned>(m_sound)]);
        av_dict_copy(&context->metadata, m_reader->metadata, 0);
        moveRecordingDate();
        check(avio_open(&context->pb, address.c_str(), AVIO_FLAG_WRITE));
        AVDictionary* options = nullptr;
        av_dict_set(&options, "movflags", "+faststart", 0);
        const int code = avformat_write_header(context, &options);
        av_dict_free(&options);
        if (code < 0)
            throw VideoError(m_film, "its kind of video cannot be copied into such a file (" +
                                         avErrorText(code) + "); cut it exactly");
    }

    void addStream(const AVStream& from) {
        AVStream* const to = avformat_new_stream(m_writer.get(), nullptr);
        if (to == nullptr || avcodec_parameters_copy(to->codecpar, from.codecpar) < 0)
            throw std::bad_alloc();
        // Each container has names of its own for codings; this one is known everywhere.
        to->codecpar->codec_tag =
            from.codecpar->codec_id == AV_CODEC_ID_HEVC ? MKTAG('h', 'v', 'c', '1') : 0;
        to->time_base = from.time_base;
        to->avg_frame_rate = from.avg_frame_rate;
        to->sample_aspect_ratio = from.sample_aspect_ratio;
        to->disposition = from.disposition;
        av_dict_copy(&to->metadata, from.metadata, 0);
        for (int i = 0; i < from.nb_side_data; ++i) { // such as how it is turned
            const AVPacketSideData& data = from.side_data[i];
            if (std::uint8_t* const copy = av_stream_new_side_data(to, data.type, data.size))
                std::memcpy(copy, data.data, data.size);
        }
    }

    /// The cut began as much later as it leaves out: films are laid beside each other by that date.
    void moveRecordingDate() {
        const AVDictionaryEntry* const entry =
            av_dict_get(m_reader->metadata, "creation_time", nullptr, 0);
        std::int64_t began = 0; // microseconds
        if (!entry || av_parse_time(&began, entry->value, 0) < 0 || began <= 0)
            return;
        const std::int64_t start = video().start_time == AV_NOPTS_VALUE ? 0 : video().start_time;
        began += av_rescale_q(m_plan.first - start, video().time_base, AV_TIME_BASE_Q);
        writeRecordingDate(began);
    }

    void writeRecordingDate(std::int64_t began) {
        std::array<char, 40> text = {};
        const std::time_t seconds = began / AV_TIME_BASE;
        std::tm utc = {};
        ::gmtime_r(&seconds, &utc);
        std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &utc);
        std::array<char, 60> whole = {};
        std::snprintf(whole.data(), whole.size(), "%s.%06dZ", text.data(),
                      static_cast<int>(began % AV_TIME_BASE));
        av_dict_set(&m_writer->metadata, "creation_time", whole.data(), 0);
    }

    [[nodiscard]] bool readNext() {
        av_packet_unref(m_packet.get());
        const int code = av_read_frame(m_reader.get(), m_packet.get());
        if (code >= 0 || code == AVERROR_EOF)
            return code >= 0;
        throw VideoError(m_film, avErrorText(code));
    }

    [[nodiscard]] bool seekKey() {
        const bool hasOwn = m_plan.key.decodingStamp != PacketRecord::NoStamp;
        return av_seek_frame(m_reader.get(), m_video,
                             hasOwn ? m_plan.key.decodingStamp : m_plan.key.stamp,
                             AVSEEK_FLAG_BACKWARD) >= 0;
    }

    /// Where the container does not find the key frame, the film is read from its beginning.
    void goToKey() {
        if (!seekKey() || !isKeyAhead() || !seekKey())
            m_reader = reopened();
    }

    /// Whether the next video packet is not behind the key frame.
    [[nodiscard]] bool isKeyAhead() {
        while (readNext())
            if (m_packet->stream_index == m_video)
                return m_packet->pts != AV_NOPTS_VALUE && m_packet->pts <= m_plan.key.stamp;
        return false;
    }

    [[nodiscard]] AvOwner<AVFormatContext> reopened() const {
        AvOwner<AVFormatContext> fresh = openForCut(m_film);
        for (unsigned i = 0; i < fresh->nb_streams; ++i)
            fresh->streams[i]->discard = m_reader->streams[i]->discard;
        return fresh;
    }

    void take() {
        if (m_packet->stream_index == m_video)
            takeVideo();
        else if (m_packet->stream_index == m_sound)
            takeSound();
    }

    void takeVideo() {
        const bool isKey = m_packet->pts == m_plan.key.stamp;
        m_hasKey = m_hasKey || isKey;
        if (!m_hasKey || m_hasLast)
            return leaveAtEnd();
        m_hasLast = m_packet->pts == m_plan.lastPacket.stamp;
        // Shown before the key frame: they build on what is left out.
        if (m_packet->pts < m_plan.key.stamp)
            return;
        write(0, video().time_base);
        if (m_hasLast && m_sound < 0)
            m_isDone = true;
    }

    /// Sound of the last frames may stand behind them in the file, but not far.
    void leaveAtEnd() {
        constexpr std::int64_t Farthest = 3; // seconds
        const auto behind = av_rescale_q(Farthest, {1, 1}, video().time_base);
        if (m_hasLast && m_packet->dts != AV_NOPTS_VALUE && m_packet->dts > m_plan.end + behind)
            m_isDone = true;
    }

    void takeSound() {
        const AVStream& sound = *m_reader->streams[static_cast<unsigned>(m_sound)];
        if (m_packet->pts == AV_NOPTS_VALUE)
            return;
        const std::int64_t end = m_packet->pts + std::max<std::int64_t>(m_packet->duration, 1);
        if (av_compare_ts(end, sound.time_base, m_plan.first, video().time_base) <= 0)
            return;
        if (av_compare_ts(m_packet->pts, sound.time_base, m_plan.end, video().time_base) >= 0) {
            m_isDone = m_isDone || m_hasLast;
            return;
        }
        write(1, sound.time_base);
    }

    /// The first frame that is seen becomes the moment 0; what is before it has stamps below that,
    /// which the writer hides by an edit list.
    void write(int stream, AVRational base) {
        const std::int64_t zero = av_rescale_q(m_plan.first, video().time_base, base);
        if (m_packet->pts != AV_NOPTS_VALUE)
            m_packet->pts -= zero;
        if (m_packet->dts != AV_NOPTS_VALUE)
            m_packet->dts -= zero;
        m_packet->flags &= ~AV_PKT_FLAG_DISCARD;
        m_packet->stream_index = stream;
        m_packet->pos = -1;
        av_packet_rescale_ts(m_packet.get(), base,
                             m_writer->streams[static_cast<unsigned>(stream)]->time_base);
        check(av_interleaved_write_frame(m_writer.get(), m_packet.get()));
    }

    fs::path m_film;
    CutPlan m_plan;
    fs::path m_target;
    std::stop_token m_stop;
    AvOwner<AVFormatContext> m_reader;
    AvOwner<AVPacket> m_packet;
    CutWriter m_writer;
    int m_video = -1;
    int m_sound = -1;
    bool m_hasKey = false;
    bool m_hasLast = false;
    bool m_isDone = false;
};

/// Null once it is stopped, also where that ends in a fault of reading.
std::shared_ptr<const VideoIndex>
indexForCut(const fs::path& film, const std::stop_token& stop,
            const std::function<void(double fraction)>& onProgress) {
    try {
        return readVideoIndex(film, stop, [&](const IndexProgress& progress) {
            if (onProgress)
                onProgress(progress.fraction * IndexShare);
        });
    } catch (const VideoError&) {
        if (stop.stop_requested())
            return nullptr;
        throw;
    }
}

} // namespace

bool canCopyInto(const fs::path& target) {
    std::string ending = target.extension().string();
    for (char& c : ending)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return std::ranges::find(HidingEndings, ending) != HidingEndings.end();
}

bool copyStretch(const fs::path& film, const FilmStretch& stretch, const fs::path& target,
                 const std::stop_token& stop,
                 const std::function<void(double fraction)>& onProgress) {
    if (!canCopyInto(target))
        throw FileError(target, "only .mp4, .mov and .m4v can hide what stands before a cut");
    UnfinishedCut unfinished(target);
    const auto index = indexForCut(film, stop, onProgress);
    if (!index)
        return false;
    StretchCopy copy(film, planOf(*index, stretch), target, unfinished.path(), stop);
    const bool isWhole = copy.run([&](double fraction) {
        if (onProgress)
            onProgress(IndexShare + (1 - IndexShare) * fraction);
    });
    if (isWhole)
        unfinished.finish();
    return isWhole;
}

} // namespace kavela
