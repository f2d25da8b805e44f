#pragma once

#include "splitdata/records.h"

#include <QString>

#include <filesystem>
#include <string>
#include <vector>

namespace kavela::report {

/// One thing to know of a race: "Gates" and "24".
struct HeadingFact {
    QString label;
    QString value;
};

/// What stands above a report. Whatever the race does not tell is left out.
struct ReportHeading {
    QString title;                  ///< of the race, or of its event
    QString subtitle;               ///< event, session, category
    std::vector<HeadingFact> facts; ///< place, date, gates, upstream gates, water
    QString line;                   ///< all but the title in one line
    std::vector<std::string> out;   ///< who did not start or not finish, a line each
};

[[nodiscard]] ReportHeading reportHeading(const infodata031& info);
/// The same with what the race day beside a split file tells; one that cannot be read tells
/// nothing.
[[nodiscard]] ReportHeading reportHeading(const infodata031& info,
                                          const std::filesystem::path& splitFile);

} // namespace kavela::report
