#include "compose/composer.h"

#include "common/number_text.h"
#include "common/text.h"
#include "compose/film_feed.h"
#include "compose/frame_mixer.h"
#include "compose/sound_track.h"
#include "video/picture.h"
#include "video/video_error.h"
#include "video/writing/unfinished_file.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace kavela {

namespace {

constexpr std::size_t FeedCacheBytes = std::size_t{96} << 20;
constexpr VideoSize SmallFilmBox{1280, 720};
constexpr int UsualQuality = 21;
constexpr int SmallQuality = 26;

VideoSize sizeOf(const Composition& composition) {
    VideoSize size = composition.layout.size;
    if (composition.isSmall &&
        (size.width > SmallFilmBox.width || size.height > SmallFilmBox.height))
        size = fitInto(size, SmallFilmBox);
    return {std::max(size.width / 2 * 2, 2), std::max(size.height / 2 * 2, 2)};
}

/// Stands where the beginning of the word is needed.
std::string filmNumber(std::size_t film, const Composition& composition) {
    return composition.films[film].path.filename().string();
}

/// `seconds` on the film, in hundredths.
std::string outsideText(const std::string& film, std::size_t mark, const std::string& seconds) {
    return mark == 0 ? say("{}: the start lies outside the film, at {} s.", film, seconds)
                     : say("{}: split {} lies outside the film, at {} s.", film, mark, seconds);
}

/// One film being made.
class Composing {
public:
    Composing(const Composition& composition, std::vector<OpenedFilm> films,
              CaptionPainter* painter, const std::stop_token& stop)
        : m_composition(composition),
          m_films(std::move(films)),
          m_stop(stop),
          m_mixer(composition, m_films, sizeOf(composition), painter) {
        chooseRate();
        noteFilms();
        startFeeds();
        openSound();
    }

    [[nodiscard]] std::int64_t frames() const { return m_frames; }
    [[nodiscard]] FrameRate rate() const { return m_rate; }
    [[nodiscard]] const std::vector<std::string>& notes() const { return m_notes; }

    void writeTo(FilmSink& sink, const std::function<void(const ComposeProgress&)>& onProgress) {
        FilmWriter writer(format(), sink);
        std::vector<PlanesPtr> pictures(m_feeds.size());
        for (std::int64_t i = 0; i < m_frames; ++i) {
            for (std::size_t film = 0; film < m_feeds.size(); ++film)
                pictures[film] = m_feeds[film] ? m_feeds[film]->next(m_stop) : nullptr;
            if (m_stop.stop_requested())
                throw FilmStopped();
            m_mixer.mix(commonOf(i), pictures, writer.picture());
            writer.add(i);
            if (m_sound)
                writer.addSound(m_sound->upTo((i + 1) * SoundRate * m_rate.den / m_rate.num));
            if (onProgress)
                onProgress({1, i + 1, m_frames});
        }
        writer.finish();
        noteFaults();
    }

private:
    [[nodiscard]] double commonOf(std::int64_t frame) const {
        return m_mixer.commonAt(static_cast<double>(frame) * m_rate.den / m_rate.num);
    }

    void chooseRate() {
        std::vector<double> rates;
        for (const OpenedFilm& film : m_films)
            if (film.index)
                rates.push_back(film.index->facts().nominalRate);
        m_rate = composedRate(rates);
        if (!isWithinLevel(m_mixer.size(), m_rate))
            throw DecodeError(
                {"output", say("so large a picture would not play everywhere at {} frames a second",
                               saidNumber(plainText(m_rate.perSecond())))});
        constexpr double Slack = 1e-6; // frames
        m_frames = std::max<std::int64_t>(
            std::llround(std::ceil(m_mixer.length() * m_rate.perSecond() - Slack)), 1);
    }

    [[nodiscard]] FilmFormat format() const {
        FilmFormat format;
        format.size = m_mixer.size();
        format.rate = m_rate;
        format.tick = {m_rate.den, m_rate.num};
        format.framesPerGroup = std::max(static_cast<int>(std::lround(m_rate.perSecond())), 1);
        format.quality = m_composition.isSmall ? SmallQuality : UsualQuality;
        format.hasSound = m_sound != nullptr;
        return format;
    }

