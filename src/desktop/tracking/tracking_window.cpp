#include "desktop/tracking/tracking_window.h"

#include "common/error.h"
#include "common/safe_file.h"
#include "desktop/film/film_deck.h"
#include "desktop/film/film_memory.h"
#include "desktop/film/film_view.h"
#include "desktop/film/play_menu.h"
#include "desktop/shell/background_work.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/shown_number.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/window_place.h"
#include "desktop/shell/workspace.h"
#include "desktop/tracking/path_pages.h"
#include "desktop/tracking/track_line.h"
#include "desktop/tracking/track_overlay.h"
#include "desktop/tracking/track_run.h"
#include "splittaking/video_names.h"
#include "vision/path_csv.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

constexpr std::size_t MostKnownPoints = 4;

} // namespace

TrackingWindow::TrackingWindow(Workspace& workspace, Autosave autosave)
    : TrackingWindow(workspace, std::make_unique<TrackDocument>(workspace, std::move(autosave))) {}

TrackingWindow::TrackingWindow(Workspace& workspace, std::unique_ptr<TrackDocument> document)
    : ToolWindow(workspace, document.get(),
                 {"tracking", tr("Tracking"), "json", tr("Paths on films (*.track.json)")}),
      m_document(std::move(document)),
      m_deck(new FilmDeck(FilmMemory::of(workspace), this)),
      m_pages(new PathPages(*m_document)),
      m_run(new TrackRun(this)) {
    auto* const whole = new QSplitter;
    whole->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    whole->addWidget(makeStage());
    whole->addWidget(m_pages);
    whole->setStretchFactor(0, 1);
    whole->setChildrenCollapsible(false);
    shareSizes(*whole, {780, 460});
    rememberSizes(*whole, workspace, "trackingParts");
    setCentralWidget(whole);
    makeMenus();
    connectParts();
}

TrackingWindow::~TrackingWindow() {
    hide(); // an open cell would else hand its text to what is gone already
    m_run->disconnect(this);
    m_run->stop();
    m_deck->blockSignals(true);
    m_deck->disconnect(this);
    m_document->undoStack().disconnect(this);
    m_document->disconnect(this);
}

QWidget* TrackingWindow::makeStage() {
    auto* const stage = new QWidget;
    m_view = new FilmView(*m_deck, 0);
    m_view->setMessage(tr("Open a film, then draw a box round what is to be followed."));
    m_overlay = new TrackOverlay(m_view);
    m_line = new TrackLine;
    m_time = new QLabel;
    m_told = new QLabel;
    m_told->setObjectName("told");
    m_told->setWordWrap(true);
    m_told->setTextFormat(Qt::PlainText);
    m_progress = new QProgressBar;
    m_progress->setRange(0, 1000);
    m_progress->setFormat(tr("Following: %p %"));
    m_progress->hide();
    auto* const bar = new QHBoxLayout;
    bar->addWidget(m_time);
    bar->addStretch();
    bar->addWidget(m_progress);
    auto* const column = new QVBoxLayout(stage);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_view, 1);
    column->addWidget(m_line);
    column->addLayout(bar);
    column->addWidget(m_told);
    return stage;
}

