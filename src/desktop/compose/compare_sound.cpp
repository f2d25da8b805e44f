#include "desktop/compose/compare_sound.h"

#include "compose/sound_track.h"
#include "desktop/compose/compare_player.h"
#include "desktop/film/film_sound.h"

#include <chrono>
#include <span>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr int FollowMilliseconds = 40; ///< a film that waits is silent within two frames

double courseOfSound(double filmSeconds) {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return filmSeconds - std::chrono::duration<double>(now).count();
}

} // namespace

CompareSound::CompareSound(ComparePlayer& player, QObject* parent, MakeOutput makeOutput)
    : QObject(parent), m_player(player), m_makeOutput(std::move(makeOutput)) {
    m_check.setInterval(FollowMilliseconds);
    connect(&m_check, &QTimer::timeout, this, &CompareSound::follow);
    connect(&player, &ComparePlayer::playingChanged, this, &CompareSound::follow);
    connect(&player, &ComparePlayer::preparedChanged, this, &CompareSound::follow);
    connect(&player, &ComparePlayer::sought, this, &CompareSound::follow);
}

CompareSound::~CompareSound() {
    m_output.reset(); // takes from the feed
}

/// Seconds of the film that is heard now; nothing where it is silent now.
std::optional<double> CompareSound::dueSeconds() const {
    const auto& prepared = m_player.prepared();
    if (!m_player.isPlaying() || !prepared || !prepared->heard)
        return std::nullopt;
    const double common = prepared->shown.from + m_player.clock() * prepared->speed;
    return heardSeconds(prepared->heard->pieces, common);
}

/// While it plays it is looked at again and again: the film may begin to wait.
void CompareSound::follow() {
    const bool canSound = m_player.isPlaying() && m_player.prepared() && m_player.prepared()->heard;
    canSound ? m_check.start() : m_check.stop();
    const std::optional<double> due = dueSeconds();
    const bool isOther = due && m_player.prepared()->heard->film != m_film;
    if (isOther) {
        stop();
        m_film = m_player.prepared()->heard->film;
    }
    const SoundStep step =
        nextSoundStep({.hasFilm = due.has_value(),
                       .isPlaying = true,
                       .isSounding = m_isSounding,
                       .jump = due && m_isSounding ? courseOfSound(*due) - m_course : 0});
    if (step == SoundStep::Stay && due)
        stayInStep(*due);
    takeSoundStep(
        step, [&] { start(*due); }, [this] { stop(); });
}

void CompareSound::start(double seconds) {
    if (!m_feed)
        m_feed = std::make_unique<SoundFeed>([this](int start) {
            QMetaObject::invokeMethod(
                this, [this, start] { begin(start); }, Qt::QueuedConnection);
        });
    m_isSounding = true;
    m_course = courseOfSound(seconds);
    m_start = m_feed->start(m_film, samplePosition(seconds));
}

/// The sound lies ready: it is let out from where the clock stands by now.
void CompareSound::begin(int start) {
    const std::optional<double> due = dueSeconds();
    if (!m_isSounding || start != m_start || !due)
        return;
    if (!m_output)
        m_output = m_makeOutput();
    m_feed->moveTo(samplePosition(*due));
    m_isOut = m_output->start([this](std::span<std::int16_t> samples) { m_feed->take(samples); });
    if (!m_isOut)
        m_feed->stop();
}

void CompareSound::stop() {
    if (m_output)
        m_output->stop();
    if (m_feed)
        m_feed->stop();
    m_isSounding = false;
    m_isOut = false;
}

/// Clocks of loudspeakers run a little faster or slower, and a busy computer interrupts them.
void CompareSound::stayInStep(double seconds) {
    if (!m_isOut)
        return;
    const double waiting = m_output->waiting();
    const double heard = static_cast<double>(m_feed->position()) / SoundRate - waiting;
    if (hasDrifted(heard, seconds))
        m_feed->moveTo(samplePosition(seconds + waiting));
}

} // namespace kavela::desktop
