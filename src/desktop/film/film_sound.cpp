#include "desktop/film/film_sound.h"

#include "desktop/film/film_deck.h"

#include <chrono>
#include <cmath>

namespace kavela::desktop {

namespace {

constexpr double MostDrift = 0.06;
constexpr double SmallestJump = 0.02; ///< the shortest way that anybody seeks on purpose
constexpr int CheckMilliseconds = 250;

} // namespace

SoundStep nextSoundStep(const SoundSituation& situation) {
    const bool isDue =
        situation.hasFilm && situation.isPlaying && !situation.isMuted && situation.rate == 1;
    if (!isDue)
        return situation.isSounding ? SoundStep::Stop : SoundStep::Stay;
    if (!situation.isSounding)
        return SoundStep::Start;
    return std::abs(situation.jump) > SmallestJump ? SoundStep::Restart : SoundStep::Stay;
}

void takeSoundStep(SoundStep step, const std::function<void()>& start,
                   const std::function<void()>& stop) {
    if (step == SoundStep::Stop || step == SoundStep::Restart)
        stop();
    if (step == SoundStep::Start || step == SoundStep::Restart)
        start();
}

bool hasDrifted(double heard, double clock) {
    return std::abs(heard - clock) > MostDrift;
}

FilmSound::FilmSound(FilmDeck& deck, QObject* parent, MakeOutput makeOutput)
    : QObject(parent), m_deck(deck), m_makeOutput(std::move(makeOutput)) {
    m_check.setInterval(CheckMilliseconds);
    connect(&m_check, &QTimer::timeout, this, &FilmSound::stayInStep);
    connect(&deck, &FilmDeck::stateChanged, this, &FilmSound::follow);
}

FilmSound::~FilmSound() {
    m_output.reset(); // takes from the feed
}

void FilmSound::setMuted(bool isMuted) {
    m_isMuted = isMuted;
    follow();
}

QString FilmSound::film() const {
    return m_deck.films().value(0);
}

/// The film's time against the computer's: stays the same as long as nobody seeks at speed 1.
double FilmSound::course() const {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return m_deck.position() - std::chrono::duration<double>(now).count();
}

void FilmSound::follow() {
    const bool isOther = film() != m_film;
    if (isOther) {
        stop();
        if (m_feed)
            m_feed->close();
        m_film = film();
    }
    const SoundStep step = nextSoundStep({.hasFilm = !m_film.isEmpty(),
                                          .isPlaying = m_deck.isPlaying(),
                                          .rate = m_deck.rate(),
                                          .isMuted = m_isMuted,
                                          .isSounding = m_isSounding,
                                          .jump = m_isSounding ? course() - m_course : 0});
    takeSoundStep(
        step, [this] { start(); }, [this] { stop(); });
}

void FilmSound::start() {
    if (!m_feed)
        m_feed = std::make_unique<SoundFeed>([this](int start) {
            QMetaObject::invokeMethod(
                this, [this, start] { begin(start); }, Qt::QueuedConnection);
        });
    m_isSounding = true;
    m_course = course();
    m_start = m_feed->start(m_film.toStdString(), samplePosition(m_deck.position()));
}

/// The sound lies ready: it is let out from where the clock stands by now.
void FilmSound::begin(int start) {
    if (!m_isSounding || start != m_start)
        return;
    if (!m_output)
        m_output = m_makeOutput();
    m_feed->moveTo(samplePosition(m_deck.position()));
    if (m_output->start([this](std::span<std::int16_t> samples) { m_feed->take(samples); }))
        m_check.start();
    else
        m_feed->stop();
}

void FilmSound::stop() {
    m_check.stop();
    if (m_output)
        m_output->stop();
    if (m_feed)
        m_feed->stop();
    m_isSounding = false;
}

/// Clocks of loudspeakers run a little faster or slower, and a busy computer interrupts them.
void FilmSound::stayInStep() {
    const double waiting = m_output->waiting();
    const double heard = static_cast<double>(m_feed->position()) / SoundRate - waiting;
    const double clock = m_deck.position();
    if (hasDrifted(heard, clock))
        m_feed->moveTo(samplePosition(clock + waiting));
}

} // namespace kavela::desktop
