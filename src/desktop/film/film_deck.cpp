#include "desktop/film/film_deck.h"

#include "splittaking/annotations/film_marks.h"
#include "splittaking/marking.h"
#include "video/threaded_player.h"

namespace kavela::desktop {

namespace {

constexpr int RefreshMilliseconds = 8; // above the rate of any screen; nothing is drawn twice

/// A mark moves by this where its film is not open.
constexpr double SecondsWithoutFrames = 0.01;

/// A mark from elsewhere may lie before the film's first frame or behind its last one.
bool isWithin(const VideoIndex& film, const CMTime& stamp) {
    return film.frameCount() > 0 && orderOf(stamp, film.stampOf(0)) >= 0 &&
           orderOf(stamp, film.stampOf(film.frameCount() - 1)) <= 0;
}

} // namespace

FilmDeck::FilmDeck(std::shared_ptr<FrameCache> cache, QObject* parent)
    : QObject(parent), m_cache(std::move(cache)) {
    m_tick.setTimerType(Qt::PreciseTimer);
    m_tick.setInterval(RefreshMilliseconds);
    connect(&m_tick, &QTimer::timeout, this, [this] {
        m_group->tick(now());
        if (!m_group->clock().isPlaying()) {
            m_tick.stop();
            emit stateChanged();
        }
    });
}

FilmDeck::~FilmDeck() {
    blockSignals(true); // whoever shows the films may be gone in part
    open({});
}

CameraGroup::Moment FilmDeck::now() {
    return std::chrono::steady_clock::now();
}

void FilmDeck::open(const QStringList& films, const QStringList& beside) {
    ++m_generation;
    m_tick.stop();
    m_group.reset();
    m_players.clear(); // ends their threads
    m_slots.clear();
    m_shown.clear();
    m_films = films;
    m_beside = films.isEmpty() ? QStringList() : beside;
    for (const QString& film : m_films + m_beside)
        addCamera(film);
    if (!m_players.empty()) {
        m_group = std::make_unique<CameraGroup>(m_players, cameras());
        m_group->player(0).showFrame(0);
        m_group->seek(0.0, now());
    }
    emit stateChanged();
}

void FilmDeck::addCamera(const QString& film) {
    const std::size_t camera = m_slots.size();
    const int generation = m_generation;
    auto slot = std::make_shared<CameraSlot>([this, camera, generation] {
        QMetaObject::invokeMethod(
            this, [this, camera, generation] { takePicture(camera, generation); },
            Qt::QueuedConnection);
    });
    m_slots.push_back(slot);
    if (camera < m_boxes.size())
        slot->setBox(m_boxes[camera]);
    m_shown.emplace_back();
    m_players.push_back(
        std::make_shared<ThreadedPlayer>(film.toStdString(), m_cache, eventsOf(camera, slot)));
}

PlayerEvents FilmDeck::eventsOf(std::size_t camera, const std::shared_ptr<CameraSlot>& slot) {
    const int generation = m_generation;
    const auto post = [this, generation](auto act) {
        QMetaObject::invokeMethod(
            this,
            [this, generation, act] {
                if (generation == m_generation)
                    act();
            },
            Qt::QueuedConnection);
    };
    PlayerEvents events;
    // Events never come two at once, so that the picture maker is used by one of them at a time.
    events.onFrame = [slot](const ShownFrame& shown) { slot->put(shown); };
    events.onIndex = [this, camera, slot, post](const auto& index, double) {
        if (!index)
            return;
        slot->setFacts(index->facts());
        post([this, camera] {
            m_group->tick(now()); // the clock learns how long the films are
            emit indexChanged(camera);
        });
    };
    events.onError = [this, camera, post](const std::string& message) {
        post([this, camera, text = QString::fromStdString(message)] { emit failed(camera, text); });
    };
    return events;
}

void FilmDeck::takePicture(std::size_t camera, int generation) {
    if (generation != m_generation)
        return;
    auto picture = m_slots[camera]->take();
    if (!picture)
        return;
    m_shown[camera] = std::move(picture);
    emit frameShown(camera);
}

const FilmPicture* FilmDeck::shown(std::size_t camera) const {
    return camera < m_shown.size() && m_shown[camera] ? &*m_shown[camera] : nullptr;
}

std::vector<CMTime> FilmDeck::stamps() const {
    std::vector<CMTime> stamps;
    for (std::size_t camera = 0; camera < cameras(); ++camera) {
        const auto shown = stamp(camera);
        if (!shown)
            return {};
        stamps.push_back(*shown);
    }
    return stamps;
}

std::optional<CMTime> FilmDeck::stamp(std::size_t camera) const {
    const FilmPicture* const picture = shown(camera);
    return picture && !picture->isPreview ? std::optional(picture->frame.stamp) : std::nullopt;
}

std::shared_ptr<const VideoIndex> FilmDeck::index(std::size_t camera) const {
    return camera < m_players.size() ? m_players[camera]->index() : nullptr;
}

CMTime FilmDeck::nudged(std::size_t camera, const CMTime& stamp, int frames) const {
    const auto film = index(camera);
    const auto frame = film && isWithin(*film, stamp) ? film->frameAt(stamp) : std::nullopt;
    if (!frame)
        return later(stamp, frames * SecondsWithoutFrames);
    return film->stampOf(std::clamp<FrameNumber>(*frame + frames, 0, film->frameCount() - 1));
}

bool FilmDeck::isPlaying() const {
    return m_group && m_group->clock().isPlaying();
}

double FilmDeck::rate() const {
    return m_group ? m_group->clock().rate() : 1;
}

double FilmDeck::position() const {
    return m_group ? m_group->clock().position(now()) : 0;
}

double FilmDeck::start() const {
    return m_group ? m_group->clock().start() : 0;
}

double FilmDeck::end() const {
    return m_group ? m_group->clock().end() : 0;
}

void FilmDeck::setBox(std::size_t camera, QSize box) {
    if (camera >= m_boxes.size())
        m_boxes.resize(camera + 1);
    m_boxes[camera] = box;
    if (camera < m_slots.size())
        m_slots[camera]->setBox(box);
}

template <class Act>
void FilmDeck::withGroup(Act act) {
    if (!m_group)
        return;
    act(*m_group);
    if (m_group->clock().isPlaying())
        m_tick.start();
    else
        m_tick.stop();
    emit stateChanged();
}

void FilmDeck::togglePlaying() {
    withGroup([](CameraGroup& group) {
        if (group.clock().isPlaying())
            group.pause(now());
        else
            group.play(now());
    });
}

void FilmDeck::play(double rate) {
    withGroup([rate](CameraGroup& group) {
        group.setRate(rate, now());
        group.play(now());
    });
}

void FilmDeck::pause() {
    withGroup([](CameraGroup& group) { group.pause(now()); });
}

void FilmDeck::slower() {
    withGroup([](CameraGroup& group) { group.setRate(slowerRate(group.clock().rate()), now()); });
}

void FilmDeck::faster() {
    withGroup([](CameraGroup& group) { group.setRate(fasterRate(group.clock().rate()), now()); });
}

void FilmDeck::normalSpeed() {
    withGroup([](CameraGroup& group) { group.setRate(1, now()); });
}

void FilmDeck::shuttle(ShuttleKey key, bool isStopHeld) {
    withGroup([&](CameraGroup& group) {
        const ShuttleStep step = kavela::shuttle(group.clock(), key, isStopHeld);
        if (step.frames != 0) {
            group.step(step.frames, now());
            return;
        }
        group.setRate(step.rate, now());
        if (step.isPlaying)
            group.play(now());
        else
            group.pause(now());
    });
}

void FilmDeck::step(FrameNumber frames) {
    withGroup([frames](CameraGroup& group) { group.step(frames, now()); });
}

void FilmDeck::stepAlone(std::size_t camera, FrameNumber frames) {
    withGroup([&](CameraGroup& group) { group.stepAlone(camera, frames, now()); });
}

void FilmDeck::jump(double seconds) {
    seek(position() + seconds);
}

void FilmDeck::seek(double seconds) {
    withGroup([seconds](CameraGroup& group) { group.seek(seconds, now()); });
}

void FilmDeck::seek(const CMTime& stamp) {
    withGroup([&](CameraGroup& group) { group.seek(stamp, now()); });
}

void FilmDeck::alignCameras() {
    withGroup([](CameraGroup& group) { (void)group.alignShown(now()); });
}

void FilmDeck::setOffset(std::size_t camera, const CameraOffset& offset) {
    withGroup([&](CameraGroup& group) { group.setOffset(camera, offset, now()); });
}

} // namespace kavela::desktop
