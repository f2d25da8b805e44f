#include "desktop/film/clip_pair.h"

#include "desktop/film/film_deck.h"
#include "desktop/film/film_grid.h"
#include "desktop/film/film_memory.h"
#include "desktop/film/film_view.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr double SlowClips = 0.25;
constexpr int EndsShownMilliseconds =
    900; ///< so long both times can be read before a loop begins again

CMTime momentAt(double seconds) {
    constexpr std::int32_t Million = 1'000'000;
    return {std::llround(seconds * Million), Million, ValidStamp, 0};
}

double clipLength(const Clip& clip) {
    return clip.to - clip.from;
}

QString clipFault(const Clip& clip) {
    if (clip.film.isEmpty())
        return ClipPair::tr("This run has no film.");
    if (!QFileInfo(clip.film).isFile())
        return ClipPair::tr("The film is not there:\n%1").arg(QDir::toNativeSeparators(clip.film));
    return {};
}

} // namespace

ClipPair::ClipPair(Workspace& workspace, QWidget* parent)
    : QWidget(parent),
      m_deck(new FilmDeck(FilmMemory::of(workspace), this)),
      m_grid(new FilmGrid(this)),
      m_rate(new QLabel(this)) {
    setFocusPolicy(Qt::StrongFocus);
    m_again.setSingleShot(true);
    m_again.setInterval(EndsShownMilliseconds);
    m_rate->setObjectName("clipRate");
    makeSides();
    makeActions();
    auto* const bar = new QWidget(this);
    makeButtons(*bar);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    column->addWidget(m_grid, 1);
    column->addWidget(bar);
    connect(m_deck, &FilmDeck::frameShown, this, &ClipPair::showFrame);
    connect(m_deck, &FilmDeck::indexChanged, this, &ClipPair::startWhenReady);
    connect(m_deck, &FilmDeck::failed, this, &ClipPair::fail);
    connect(m_deck, &FilmDeck::stateChanged, this, &ClipPair::followState);
    connect(&m_again, &QTimer::timeout, this, [this] { m_deck->play(m_deck->rate()); });
    clear();
}

/// The deck is the first of the children to go, and says nothing while the others do.
ClipPair::~ClipPair() {
    m_deck->blockSignals(true);
    m_deck->disconnect(this);
}

void ClipPair::makeSides() {
    for (Side& side : m_sides) {
        side.panel = new QWidget(m_grid);
        side.time = new QLabel(side.panel);
        side.time->setTextFormat(Qt::PlainText);
        side.time->setAlignment(Qt::AlignCenter);
        side.time->setFont(theme::titleFont(*side.time));
        side.time->setMinimumWidth(1); // a long name is cut rather than the pictures pushed apart
        auto* const column = new QVBoxLayout(side.panel);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(theme::SmallSpacing);
        column->addWidget(side.time);
    }
}

template <class Act>
QAction* ClipPair::add(const QString& text, const QString& brief, const QKeySequence& key,
                       Act act) {
    auto* const action = new QAction(text, this);
    action->setIconText(brief);
    action->setShortcut(key);
    connect(action, &QAction::triggered, this, [this, act] {
        m_again.stop();
        m_isStarting = false; // who does something with the clips has begun himself
        act();
    });
    addAction(action);
    return action;
}

