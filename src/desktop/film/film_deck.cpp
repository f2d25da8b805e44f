#include "desktop/film/film_deck.h"

#include "desktop/film/opened_film.h"
#include "splittaking/annotations/film_marks.h"
#include "splittaking/marking.h"
#include "video/player.h"

#include <chrono>
#include <thread>

namespace kavela::desktop {

namespace {

constexpr int RefreshMilliseconds = 8; // above the rate of any screen; nothing is drawn twice

/// A mark moves by this where its film is not open.
constexpr double SecondsWithoutFrames = 0.01;

/// A film is read so far in less, unless its disk does not answer.
constexpr auto LongestWait = std::chrono::seconds(3);

/// A film that was just opened tells its first frames in less.
constexpr auto LongestWaitForStep = std::chrono::milliseconds(500);

/// The last size of a view that is being made larger or smaller is the one that counts.
constexpr int SharpenAfterMilliseconds = 50;

/// Asks a player for a frame, whichever way that is told.
struct AskedFor {
    VideoPlayer& player;

    void operator()(FrameNumber number) const { player.showFrame(number); }
    void operator()(const CMTime& stamp) const { player.requestStamp(stamp); }
    void operator()(double seconds) const { player.requestPosition(seconds); }
};

/// Films are read by threads of their own: nothing here has to turn for them.
template <class IsDone>
void waitFor(const IsDone& isDone, std::chrono::milliseconds atMost) {
    const auto end = std::chrono::steady_clock::now() + atMost;
    while (!isDone() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

/// A mark from elsewhere may lie before the film's first frame or behind its last one.
bool isWithin(const VideoIndex& film, const CMTime& stamp) {
    return film.frameCount() > 0 && orderOf(stamp, film.stampOf(0)) >= 0 &&
           orderOf(stamp, film.stampOf(film.frameCount() - 1)) <= 0;
}

} // namespace

FilmDeck::FilmDeck(std::shared_ptr<FrameCache> cache, QObject* parent)
    : QObject(parent),
      m_cache(std::move(cache)),
      m_presses([this](const PressQueue::Meant& meant) { return stampsOf(meant); }) {
    m_sharpen.setSingleShot(true);
    m_sharpen.setInterval(SharpenAfterMilliseconds);
    connect(&m_sharpen, &QTimer::timeout, this, &FilmDeck::sharpen);
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
    m_presses.clear();
    open({});
}

CameraGroup::Moment FilmDeck::now() {
    return std::chrono::steady_clock::now();
}

void FilmDeck::open(const QStringList& films, const QStringList& beside) {
    m_presses.refuseAll(tr("The film was closed before it had been read so far."));
    ++m_generation;
    m_tick.stop();
    m_group.reset();
    m_players.clear();
    m_opened.clear(); // ends their threads
    m_slots.clear();
    m_shown.clear();
    m_jumps.clear();
    m_faults.clear();
    m_films = films;
    m_beside = films.isEmpty() ? QStringList() : beside;
    for (const QString& film : m_films + m_beside)
        addCamera(film);
    m_ahead.reset(); // what comes next is another film now
    if (!m_players.empty()) {
        m_group = std::make_unique<CameraGroup>(m_players, cameras());
        jumpWithGroup([](CameraGroup& group) {
            group.player(0).showFrame(0);
            group.seek(0.0, now());
        });
        return;
    }
    emit stateChanged();
}

void FilmDeck::addCamera(const QString& film) {
    const std::size_t camera = m_slots.size();
    const bool isAhead = camera == 0 && m_ahead && m_ahead->film() == film;
    m_opened.push_back(isAhead ? std::move(m_ahead) : opened(film));
    m_slots.push_back(m_opened.back()->slot());
    m_players.push_back(m_opened.back()->player());
    if (camera < m_boxes.size())
        m_slots.back()->setBox(m_boxes[camera]);
    m_shown.emplace_back();
    m_jumps.addView();
    m_faults.emplace_back();
    m_opened.back()->showAs(camera);
}

std::unique_ptr<OpenedFilm> FilmDeck::opened(const QString& film) {
    return std::make_unique<OpenedFilm>(
        film, m_cache, *this,
        OpenedFilm::Listener{.picture = [this](std::size_t camera) { takePicture(camera); },
                             .index = [this](std::size_t camera) { takeIndex(camera); },
                             .fault = [this](std::size_t camera,
                                             const QString& message) { fail(camera, message); }});
}

void FilmDeck::openAhead(const QString& film, const FrameRequest& first) {
    if (film.isEmpty() || m_films.value(0) == film)
        return m_ahead.reset();
    if (m_ahead && m_ahead->film() == film)
        return;
    m_ahead = opened(film);
    if (!m_boxes.empty())
        m_ahead->slot()->setBox(m_boxes.front());
    std::visit(AskedFor{*m_ahead->player()}, first);
}

void FilmDeck::takeIndex(std::size_t camera) {
    const int generation = m_generation;
    m_group->tick(now()); // the clock learns how long the films are
    m_faults[camera].clear();
    m_presses.run();
    if (generation == m_generation)
        emit indexChanged(camera);
}

/// A film that cannot be read is not played, which would try to read it on and on.
void FilmDeck::fail(std::size_t camera, const QString& message) {
    if (m_faults[camera] == message)
        return;
    m_faults[camera] = message;
    if (camera == 0) {
        pause();
        m_presses.refuseAll(message);
    } else {
        m_presses.run();
    }
    emit failed(camera, message);
}

QString FilmDeck::fault(std::size_t camera) const {
    return camera < m_faults.size() ? m_faults[camera] : QString();
}

void FilmDeck::takePicture(std::size_t camera) {
    auto picture = m_slots[camera]->take();
    if (!picture || m_jumps.isLate(camera, *picture))
        return;
    m_shown[camera] = std::move(picture);
    m_faults[camera].clear();
    m_jumps.settle(camera, *m_shown[camera]);
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

FrameRequest FilmDeck::meantBy(std::size_t camera) const {
    if (const auto target = m_jumps.target(camera))
        return *target;
    if (m_shown[camera])
        return m_shown[camera]->frame.stamp;
    return m_players[camera]->asked().value_or(FrameNumber{0});
}

PressQueue::Meant FilmDeck::meantNow() const {
    PressQueue::Meant meant;
    for (std::size_t camera = 0; camera < views(); ++camera)
        meant.push_back(meantBy(camera));
    return meant;
}

std::vector<CMTime> FilmDeck::stampsOf(const PressQueue::Meant& meant) const {
    std::vector<CMTime> stamps;
    for (std::size_t camera = 0; camera < meant.size(); ++camera) {
        const auto film = index(camera);
        const auto frame = film ? frameOf(*film, meant[camera]) : std::nullopt;
        if (frame) {
            stamps.push_back(film->stampOf(*frame));
        } else if (camera >= cameras() && !m_faults[camera].isEmpty()) {
            break; // nothing is marked on a film beside that cannot be read
        } else if (camera > 0 && !m_faults[camera].isEmpty()) {
            const double way = m_group->offset(camera).toOwn(0);
            stamps.push_back(later(stamps.front(), way));
        } else {
            return {};
        }
    }
    return stamps;
}

std::vector<CMTime> FilmDeck::meant() const {
    return stampsOf(meantNow());
}

void FilmDeck::whenMeant(PressQueue::Act act, PressQueue::Refuse refuse) {
    if (!fault(0).isEmpty())
        refuse(fault(0));
    else if (m_group)
        m_presses.add(meantNow(), std::move(act), std::move(refuse));
}

void FilmDeck::whenKnown(const FrameRequest& frame, PressQueue::Act act,
                         PressQueue::Refuse refuse) {
    if (m_group)
        m_presses.add({frame}, std::move(act), std::move(refuse));
}

void FilmDeck::whenSettled(const FrameRequest& frame, const Settled& act,
                           PressQueue::Refuse refuse) {
    if (cameras() == 0 || !fault(0).isEmpty())
        act(std::nullopt);
    else
        whenKnown(
            frame, [act](const std::vector<CMTime>& stamps) { act(stamps.front()); },
            std::move(refuse));
}

void FilmDeck::finishPresses() {
    const auto isDone = [this] {
        m_presses.run();
        return !m_presses.isWaiting();
    };
    waitFor(isDone, LongestWait);
    if (m_presses.isWaiting())
        m_presses.refuseAll(tr("The film has not been read so far yet: nothing was marked."));
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
    return m_group ? m_group->position(now()) : 0;
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
    m_sharpen.start();
}

/// A picture that stands was made for a smaller view: it is asked for once more, at its size now.
/// While the film plays, the next one comes by itself.
void FilmDeck::sharpen() {
    for (std::size_t camera = 0; camera < views() && camera < m_boxes.size(); ++camera) {
        const auto& shown = m_shown[camera];
        const auto asked = m_players[camera]->asked();
        if (isPlaying() || !shown || shown->image.isNull() || !asked)
            continue;
        const QSize now = shown->image.size();
        if (now.scaled(m_boxes[camera], Qt::KeepAspectRatio).width() > now.width() + 1)
            std::visit(AskedFor{*m_players[camera]}, *asked);
    }
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

/// What is done to the films goes to other frames, which are meant from now on.
template <class Act>
void FilmDeck::jumpWithGroup(Act act, bool isStop) {
    if (!m_group)
        return;
    const std::vector<std::uint64_t> before = FilmJumps::requestsOf(m_players);
    act(*m_group);
    m_jumps.note(m_players, before, isStop);
    withGroup([](CameraGroup&) {});
}

/// The frame of the first film that somebody has before his eyes, or has asked for.
std::optional<CMTime> FilmDeck::seen() const {
    const auto film = index(0);
    const auto frame = film ? frameOf(*film, meantBy(0)) : std::nullopt;
    return frame ? std::optional(film->stampOf(*frame)) : std::nullopt;
}

void FilmDeck::togglePlaying() {
    isPlaying() ? pause() : withGroup([](CameraGroup& group) { group.play(now()); });
}

void FilmDeck::play(double rate) {
    withGroup([rate](CameraGroup& group) {
        group.setRate(rate, now());
        group.play(now());
    });
}

void FilmDeck::pause() {
    if (!isPlaying())
        return;
    const bool isSeen = !m_jumps.target(0) && m_shown[0];
    jumpWithGroup([at = seen()](CameraGroup& group) { group.pause(now(), at); }, isSeen);
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
    if (!m_group)
        return;
    const ShuttleStep wanted = kavela::shuttle(m_group->clock(), key, isStopHeld);
    if (wanted.frames != 0)
        return step(wanted.frames);
    if (!wanted.isPlaying)
        pause();
    withGroup([&](CameraGroup& group) {
        group.setRate(wanted.rate, now());
        if (wanted.isPlaying)
            group.play(now());
    });
}

void FilmDeck::step(FrameNumber frames) {
    if (!m_group)
        return;
    pause(); // steps count from the frame that is seen
    waitFor([this] { return m_players[0]->target() || !fault(0).isEmpty(); }, LongestWaitForStep);
    if (!m_players[0]->target() && fault(0).isEmpty()) {
        emit refused(tr("The film has not been read so far yet: no frame to step from."));
        return;
    }
    jumpWithGroup([frames](CameraGroup& group) { group.step(frames, now()); });
}

void FilmDeck::stepAlone(std::size_t camera, FrameNumber frames) {
    pause();
    jumpWithGroup([&](CameraGroup& group) { group.stepAlone(camera, frames, now()); });
}

void FilmDeck::jump(double seconds) {
    seek(position() + seconds);
}

void FilmDeck::seek(double seconds) {
    jumpWithGroup([seconds](CameraGroup& group) { group.seek(seconds, now()); });
}

void FilmDeck::seek(const CMTime& stamp) {
    jumpWithGroup([&](CameraGroup& group) { group.seek(stamp, now()); });
}

void FilmDeck::expect(std::optional<double> seconds) {
    if (m_group)
        m_group->expect(seconds);
}

void FilmDeck::alignCameras() {
    withGroup([](CameraGroup& group) { (void)group.alignShown(now()); });
}

void FilmDeck::setOffset(std::size_t camera, const CameraOffset& offset) {
    const auto set = [&](CameraGroup& group) { group.setOffset(camera, offset, now()); };
    isPlaying() ? withGroup(set) : jumpWithGroup(set);
}

void FilmDeck::setStretch(std::size_t camera, double from, double to) {
    const auto set = [&](CameraGroup& group) { group.setStretch(camera, from, to, now()); };
    isPlaying() ? withGroup(set) : jumpWithGroup(set);
}

} // namespace kavela::desktop
