#include "desktop/taking/notes/clip_player.h"

#include "desktop/film/film_deck.h"

#include <algorithm>

namespace kavela::desktop {

namespace {

/// Seconds from a clip to the frames just before and behind it, which may still be shown.
constexpr double FrameSlack = 0.5;

} // namespace

std::vector<FilmPart> joinedClips(std::vector<FilmPart> clips) {
    std::ranges::sort(clips, {}, &FilmPart::from);
    std::vector<FilmPart> joined;
    for (const FilmPart& clip : clips) {
        if (!joined.empty() && clip.from <= joined.back().to)
            joined.back().to = std::max(joined.back().to, clip.to);
        else
            joined.push_back(clip);
    }
    return joined;
}

ClipPlayer::ClipPlayer(FilmDeck& deck, QObject* parent) : QObject(parent), m_deck(deck) {
    connect(&m_deck, &FilmDeck::frameShown, this, &ClipPlayer::follow);
    connect(&m_deck, &FilmDeck::stateChanged, this, &ClipPlayer::follow);
}

void ClipPlayer::play(std::vector<FilmPart> clips) {
    m_clips = std::move(clips);
    if (!m_clips.empty() && m_deck.cameras() > 0)
        begin(0);
    else
        stop();
}

void ClipPlayer::stop() {
    m_clips.clear();
}

std::optional<std::size_t> ClipPlayer::current() const {
    return m_clips.empty() ? std::nullopt : std::optional(m_current);
}

void ClipPlayer::begin(std::size_t clip) {
    m_current = clip;
    emit began(clip, m_clips.size());
    const FilmPart begun = m_clips[clip]; // seeking tells where the film stands, before it is there
    const std::vector<FilmPart> clips = std::exchange(m_clips, {});
    m_deck.seek(begun.from);
    m_deck.play(m_deck.rate() > 0 ? m_deck.rate() : 1);
    m_clips = clips;
}

void ClipPlayer::follow() {
    if (m_clips.empty())
        return;
    const FilmPart& clip = m_clips[m_current];
    const double now = m_deck.position();
    const bool hasLeft = now < clip.from - FrameSlack || now > clip.to + FrameSlack;
    const bool isAtEnd = now >= clip.to || (now >= m_deck.end() && !m_deck.isPlaying());
    if (hasLeft) {
        stop();
    } else if (!isAtEnd) {
        return;
    } else if (m_current + 1 < m_clips.size()) {
        begin(m_current + 1);
    } else {
        stop();
        m_deck.pause();
    }
}

} // namespace kavela::desktop
