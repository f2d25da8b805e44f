#include "desktop/film/film_deck.h"
#include "desktop/film/film_grid.h"
#include "desktop/film/film_view.h"
#include "desktop/film/time_line.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/folder_films.h"
#include "desktop/taking/expected_place.h"
#include "desktop/taking/notes/notes_panel.h"
#include "desktop/taking/taking_window.h"
#include "splittaking/annotations/fixed_cameras.h"
#include "splittaking/messages.h"
#include "video/health.h"

#include <QFileInfo>
#include <QLabel>

#include <algorithm>
#include <span>

/// The films of split taking: those of a run are shown, others join it.
namespace kavela::desktop {

QStringList TakingWindow::filmsOf(int run) const {
    QStringList films;
    for (std::size_t camera = 0; camera < m_document.run(run).videoname.size(); ++camera)
        if (const QString film = m_document.film(run, camera); !film.isEmpty())
            films.append(film);
    return films;
}

void TakingWindow::rememberFilmPlace() {
    const auto meant = m_deck->meant();
    if (m_identity && !meant.empty())
        m_places.insert_or_assign(m_identity, meant.front());
}

/// Where the film of a run was left; the first time its start, where that is wanted.
std::optional<CMTime> TakingWindow::placeToShow(int run) const {
    if (run < 0)
        return std::nullopt;
    if (const auto left = m_places.find(m_document.identityOf(run)); left != m_places.end())
        return left->second;
    const RunMarks marks = m_document.marks(run);
    const Stamps* const start = stampsOf(marks, 0);
    const bool isWanted = workspace().preferences().boolean("startinCMTime");
    return start && isWanted ? std::optional(start->front()) : std::nullopt;
}

void TakingWindow::showExpected() {
    const ExpectedPlace expected = m_run < 0 ? ExpectedPlace() : expectedPlace(m_document, m_run);
    m_line->setExpected(expected.seconds, tr("%1?").arg(expected.split));
    m_deck->expect(expected.seconds);
}

void TakingWindow::showFilms() {
    m_filmsShown = m_run < 0 ? QStringList() : filmsOf(m_run);
    // The first film leads: without it there is nothing to go by.
    const bool isThere = !m_filmsShown.isEmpty() && QFileInfo(m_filmsShown.front()).isFile();
    const QStringList films = isThere ? m_filmsShown : QStringList();
    m_hasAlignedCameras = false;
    m_health->clear();
    m_deck->open({}); // before its views go
    for (FilmView* view : m_views)
        delete view;
    m_views.clear();
    QStringList beside;
    if (const auto fixed = m_notes->fixedCamera(); fixed && m_run >= 0)
        beside.append(m_document.fixedFilm(m_run, *fixed));
    beside.removeAll(QString());
    const qsizetype shown = films.isEmpty() ? 0 : films.size() + beside.size();
    for (std::size_t camera = 0; camera < std::max<std::size_t>(shown, 1); ++camera) {
        auto* view = new FilmView(*m_deck, camera);
        if (std::cmp_greater_equal(camera, films.size()) && shown > 0)
            view->setCaption(tr("Fixed: %1").arg(QFileInfo(beside.front()).completeBaseName()));
        m_views.push_back(view);
    }
    m_films->setFilms({m_views.begin(), m_views.end()});
    m_deck->open(films, beside);
    m_notes->bringIntoStep();
    if (m_run < 0)
        m_views.front()->setMessage(
            tr("Import videos with Ctrl+I, or drop a folder of videos here."));
    else if (m_filmsShown.isEmpty())
        m_views.front()->setMessage(tr(messages::NoVideo));
    askForFilms(m_filmsShown);
    if (const auto place = placeToShow(m_run))
        m_deck->seek(*place);
    showExpected();
}

/// In the place of each film that is not there; the marks stay on the time line meanwhile.
void TakingWindow::askForFilms(const QStringList& films) {
    for (qsizetype camera = 0; camera < std::min<qsizetype>(films.size(), std::ssize(m_views));
         ++camera) {
        if (QFileInfo(films[camera]).isFile())
            continue;
        FilmView* const view = m_views[static_cast<std::size_t>(camera)];
        view->setQuestion(tr("%1 is not in the folder of the split file.")
                              .arg(QFileInfo(films[camera]).fileName()),
                          tr("Where are the films now?…"));
        connect(view, &FilmView::answered, this, &TakingWindow::findFilms,
                Qt::QueuedConnection); // the view goes when the films are found
    }
}

void TakingWindow::findFilms() {
    const QString folder = m_chooseFolder(tr("Where are the films now?"));
    if (folder.isEmpty())
        return;
    if (!commit())
        return;
    const QStringList missing = m_document.findFilms(folder);
    const qsizetype films = m_document.filmNames().size();
    if (m_run >= 0 && filmsOf(m_run) != m_filmsShown)
        showFilms();
    constexpr qsizetype MostNamed = 5;
    const QString which = missing.mid(0, MostNamed).join(", ") +
                          (missing.size() > MostNamed ? QStringLiteral(" …") : QString());
    if (!missing.isEmpty())
        refuse(tr("%1 of %2 films are there. Not found: %3.")
                   .arg(films - missing.size())
                   .arg(films)
                   .arg(which));
    else
        m_views.front()->flash(tr("All films are found"));
}

/// The run's own film stays where it is.
void TakingWindow::showBeside() {
    if (m_run >= m_document.runCount())
        return; // another run comes to the front
    rememberFilmPlace();
    showFilms();
}

/// What is odd about the films, and where the cameras of a run stand to each other: its first mark
/// that was seen by all tells.
void TakingWindow::showHealth() {
    QStringList notes;
    for (std::size_t camera = 0; camera < m_deck->cameras(); ++camera) {
        const auto index = m_deck->index(camera);
        if (!index || !index->isComplete())
            continue;
        for (const HealthNote& note : checkHealth(*index))
            notes.append((m_deck->cameras() > 1 ? tr("Camera %1: ").arg(camera + 1) : QString()) +
                         QString::fromStdString(note.text));
    }
    for (QString& note : notes)
        note.prepend(QStringLiteral("⚠ "));
    m_health->setText(notes.join('\n'));
    if (m_hasAlignedCameras || m_run < 0 || m_deck->cameras() < 2)
        return;
    const RunMarks marks = m_document.marks(m_run);
    for (const Stamps& stamps : marks.marks) {
        const std::span seen(stamps.begin(), std::min(stamps.size(), m_deck->cameras()));
        const auto isThere = [](const CMTime& stamp) { return isTaken(stamp); };
        if (seen.size() < m_deck->cameras() || !std::ranges::all_of(seen, isThere))
            continue;
        for (std::size_t camera = 1; camera < m_deck->cameras(); ++camera)
            m_deck->setOffset(camera, {.own = stamps[camera], .common = stamps.front()});
        m_hasAlignedCameras = true;
        return;
    }
}

QStringList TakingWindow::copied(const QStringList& files) {
    return copiedIntoFolder(m_document.folder(), files, workspace(), this);
}

void TakingWindow::importVideos() {
    const QStringList files = m_chooseFiles(tr("Import video"), videoFilter());
    if (files.isEmpty())
        return;
    if (!commit())
        return;
    (void)m_document.addFilms(copied(files));
}

void TakingWindow::addCamera() {
    if (m_run < 0)
        return;
    const QStringList names =
        copied(m_chooseFiles(tr("Add another camera of this run"), videoFilter()));
    if (names.isEmpty())
        return;
    m_document.editRun(m_run, tr("camera added"), [&](athletedata031& run) {
        for (const QString& name : names)
            run.videoname.push_back(name.toStdString());
    });
}

void TakingWindow::attachFixedCamera() {
    if (m_run < 0)
        return;
    const QStringList names =
        copied(m_chooseFiles(tr("Attach the film of a fixed camera"), videoFilter()));
    QStringList added;
    const auto& attached = m_document.run(m_run).fixcameras;
    for (const QString& name : names)
        if (std::ranges::find(attached, name.toStdString()) == attached.end())
            added.append(name);
    if (!added.isEmpty())
        m_document.editRun(m_run, tr("fixed camera attached"), [&](athletedata031& run) {
            for (const QString& name : added)
                (void)kavela::attachFixedCamera(run, name.toStdString());
        });
    if (!names.isEmpty())
        m_notes->showFixedFilm(names.front());
}

} // namespace kavela::desktop