void TrackingWindow::makeMenus() {
    QMenu* const file =
        makeFileMenu({.openText = tr("&Open a film or a path…"), .open = [this] { chooseFile(); }});
    file->addAction(tr("&Export the path as CSV…"), QKeySequence(Qt::CTRL | Qt::Key_E), this,
                    &TrackingWindow::exportCsv);
    makeEditMenu();
    QMenu* const play = menuBar()->addMenu(tr("&Play"));
    play->addAction(tr("&Play or pause"), QKeySequence(Qt::Key_Space), this,
                    [this] { m_deck->togglePlaying(); });
    play->addAction(tr("One frame ba&ck"), QKeySequence(Qt::Key_Comma), this,
                    [this] { m_deck->step(-1); });
    play->addAction(tr("One frame &on"), QKeySequence(Qt::Key_Period), this,
                    [this] { m_deck->step(1); });
    PlayMenu::addJumps(*this, *play, *m_deck);
    QMenu* const path = menuBar()->addMenu(tr("P&ath"));
    path->addAction(tr("Propose a &box"), QKeySequence(Qt::Key_B), this,
                    [this] { m_overlay->proposeBox(); });
    path->addAction(tr("&Take the box of this frame away"), QKeySequence(Qt::SHIFT | Qt::Key_B),
                    this, &TrackingWindow::removeBox);
    path->addAction(tr("To the next &gap"), QKeySequence(Qt::Key_G), this,
                    &TrackingWindow::goToGap);
    m_stopAction = path->addAction(tr("&Stop following"), QKeySequence(Qt::Key_Escape), this,
                                   &TrackingWindow::stopFollowing);
    m_stopAction->setEnabled(false);
    path->addSeparator();
    m_takesPoints = path->addAction(tr("Click &known points"), QKeySequence(Qt::Key_P), this,
                                    &TrackingWindow::setTakesPoints);
    m_takesPoints->setCheckable(true);
    path->addAction(tr("&Forget the known points"), QKeySequence(Qt::SHIFT | Qt::Key_P), this,
                    &TrackingWindow::forgetPoints);
    m_isOnWater = path->addAction(tr("It lies on the &water"), this, [this](bool isOnWater) {
        m_document->edit(tr("whether it lies on the water"),
                         [&](track001& record) { record.isOnWater = isOnWater; });
    });
    m_isOnWater->setCheckable(true);
    finishMenus([] { return Commands(); });
}

void TrackingWindow::connectParts() {
    connect(m_document.get(), &TrackDocument::changed, this, &TrackingWindow::showDocument);
    connect(m_deck, &FilmDeck::frameShown, this, &TrackingWindow::showFrame);
    connect(m_deck, &FilmDeck::indexChanged, this, &TrackingWindow::showFilm);
    connect(m_deck, &FilmDeck::failed, this,
            [this](std::size_t, const QString& message) { m_view->setMessage(message); });
    connect(m_overlay, &TrackOverlay::boxDrawn, this, &TrackingWindow::drawBox);
    connect(m_overlay, &TrackOverlay::pointClicked, this, &TrackingWindow::takePoint);
    connect(m_line, &TrackLine::frameWanted, this, &TrackingWindow::goTo);
    connect(m_pages, &PathPages::frameChosen, this, [this](qint64 frame) {
        if (!m_run->isRunning())
            goTo(frame);
    });
    connect(m_pages, &PathPages::figuresShown, this, &TrackingWindow::figuresShown);
    connect(m_pages, &PathPages::failed, this, &TrackingWindow::tell);
    connect(m_run, &TrackRun::advanced, this, [this](qint64 frame, double done) {
        m_progress->setValue(static_cast<int>(done * m_progress->maximum()));
        m_overlay->setTrack(m_document->track(), m_run->found());
        goTo(frame);
    });
    connect(m_run, &TrackRun::ended, this, &TrackingWindow::takeRun);
    connect(m_run, &TrackRun::failed, this, &TrackingWindow::takeFailure);
}

/// A box that cannot be followed is none.
void TrackingWindow::takeFailure(const QString& why) {
    m_progress->hide();
    m_stopAction->setEnabled(false);
    if (std::exchange(m_isBoxNew, false) && m_runKeys == m_document->track().keys)
        m_document->undoStack().undo();
    m_overlay->setTrack(m_document->track());
    tell(why);
}

FileReading TrackingWindow::readingOf(const QString& path) {
    const bool isFilm = isVideoFile(QFileInfo(path).fileName().toStdString());
    const QString track =
        isFilm ? QString::fromStdString(
                     trackPathOf(QFileInfo(path).absoluteFilePath().toStdString()).string())
               : path;
    if (!isFilm || QFileInfo::exists(track))
        return m_document->reading(track, this);
    return [this, path]() -> TakeIn {
        return [this, path] {
            m_document->startOn(path, this);
            return true;
        };
    };
}

QStringList TrackingWindow::paths() const {
    const QStringList files = ToolWindow::paths();
    if (!files.isEmpty() && QFileInfo::exists(files.front()))
        return files;
    return m_film.isEmpty() ? files : QStringList{m_film};
}

/// A film that is dropped is followed here, not timed.
void TrackingWindow::takeFiles(const QStringList& paths) {
    const bool isOneFilm =
        paths.size() == 1 && isVideoFile(QFileInfo(paths.front()).fileName().toStdString());
    if (!isOneFilm) {
        emit openRequested(paths);
        return;
    }
    whenLeft([this, path = paths.front()](bool mayGo) {
        if (mayGo)
            static_cast<void>(open(path));
    });
}

