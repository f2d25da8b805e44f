#include "desktop/taking/day/day_films.h"

#include "desktop/shell/file_copy.h"
#include "desktop/shell/qt_text.h"
#include "desktop/splitfile/taking_document.h"
#include "splitdata/run_timing.h"
#include "splittaking/race_day/film_naming.h"
#include "splittaking/video_names.h"

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace kavela::desktop {

namespace {

/// Copies a film with its date, which may be all that tells when it was recorded.
bool copyFilm(const QString& from, const QString& to, const WorkSteps& steps) {
    const QDateTime written = QFileInfo(from).lastModified();
    if (copyFile(from, to, steps) != CopyEnd::Done)
        return false;
    QFile copy(to);
    if (copy.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        (void)copy.setFileTime(written, QFileDevice::FileModificationTime);
    return true;
}

} // namespace

double wallSeconds(ReferenceDate moment, const std::string& date) {
    constexpr double SecondsPerDay = 86400;
    constexpr double Milliseconds = 1000;
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(
        static_cast<qint64>((moment.seconds + SecondsFrom1970To2001) * Milliseconds));
    const QDate day = QDate::fromString(qtText(date), Qt::ISODate);
    return static_cast<double>(day.daysTo(local.date())) * SecondsPerDay +
           local.time().msecsSinceStartOfDay() / Milliseconds;
}

DayFilms::DayFilms(TakingDocument& document, QObject* parent)
    : QObject(parent), m_document(document), m_watched(this) {
    connect(&m_document, &TakingDocument::changed, this, &DayFilms::followDocument);
    connect(&m_watched, &WatchedFilms::changed, this, &DayFilms::readAgain);
}

/// Names follow the day, also when a step is undone.
void DayFilms::followDocument() {
    const auto& day = m_document.value().day;
    if (m_path != m_document.path()) {
        m_path = m_document.path();
        m_names.clear();
        m_wanted.clear();
        m_refused.clear();
    } else if (day == m_day) {
        return;
    }
    m_day = day;
    for (const auto& [from, onDisk] : std::map(m_names))
        if (const std::string name = presentName(*day, from); name != onDisk)
            if (!rename(from, name))
                emit failed(tr("%1 could not be called %2 again: is that name taken?")
                                .arg(qtText(onDisk), qtText(name)));
    for (const DayFilm& film : day->films)
        m_names.try_emplace(film.from, presentName(*day, film.from));
    const bool isDay = !day->starts.empty();
    const QString folder = qtText(day->folder);
    const bool isElsewhere =
        !folder.isEmpty() && QFileInfo(folder) != QFileInfo(m_document.folder());
    m_watched.watch(isDay ? m_document.folder() : QString(),
                    isDay && isElsewhere ? folder : QString());
    readAgain();
}

void DayFilms::readAgain() {
    if (!m_day)
        return;
    m_sources = daySources(*m_day, m_watched.here(), m_watched.card());
    m_seen.clear();
    for (const DaySource& source : m_sources)
        m_seen.push_back(seenFilm(source));
    if (m_watched.isCardAway())
        m_refused.clear();
    emit changed();
}

SeenFilm DayFilms::seenFilm(const DaySource& source) const {
    const FilmFile& file = (source.isHere ? m_watched.here() : m_watched.card())[source.file];
    const RecordedFilm& recorded = m_watched.recording(file, source.isHere);
    const double began = recorded.byCamera ? recorded.byCamera->seconds
                                           : recorded.written.seconds - recorded.seconds;
    const FilmFacts facts =
        filmFacts(presentName(*m_day, source.from), m_document.filmPattern().toStdString());
    return {.from = source.from,
            .began = wallSeconds(ReferenceDate{began}, m_day->date),
            .seconds = recorded.seconds,
            .source = recorded.byCamera ? RecordingTime::Camera : RecordingTime::File,
            .crew = crewText(facts.names),
            .phase = facts.phase};
}

const DaySource* DayFilms::source(const std::string& from) const {
    const auto found = std::ranges::find(m_sources, from, &DaySource::from);
    return found == m_sources.end() ? nullptr : &*found;
}

std::optional<std::string> DayFilms::name(const std::string& from, const std::string& wanted) {
    const std::string present = presentName(m_document.day(), from);
    m_names.try_emplace(from, present);
    const std::string name = freeFilmName(m_document.folder().toStdString(), wanted, present);
    return name == present || rename(from, name) ? std::optional(name) : std::nullopt;
}

/// False where the name is taken; both files then stay as they are.
bool DayFilms::rename(const std::string& from, const std::string& name) {
    const QString folder = m_document.folder() + '/';
    std::string& onDisk = m_names[from];
    if (QFileInfo::exists(folder + qtText(name)) ||
        !QFile::rename(folder + qtText(onDisk), folder + qtText(name)))
        return false;
    m_watched.rename(qtText(onDisk), qtText(name));
    onDisk = name;
    return true;
}

void DayFilms::bringHere(const std::vector<std::string>& films) {
    m_wanted = films;
    copyNext();
}

void DayFilms::copyNext() {
    while (m_copied.empty() && !m_wanted.empty()) {
        const std::string from = m_wanted.front();
        m_wanted.erase(m_wanted.begin());
        const DaySource* const film = source(from);
        const QString target = m_document.folder() + '/' + qtText(from);
        if (!film || film->isHere || m_refused.contains(from) || QFileInfo::exists(target))
            continue;
        m_copied = from;
        const QString path =
            m_watched.cardFolder() + '/' + qtText(m_watched.card()[film->file].path);
        m_work.run([path, target](const WorkSteps& steps) { return copyFilm(path, target, steps); },
                   [this, from](bool isDone) { noteCopied(from, isDone); });
        emit copyingChanged();
    }
}

/// The card may have been pulled out, or the disk be full: what was copied so far is gone, and the
/// card still has its film.
void DayFilms::noteCopied(const std::string& from, bool isDone) {
    m_copied.clear();
    emit copyingChanged();
    if (!isDone) {
        m_refused.insert(from);
        emit failed(tr("%1 could not be copied from the card. Is the card out, or the disk full?")
                        .arg(qtText(from)));
    }
    m_watched.lookSoon();
    copyNext();
}

} // namespace kavela::desktop
