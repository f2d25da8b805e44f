#pragma once

#include "common/log.h"
#include "splitdata/document.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Official results from a semicolon-separated list: position, bib, name, nationality, time in
/// seconds, penalty seconds; what follows on a line is ignored.
namespace kavela {

/// A line that could not be taken, or was taken and is odd.
struct SkippedLine {
    std::int64_t line = 0; ///< counted from 1, the header included
    std::string reason;

    friend bool operator==(const SkippedLine&, const SkippedLine&) = default;
};

/// What a list holds. `total` of a result is time plus penalty.
struct ResultsList {
    std::vector<allresultsdata030> results;
    std::vector<SkippedLine> skipped; ///< without the header and blank lines
    /// Lines that were taken as they stand, with what no official result has.
    std::vector<SkippedLine> doubtful;
};

/// Reads a list from a text in UTF-8. The first line is the header. Numbers are whole fields in
/// plain form with a point, whatever the locale; a carriage return belongs to the line end.
[[nodiscard]] ResultsList parseResults(std::string_view text);

struct ResultsImport {
    std::int64_t imported = 0;
    std::vector<SkippedLine> skipped;
    std::vector<SkippedLine> doubtful;  ///< imported all the same
    std::optional<std::string> failure; ///< why nothing was imported: the list cannot be read
};

/// Appends the results of a list to the document and recomputes the perfect time and every run's
/// expected time. A list that cannot be read leaves the document as it is; the log says why.
[[nodiscard]] ResultsImport importResults(splittakerdata031& document,
                                          const std::filesystem::path& list,
                                          const DiagnosticLog& log);

} // namespace kavela
