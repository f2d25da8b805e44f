#pragma once

#include "performance/season.h"
#include "report/paged_report.h"

#include <memory>
#include <string>

namespace kavela::report {

/// The athletes of a team beside one another: what is chance, who grows faster, medals and finals,
/// what ranks took, and the places that may be expected. The report keeps what it needs of the
/// season.
[[nodiscard]] std::unique_ptr<PagedReport> seasonTeamReport(const Season& season);

/// "Season MK1.pdf". Whatever file systems do not take is replaced.
[[nodiscard]] std::string seasonTeamFileName(const Season& season);

} // namespace kavela::report