void ClipPair::makeActions() {
    add(tr("Play or pause the clips"), tr("Play"), Qt::Key_Space,
        [this] { m_deck->togglePlaying(); });
    add(tr("Play the clips from their beginnings"), tr("From the start"), Qt::SHIFT | Qt::Key_Space,
        [this] {
            seekToStart();
            m_deck->play(std::abs(m_deck->rate()));
        });
    add(tr("One frame back in the clips"), tr("Frame back"), Qt::Key_Comma,
        [this] { m_deck->step(-1); });
    add(tr("One frame forward in the clips"), tr("Frame on"), Qt::Key_Period,
        [this] { m_deck->step(1); });
    add(tr("Clips in slow motion"), tr("Slow motion"), Qt::SHIFT | Qt::Key_L,
        [this] { m_deck->play(SlowClips); });
    add(tr("Clips slower"), tr("Slower"), Qt::Key_BracketLeft, [this] { m_deck->slower(); });
    add(tr("Clips faster"), tr("Faster"), Qt::Key_BracketRight, [this] { m_deck->faster(); });
    add(tr("Clips at normal speed"), tr("Normal speed"), Qt::Key_Backspace,
        [this] { m_deck->normalSpeed(); });
    m_loop = new QAction(tr("Repeat the clips"), this);
    m_loop->setIconText(tr("Repeat"));
    m_loop->setShortcut(Qt::Key_R);
    m_loop->setCheckable(true);
    m_loop->setChecked(true);
    connect(m_loop, &QAction::toggled, &m_again, &QTimer::stop);
    addAction(m_loop);
}

