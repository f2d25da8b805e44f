#include "desktop/folder/film_playing.h"

#include "desktop/film/film_stage.h"
#include "desktop/folder/film_browser.h"
#include "desktop/folder/film_shelf.h"
#include "desktop/folder/tag_mode.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "splitdata/film_marks.h"

#include <QFileInfo>
#include <QMetaObject>

#include <algorithm>
#include <limits>
#include <utility>

namespace kavela::desktop {

namespace {

/// Somebody who walks through the list by its keys does not wait for every film on the way.
constexpr int ShowAfterMilliseconds = 120;

constexpr double Endless = std::numeric_limits<double>::infinity();

} // namespace

FilmPlaying::FilmPlaying(const Desk& desk) : QObject(&desk.stage), m_desk(desk) {
    m_soon.setSingleShot(true);
    m_soon.setInterval(ShowAfterMilliseconds);
    connect(&m_soon, &QTimer::timeout, this, &FilmPlaying::showChosen);
    FilmBrowser& browser = m_desk.browser;
    connect(&browser, &FilmBrowser::chosen, &m_soon, qOverload<>(&QTimer::start));
    connect(&browser, &FilmBrowser::activated, this, &FilmPlaying::playChosen);
    connect(&browser, &FilmBrowser::clicked, this, [this] {
        if (m_desk.workspace.preferences().boolean("playonclick"))
            playChosen();
    });
    FilmDeck& deck = m_desk.stage.deck();
    connect(&deck, &FilmDeck::frameShown, this, &FilmPlaying::takeFrame);
    connect(&deck, &FilmDeck::indexChanged, this, [this] {
        layBeside();
        startWhenReady();
    });
    connect(&deck, &FilmDeck::stateChanged, this, &FilmPlaying::followState);
    connect(&deck, &FilmDeck::failed, this, [this] { m_isStarting = false; });
    connect(&m_desk.shelf, &FilmShelf::changed, this, &FilmPlaying::takeMarks);
}

bool FilmPlaying::startsAtMark() const {
    return m_desk.workspace.preferences().boolean("startinCMTime");
}

std::optional<CMTime> FilmPlaying::firstMark(const QString& film) const {
    const ListedFilm* const listed = m_desk.shelf.film(film);
    return listed ? listed->firstMark : std::nullopt;
}

FrameRequest FilmPlaying::beginning(const QString& film) const {
    const auto mark = startsAtMark() ? firstMark(film) : std::nullopt;
    return mark ? FrameRequest(*mark) : FrameRequest(FrameNumber{0});
}

void FilmPlaying::showChosen() {
    m_soon.stop();
    if (const auto tag = m_desk.browser.currentTag())
        return showTag(*tag);
    showFilms(m_desk.browser.chosenFilms().mid(0, MostInStep));
}

/// Films that are shown already stay where they are.
void FilmPlaying::showFilms(const QStringList& films) {
    FilmStage& stage = m_desk.stage;
    if (std::exchange(m_isPart, false))
        stage.deck().setStretch(0, -Endless, Endless);
    if (films == stage.films())
        return;
    stage.rememberPlace();
    m_isStarting = false;
    m_wasPlaying = false;
    m_parts.assign(static_cast<std::size_t>(films.size()), ShownPart());
    m_isLaid = films.size() < 2;
    m_isAhead = false;
    m_start.reset();
    const QString film = films.value(0);
    stage.showFilms({.films = films, .beside = {}, .key = FilmKey(film)});
    m_desk.tags.setFilm(film);
    if (film.isEmpty())
        return stage.setMessage(tr("Choose a film on the left."));
    if (!QFileInfo(film).isFile())
        return stage.setMessage(tr("The film is no longer there:\n%1").arg(film));
    m_start = beginning(film);
    stage.goToPlace(startsAtMark() ? firstMark(film) : std::nullopt);
}

/// The marks of a film are read after its name: one that still stands at its beginning goes on to
/// the first.
void FilmPlaying::takeMarks() {
    FilmDeck& deck = m_desk.stage.deck();
    const auto mark = startsAtMark() ? firstMark(deck.films().value(0)) : std::nullopt;
    if (!mark || m_isPart || deck.isPlaying() || m_start != FrameRequest(FrameNumber{0}))
        return;
    if (const FilmPicture* const picture = deck.shown(0); picture && picture->frame.number != 0)
        return; // the coach went on
    m_start = *mark;
    m_desk.stage.goToPlace(mark);
    m_isLaid = deck.films().size() < 2;
    layBeside();
}

void FilmPlaying::showTag(const FilmTagRow& tag) {
    showFilms({tag.path});
    FilmDeck& deck = m_desk.stage.deck();
    if (deck.cameras() == 0)
        return;
    const double moment = tag.tag.moment.seconds();
    const double from = std::max(moment - AroundTag, 0.0);
    m_isPart = m_desk.workspace.preferences().boolean("tagmodeplaysjustpart");
    deck.pause();
    if (m_isPart)
        deck.setStretch(0, from, moment + AroundTag);
    m_start = from;
    deck.seek(from);
}

/// Of films with marks the first ones are one moment; others begin together.
void FilmPlaying::layBeside() {
    FilmDeck& deck = m_desk.stage.deck();
    if (std::exchange(m_isLaid, true))
        return;
    const QStringList films = deck.films();
    const auto common = firstMark(films.value(0));
    for (qsizetype camera = 1; common && camera < films.size(); ++camera)
        if (const auto own = firstMark(films[camera]))
            deck.setOffset(static_cast<std::size_t>(camera), {.own = *own, .common = *common});
}

void FilmPlaying::playChosen() {
    showChosen();
    FilmDeck& deck = m_desk.stage.deck();
    if (deck.cameras() == 0 || !m_start)
        return;
    std::visit(
        [&deck](const auto& start) {
            if constexpr (std::is_same_v<std::decay_t<decltype(start)>, FrameNumber>)
                deck.seek(deck.start());
            else
                deck.seek(start);
        },
        *m_start);
    m_isStarting = true;
    startWhenReady();
}

/// It begins with its first frame before somebody's eyes, not somewhere behind it.
void FilmPlaying::startWhenReady() {
    FilmDeck& deck = m_desk.stage.deck();
    if (!m_isStarting || !m_start)
        return;
    const FilmPicture* const picture = deck.shown(0);
    const auto index = deck.index(0);
    if (!picture || !index || picture->isPreview ||
        frameOf(*index, *m_start) != picture->frame.number)
        return;
    m_isStarting = false;
    deck.play(1);
}

void FilmPlaying::takeFrame(std::size_t camera) {
    noteWatched(camera);
    startWhenReady();
    if (camera == 0 && !m_isAhead && m_desk.stage.deck().stamp(0))
        openNextAhead();
}

/// Once the first frame of this one is there, so that it does not have to share the disk.
void FilmPlaying::openNextAhead() {
    m_isAhead = true;
    const QString next = m_desk.browser.nextFilm();
    m_desk.stage.deck().openAhead(next, beginning(next));
}

void FilmPlaying::noteWatched(std::size_t camera) {
    FilmDeck& deck = m_desk.stage.deck();
    const auto index = deck.index(camera);
    const FilmPicture* const picture = deck.shown(camera);
    if (camera >= m_parts.size() || !index || !picture || picture->isPreview ||
        index->frameCount() == 0)
        return;
    const double start = index->secondsOf(0);
    ShownPart& part = m_parts[camera];
    part.show(picture->frame.stamp.seconds() - start, deck.isPlaying());
    const double length = index->secondsOf(index->frameCount() - 1) - start;
    const QString film = deck.films().value(static_cast<qsizetype>(camera));
    if (index->isComplete() && part.isWatched(length) && !m_desk.shelf.isWatched(film))
        m_desk.shelf.setWatched({film}, true);
}

void FilmPlaying::followState() {
    FilmDeck& deck = m_desk.stage.deck();
    const bool isPlaying = deck.isPlaying();
    const bool hasStopped = std::exchange(m_wasPlaying, isPlaying) && !isPlaying;
    if (!hasStopped || deck.rate() < 0 || deck.position() < deck.end())
        return;
    // Other films are opened once the deck is done with these.
    QMetaObject::invokeMethod(
        this,
        [this, films = deck.films()] {
            if (films == m_desk.stage.deck().films() && !m_desk.stage.deck().isPlaying())
                end();
        },
        Qt::QueuedConnection);
}

void FilmPlaying::end() {
    if (m_desk.workspace.preferences().boolean("autoplaynext") && m_desk.stage.films().size() == 1)
        step(1, true);
}

void FilmPlaying::step(int places, bool isPlayed) {
    if (!m_desk.browser.step(places)) {
        m_desk.stage.flash(places > 0 ? tr("That was the last one") : tr("This is the first one"));
        return;
    }
    if (isPlayed)
        playChosen();
    else
        showChosen();
}

/// The film that is shown goes on under its other name, where it stood.
void FilmPlaying::follow(const QString& from, const QString& to) {
    QStringList films = m_desk.stage.films();
    if (!films.contains(from))
        return;
    const bool isFirst = films.value(0) == from;
    const auto stood = m_desk.stage.deck().meant();
    films.replace(films.indexOf(from), to);
    m_desk.stage.forgetPlace(FilmKey(from));
    showFilms(films);
    if (isFirst && !stood.empty())
        m_desk.stage.deck().seek(stood.front());
}

} // namespace kavela::desktop
