#include "desktop/taking/run_films.h"

#include "desktop/film/film_stage.h"
#include "desktop/shell/workspace.h"
#include "desktop/splitfile/film_files.h"
#include "desktop/splitfile/taking_document.h"
#include "desktop/taking/notes/notes_panel.h"
#include "desktop/taking/split_mode.h"
#include "splittaking/annotations/film_marks.h"
#include "splittaking/annotations/fixed_cameras.h"
#include "splittaking/messages.h"

#include <QFileInfo>

#include <algorithm>
#include <span>
#include <utility>

namespace kavela::desktop {

RunFilms::RunFilms(Desk desk) : QObject(&desk.stage), m_desk(std::move(desk)) {
    connect(&m_desk.stage, &FilmStage::searchWanted, this, &RunFilms::find);
    connect(&m_desk.stage.deck(), &FilmDeck::indexChanged, this, &RunFilms::align);
    connect(&m_desk.notes, &NotesPanel::attachWanted, this, &RunFilms::attachFixedCamera);
    connect(&m_desk.notes, &NotesPanel::besideChanged, this, &RunFilms::showBeside);
}

QStringList RunFilms::films() const {
    QStringList films;
    const std::size_t cameras = m_run < 0 ? 0 : m_desk.document.run(m_run).videoname.size();
    for (std::size_t camera = 0; camera < cameras; ++camera)
        if (const QString film = m_desk.document.film(m_run, camera); !film.isEmpty())
            films.append(film);
    return films;
}

void RunFilms::startRun(int run) {
    m_desk.stage.rememberPlace();
    m_run = run;
}

/// Where the run's films begin the first time; nothing for their beginning.
std::optional<CMTime> RunFilms::start() const {
    if (m_run < 0 || !m_desk.workspace.preferences().boolean("startinCMTime"))
        return std::nullopt;
    const RunMarks marks = m_desk.document.marks(m_run);
    const Stamps* const stamps = stampsOf(marks, 0);
    return stamps ? std::optional(stamps->front()) : std::nullopt;
}

void RunFilms::show() {
    m_areAligned = false;
    QStringList beside;
    if (const auto fixed = m_desk.notes.fixedCamera(); fixed && m_run >= 0)
        beside.append(m_desk.document.fixedFilm(m_run, *fixed));
    beside.removeAll(QString());
    m_desk.stage.showFilms(
        {.films = films(),
         .beside = beside,
         .key = m_run < 0 ? FilmKey() : FilmKey(m_desk.document.identityOf(m_run))});
    m_desk.notes.bringIntoStep();
    if (m_run < 0)
        m_desk.stage.setMessage(tr("Import videos with Ctrl+I, or drop a folder of videos here."));
    else if (m_desk.stage.films().isEmpty())
        m_desk.stage.setMessage(tr(messages::NoVideo));
    askForMissing();
    m_desk.stage.goToPlace(start());
    emit shown();
}

void RunFilms::follow() {
    if (m_run >= 0 && films() != m_desk.stage.films())
        show();
}

void RunFilms::askForMissing() {
    const QStringList& films = m_desk.stage.films();
    for (qsizetype camera = 0; camera < films.size(); ++camera)
        if (const QFileInfo film(films[camera]); !film.isFile())
            m_desk.stage.askForFilm(
                static_cast<std::size_t>(camera),
                tr("%1 is not in the folder of the split file.").arg(film.fileName()));
}

/// The run's own film stays where it is.
void RunFilms::showBeside() {
    if (m_run >= m_desk.document.runCount())
        return; // another run comes to the front
    m_desk.stage.rememberPlace();
    show();
}

/// Where the cameras of a run stand to each other: its first mark that was seen by all tells.
void RunFilms::align() {
    FilmDeck& deck = m_desk.stage.deck();
    if (m_areAligned || m_run < 0 || deck.cameras() < 2)
        return;
    const RunMarks marks = m_desk.document.marks(m_run);
    for (const Stamps& stamps : marks.marks) {
        const std::span seen(stamps.begin(), std::min(stamps.size(), deck.cameras()));
        const auto isThere = [](const CMTime& stamp) { return isTaken(stamp); };
        if (seen.size() < deck.cameras() || !std::ranges::all_of(seen, isThere))
            continue;
        for (std::size_t camera = 1; camera < deck.cameras(); ++camera)
            deck.setOffset(camera, {.own = stamps[camera], .common = stamps.front()});
        m_areAligned = true;
        return;
    }
}

void RunFilms::find() {
    const auto missing = m_desk.files.search(m_desk.commit);
    if (!missing)
        return;
    const qsizetype films = m_desk.document.filmNames().size();
    follow();
    constexpr qsizetype MostNamed = 5;
    const QString which = missing->mid(0, MostNamed).join(", ") +
                          (missing->size() > MostNamed ? QStringLiteral(" …") : QString());
    if (missing->isEmpty())
        m_desk.stage.flash(tr("All films are found"));
    else
        m_desk.stage.refuse(tr("%1 of %2 films are there. Not found: %3.")
                                .arg(films - missing->size())
                                .arg(films)
                                .arg(which));
}

void RunFilms::importFilms() {
    const QStringList files = m_desk.files.chooseFilms(tr("Import video"));
    if (!files.isEmpty() && m_desk.commit())
        m_desk.files.copy(
            files, [this](const QStringList& names) { (void)m_desk.document.addFilms(names); });
}

void RunFilms::addCamera() {
    if (m_run >= 0)
        m_desk.files.copy(
            m_desk.files.chooseFilms(tr("Add another camera of this run")),
            [this, run = m_run](const QStringList& names) { addCameras(run, names); });
}

void RunFilms::addCameras(int place, const QStringList& names) {
    m_desk.document.editRun(place, tr("camera added"), [&](athletedata031& run) {
        for (const QString& name : names)
            run.videoname.push_back(name.toStdString());
    });
}

void RunFilms::attachFixedCamera() {
    if (m_run >= 0)
        m_desk.files.copy(
            m_desk.files.chooseFilms(tr("Attach the film of a fixed camera")),
            [this, run = m_run](const QStringList& names) { attachFixedFilms(run, names); });
}

void RunFilms::attachFixedFilms(int place, const QStringList& names) {
    QStringList added;
    const auto& attached = m_desk.document.run(place).fixcameras;
    for (const QString& name : names)
        if (std::ranges::find(attached, name.toStdString()) == attached.end())
            added.append(name);
    if (!added.isEmpty())
        m_desk.document.editRun(place, tr("fixed camera attached"), [&](athletedata031& run) {
            for (const QString& name : added)
                (void)kavela::attachFixedCamera(run, name.toStdString());
        });
    m_desk.notes.showFixedFilm(names.front());
}

} // namespace kavela::desktop
