#pragma once

#include "splitdata/records.h"
#include "tables/table.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kavela {

/// One line of an official list of results.
struct OfficialLine {
    std::int64_t line = 0; ///< of the list, counted from 1
    std::int64_t bib = 0;  ///< 0 where it is not told
    std::string crew;
    std::string category;       ///< empty where it is not told
    std::optional<double> time; ///< seconds without penalties; none where it was not taken
    std::int64_t penalty = 0;   ///< seconds
    std::string status;         ///< DNS, DNF, DSQ and the like, which counts even beside a time
};

/// The lines of a race's results list. A word such as DNF beside the crew's name or nation is the
/// status.
[[nodiscard]] std::vector<OfficialLine> officialLines(const std::vector<allresultsdata030>& lines);

/// The lines of a table by the titles of its columns. The time is the total less the penalties
/// where it has no column. Throws TableError where names, or times, have no column.
[[nodiscard]] std::vector<OfficialLine> officialLines(const ListTable& table);

} // namespace kavela
