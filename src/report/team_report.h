#pragma once

#include "report/paged_report.h"
#include "results/categorization.h"

#include <memory>
#include <string_view>
#include <vector>

namespace kavela::report {

/// The name of the file that the categorization goes into.
inline constexpr const char* CategorizationFileName = "2025 Categorization.pdf";

/// The categorization of one category: a block for each athlete with label, counts and a line for
/// each counted race, coloured by its final position.
[[nodiscard]] std::unique_ptr<PagedReport>
categorizationReport(std::string_view category, std::vector<Categorization> athletes);

} // namespace kavela::report
