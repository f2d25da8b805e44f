#include "video/writing/film_cut.h"

#include "common/text.h"
#include "video/frame_source.h"
#include "video/sound_source.h"
#include "video/video_error.h"
#include "video/writing/film_writer.h"
#include "video/writing/packet_copy.h"
#include "video/writing/plane_scaler.h"

#include <cmath>
#include <memory>
#include <stdexcept>

namespace kavela {

namespace {

constexpr std::size_t CutCacheBytes = std::size_t{64} << 20;
constexpr int ExactQuality = 18;

FilmFormat formatOf(const VideoFacts& facts, bool hasSound) {
    FilmFormat format;
    format.size = {facts.storedSize.width / 2 * 2, facts.storedSize.height / 2 * 2};
    const double rate = facts.nominalRate > 0 ? facts.nominalRate : 50;
    format.rate = {static_cast<int>(std::lround(rate * 1000)), 1000};
    format.tick = facts.timeBase;
    format.timescale = facts.timeBase.num == 1 ? facts.timeBase.den : 0;
    format.framesPerGroup = std::max(static_cast<int>(std::lround(rate)), 1);
    format.quality = ExactQuality;
    format.hasSound = hasSound;
    format.rotation = facts.rotation;
    format.pixelAspect = facts.pixelAspect;
    return format;
}

/// The sound of a piece, as far as the film has any.
class CutSound {
public:
    CutSound(const VideoIndex& film, double from, const std::stop_token& stop) {
        try {
            m_source = std::make_unique<SoundSource>(film.facts().path, stop);
            m_source->seek(m_from = samplePosition(from));
        } catch (const VideoError&) {
            m_source.reset();
        }
    }

    [[nodiscard]] bool isThere() const { return m_source != nullptr; }

    /// What is heard up to a moment of the film.
    std::span<const std::int16_t> upTo(double seconds) {
        const SamplePosition end = samplePosition(seconds);
        if (!m_source || end <= m_source->position())
            return {};
        m_samples.assign(static_cast<std::size_t>(end - m_source->position()) * SoundChannels, 0);
        m_samples.resize(m_source->read(m_samples));
        return m_samples;
    }

private:
    std::unique_ptr<SoundSource> m_source;
    SamplePosition m_from = 0;
    std::vector<std::int16_t> m_samples;
};

double endOf(const VideoIndex& film, FrameNumber number) {
    const IndexedFrame& frame = film.frame(number);
    return stampOf(frame.stamp + frame.duration, film.facts().timeBase).seconds();
}

void encodePiece(std::shared_ptr<const VideoIndex> film, const FilmCut& cut,
                 const std::string& container, FilmSink& sink, const std::stop_token& stop,
                 const std::function<void(double)>& onProgress) {
    CutSound sound(*film, film->secondsOf(cut.first), stop);
    FilmFormat format = formatOf(film->facts(), sound.isThere());
    format.container = container;
    FrameSource source(film, std::make_shared<FrameCache>(CutCacheBytes));
    const auto isStopped = [&] { return stop.stop_requested(); };
    PlaneScaler scaler;
    FilmWriter writer(format, sink);
    for (FrameNumber i = cut.first; i <= cut.last; ++i) {
        const FrameSource::Result result = source.frame(i, isStopped);
        if (isStopped())
            throw FilmStopped();
        // In place of a damaged frame the one before goes on.
        if (result.outcome == FrameSource::Outcome::Found &&
            !scaler.scale(*result.frame.samples, writer.picture()))
            throw VideoError(film->facts().path, say("its pictures are in a format of no use"));
        writer.add(film->frame(i).stamp - film->frame(cut.first).stamp, film->frame(i).duration);
        writer.addSound(sound.upTo(endOf(*film, i)));
        if (onProgress)
            onProgress(double(i - cut.first + 1) / double(cut.last - cut.first + 1));
    }
    writer.finish();
}

} // namespace

std::string extensionOfPieces(const std::filesystem::path& film) {
    std::string extension = film.extension().string();
    for (char& letter : extension)
        letter = 'A' <= letter && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    return extension == ".mp4" || extension == ".m4v" ? "mp4" : "mov";
}

std::optional<std::filesystem::path>
cutFilm(const std::shared_ptr<const VideoIndex>& film, const FilmCut& cut,
        const std::stop_token& stop, const std::function<void(double fraction)>& onProgress) {
    if (cut.first < 0 || cut.last < cut.first || cut.last >= film->frameCount())
        throw std::out_of_range("the piece lies outside the film");
    const std::string container = extensionOfPieces(film->facts().path);
    std::filesystem::path target = cut.target;
    target.replace_extension('.' + container);
    try {
        UnfinishedFile file(target, stop);
        if (cut.kind == CutKind::Copy)
            copyPackets(*film, cut, container, file, stop, onProgress);
        else
            encodePiece(film, cut, container, file, stop, onProgress);
        return file.finish();
    } catch (const FilmStopped&) {
        return std::nullopt;
    }
}

} // namespace kavela