void ClipPair::makeButtons(QWidget& bar) {
    auto* const row = new QHBoxLayout(&bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(theme::SmallSpacing);
    for (QAction* const action : actions()) {
        auto* const button = new QToolButton(&bar);
        button->setDefaultAction(action); // its tip tells the key
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys to the window
        row->addWidget(button);
    }
    row->addStretch();
    row->addWidget(m_rate);
}

bool ClipPair::canPlay() const {
    return m_deck->views() > 0;
}

bool ClipPair::isLooped() const {
    return m_loop->isChecked();
}

void ClipPair::setLooped(bool isLooped) {
    m_loop->setChecked(isLooped);
}

void ClipPair::play(const Clip& own, const Clip& reference) {
    for (std::size_t i = 0; i < m_sides.size(); ++i) {
        Side& side = m_sides[i];
        side.clip = i == 0 ? own : reference;
        side.clip.to = std::max(side.clip.from, side.clip.to);
        side.fault = clipFault(side.clip);
    }
    open();
}

void ClipPair::clear() {
    play({}, {});
}

/// The longer clip leads: a player stops and steps by the frames of the film that leads, which has
/// to have some until both have ended.
void ClipPair::open() {
    m_again.stop();
    m_isStarting = true; // the speed of a deck without films is nobody's choice
    m_deck->open({});    // before its views go
    std::vector<Side*> playable;
    for (Side& side : m_sides) {
        side.camera.reset();
        if (side.fault.isEmpty())
            playable.push_back(&side);
    }
    std::ranges::stable_sort(playable, std::greater(),
                             [](const Side* side) { return clipLength(side->clip); });
    for (std::size_t camera = 0; camera < playable.size(); ++camera)
        playable[camera]->camera = camera;
    showSides();
    openFilms(playable);
    for (QAction* const action : actions())
        action->setEnabled(canPlay());
}

void ClipPair::openFilms(const std::vector<Side*>& sides) {
    QStringList films;
    for (const Side* const side : sides)
        films.append(side->clip.film);
    m_deck->open(films);
    for (const Side* const side : sides)
        m_deck->setStretch(*side->camera, side->clip.from, side->clip.to);
    if (sides.size() > 1)
        m_deck->setOffset(
            1, {.own = momentAt(sides[1]->clip.from), .common = momentAt(sides[0]->clip.from)});
    m_isStarting = canPlay();
    seekToStart();
}

void ClipPair::showSides() {
    std::vector<QWidget*> panels;
    for (Side& side : m_sides) {
        delete side.view;
        side.view = nullptr;
        side.isAtEnd = false;
        side.panel->setVisible(!(side.clip == Clip{}));
        if (side.clip == Clip{})
            continue;
        // Without a film it is the view of a camera that the deck does not have.
        side.view = new FilmView(*m_deck, side.camera.value_or(m_sides.size()), side.panel);
        side.view->setMessage(side.fault);
        qobject_cast<QVBoxLayout*>(side.panel->layout())->insertWidget(0, side.view, 1);
        showTime(side);
        panels.push_back(side.panel);
    }
    m_grid->setFilms(panels);
}

/// A film of which not even the first picture came makes way, so that the other one plays; what is
/// wrong with a later picture stands in its place.
void ClipPair::fail(std::size_t camera, const QString& message) {
    const auto side = std::ranges::find(m_sides, std::optional(camera), &Side::camera);
    if (side == m_sides.end() || m_deck->shown(camera))
        return;
    side->fault = message;
    QMetaObject::invokeMethod(
        this,
        [this, side] {
            if (side->camera && !side->fault.isEmpty()) // nothing else is to be played by now
                open();
        },
        Qt::QueuedConnection); // the views are being told too
}

bool ClipPair::isReady(const Side& side) const {
    if (!side.camera)
        return true;
    const FilmPicture* const picture = m_deck->shown(*side.camera);
    const auto index = m_deck->index(*side.camera);
    return picture && index && !picture->isPreview &&
           frameOf(*index, side.clip.from) == picture->frame.number;
}

void ClipPair::startWhenReady() {
    if (!m_isStarting ||
        !std::ranges::all_of(m_sides, [this](const Side& side) { return isReady(side); }))
        return;
    m_isStarting = false;
    m_deck->play(m_speed);
}

void ClipPair::seekToStart() {
    for (const Side& side : m_sides)
        if (side.camera == std::size_t{0})
            m_deck->seek(side.clip.from);
}

void ClipPair::followState() {
    const bool isPlaying = m_deck->isPlaying();
    const bool hasStopped = std::exchange(m_wasPlaying, isPlaying) && !isPlaying;
    m_rate->clear();
    if (!canPlay())
        return;
    const double rate = m_deck->rate();
    if (!m_isStarting)
        m_speed = std::abs(rate);
    m_rate->setText(QStringLiteral("×") + shownNumber(rate));
    if (isPlaying)
        m_again.stop();
    if (!hasStopped ||
        (rate < 0 ? m_deck->position() > m_deck->start() : m_deck->position() < m_deck->end()))
        return;
    emit ended();
    if (isLooped())
        m_again.start();
}

void ClipPair::showFrame(std::size_t camera) {
    const auto side = std::ranges::find(m_sides, std::optional(camera), &Side::camera);
    if (side != m_sides.end())
        showTime(*side);
    startWhenReady();
}

/// At its last frame the time is the one between the marks, to the hundredth, also where no frame
/// stands at the mark exactly.
void ClipPair::showTime(Side& side) {
    const FilmPicture* const picture = side.camera ? m_deck->shown(*side.camera) : nullptr;
    const auto index = picture ? m_deck->index(*side.camera) : nullptr;
    if (!index) {
        side.time->setText(side.clip.caption);
        return;
    }
    const double length = clipLength(side.clip);
    const auto last = frameOf(*index, side.clip.to);
    const bool isAtEnd = !picture->isPreview && last && picture->frame.number >= *last;
    const double time = std::clamp(picture->frame.stamp.seconds() - side.clip.from, 0.0, length);
    side.time->setText(
        isAtEnd ? tr("%1 · %2 s, at its end").arg(side.clip.caption, shownHundredths(length))
                : tr("%1 · %2 of %3 s")
                      .arg(side.clip.caption, shownHundredths(time), shownHundredths(length)));
    if (isAtEnd && !side.isAtEnd)
        side.view->flash(shownHundredths(length));
    side.isAtEnd = isAtEnd;
}

QString ClipPair::told(std::size_t side) const {
    return m_sides.at(side).time->text();
}

void ClipPair::keyPressEvent(QKeyEvent* event) {
    if (!canPlay() || (event->key() != Qt::Key_Left && event->key() != Qt::Key_Right))
        return QWidget::keyPressEvent(event);
    m_again.stop();
    m_isStarting = false;
    m_deck->step(event->key() == Qt::Key_Left ? -1 : 1);
}

} // namespace kavela::desktop