void TrackingWindow::chooseFile() {
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open a film or a path on one"), QFileInfo(m_film).absolutePath(),
        tr("Films and paths (*.mp4 *.mov *.m4v *.mkv *.avi *.mts *.track.json);;All files (*)"));
    if (!path.isEmpty())
        takeFiles({path});
}

void TrackingWindow::showDocument() {
    const track001& record = m_document->value();
    const QString film = QString::fromStdString(record.film);
    if (film != m_film) {
        m_run->stop();
        m_film = film;
        m_deck->open(QFileInfo::exists(film) ? QStringList{film} : QStringList());
        if (!QFileInfo::exists(film))
            m_view->setMessage(tr("The film %1 is not there.").arg(film));
    }
    m_overlay->setTrack(m_document->track(), m_run->found());
    m_overlay->setKnownPoints(planeOf(record));
    m_line->setTrack(m_document->track());
    m_isOnWater->setChecked(record.isOnWater);
    m_pages->showDocument();
}

void TrackingWindow::showFilm() {
    const auto index = m_deck->index(0);
    if (!index)
        return;
    const VideoSize size = index->facts().shownSize;
    m_overlay->setFilmSize({size.width, size.height});
    m_line->setFrames(index->frameCount());
}

std::optional<FrameNumber> TrackingWindow::shownFrame() const {
    const FilmPicture* const picture = m_deck->shown(0);
    return picture && !picture->isPreview ? std::optional(picture->frame.number) : std::nullopt;
}

void TrackingWindow::showFrame() {
    const auto frame = shownFrame();
    if (!frame)
        return;
    m_overlay->setFrame(*frame);
    m_line->setFrame(*frame);
    m_time->setText(tr("%1 s · frame %2").arg(secondsText(*frame)).arg(*frame));
}

QString TrackingWindow::secondsText(FrameNumber frame) const {
    const auto index = m_deck->index(0);
    return index && frame < index->frameCount() ? shownHundredths(index->secondsOf(frame))
                                                : QStringLiteral("–");
}

ColumnTable& TrackingWindow::pointTable() const {
    return m_pages->pointTable();
}

SeriesChart& TrackingWindow::chart() const {
    return m_pages->chart();
}

const std::vector<PathFigure>& TrackingWindow::figures() const {
    return m_pages->figures();
}

QString TrackingWindow::told() const {
    return m_told->text();
}

void TrackingWindow::tell(const QString& text) {
    m_told->setText(text);
}

void TrackingWindow::goTo(qint64 frame) {
    const auto index = m_deck->index(0);
    if (index && frame >= 0 && frame < index->frameCount())
        m_deck->seek(index->stampOf(frame));
}

void TrackingWindow::editTrack(const QString& what, const FilmTrack& track) {
    const auto index = m_deck->index(0);
    m_document->edit(what, [&](track001& record) {
        takeTrack(record, track);
        if (!index)
            return;
        record.width = index->facts().shownSize.width;
        record.height = index->facts().shownSize.height;
    });
}

void TrackingWindow::drawBox(const TrackBox& box) {
    const auto frame = shownFrame();
    const auto index = m_deck->index(0);
    if (!frame || !index || !index->isComplete()) {
        tell(tr("The film is still being read. Draw the box again in a moment."));
        return;
    }
    if (m_run->isRunning()) {
        tell(tr("Stop following first, with Escape."));
        return;
    }
    m_deck->pause();
    const FilmTrack track = withKey(m_document->track(), {*frame, box});
    editTrack(tr("box"), track);
    m_isBoxNew = true;
    const auto key = std::ranges::find(track.keys, *frame, &TrackKey::frame);
    startRun(static_cast<std::size_t>(key - track.keys.begin()));
}

void TrackingWindow::startRun(std::size_t key) {
    m_runKeys = m_document->track().keys;
    m_progress->setValue(0);
    m_progress->show();
    m_stopAction->setEnabled(true);
    tell(tr("Following. Escape stops it."));
    m_run->start(m_deck->index(0), m_document->track(), key);
}

void TrackingWindow::stopFollowing() {
    m_run->stop();
}