    void startFeeds() {
        for (std::size_t film = 0; film < m_films.size(); ++film) {
            m_feeds.push_back(nullptr);
            if (!m_films[film].index)
                continue;
            auto pictures = std::make_unique<FilmPictures>(
                m_films[film].index, std::make_shared<FrameCache>(FeedCacheBytes / m_films.size()),
                m_mixer.pictureSize(film));
            m_feeds.back() = std::make_unique<FilmFeed>(
                std::move(pictures), m_frames, [this, film](std::int64_t frame) {
                    return m_mixer.frameOf(film, commonOf(frame));
                });
        }
    }

    /// Slow motion has no sound, nor has a film that is missing or silent.
    void openSound() {
        if (!m_composition.sound || m_composition.speed != 1 ||
            *m_composition.sound >= m_films.size() || !m_films[*m_composition.sound].index)
            return;
        const std::size_t film = *m_composition.sound;
        try {
            m_sound = std::make_unique<SoundTrack>(m_composition.films[film].path,
                                                   m_mixer.map().pieces(film), m_mixer.range().from,
                                                   m_stop);
        } catch (const VideoError& error) {
            m_notes.push_back(filmNumber(film, m_composition) + ": " + error.reason() + '.');
        }
    }

    void noteFilms() {
        for (std::size_t film = 0; film < m_films.size(); ++film) {
            const std::string name = filmNumber(film, m_composition);
            if (!m_films[film].index) {
                m_notes.push_back(say("{} is not shown: {}.", name, m_films[film].fault));
                continue;
            }
            noteMarks(film, name);
        }
    }

    void noteMarks(std::size_t film, const std::string& name) {
        const VideoIndex& index = *m_films[film].index;
        const FrameNumber last = index.frameCount() - 1;
        const double end = index.secondsOf(last) + 2 * index.uncertainty(last);
        const FilmMarks& marks = m_composition.films[film].run.marks;
        for (std::size_t mark = 0; mark < marks.size(); ++mark)
            if (marks[mark] && (*marks[mark] < index.secondsOf(0) || *marks[mark] > end))
                m_notes.push_back(outsideText(name, mark, hundredthsText(*marks[mark])));
        if (index.facts().isCutOff)
            m_notes.push_back(
                say("{} is cut off or damaged; it is shown as far as it goes.", name));
    }

    void noteFaults() {
        for (std::size_t film = 0; film < m_feeds.size(); ++film)
            if (const auto* const feed = m_feeds[film].get(); feed != nullptr && feed->fault())
                m_notes.push_back(
                    say("{}: at {} s a frame cannot be shown ({}); the last good one stays.",
                        filmNumber(film, m_composition),
                        hundredthsText(feed->index().secondsOf(feed->fault()->frame)),
                        feed->fault()->reason));
    }

    const Composition& m_composition;
    std::vector<OpenedFilm> m_films;
    std::stop_token m_stop;
    FrameMixer m_mixer;
    FrameRate m_rate;
    std::int64_t m_frames = 0;
    std::unique_ptr<SoundTrack> m_sound;
    std::vector<std::string> m_notes;
    std::vector<std::unique_ptr<FilmFeed>> m_feeds; ///< null for a film that is not there
};

} // namespace

std::optional<ComposedFilmFile>
compose(const Composition& composition, CaptionPainter* painter,
        const std::filesystem::path& target, const std::stop_token& stop,
        const std::function<void(const ComposeProgress&)>& onProgress) {
    std::vector<OpenedFilm> films = openFilms(composition, stop, [&](double fraction) {
        if (onProgress)
            onProgress({fraction, 0, 0});
    });
    if (stop.stop_requested())
        return std::nullopt;
    try {
        Composing composing(composition, std::move(films), painter, stop);
        UnfinishedFile file(std::filesystem::path(target).replace_extension(".mp4"), stop);
        composing.writeTo(file, onProgress);
        return ComposedFilmFile{file.finish(), composing.frames(), composing.rate(),
                                composing.notes()};
    } catch (const FilmStopped&) {
        return std::nullopt;
    }
}

} // namespace kavela
