#include "desktop/folder/film_shelf.h"

#include "common/error.h"
#include "desktop/shell/disk_worker.h"
#include "desktop/shell/qt_text.h"
#include "desktop/shell/workspace.h"
#include "splitdata/film_marks.h"
#include "splittaking/folder/film_tags.h"
#include "splittaking/folder/watched_films.h"
#include "splittaking/video_names.h"

#include <QFileInfo>
#include <QWidget>

#include <algorithm>
#include <filesystem>
#include <utility>

namespace kavela::desktop {

namespace {

namespace fs = std::filesystem;

/// The one that split taking reads names by.
constexpr const char* NamingKey = "filmNames";
constexpr const char* WatchedKey = "watchedfiles";

fs::path pathOfFolder(const QString& folder) {
    return folder.toStdString();
}

QString toldFault(const std::exception_ptr& fault) {
    return qtText(messageOf(fault));
}

/// The way back.
ShelfStep wayBack(const ShelfStep& step) {
    return {.names = reversed(step.names), .film = step.film, .off = step.on, .on = step.off};
}

} // namespace

FilmShelf::FilmShelf(Workspace& workspace, QWidget& over) : m_workspace(workspace), m_over(&over) {
    connect(&workspace, &Workspace::preferenceChanged, this, [this](const QString& key) {
        if (key == WatchedKey)
            takeWatched();
    });
    takeWatched();
}

FilmShelf::~FilmShelf() = default;

void FilmShelf::openFolder(const QString& folder) {
    const QString path = QFileInfo(folder).absoluteFilePath();
    if (path != m_folder) {
        m_folder = path;
        m_films = {};
        m_done.clear();
        m_undone.clear();
        m_isAsked = false;
        emit stepsChanged();
        emit changed();
    }
    read();
}

void FilmShelf::readAgain() {
    if (!m_folder.isEmpty())
        read();
}

OtherEnds FilmShelf::tellingFault() {
    return {.failed = [this](const std::exception_ptr& fault) {
        endReading();
        emit failed(toldFault(fault));
    }};
}

/// Names and sizes first: they are there at once, also of a folder with large split files.
void FilmShelf::read() {
    m_reading.cancel();
    m_isReading = true;
    emit readingChanged();
    m_reading.run([folder = pathOfFolder(m_folder),
                   pattern = pattern().toStdString()] { return listFilms(folder, pattern); },
                  [this](FilmFolder films) {
                      // What was known stays until it is read again: nothing flickers.
                      if (m_films.films.empty()) {
                          m_films = std::move(films);
                          emit changed();
                      }
                      readMore();
                  },
                  tellingFault());
}

void FilmShelf::readMore() {
    m_reading.run(
        [folder = pathOfFolder(m_folder),
         pattern = pattern().toStdString()](const WorkSteps& steps) {
            FilmFolder films = listFilms(folder, pattern);
            addKnownOfFilms(films, steps.stopToken());
            return films;
        },
        [this](FilmFolder films) {
            m_films = std::move(films);
            endReading();
            emit changed();
            askAboutInterrupted();
        },
        tellingFault());
}

void FilmShelf::endReading() {
    m_isReading = false;
    emit readingChanged();
}

ListedFilm* FilmShelf::listed(const QString& path) {
    const auto found =
        std::ranges::find(m_films.films, fs::path(path.toStdString()), &ListedFilm::path);
    return found == m_films.films.end() ? nullptr : &*found;
}

const ListedFilm* FilmShelf::film(const QString& path) const {
    return const_cast<FilmShelf*>(this)->listed(path);
}

QString FilmShelf::pattern() const {
    const QString kept = m_workspace.remembered(NamingKey).value(0);
    return kept.isEmpty() ? qtText(DefaultVideoPattern) : kept;
}

void FilmShelf::setPattern(const QString& pattern) {
    m_workspace.remember(NamingKey, {pattern});
}

void FilmShelf::takeWatched() {
    m_watched.clear();
    for (const std::string& film : m_workspace.preferences().array(WatchedKey))
        m_watched.insert(qtText(film));
    emit watchedChanged();
}

bool FilmShelf::isWatched(const QString& path) const {
    return m_watched.contains(path);
}

void FilmShelf::setWatched(const QStringList& paths, bool isWatched) {
    const std::vector<std::string> before = m_workspace.preferences().array(WatchedKey);
    std::vector<std::string> watched = before;
    for (const QString& path : paths)
        if (isWatched)
            (void)addWatched(watched, path.toStdString());
        else
            std::erase(watched, path.toStdString());
    if (watched != before)
        m_workspace.setPreference(WatchedKey, watched);
}

void FilmShelf::rename(const FilmRenames& names) {
    if (!names.empty())
        take({.names = names});
}

void FilmShelf::take(ShelfStep step) {
    carryOut(step, [this, step] {
        m_done.push_back(step);
        m_undone.clear();
    });
}

void FilmShelf::undo() {
    if (m_done.empty())
        return;
    carryOut(wayBack(m_done.back()), [this] {
        m_undone.push_back(std::move(m_done.back()));
        m_done.pop_back();
    });
}

void FilmShelf::redo() {
    if (m_undone.empty())
        return;
    carryOut(m_undone.back(), [this] {
        m_done.push_back(std::move(m_undone.back()));
        m_undone.pop_back();
    });
}

/// `done` notes the step once it is certain, which renaming is not before it ends. By then the one
/// that was handed in may have moved.
void FilmShelf::carryOut(const ShelfStep& step, const std::function<void()>& done) {
    if (!step.names.empty())
        return startRenaming(step.names, done);
    const ShelfStep tags = step;
    done();
    emit stepsChanged();
    changeTags(tags);
}

/// A split file that a window edits is not written behind its back: what is there is not in the
/// file yet.
void FilmShelf::startRenaming(const FilmRenames& names, const std::function<void()>& done) {
    m_renaming.runOver(
        {m_over, tr("Renaming films…")},
        [folder = pathOfFolder(m_folder), names] { return splitFilesWith(folder, names); },
        [this, names, done](const std::vector<fs::path>& files) {
            for (const fs::path& file : files)
                if (m_workspace.openFiles().holderOf(qtText(file.string()))) {
                    emit failed(tr("“%1” has films that are to be renamed, and is open in another "
                                   "window. Close it there first.")
                                    .arg(qtText(file.filename().string())));
                    return;
                }
            carryOutRenaming(names, done);
        },
        tellingFault());
}

void FilmShelf::carryOutRenaming(const FilmRenames& names, const std::function<void()>& done) {
    m_renaming.runOver(
        {m_over, tr("Renaming films…")},
        [folder = pathOfFolder(m_folder), names] { renameFilms(folder, names); },
        [this, names, done] {
            done();
            emit stepsChanged();
            takeNames(names);
        },
        tellingFault());
}

void FilmShelf::takeNames(const FilmRenames& names) {
    std::vector<std::string> watched = m_workspace.preferences().array(WatchedKey);
    const std::vector<std::string> before = watched;
    for (const auto& [from, to] : names) {
        const fs::path old = pathOfFolder(m_folder) / from;
        const fs::path now = pathOfFolder(m_folder) / to;
        std::ranges::replace(watched, old.string(), now.string());
        for (ListedFilm& film : m_films.films)
            if (film.path == old)
                film.path = now;
    }
    if (watched != before)
        m_workspace.setPreference(WatchedKey, watched);
    emit renamed(names);
    emit changed();
    read();
}

/// A renaming that the power cut off is offered once, in the folder where it was.
void FilmShelf::askAboutInterrupted() {
    if (std::exchange(m_isAsked, true))
        return;
    std::optional<FilmRenames> names;
    try {
        names = interruptedRenaming(pathOfFolder(m_folder));
    } catch (const std::runtime_error& error) { // of the file or of what it holds
        emit failed(tr("A renaming was cut off here, and its note cannot be read: %1")
                        .arg(QString::fromUtf8(error.what())));
        return;
    }
    if (!names)
        return;
    const int choice = m_workspace.choose(
        {tr("Renaming was cut off").toStdString(),
         tr("%n film(s) of this folder were being renamed when the program ended. No film is "
            "lost: the renaming can be completed, or undone.",
            nullptr, static_cast<int>(names->size()))
             .toStdString()},
        {tr("Complete it"), tr("Undo it")}, m_over);
    if (choice >= 0)
        finishInterrupted(*names, choice == 1);
}

void FilmShelf::finishInterrupted(const FilmRenames& names, bool isUndone) {
    m_renaming.runOver(
        {m_over, tr("Renaming films…")},
        [folder = pathOfFolder(m_folder), isUndone] {
            isUndone ? undoRenaming(folder) : completeRenaming(folder);
        },
        [this, names, isUndone] {
            if (!isUndone)
                m_done.push_back({.names = names});
            emit stepsChanged();
            takeNames(isUndone ? reversed(names) : names);
        },
        tellingFault());
}

void FilmShelf::addTag(const QString& path, const FilmTag& tag) {
    if (listed(path))
        take({.film = path, .on = {tag}});
}

void FilmShelf::removeTag(const QString& path, const FilmTag& tag) {
    const ListedFilm* const film = listed(path);
    if (!film || std::ranges::find(film->tags, tag) == film->tags.end())
        return;
    if (tag.isOfSplitFile) {
        emit failed(tr("This tag is of the split file: split taking edits it."));
        return;
    }
    take({.film = path, .off = {tag}});
}

void FilmShelf::moveTag(const QString& path, const FilmTag& tag, const CMTime& moment) {
    const ListedFilm* const film = listed(path);
    const FilmTag moved{tag.name, moment, false};
    if (film && !tag.isOfSplitFile && moved != tag &&
        std::ranges::find(film->tags, tag) != film->tags.end())
        take({.film = path, .off = {tag}, .on = {moved}});
}

/// A film that is gone meanwhile, and tags that are as they are to be, stay as they are.
void FilmShelf::changeTags(const ShelfStep& step) {
    ListedFilm* const film = listed(step.film);
    if (!film)
        return;
    for (const FilmTag& tag : step.off)
        if (const auto found = std::ranges::find(film->tags, tag); found != film->tags.end())
            film->tags.erase(found);
    for (const FilmTag& tag : step.on) {
        const auto place = std::ranges::find_if(film->tags, [&](const FilmTag& other) {
            return orderOf(other.moment, tag.moment) > 0;
        });
        film->tags.insert(place, tag);
    }
    emit changed();
    writeTags([path = film->path, off = step.off, on = step.on] {
        for (const FilmTag& tag : off)
            (void)removeFilmTag(path, {tag.name, tag.moment});
        for (const FilmTag& tag : on)
            addFilmTag(path, {tag.name, tag.moment});
    });
}

/// What is shown goes back to what is in the files where they cannot be written.
void FilmShelf::writeTags(const std::function<void()>& write) {
    disk::run(*this, write, [this](const std::exception_ptr& fault) {
        if (!fault)
            return;
        emit failed(toldFault(fault));
        readAgain();
    });
}

} // namespace kavela::desktop