/// What was undone while it ran is not brought back by it.
void TrackingWindow::takeRun(const FilmTrack& track, FrameNumber lostAt) {
    m_progress->hide();
    m_stopAction->setEnabled(false);
    if (m_runKeys != m_document->track().keys) {
        m_overlay->setTrack(m_document->track());
        tell(tr(
            "The boxes were changed meanwhile, so that the path was not taken over. Draw the box "
            "again."));
        return;
    }
    editTrack(tr("path"), track);
    const std::size_t gaps = track.gaps().size();
    if (lostAt >= 0) {
        goTo(lostAt);
        tell(tr("Lost at %1 s. Draw a new box here, or where it is seen again; what lies between "
                "stays "
                "a gap until both sides meet.")
                 .arg(secondsText(lostAt)));
    } else {
        tell(gaps == 0   ? tr("Followed without a gap.")
             : gaps == 1 ? tr("Followed, with one gap. G goes there.")
                         : tr("Followed, with %1 gaps. G goes to the next one.").arg(gaps));
    }
    m_overlay->setFocus();
}

void TrackingWindow::removeBox() {
    const auto frame = shownFrame();
    const FilmTrack& before = m_document->track();
    const auto key =
        frame ? std::ranges::find(before.keys, *frame, &TrackKey::frame) : before.keys.end();
    if (m_run->isRunning() || key == before.keys.end()) {
        tell(m_run->isRunning() ? tr("Stop following first, with Escape.")
                                : tr("No box was drawn in this frame."));
        return;
    }
    const auto number = static_cast<std::size_t>(key - before.keys.begin());
    editTrack(tr("removal of a box"), withoutKey(before, *frame));
    m_isBoxNew = false;
    if (number > 0)
        startRun(number - 1);
}

void TrackingWindow::goToGap() {
    const FrameNumber now = shownFrame().value_or(-1);
    const auto gaps = m_document->track().gaps();
    const auto next =
        std::ranges::find_if(gaps, [now](const FilmTrack::Gap& gap) { return gap.first > now; });
    if (gaps.empty())
        tell(tr("The path has no gap."));
    else
        goTo(next == gaps.end() ? gaps.front().first : next->first);
}

void TrackingWindow::setTakesPoints(bool takesPoints) {
    m_takesPoints->setChecked(takesPoints);
    m_overlay->setTakesPoints(takesPoints);
    if (!takesPoints)
        return;
    m_pages->setCurrentIndex(PathPages::KnownPoints);
    tell(tr(
        "Click the foot of a gate's poles where they meet the water, four for metres or two for a "
        "scale only, then type where they stand. P ends it."));
}

/// All of them stand in one frame: between two the camera may have moved.
void TrackingWindow::takePoint(const PicturePlace& place) {
    const auto frame = shownFrame();
    const trackplane001& plane = m_document->value().plane;
    if (!frame)
        return;
    if (plane.points.size() >= MostKnownPoints) {
        tell(tr("Four known points are the most. Take one away first."));
        return;
    }
    if (!plane.points.empty() && plane.frame != *frame) {
        goTo(plane.frame);
        tell(
            tr("The known points belong into one frame; this is where the first one was clicked."));
        return;
    }
    m_deck->pause();
    m_document->edit(tr("known point"), [&](track001& record) {
        record.plane.frame = *frame;
        record.plane.points.push_back({place.x, place.y, 0, 0});
    });
}

void TrackingWindow::forgetPoints() {
    m_document->edit(tr("removal of the known points"),
                     [](track001& record) { record.plane = {}; });
}

void TrackingWindow::exportCsv() {
    const QFileInfo film(m_film);
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Export the path"),
        film.absolutePath() + '/' + film.completeBaseName() + ".path.csv", tr("Tables (*.csv)"));
    if (!path.isEmpty())
        writeCsv(path);
}

void TrackingWindow::writeCsv(const QString& path) {
    disk::runAwaited(
        *this,
        [path = path.toStdString(), figures = figures()] {
            writeFileSafely(path, pathCsv(figures));
        },
        [this, path](const std::exception_ptr& fault) {
            if (fault)
                workspace().showAlert(
                    {tr("The path could not be exported").toStdString(), messageOf(fault)}, this);
            else
                tell(tr("%1 is there.").arg(QFileInfo(path).fileName()));
        });
}

} // namespace kavela::desktop
