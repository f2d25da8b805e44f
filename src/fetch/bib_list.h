#pragma once

#include "fetch/fetch_run.h"
#include "splitdata/document.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// Whose films are wanted: bibs from a start list, official results or a split file.
namespace kavela::fetch {

/// A line of a list, or a run of a split file, that gave no bib.
struct NoBib {
    std::int64_t line = 0; ///< of the file, or of the runs; counted from 1
    std::string reason;    ///< in a sentence
};

struct BibList {
    std::vector<FetchRun> runs; ///< in the order of the list, each once
    std::vector<NoBib> skipped;
};

/// Reads a list with titles in its first line: one column is called bib, number, start number, nr
/// or no; name (or first and last name), category, phase and run are taken where there are such
/// columns. A list without such titles is read as official results are: position, bib, name.
[[nodiscard]] BibList bibsOfList(std::string_view text);

/// The runs of a split file with the bibs that its official results have for their crews; the
/// results alone where it has no runs.
[[nodiscard]] BibList bibsOfSplitFile(const splittakerdata031& document);

/// Reads either. Throws FileError, DecodeError, or std::runtime_error with a sentence for a file
/// that is neither or has no bib in it.
[[nodiscard]] BibList bibsIn(const std::filesystem::path& path);

} // namespace kavela::fetch
