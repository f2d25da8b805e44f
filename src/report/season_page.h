#pragma once

#include "performance/season.h"
#include "report/paged_report.h"

#include <cstddef>
#include <memory>
#include <string>

namespace kavela::report {

/// An athlete's season on a page: the way through the races, how often medals and finals, what is
/// chance, the trend, what changes from phase to phase, who is met, and what it takes. `athlete` is
/// one of Season::athletes. The report keeps what it needs of the season.
[[nodiscard]] std::unique_ptr<PagedReport> seasonPage(const Season& season, std::size_t athlete);

/// "BROOK Adam - season MK1.pdf". Whatever file systems do not take is replaced.
[[nodiscard]] std::string seasonPageFileName(const Season& season, std::size_t athlete);

} // namespace kavela::report
