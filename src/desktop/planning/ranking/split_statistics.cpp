#include "desktop/planning/ranking/split_statistics.h"

#include "desktop/shell/background_work.h"
#include "planning/calendar_day.h"
#include "planning/season_statistics.h"
#include "splitdata/loader.h"

#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace kavela::desktop {

namespace {

std::chrono::year calendarYear(std::int64_t year) {
    constexpr std::int64_t Last = 9999;
    return std::chrono::year(static_cast<int>(std::clamp<std::int64_t>(year, 0, Last)));
}

QString yearText(const splittakerdata031& file) {
    const auto day = dayOfMoment(file.info.date);
    return day ? QString::number(static_cast<int>(std::chrono::year_month_day(*day).year()))
               : QString();
}

} // namespace

SplitStatistics::SplitStatistics(std::string athlete, std::int64_t year, Clock clock)
    : m_athlete(std::move(athlete)), m_year(year), m_clock(std::move(clock)) {}

void SplitStatistics::read(const QString& path, const DiagnosticLog& log) {
    const auto leaveOut = [&](const QString& reason) {
        m_leftOut.push_back({QFileInfo(path).fileName(), reason});
    };
    RecognisedSplitFile file = recogniseSplitFile(path.toStdString(), log, m_clock);
    if (!file.version)
        return leaveOut(tr("is no split file that can be read"));
    if (!isOfYear(file.document, calendarYear(m_year))) {
        const QString year = yearText(file.document);
        return leaveOut(year.isEmpty() ? tr("has no date") : tr("is of %1").arg(year));
    }
    if (runCountOf(file.document) == 0)
        return leaveOut(tr("has no run of %1").arg(QString::fromStdString(m_athlete)));
    m_files.push_back(std::move(file.document));
}

std::size_t SplitStatistics::runCountOf(const splittakerdata031& file) const {
    return seasonStatistics(m_athlete, {&file, 1}).pendata.date.size();
}

statisticsplanning_v3 SplitStatistics::statistics() const {
    return seasonStatistics(m_athlete, m_files);
}

ReadStatistics readStatistics(const QStringList& files, const std::string& athlete,
                              std::int64_t year, const Clock& clock, const WorkSteps& steps) {
    ReadStatistics read{SplitStatistics(athlete, year, clock), {}};
    const DiagnosticLog log = [&](std::string_view line) { read.log.emplace_back(line); };
    for (qsizetype i = 0; i < files.size() && !steps.isCancelled(); ++i) {
        steps.tellProgress(i, files.size());
        read.statistics.read(files[i], log);
    }
    return read;
}

QStringList splitFilesIn(const QStringList& paths) {
    QStringList files;
    for (const QString& path : paths) {
        if (!QFileInfo(path).isDir()) {
            files.append(path);
            continue;
        }
        QStringList found;
        QDirIterator folder(path, {"*.kvx"}, QDir::Files, QDirIterator::Subdirectories);
        while (folder.hasNext())
            found.append(folder.next());
        found.sort();
        files.append(found);
    }
    files.removeDuplicates();
    return files;
}

} // namespace kavela::desktop
