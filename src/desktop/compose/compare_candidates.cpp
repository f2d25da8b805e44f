#include "desktop/compose/compare_candidates.h"

#include "common/text.h"
#include "compose/composition.h"
#include "desktop/shell/qt_text.h"
#include "desktop/splitfile/film_places.h"
#include "splitdata/loader.h"
#include "splitdata/run_timing.h"
#include "splitdata/run_totals.h"
#include "splittaking/video_names.h"
#include "video/index.h"
#include "video/video_error.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <string_view>

namespace kavela::desktop {

namespace {

CompareCandidate runCandidate(const splittakerdata031& race, const QString& path, std::size_t run,
                              std::size_t camera) {
    const athletedata031& athlete = race.athletes[run];
    const CaptionedRun captioned = captionedRun(race.info, athlete, camera);
    CompareCandidate found;
    found.splitFile = path;
    found.run = static_cast<std::int64_t>(run) + 1;
    found.camera = static_cast<std::int64_t>(camera) + 1;
    found.film =
        QFileInfo(path).absolutePath() + '/' + QString::fromStdString(athlete.videoname[camera]);
    found.names = QString::fromStdString(captioned.names);
    found.category = QString::fromStdString(athlete.cat);
    found.phase = QString::fromStdString(athlete.phase);
    if (const auto total = totalOf(race.info, athlete))
        found.time = total->total();
    const auto isTaken = [](const auto& mark) { return mark.has_value(); };
    found.isMarked = !captioned.marks.empty() && captioned.marks.front() &&
                     std::ranges::count_if(captioned.marks, isTaken) > 1;
    return found;
}

void readRuns(const QString& path, FoundCandidates& found) {
    const RecognisedSplitFile file = recogniseSplitFile(
        path.toStdString(), [](std::string_view) {}, [] { return ReferenceDate{}; });
    if (!file.version) {
        found.faults.push_back(QStringLiteral("%1: %2").arg(
            QFileInfo(path).fileName(),
            QString::fromStdString(file.failures.empty() ? say("it could not be read")
                                                         : file.failures.front().fault.message())));
        return;
    }
    const std::size_t before = found.candidates.size();
    for (std::size_t run = 0; run < file.document.athletes.size(); ++run)
        for (std::size_t camera = 0; camera < file.document.athletes[run].videoname.size();
             ++camera)
            if (!file.document.athletes[run].videoname[camera].empty())
                found.candidates.push_back(runCandidate(file.document, path, run, camera));
    if (found.candidates.size() == before)
        found.faults.push_back(
            qtText(say("{}: no run has a film", QFileInfo(path).fileName().toStdString())));
}

void readFilm(const QString& path, const std::stop_token& stop, FoundCandidates& found) {
    CompareCandidate candidate;
    candidate.film = path;
    candidate.names = QFileInfo(path).completeBaseName();
    try {
        if (readVideoIndex(path.toStdString(), stop)) // else it was stopped
            found.candidates.push_back(std::move(candidate));
    } catch (const VideoError& error) {
        found.faults.push_back(QStringLiteral("%1: %2").arg(
            QFileInfo(path).fileName(), QString::fromStdString(error.reason())));
    }
}

/// Whether a film of a job is marked from its start to a split behind it. One that is not known
/// yet, as while its split file is being read, is taken to be.
bool isMarkedIn(const composefilm002& film, const std::vector<CompareCandidate>& known) {
    if (film.splitFile.empty())
        return false;
    const auto candidate = std::ranges::find_if(
        known, [&](const CompareCandidate& entry) { return isCandidate(film, entry); });
    return candidate == known.end() || candidate->isMarked;
}

} // namespace

FoundCandidates readCandidates(const QStringList& paths, const std::stop_token& stop) {
    FoundCandidates found;
    for (const QString& path : paths) {
        if (stop.stop_requested())
            break;
        const QString whole = QFileInfo(path).absoluteFilePath();
        if (isVideoFile(QFileInfo(path).fileName().toStdString()))
            readFilm(whole, stop, found);
        else
            readRuns(whole, found);
    }
    return found;
}

void placeCandidates(const Workspace& workspace, std::vector<CompareCandidate>& candidates) {
    for (CompareCandidate& candidate : candidates)
        if (!candidate.splitFile.isEmpty())
            candidate.film =
                placeOfFilm(workspace, candidate.splitFile, QFileInfo(candidate.film).fileName());
}

composefilm002 filmOfCandidate(const CompareCandidate& candidate) {
    composefilm002 film;
    film.startsAt = candidate.startsAt;
    film.camera = candidate.camera;
    if (candidate.splitFile.isEmpty()) {
        film.film = candidate.film.toStdString();
        film.names = candidate.names.toStdString();
        return film;
    }
    film.splitFile = candidate.splitFile.toStdString();
    film.run = candidate.run;
    // Beside its split file it is found by itself, also after both have moved.
    if (QFileInfo(candidate.film).absolutePath() != QFileInfo(candidate.splitFile).absolutePath())
        film.film = candidate.film.toStdString();
    return film;
}

bool isCandidate(const composefilm002& film, const CompareCandidate& candidate) {
    if (film.splitFile.empty() || candidate.splitFile.isEmpty())
        return film.splitFile.empty() && candidate.splitFile.isEmpty() &&
               film.film == candidate.film.toStdString();
    return film.splitFile == candidate.splitFile.toStdString() && film.run == candidate.run &&
           film.camera == candidate.camera;
}

void settleRange(composejob002& job, const std::vector<CompareCandidate>& known) {
    if (job.films.empty() || job.range.kind == wordOf(RangeKind::Free) ||
        std::ranges::any_of(job.films,
                            [&](const composefilm002& film) { return isMarkedIn(film, known); }))
        return;
    job.range.kind = wordOf(RangeKind::Run);
}

} // namespace kavela::desktop
