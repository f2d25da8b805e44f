#pragma once

#include "common/log.h"
#include "common/reference_date.h"
#include "planning/planning_records.h"
#include "splitdata/document.h"

#include <QCoreApplication>
#include <QStringList>

#include <string>
#include <vector>

namespace kavela::desktop {

class WorkSteps;

/// Statistics of an athlete's season from split files, which are only read; those of older releases
/// are brought to the current one in memory.
class SplitStatistics {
    Q_DECLARE_TR_FUNCTIONS(SplitStatistics)

public:
    /// A file that tells nothing of the season, and why.
    struct LeftOut {
        QString file;
        QString reason;
    };

    SplitStatistics(std::string athlete, std::int64_t year, Clock clock);

    /// The log is written at once.
    void read(const QString& path, const DiagnosticLog& log);

    /// What was found so far.
    [[nodiscard]] statisticsplanning_v3 statistics() const;
    [[nodiscard]] std::size_t fileCount() const { return m_files.size(); }
    [[nodiscard]] const std::vector<LeftOut>& leftOut() const { return m_leftOut; }

private:
    [[nodiscard]] std::size_t runCountOf(const splittakerdata031& file) const;

    std::string m_athlete;
    std::int64_t m_year;
    Clock m_clock;
    std::vector<splittakerdata031> m_files;
    std::vector<LeftOut> m_leftOut;
};

/// What was read beside the window, with the lines that belong into its log.
struct ReadStatistics {
    SplitStatistics statistics;
    std::vector<std::string> log;
};

/// Reads the files one after the other until it is cancelled.
[[nodiscard]] ReadStatistics readStatistics(const QStringList& files, const std::string& athlete,
                                            std::int64_t year, const Clock& clock,
                                            const WorkSteps& steps);

/// The files themselves, and the split files within the folders, in order of their names.
[[nodiscard]] QStringList splitFilesIn(const QStringList& paths);

} // namespace kavela::desktop
