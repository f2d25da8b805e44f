#include "desktop/compose/requested_job.h"

#include "desktop/compose/compare_window.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace kavela::desktop {

RequestedJob jobOfRequest(const CompareRequest& request) {
    RequestedJob wanted;
    composejob002& job = wanted.job;
    QStringList& files = wanted.files;
    std::vector<CompareCandidate>& films = wanted.films;
    for (const CompareRequest::Run& run : request.runs) {
        const QString file = QFileInfo(run.splitFile).absoluteFilePath();
        composefilm002 film;
        film.splitFile = file.toStdString();
        film.run = static_cast<std::int64_t>(run.run) + 1;
        job.films.push_back(film);
        files.append(file);
    }
    for (const CompareRequest::Film& film : request.films) {
        CompareCandidate candidate;
        candidate.film = QFileInfo(film.path).absoluteFilePath();
        candidate.names = film.names;
        candidate.startsAt = film.startsAt;
        films.push_back(candidate);
        job.films.push_back(filmOfCandidate(candidate));
    }
    constexpr std::size_t Most = 4;
    wanted.isCutToFour = job.films.size() > Most;
    job.films.resize(std::min(job.films.size(), Most));
    if (request.splits) {
        job.synchronise = wordOf(Synchronise::Split);
        job.split = static_cast<std::int64_t>(request.splits->first);
        job.range.kind = wordOf(RangeKind::Splits);
        job.range.fromSplit = static_cast<std::int64_t>(request.splits->first);
        job.range.toSplit = static_cast<std::int64_t>(request.splits->second);
    }
    settleRange(job, films);
    const QString first = files.isEmpty() ? (films.empty() ? QDir::homePath() : films.front().film)
                                          : files.constFirst();
    wanted.folder = QFileInfo(first).absolutePath();
    files.removeDuplicates();
    return wanted;
}

QString placeInJob(const QString& where) {
    if (!where.startsWith("films["))
        return {};
    const int end = static_cast<int>(where.indexOf(']'));
    return CompareWindow::tr("Film %1").arg(where.mid(6, end - 6).toInt() + 1);
}

} // namespace kavela::desktop
